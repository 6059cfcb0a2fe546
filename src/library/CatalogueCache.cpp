#include "library/CatalogueCache.h"

#include "library/GameFiles.h"
#include "library/GameInfo.h"
#include "library/IconSheetFile.h"
#include "library/private/TextPool.h"
#include "platform/FileReplacement.h"
#include "platform/Numbers.h"
#include "platform/Paths.h"
#include "platform/TextFile.h"
#include "shell/Places.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace pelorin::library {

namespace {

using platform::Error;
using platform::ErrorKind;

constexpr QChar kFieldBreak(u'\x0001');
constexpr QChar kRecordBreak(u'\x0002');
constexpr QChar kTitleBreak(u'\x0003');
constexpr int kFields = 9;
constexpr qint64 kMostListBytes = 256LL * 1024 * 1024;

QString ListPath(const shell::Places& places)
{
    return places.InAppDir(u"Gamelist.lst"_s);
}

QString SheetPath(const shell::Places& places)
{
    return places.InAppDir(u"IconList.bmp"_s);
}

platform::Done DeleteIfThere(const QString& path)
{
    QFile file(path);
    if (!file.exists() || file.remove()) {
        return platform::Success();
    }
    return Error{ErrorKind::Unwritable, u"%1: %2"_s.arg(path, file.errorString())};
}

QString RecordOf(const GameEntry& entry)
{
    const QStringList fields{
        platform::LastPathSegment(entry.Folder),
        CleanField(entry.TitleK) + kTitleBreak + CleanField(entry.TitleE),
        CleanField(entry.GenreK),
        CleanField(entry.GenreE),
        QString::number(entry.DosboxVersion),
        CleanField(entry.Maker),
        CleanField(entry.Release),
        CleanField(entry.GameLanguage),
        CleanField(entry.Country)};
    return fields.join(kFieldBreak);
}

/// The texts that code page 949 can't keep, by halving: most often there is none.
void FindUnfit(const QStringList& texts, qsizetype begin, qsizetype end, std::vector<bool>& unfit)
{
    if (begin == end || platform::FitsCp949(texts.mid(begin, end - begin).join(u'\n'))) {
        return;
    }
    if (end - begin == 1) {
        unfit[static_cast<std::size_t>(begin)] = true;
        return;
    }
    const qsizetype middle = begin + (end - begin) / 2;
    FindUnfit(texts, begin, middle, unfit);
    FindUnfit(texts, middle, end, unfit);
}

std::vector<bool> Unfit(const QStringList& texts)
{
    std::vector<bool> unfit(static_cast<std::size_t>(texts.size()));
    FindUnfit(texts, 0, texts.size(), unfit);
    return unfit;
}

/// For each folder name, whether the list can't hold it.
std::vector<bool> NamesWithoutCache(const QStringList& folders)
{
    std::vector<bool> without = Unfit(folders);
    for (std::size_t i = 0; i < without.size(); ++i) {
        const QString& folder = folders[static_cast<qsizetype>(i)];
        without[i] = without[i] || CleanField(folder) != folder || !platform::IsPlainName(folder);
    }
    return without;
}

QStringList FoldersOf(const Catalogue& catalogue)
{
    QStringList folders;
    folders.reserve(static_cast<qsizetype>(catalogue.size()));
    for (const GameEntry& entry : catalogue) {
        folders << entry.Folder;
    }
    return folders;
}

/// Positions whose records go into the files; the others' folders go into `leftOut`.
std::vector<int> PositionsToSave(const Catalogue& catalogue, QStringList& leftOut)
{
    const std::vector<bool> without = NamesWithoutCache(FoldersOf(catalogue));
    std::vector<int> positions;
    positions.reserve(catalogue.size());
    for (std::size_t i = 0; i < catalogue.size(); ++i) {
        if (without[i]) {
            leftOut << catalogue[i].Folder;
        } else {
            positions.push_back(static_cast<int>(i));
        }
    }
    return positions;
}

/// The list's content, in a file that has still to take its place.
platform::Done WriteList(
    platform::FileReplacement& file,
    const Catalogue& catalogue,
    const std::vector<int>& positions,
    QStringList& maimed,
    ScanProgress& progress)
{
    const int count = static_cast<int>(positions.size());
    progress.Begin(Phase::SavingList, std::max(1, count - 1));
    ProgressSteps steps(progress, Phase::SavingList, count);
    QStringList records;
    records.reserve(count);
    for (int i = 0; i < count; ++i) {
        const int position = positions[static_cast<std::size_t>(i)];
        records << RecordOf(catalogue[static_cast<std::size_t>(position)]);
        steps.At(i);
    }
    const std::vector<bool> unfit = Unfit(records);
    for (int i = 0; i < count; ++i) {
        if (unfit[static_cast<std::size_t>(i)]) {
            maimed << records[i].section(kFieldBreak, 0, 0);
        }
    }
    return file.Append(platform::EncodeCp949(records.join(kRecordBreak) + u"\r\n"_s).bytes);
}

platform::Done SaveSheet(
    const shell::Places& places,
    const QString& listPath,
    const IconSheet& icons,
    const std::vector<int>& positions)
{
    const QString path = SheetPath(places);
    if (!IconSheetIsCurrent(path, icons, positions)) {
        // The list belongs to the sheet that is about to go. Should the program end before the new
        // list is in its place, a missing one is noticed; one of another order would not be.
        const auto dropList = [&] { return DeleteIfThere(listPath); };
        platform::Done written = WriteIconSheet(path, icons, positions, dropList);
        if (!written) {
            return written;
        }
    }
    for (const QString& former : {u"IconList.jpg"_s, u"SmallIconList.jpg"_s}) {
        platform::Done gone = DeleteIfThere(places.InAppDir(former));
        if (!gone) {
            return gone;
        }
    }
    return platform::Success();
}

/// False when the record is damaged.
bool ReadRecord(QStringView record, GameEntry& entry)
{
    const QList<QStringView> fields = record.split(kFieldBreak);
    if (fields.size() != kFields) {
        return false;
    }
    const qsizetype titleBreak = fields[1].indexOf(kTitleBreak);
    if (titleBreak < 0) {
        return false;
    }
    using Limits = std::numeric_limits<std::int16_t>;
    entry.Folder = fields[0].toString();
    entry.TitleK = fields[1].left(titleBreak).toString();
    entry.TitleE = fields[1].mid(titleBreak + 1).toString();
    entry.GenreK = fields[2].toString();
    entry.GenreE = fields[3].toString();
    entry.DosboxVersion = static_cast<std::int16_t>(
        std::clamp<std::int32_t>(platform::IntegerPrefix(fields[4]), Limits::min(), Limits::max()));
    entry.Maker = fields[5].toString();
    entry.Release = fields[6].toString();
    entry.GameLanguage = fields[7].toString();
    entry.Country = fields[8].toString();
    return platform::IsPlainName(entry.Folder);
}

platform::Outcome<Catalogue> CatalogueFromLine(const QString& line)
{
    const QList<QStringView> records = QStringView(line).split(kRecordBreak);
    if (records.size() > kMostGames || line.contains(QChar::ReplacementCharacter)) {
        return Error{ErrorKind::Malformed, u"Gamelist.lst"_s};
    }
    Catalogue catalogue(static_cast<std::size_t>(records.size()));
    QSet<QString> folders;
    folders.reserve(records.size());
    TextPool pool;
    for (std::size_t i = 0; i < catalogue.size(); ++i) {
        GameEntry& entry = catalogue[i];
        const bool whole = ReadRecord(records[static_cast<qsizetype>(i)], entry);
        if (!whole || folders.contains(entry.Folder)) {
            return Error{ErrorKind::Malformed, u"Gamelist.lst: record %1"_s.arg(i + 1)};
        }
        entry.ListIndex = static_cast<std::int16_t>(i + 1);
        folders.insert(entry.Folder);
        pool.ShareFacts(entry);
    }
    return catalogue;
}

} // namespace

