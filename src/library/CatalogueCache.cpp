#include "library/CatalogueCache.h"

#include "archives/FileOperations.h"
#include "library/GameFiles.h"
#include "library/GameInfo.h"
#include "library/IconSheetFile.h"
#include "library/private/TextPool.h"
#include "platform/CacheReplacement.h"
#include "platform/Numbers.h"
#include "platform/Paths.h"
#include "platform/TextFile.h"
#include "shell/Places.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <tuple>
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

void AppendRecord(QString& line, const GameEntry& entry)
{
    line += platform::LastPathSegment(entry.Folder);
    line += kFieldBreak;
    line += CleanField(entry.TitleK);
    line += kTitleBreak;
    line += CleanField(entry.TitleE);
    const auto append = [&](const QString& field) {
        line += kFieldBreak;
        line += field;
    };
    append(CleanField(entry.GenreK));
    append(CleanField(entry.GenreE));
    append(QString::number(entry.DosboxVersion));
    append(CleanField(entry.Maker));
    append(CleanField(entry.Release));
    append(CleanField(entry.GameLanguage));
    append(CleanField(entry.Country));
}

bool CanNameInList(const QString& folder)
{
    return platform::IsPlainName(folder) && CleanField(folder) == folder &&
           platform::FitsCp949(folder);
}

/// Whether the record of a game says the same when it is read again.
bool FitsList(const GameEntry& entry)
{
    const auto fits = [](const QString& field) { return platform::FitsCp949(CleanField(field)); };
    return CanNameInList(entry.Folder) && fits(entry.TitleK) && fits(entry.TitleE) &&
           fits(entry.GenreK) && fits(entry.GenreE) && fits(entry.Maker) && fits(entry.Release) &&
           fits(entry.GameLanguage) && fits(entry.Country);
}

/// The same for a game that is not in the Catalogue, by the files that its record is made of.
bool HoldsUnfitText(const shell::Places& places, const QString& folder)
{
    const GameFiles files = ListGame(places, folder);
    for (const EntryFile& source : kEntryFiles) {
        if (source.lines == 0 || !files.HasMetaFile(source.name)) {
            continue;
        }
        const QStringList lines =
            platform::ReadFirstLines(files.MetaPath(source.name), source.lines).ValueOr({});
        if (!platform::FitsCp949(lines.join(u' '))) {
            return true;
        }
    }
    return false;
}

/// The list as it goes into its file, and what it is made of.
struct Records {
    QString line;
    std::vector<int> positions; // of the games in it
    QStringList leftOut;        // the folders of the others
};

/// Whether all of it is certainly in code page 949; most records are, and need no closer look.
bool IsSurelyFit(QStringView record)
{
    return std::all_of(record.begin(), record.end(), [](QChar c) {
        return platform::IsSurelyCp949(c) || c == kFieldBreak || c == kTitleBreak;
    });
}

Records ComposeRecords(GamesView catalogue, ScanProgress& progress)
{
    const int count = static_cast<int>(catalogue.size());
    progress.Begin(Phase::SavingList, std::max(1, count - 1));
    ProgressSteps steps(progress, Phase::SavingList, count);
    Records records;
    for (int i = 0; i < count; ++i) {
        const GameEntry& entry = catalogue[static_cast<std::size_t>(i)];
        const qsizetype before = records.line.size();
        if (before > 0) {
            records.line += kRecordBreak;
        }
        const qsizetype start = records.line.size();
        AppendRecord(records.line, entry);
        const bool fits = IsSurelyFit(QStringView(records.line).mid(start))
                              ? CanNameInList(entry.Folder)
                              : FitsList(entry);
        if (fits) {
            records.positions.push_back(i);
        } else {
            records.line.truncate(before);
            records.leftOut << entry.Folder;
        }
        steps.At(i);
    }
    return records;
}

platform::Done SaveSheet(
    const shell::Places& places,
    const QString& listPath,
    const IconSheet& icons,
    const std::vector<int>& positions,
    ScanProgress& progress)
{
    const QString path = SheetPath(places);
    const std::optional<std::vector<int>> stale = StaleBands(path, icons, positions);
    if (stale && !stale->empty()) {
        // A few icons of many have changed. The list goes first here as well.
        const platform::Done dropped = archives::DeleteFileIfThere(listPath);
        return dropped ? RewriteBands(path, icons, positions, *stale) : dropped;
    }
    if (!stale) {
        // The list belongs to the sheet that is about to go. Should the program end before the new
        // list is in its place, a missing one is noticed; one of another order would not be. The
        // sheet alone is worth nothing then, and a file system that is told to put a file in the
        // place of another first brings 100 MB to the disk.
        const auto dropOld = [&] {
            const platform::Done dropped = archives::DeleteFileIfThere(listPath);
            return dropped ? archives::DeleteFileIfThere(path) : dropped;
        };
        // The window lives meanwhile, but what is being saved is saved to its end.
        const auto breathe = [&] { std::ignore = progress.Breathe(); };
        platform::Done written = WriteIconSheet(path, icons, positions, dropOld, breathe);
        if (!written) {
            return written;
        }
    }
    return platform::Success();
}

/// Why former forms of the sheet are still there; nothing depends on them.
QList<platform::Wording> DeleteFormerSheets(const shell::Places& places)
{
    QList<platform::Wording> reasons;
    for (const QString& former : {u"IconList.jpg"_s, u"SmallIconList.jpg"_s}) {
        const platform::Done gone = archives::DeleteFileIfThere(places.InAppDir(former));
        if (!gone) {
            reasons << gone.Failure().Told();
        }
    }
    return reasons;
}

