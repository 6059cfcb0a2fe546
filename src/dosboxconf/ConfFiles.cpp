#include "dosboxconf/ConfFiles.h"

#include "dosboxconf/ConfDefaults.h"
#include "dosboxconf/ConfUpgrade.h"
#include "dosboxconf/private/ConfPaths.h"
#include "dosboxconf/private/MetaFolder.h"
#include "dosboxconf/private/StoredConf.h"
#include "library/GameFiles.h"
#include "library/GameInfo.h"
#include "platform/Numbers.h"
#include "platform/Paths.h"
#include "platform/TextFile.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

namespace {

using platform::Outcome;

/// The file as it stands; nothing whole where it can't be read.
StoredConf ReadConf(const QString& path)
{
    return ParseConf(platform::ReadLines(path).ValueOr(QStringList()));
}

void Merge(ConfReport& report, const ConfReport& other)
{
    report.created |= other.created;
    report.upgraded |= other.upgraded;
    report.fellBack |= other.fellBack;
    report.linesMissing |= other.linesMissing;
    report.backupKept |= other.backupKept;
    report.notes << other.notes;
}

/// Whether an option's selection is an index into its values, and there is none at that place.
bool IsOffItsList(const OptionGrid& grid, std::size_t at, std::int32_t selected)
{
    const bool isIndex =
        grid.OptionKinds[at] == OptionKind::Index || grid.OptionKinds[at] == OptionKind::Mapper;
    return isIndex && !grid.OptionKey[at].isEmpty() &&
           (selected < 0 || selected >= grid.OptionValue[at].size());
}

enum class Keys { All, WithoutGlobalOnly };

/// A table may be older than option.dat. What is off its list stays as it is and shows no text.
void NoteOffTheirLists(
    ConfReport& report,
    const QString& path,
    const OptionGrid& grid,
    const Selection& table,
    Keys keys = Keys::All)
{
    constexpr qsizetype kMostNamed = 8;
    QStringList off;
    for (std::size_t at = 0; at < table.size(); ++at) {
        const QString& key = grid.OptionKey[at];
        if (IsOffItsList(grid, at, table[at]) && (keys == Keys::All || !IsGlobalOnlyKey(key))) {
            off << key;
        }
    }
    if (off.isEmpty()) {
        return;
    }
    const QString more = off.size() > kMostNamed ? u", ..."_s : QString();
    report.notes << platform::Wording{
        400,
        u"<1>: no such value in the list, so none is used: <2>"_s,
        {path, off.mid(0, kMostNamed).join(u", "_s) + more}};
}

/// Whether `table` lacks something that nobody could have seen in the old one.
bool LosesUnlisted(const OptionGrid& grid, const Selection& old, const Selection& table)
{
    for (std::size_t at = 0; at < table.size(); ++at) {
        if (old[at] != table[at] && IsOffItsList(grid, at, old[at])) {
            return true;
        }
    }
    return false;
}

enum class OldFile { KeepIfWorthIt, Keep };

/// Whatever could not be read whole may still be worth something to its owner, so it is never
/// written over without a copy; nor is a value that could not be shown.
Outcome<ConfReport> WriteConf(
    const QString& path,
    const OptionGrid& grid,
    const Selection& table,
    OldFile oldFile = OldFile::KeepIfWorthIt)
{
    ConfReport report;
    bool keep = oldFile == OldFile::Keep;
    if (!keep && QFileInfo::exists(path)) {
        const StoredConf old = ReadConf(path);
        keep = !old.whole ||
               (old.layout == ConfLayout::Current && LosesUnlisted(grid, old.values, table));
    }
    if (keep) {
        if (const platform::Done kept = platform::KeepBackup(path); !kept) {
            return kept.Failure();
        }
        report.backupKept = true;
        report.notes << platform::Wording{
            401,
            u"<1>: the old file is kept as <2>.bak."_s,
            {path, platform::LastPathSegment(path)}};
    }
    if (const platform::Done written = platform::WriteLines(path, PrintConf(table)); !written) {
        return written.Failure();
    }
    return report;
}

/// For a reader, which goes on with what it has when the disk takes nothing.
void WriteOrNote(ConfReport& report, const Outcome<ConfReport>& written)
{
    if (written) {
        Merge(report, written.Value());
    } else {
        report.notes << written.Failure().Told();
    }
}

/// A file without a mark may be anything that is no configuration at all.
OldFile CareFor(ConfLayout layout)
{
    return layout == ConfLayout::Groups11 ? OldFile::Keep : OldFile::KeepIfWorthIt;
}

/// What a markless edit.conf is replaced by: the first values of the global file, taken for a file
/// of that layout. The mark line of the global file is the first of them and reads as 0.
Selection MarklessStandIn(const Selection& global)
{
    QStringList lines = PrintConf(global);
    lines.first().clear();
    return ParseConf(lines).values;
}

Outcome<ConfReport> UpgradeGameConf(
    const QString& path, OptionGrid& grid, StoredConf& stored, const Selection& global)
{
    Selection upgraded{};
    if (stored.layout == ConfLayout::Groups11) {
        stored.values = MarklessStandIn(global);
    }
    UpgradeOldGrid(grid, stored.values, upgraded);
    stored.values = upgraded;
    return WriteConf(path, grid, upgraded, CareFor(stored.layout));
}

void Overlay(OptionGrid& grid, const Selection& game)
{
    for (std::size_t at = 0; at < game.size(); ++at) {
        if (!IsGlobalOnlyKey(grid.OptionKey[at])) {
            grid.OptionSelection[at] = game[at];
        }
    }
}

bool IsListedAsDifference(OptionKind kind)
{
    return kind == OptionKind::Index || kind == OptionKind::Mapper || kind == OptionKind::Text ||
           kind == OptionKind::CpuCycle;
}

std::vector<Difference> DifferencesFrom(const Selection& global, const OptionGrid& grid)
{
    std::vector<Difference> differences;
    for (int group = 0; group < kGroups; ++group) {
        for (int item = 0; item < kItems; ++item) {
            const Cell cell{group, item};
            if (grid.Selected(cell) == global[OptionGrid::Index(cell)] ||
                !IsListedAsDifference(grid.Kind(cell)) || IsGlobalOnlyKey(grid.Key(cell))) {
                continue;
            }
            differences.push_back(Difference{
                cell,
                grid.GroupCaption.value(group),
                grid.Title(cell),
                ShownValue(grid, cell, grid.Selected(cell))});
        }
    }
    return differences;
}

} // namespace