bool HasCatalogueCache(const shell::Places& places)
{
    return QFileInfo::exists(ListPath(places)) && QFileInfo::exists(SheetPath(places));
}

platform::Outcome<CachedCatalogue> ReadCatalogueCache(
    const shell::Places& places, ScanProgress& progress)
{
    const QString listPath = ListPath(places);
    if (QFileInfo(listPath).size() > kMostListBytes) {
        return Error{ErrorKind::Malformed, listPath};
    }
    const platform::Outcome<QStringList> lines = platform::ReadLines(listPath);
    if (!lines) {
        return lines.Failure();
    }
    platform::Outcome<Catalogue> catalogue = CatalogueFromLine(lines.Value().value(0));
    if (!catalogue) {
        return catalogue.Failure();
    }
    const int count = static_cast<int>(catalogue.Value().size());
    progress.Begin(Phase::LoadingIcons, count);
    platform::Outcome<IconSheet> icons = ReadIconSheet(SheetPath(places), count, progress);
    if (!icons) {
        return icons.Failure();
    }
    return CachedCatalogue{catalogue.Take(), icons.Take()};
}

platform::Outcome<CacheReport> SaveCatalogueCache(
    const shell::Places& places,
    const Catalogue& catalogue,
    const IconSheet& icons,
    ScanProgress& progress)
{
    if (icons.Count() < static_cast<int>(catalogue.size())) {
        return Error{ErrorKind::Refused, u"fewer icons than games"_s};
    }
    CacheReport report;
    const QString listPath = ListPath(places); // before it is deleted, in its spelling
    const std::vector<int> positions = PositionsToSave(catalogue, report.leftOut);
    if (positions.empty()) {
        const platform::Done gone = DeleteIfThere(listPath);
        return gone ? platform::Outcome<CacheReport>(report) : gone.Failure();
    }
    // Both are on the disk before either takes the place of an old file.
    platform::FileReplacement list(listPath);
    platform::Done saved = WriteList(list, catalogue, positions, report.maimed, progress);
    if (saved) {
        saved = SaveSheet(places, listPath, icons, positions);
    }
    if (saved) {
        saved = list.Replace();
    }
    return saved ? platform::Outcome<CacheReport>(report) : saved.Failure();
}

platform::Done DeleteCatalogueCache(const shell::Places& places)
{
    const platform::Done list = DeleteIfThere(ListPath(places));
    const platform::Done sheet = DeleteIfThere(SheetPath(places));
    return list ? sheet : list;
}

QStringList FoldersWithoutCache(const shell::Places& places, const Catalogue& catalogue)
{
    const QStringList folders = platform::ListFolder(places.gamesRoot).folders;
    const std::vector<bool> without = NamesWithoutCache(folders);
    if (std::find(without.begin(), without.end(), true) == without.end()) {
        return QStringList();
    }
    const QStringList known = FoldersOf(catalogue);
    const QSet<QString> knownSet(known.begin(), known.end());
    QStringList missing;
    for (std::size_t i = 0; i < without.size(); ++i) {
        const QString& folder = folders[static_cast<qsizetype>(i)];
        if (without[i] && !knownSet.contains(folder) && MayBeGame(places, folder)) {
            missing << folder;
        }
    }
    return missing;
}

} // namespace pelorin::library
