#include "dosboxconf/ConfFiles.h"
#include "dosboxconf/OptionTable.h"
#include "fuzz/Harness.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace pelorin;

// The first byte says which file the others are: Default.conf ("D") or the game's edit.conf.

namespace {

/// The option table of the project itself, so that the upgrades meet the keys that they know.
dosboxconf::OptionGrid ProjectGrid()
{
    QFile file(QStringLiteral(PELORIN_OPTIONS));
    fuzz::Require(file.open(QIODevice::ReadOnly), "the option table is there");
    auto grid = dosboxconf::ParseOptionTable(QString::fromUtf8(file.readAll()), file.fileName());
    fuzz::Require(grid.Ok(), "the option table can be read");
    return grid.Take();
}

void RemoveBoth(const fuzz::FuzzInstallation& installation)
{
    for (const QString& path :
         {installation.InApp(u"Default.conf"_s), installation.InMeta(u"edit.conf"_s)}) {
        fuzz::FuzzInstallation::Remove(path);
        fuzz::FuzzInstallation::Remove(path + u".bak"_s);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::FuzzInstallation installation;
    static const dosboxconf::OptionGrid clean = ProjectGrid();
    if (size == 0) {
        return 0;
    }
    const shell::Places& places = installation.Places();
    const bool global = data[0] == 'D';
    RemoveBoth(installation);
    fuzz::FuzzInstallation::Write(
        global ? installation.InApp(u"Default.conf"_s) : installation.InMeta(u"edit.conf"_s),
        fuzz::BytesOf(data + 1, size - 1));

    dosboxconf::OptionGrid grid = clean;
    dosboxconf::ReadBuildIndex(places, u"Star"_s, grid);
    const dosboxconf::LoadedConf loaded = dosboxconf::LoadGameConf(places, u"Star"_s, grid);
    for (const dosboxconf::Difference& difference : loaded.differences) {
        fuzz::Require(!difference.title.isEmpty(), "a difference has a title");
    }
    fuzz::Require(dosboxconf::SaveGameConf(places, u"Star"_s, grid).Ok(), "it can be saved");
    const dosboxconf::Selection saved = grid.OptionSelection;

    grid.OptionSelection = {};
    const dosboxconf::LoadedConf again = dosboxconf::LoadGameConf(places, u"Star"_s, grid);
    fuzz::Require(
        !again.report.upgraded && !again.report.linesMissing && !again.report.created,
        "what was saved is whole and current");
    fuzz::Require(grid.OptionSelection == saved, "what was saved reads the same");
    return 0;
}