QString ShownValue(const OptionGrid& grid, Cell cell, std::int32_t selected)
{
    switch (grid.Kind(cell)) {
    case OptionKind::Index:
    case OptionKind::Mapper: return grid.ValueText(cell, selected);
    case OptionKind::CpuCycle: return CyclesText(selected);
    case OptionKind::Text: return QString::number(selected);
    case OptionKind::SavePath:
    case OptionKind::Capture:
    case OptionKind::DocPath: return u"DosBox"_s;
    case OptionKind::LogFile: return u"Export"_s;
    case OptionKind::GusUltra: return u"Y:\\ULTRASND"_s;
    case OptionKind::None:
    case OptionKind::Other: break;
    }
    return QString();
}

bool HasGameConf(const shell::Places& places, const QString& folder)
{
    return platform::IsPlainName(folder) && QFileInfo::exists(GameConfPath(places, folder));
}

ConfReport ReadDefaultConf(const shell::Places& places, OptionGrid& grid)
{
    ConfReport report;
    const QString path = DefaultConfPath(places);
    if (!QFileInfo::exists(path)) {
        SetFactoryDefaults(grid);
        report.created = true;
        WriteOrNote(report, WriteConf(path, grid, grid.OptionSelection));
        return report;
    }
    StoredConf stored = ReadConf(path);
    if (!stored.whole) {
        SetFactoryDefaults(grid);
        report.fellBack = true;
        report.notes << platform::Wording{
            402, u"<1>: can't be read whole; factory settings stand in."_s, {path}};
    } else if (stored.layout == ConfLayout::Current) {
        grid.OptionSelection = stored.values;
    } else {
        UpgradeOldGrid(grid, stored.values, grid.OptionSelection);
        report.upgraded = true;
        WriteOrNote(report, WriteConf(path, grid, grid.OptionSelection, CareFor(stored.layout)));
    }
    NoteOffTheirLists(report, path, grid, grid.OptionSelection);
    return report;
}

Outcome<ConfReport> WriteDefaultConf(const shell::Places& places, const OptionGrid& grid)
{
    return WriteConf(DefaultConfPath(places), grid, grid.OptionSelection);
}