/// The fields of a record, if it has as many as it should.
bool SplitRecord(QStringView record, std::array<QStringView, kFields>& fields)
{
    for (std::size_t i = 0; i + 1 < fields.size(); ++i) {
        const qsizetype end = record.indexOf(kFieldBreak);
        if (end < 0) {
            return false;
        }
        fields[i] = record.left(end);
        record = record.mid(end + 1);
    }
    fields.back() = record;
    return !record.contains(kFieldBreak);
}

/// False when the record is damaged.
bool ReadRecord(QStringView record, GameEntry& entry, TextPool& pool)
{
    std::array<QStringView, kFields> fields;
    if (!SplitRecord(record, fields)) {
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
    entry.GenreK = pool.Shared(fields[2]);
    entry.GenreE = pool.Shared(fields[3]);
    entry.DosboxVersion = static_cast<std::int16_t>(
        std::clamp<std::int32_t>(platform::IntegerPrefix(fields[4]), Limits::min(), Limits::max()));
    entry.Maker = pool.Shared(fields[5]);
    entry.Release = pool.Shared(fields[6]);
    entry.GameLanguage = pool.Shared(fields[7]);
    entry.Country = pool.Shared(fields[8]);
    return platform::IsPlainName(entry.Folder);
}

Error DamagedList(const QString& path, const QString& reason)
{
    return Error{ErrorKind::Malformed, u"%1: %2"_s.arg(path, reason)};
}

platform::Outcome<GameEntries> CatalogueFromLine(const QString& path, const QString& line)
{
    const QList<QStringView> records = QStringView(line).split(kRecordBreak);
    if (records.size() > kMostGames) {
        return DamagedList(path, u"%1 records"_s.arg(records.size()));
    }
    if (line.contains(QChar::ReplacementCharacter)) {
        return DamagedList(path, u"bytes that are no text in code page 949"_s);
    }
    GameEntries catalogue(static_cast<std::size_t>(records.size()));
    QSet<QString> folders;
    folders.reserve(records.size());
    TextPool pool;
    for (std::size_t i = 0; i < catalogue.size(); ++i) {
        GameEntry& entry = catalogue[i];
        const bool whole = ReadRecord(records[static_cast<qsizetype>(i)], entry, pool);
        folders.insert(entry.Folder);
        if (!whole || folders.size() != static_cast<qsizetype>(i) + 1) {
            return DamagedList(
                path,
                (whole ? u"record %1 repeats a folder"_s : u"record %1 is damaged"_s).arg(i + 1));
        }
        entry.ListIndex = static_cast<std::int16_t>(i + 1);
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
        return DamagedList(listPath, u"too large"_s);
    }
    const platform::Outcome<QByteArray> bytes = platform::ReadBytes(listPath);
    if (!bytes) {
        return bytes.Failure();
    }
    // The end of the line is the one sign that the last record is whole, and that none is missing.
    if (!bytes.Value().isEmpty() && !bytes.Value().endsWith('\n')) {
        return DamagedList(listPath, u"cut off"_s);
    }
    const QStringList lines = platform::SplitLines(platform::DecodeCp949(bytes.Value()));
    platform::Outcome<GameEntries> catalogue = CatalogueFromLine(listPath, lines.value(0));
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
    GamesView catalogue,
    const IconSheet& icons,
    ScanProgress& progress)
{
    if (icons.Count() < static_cast<int>(catalogue.size())) {
        return Error{ErrorKind::Refused, u"fewer icons than games"_s};
    }
    CacheReport report;
    const QString listPath = ListPath(places); // before it is deleted, in its spelling
    const Records records = ComposeRecords(catalogue, progress);
    report.leftOut = records.leftOut;
    if (records.positions.empty()) {
        const platform::Done gone = archives::DeleteFileIfThere(listPath);
        return gone ? platform::Outcome<CacheReport>(report) : gone.Failure();
    }
    // Both are whole before either takes the place of an old file.
    platform::CacheReplacement list(listPath);
    platform::Done saved = list.Append(platform::EncodeFittingCp949(records.line + u"\r\n"_s));
    if (saved) {
        saved = SaveSheet(places, listPath, icons, records.positions, progress);
    }
    if (saved) {
        saved = list.Replace();
    }
    if (saved) {
        report.formerSheets = DeleteFormerSheets(places);
    }
    return saved ? platform::Outcome<CacheReport>(report) : saved.Failure();
}

platform::Done DeleteCatalogueCache(const shell::Places& places)
{
    const platform::Done list = archives::DeleteFileIfThere(ListPath(places));
    const platform::Done sheet = archives::DeleteFileIfThere(SheetPath(places));
    return list ? sheet : list;
}

QStringList GamesWithoutCache(GamesView catalogue)
{
    QStringList leftOut;
    for (const GameEntry& entry : catalogue) {
        if (!FitsList(entry)) {
            leftOut << entry.Folder;
        }
    }
    return leftOut;
}

QStringList FoldersWithoutCache(const shell::Places& places, GamesView catalogue)
{
    QSet<QString> known;
    known.reserve(static_cast<qsizetype>(catalogue.size()));
    for (const GameEntry& entry : catalogue) {
        known.insert(entry.Folder);
    }
    // Of a full library nobody knows how many folders lie behind the last one.
    const bool full = catalogue.size() >= kMostGames;
    QStringList missing;
    for (const QString& folder : platform::UnknownFolders(places.gamesRoot, known)) {
        if (MayBeGame(places, folder) &&
            (!CanNameInList(folder) || (!full && HoldsUnfitText(places, folder)))) {
            missing << folder;
        }
    }
    return missing;
}

} // namespace pelorin::library
