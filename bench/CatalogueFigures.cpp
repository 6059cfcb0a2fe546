#include "BenchInstallation.h"
#include "Figures.h"
#include "Floors.h"
#include "QuietPorts.h"
#include "Registry.h"
#include "dosboxconf/OptionTable.h"
#include "library/CatalogueCache.h"
#include "library/CatalogueCommands.h"
#include "library/CatalogueScan.h"
#include "library/IconImages.h"
#include "shell/Launcher.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace pelorin::bench {

namespace {

void AddLoading(const BenchInstallation& installation, const QStringList& cacheFiles)
{
    AddFigure("cache_read/is", [&](benchmark::State& state) {
        TimeEach(state, [&] {
            NoProgress progress;
            auto read = library::ReadCatalogueCache(installation.places, progress);
            if (!read) {
                state.SkipWithError(qPrintable(read.Failure().text));
            }
            return read;
        });
    });
    AddFigure("cache_read/floor", [=](benchmark::State& state) {
        TimeEach(state, [&] {
            std::vector<QByteArray> contents;
            for (const QString& file : cacheFiles) {
                contents.push_back(ReadWhole(QFile::encodeName(file).constData()));
            }
            return contents;
        });
    });
}

/// All that lies between the start of the reading and a list that can be painted: the tree's nodes,
/// the order of titles and the rows as well.
void AddListReady(const BenchInstallation& installation)
{
    AddFigure("cache_list_ready/is", [&](benchmark::State& state) {
        QuietPorts quiet;
        shell::Launcher launcher(quiet.ports);
        launcher.places = installation.places;
        launcher.lang = installation.lang;
        launcher.options =
            dosboxconf::ReadOptionTable(launcher.places.InAppDir(u"option.dat"_s)).ValueOr({});
        launcher.defaultIcon = installation.defaultIcon;
        TimeEach(state, [&] {
            library::ReadGameList(launcher);
            return launcher.screens.list.items.size();
        });
        if (launcher.screens.list.items.size() != installation.catalogue.size()) {
            state.SkipWithError("the list lacks games");
        }
    });
}

void AddScanning(const BenchInstallation& installation)
{
    AddFigure("scan/is", [&](benchmark::State& state) {
        TimeEach(state, [&] {
            NoProgress progress;
            return library::ScanCatalogue(
                installation.places,
                library::ReadingRules{installation.lang, 0},
                installation.defaultIcon,
                progress);
        });
    })->Repetitions(5);
    AddFigure("scan/floor", [&](benchmark::State& state) {
        TimeEach(state, [&] { return ScanBare(installation.places.gamesRoot); });
    })->Repetitions(5);
}

struct SavePlace {
    QTemporaryDir folder;
    shell::Places places;
    QStringList former; // the files of the installation itself

    SavePlace(const BenchInstallation& installation, const QStringList& cacheFiles)
        : folder(installation.places.InAppDir(u"saveXXXXXX"_s))
        , places{folder.path(), installation.places.gamesRoot, QString()}
        , former(cacheFiles)
    {}

    void Clear() const
    {
        for (const QString& file : {u"Gamelist.lst"_s, u"IconList.bmp"_s}) {
            QFile::remove(folder.filePath(file));
        }
    }
};

bool Save(const SavePlace& place, const BenchInstallation& from, const library::IconSheet& icons)
{
    NoProgress progress;
    return library::SaveCatalogueCache(place.places, from.catalogue, icons, progress).Ok();
}

void AddSaving(const BenchInstallation& installation, const QStringList& cacheFiles)
{
    const auto fail = [](benchmark::State& state, bool done) {
        if (!done) {
            state.SkipWithError("not saved");
        }
        return done;
    };
    AddFigure("save_new/is", [=, &installation](benchmark::State& state) {
        const SavePlace place(installation, cacheFiles);
        TimeEach(
            state,
            [&] { place.Clear(); },
            [&] { return fail(state, Save(place, installation, installation.icons)); });
    });
    AddFigure("save_new/floor", [=, &installation](benchmark::State& state) {
        const SavePlace place(installation, cacheFiles);
        TimeEach(
            state,
            [&] { place.Clear(); },
            [&] { return fail(state, CopyByCp(place.former, place.folder.path())); });
    });
    AddFigure("save_unchanged/is", [=, &installation](benchmark::State& state) {
        const SavePlace place(installation, cacheFiles);
        fail(state, Save(place, installation, installation.icons));
        TimeEach(state, [&] { return fail(state, Save(place, installation, installation.icons)); });
    });
    AddFigure("save_one_icon/is", [=, &installation](benchmark::State& state) {
        const SavePlace place(installation, cacheFiles);
        fail(state, Save(place, installation, installation.icons));
        library::IconSheet icons = installation.icons;
        icons.Set(0, library::PlainIcon(library::kLargeIcon, 1, 2, 3));
        TimeEach(state, [&] { return fail(state, Save(place, installation, icons)); });
    });
    AddFigure("save_one_icon/floor", [=, &installation](benchmark::State& state) {
        const SavePlace place(installation, cacheFiles);
        fail(state, Save(place, installation, installation.icons));
        TimeEach(state, [&] { return fail(state, CopyByCp(place.former, place.folder.path())); });
    });
}

} // namespace

void AddCatalogueFigures(const BenchInstallation& installation)
{
    NoProgress progress;
    const auto saved = library::SaveCatalogueCache(
        installation.places, installation.catalogue, installation.icons, progress);
    if (!saved) {
        qFatal("%s", qUtf8Printable(saved.Failure().text));
    }
    const QStringList cacheFiles{
        installation.places.InAppDir(u"Gamelist.lst"_s),
        installation.places.InAppDir(u"IconList.bmp"_s)};
    AddLoading(installation, cacheFiles);
    AddListReady(installation);
    AddScanning(installation);
    AddSaving(installation, cacheFiles);
}

} // namespace pelorin::bench