Outcome<ConfReport> WriteGameConf(
    const shell::Places& places,
    const QString& folder,
    const OptionGrid& grid,
    const Selection& table)
{
    if (const platform::Done made = MakeMetaDir(places, folder); !made) {
        return made.Failure();
    }
    return WriteConf(GameConfPath(places, folder), grid, table);
}

LoadedConf LoadGameConf(const shell::Places& places, const QString& folder, OptionGrid& grid)
{
    // Without a plain name there is no game, and only the global settings are loaded.
    const bool isGame = platform::IsPlainName(folder);
    return LoadGameConf(
        places, isGame ? library::ListGame(places, folder) : library::GameFiles(), grid);
}

LoadedConf LoadGameConf(
    const shell::Places& places, const library::GameFiles& files, OptionGrid& grid)
{
    LoadedConf loaded;
    loaded.report = ReadDefaultConf(places, grid);
    const QString name = library::kOwnConfFile.toString();
    if (files.meta.Find(name).isEmpty()) {
        return loaded;
    }
    loaded.hasOwn = true;
    const Selection global = grid.OptionSelection;
    const QString path = files.MetaPath(name);
    const Outcome<QStringList> lines = platform::ReadLines(path);
    if (!lines) {
        loaded.report.fellBack = true;
        loaded.report.notes << lines.Failure().Told();
        return loaded;
    }
    StoredConf stored = ParseConf(lines.Value());
    // Of a file without a mark nothing is taken, however many lines it has.
    if (!stored.whole && stored.layout != ConfLayout::Groups11) {
        loaded.report.linesMissing = true;
        loaded.report.notes << platform::Wording{
            403, u"<1>: lines are missing; these options are 0."_s, {path}};
    }
    if (stored.layout != ConfLayout::Current) {
        loaded.report.upgraded = true;
        WriteOrNote(loaded.report, UpgradeGameConf(path, grid, stored, global));
    }
    NoteOffTheirLists(loaded.report, path, grid, stored.values, Keys::WithoutGlobalOnly);
    Overlay(grid, stored.values);
    loaded.differences = DifferencesFrom(global, grid);
    return loaded;
}

Outcome<ConfReport> SaveGameConf(
    const shell::Places& places, const QString& folder, OptionGrid& grid)
{
    Outcome<ConfReport> saved = WriteGameConf(places, folder, grid, grid.OptionSelection);
    if (!saved) {
        return saved;
    }
    ConfReport& report = saved.Value();
    const QString path = DefaultConfPath(places);
    if (!QFileInfo::exists(path)) {
        SetFactoryDefaults(grid);
        report.created = true;
    }
    StoredConf stored = ReadConf(path);
    Selection global = FactorySelection(grid);
    if (stored.whole && stored.layout == ConfLayout::Current) {
        global = stored.values;
    } else if (stored.whole) {
        global = Selection{};
        UpgradeOldGrid(grid, stored.values, global);
        report.upgraded = true;
    } else {
        report.fellBack = !report.created;
    }
    for (std::size_t at = 0; at < global.size(); ++at) {
        if (IsGlobalOnlyKey(grid.OptionKey[at])) {
            global[at] = grid.OptionSelection[at];
        }
    }
    const OldFile care = stored.whole ? CareFor(stored.layout) : OldFile::KeepIfWorthIt;
    Outcome<ConfReport> written = WriteConf(path, grid, global, care);
    if (!written) {
        return written;
    }
    Merge(report, written.Value());
    return saved;
}

std::int16_t ReadDefaultBuild(const shell::Places& places, const OptionGrid& grid)
{
    const QString path = DefaultConfPath(places);
    if (!QFileInfo::exists(path) && !WriteConf(path, grid, FactorySelection(grid))) {
        return 0;
    }
    const Outcome<QStringList> lines = platform::ReadFirstLines(path, 2);
    return lines ? library::BuildOf(lines.Value().value(1)) : std::int16_t{0};
}

std::int16_t ReadBuildIndex(
    const shell::Places& places, const QString& folder, const OptionGrid& grid)
{
    const std::int16_t build = ReadDefaultBuild(places, grid);
    return platform::IsPlainName(folder)
               ? library::ReadBuild(library::ListGame(places, folder), build)
               : build;
}

QString ReadGameBuild(const shell::Places& places, const QString& folder, const OptionGrid& grid)
{
    return grid.ValueText(kVersionCell, ReadBuildIndex(places, folder, grid));
}

} // namespace pelorin::dosboxconf
