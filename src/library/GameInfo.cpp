#include "library/GameInfo.h"

#include "library/private/NewFile.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace pelorin::library {

namespace {

constexpr QChar kTitleSeparator(u'\x0003');

struct OldGenre {
    QStringView code;
    QStringView korean;
    QStringView englishAtScan;
    QStringView englishInPanel;
};

constexpr std::array<OldGenre, 8> kOldGenres{{
    {u"@ACT", u"액션/아케이드", u"Action/Arcade", u"Action/Arcade"},
    {u"@FGT", u"대전/액션", u"Fighting/Action", u"Fighting/Action"},
    {u"@ADV", u"어드벤처", u"Adventure", u"Adventure"},
    {u"@RPG", u"롤플레잉", u"RPG", u"RPG"},
    {u"@SHT", u"슈팅", u"Shooter", u"Shooting"},
    {u"@SPT", u"스포츠/레이싱", u"Sports/Racing", u"Sports/Racing"},
    {u"@PUZ", u"보드/퍼즐", u"Board/Puzzle", u"Board/Puzzle"},
    {u"@SLG", u"시뮬레이션", u"Simulation", u"Simulation"},
}};
constexpr OldGenre kOtherGenre{u"", u"기타", u"ETC", u"ETC"};

QStringView GenreFileName(GenreFile which)
{
    return which == GenreFile::Korean ? kGenreKFile : kGenreEFile;
}

bool IsFieldBreak(QChar c)
{
    return (c >= u'\x0001' && c <= u'\x0003') || c == u'\r' || c == u'\n';
}

QString TrimBlanks(const QString& text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && text[start] == u' ') {
        ++start;
    }
    while (end > start && text[end - 1] == u' ') {
        --end;
    }
    return text.mid(start, end - start);
}

QString TitleLineOf(const Titles& titles)
{
    return CleanField(titles.first) + kTitleSeparator + CleanField(titles.second) + u"\r\n"_s;
}

QString DescriptionLinesOf(const QString& description)
{
    if (description.isEmpty()) {
        return QString();
    }
    // A text box separates its lines by LF, files of this system by CR LF.
    QString lines = description;
    lines.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    return lines.replace(u'\n', u"\r\n"_s) + u"\r\n"_s;
}

/// info.txt as it stands on disk.
struct InfoBytes {
    bool exists = false;
    bool whole = true;
    QByteArray titleLine; // with its end, if it has one
    QByteArray rest;
};

/// No byte of a line end is ever the second one of a character, so bytes can be split.
InfoBytes SplitInfoBytes(const platform::FileStart& file)
{
    InfoBytes info;
    info.exists = true;
    info.whole = file.whole;
    const auto* const begin = file.bytes.begin();
    const auto* end =
        std::find_if(begin, file.bytes.end(), [](char c) { return c == '\r' || c == '\n'; });
    if (end != file.bytes.end()) {
        const bool pair = *end == '\r' && end + 1 != file.bytes.end() && *(end + 1) == '\n';
        end += pair ? 2 : 1;
    }
    info.titleLine = file.bytes.left(end - begin);
    info.rest = file.bytes.mid(end - begin);
    info.whole = info.whole && info.titleLine.size() <= kMostTitleLine;
    return info;
}

platform::Outcome<InfoBytes> ReadInfoBytes(const GameFiles& files)
{
    if (!files.HasMetaFile(kInfoFile)) {
        return InfoBytes{};
    }
    const auto start = platform::ReadStart(files.MetaPath(kInfoFile), kMostInfo);
    if (!start) {
        const bool gone = start.Failure().kind == platform::ErrorKind::NotFound;
        return gone ? platform::Outcome<InfoBytes>(InfoBytes{}) : start.Failure();
    }
    return SplitInfoBytes(start.Value());
}

platform::Error TooLarge(const QString& path)
{
    return platform::Error::Worded(
        platform::ErrorKind::Refused,
        platform::Wording{
            441, u"<1>: too large to be edited here; the file stays as it is."_s, {path}});
}

platform::Error Unfit(const QString& path, const QString& lost)
{
    return platform::Error{platform::ErrorKind::Unencodable, u"%1: %2"_s.arg(path, lost)};
}

bool EndsALine(const QByteArray& line)
{
    return line.endsWith('\n') || line.endsWith('\r');
}

/// The new file. `lost` takes what code page 949 can't keep of what is touched.
QByteArray ComposeInfo(const InfoBytes& old, const InfoChange& change, QString& lost)
{
    const auto encode = [&lost](const QString& text) {
        const platform::Encoded encoded = platform::EncodeCp949(text);
        lost += encoded.lost;
        return encoded.bytes;
    };
    const bool titles = change.titles || old.titleLine.isEmpty();
    QByteArray bytes = titles ? encode(TitleLineOf(change.text.titles)) : old.titleLine;
    if (!change.description) {
        return bytes + old.rest;
    }
    const QByteArray description = encode(DescriptionLinesOf(change.text.description));
    const bool needsEnd = !description.isEmpty() && !EndsALine(bytes);
    return bytes + (needsEnd ? QByteArray("\r\n") : QByteArray()) + description;
}

/// nullopt if the file is not there or can't be read; the latter is a trouble.
std::optional<QStringList> FirstLines(
    const GameFiles& files, QStringView name, int count, Troubles* troubles)
{
    if (!files.HasMetaFile(name)) {
        return std::nullopt;
    }
    auto lines = platform::ReadFirstLines(files.MetaPath(name), count);
    if (!lines && troubles != nullptr) {
        troubles->Add(lines.Failure());
    }
    return lines ? std::optional(lines.Take()) : std::nullopt;
}

/// The first line; empty for an empty file.
std::optional<QString> FirstLine(const GameFiles& files, QStringView name, Troubles* troubles)
{
    const std::optional<QStringList> lines = FirstLines(files, name, 1, troubles);
    return lines ? std::optional(lines->value(0)) : std::nullopt;
}

QString ReadGenreFile(GameFiles& files, GenreFile which, QStringView missing, Troubles& troubles)
{
    const QStringView name = GenreFileName(which);
    if (const std::optional<QString> line = FirstLine(files, name, &troubles)) {
        return CleanField(*line);
    }
    if (files.meta.exists && !files.HasMetaFile(name)) {
        troubles.AddIfFailed(WriteNewMeta(files, name, {missing.toString()}));
    }
    return missing.toString();
}

/// Writes both genre files by the old code and drops Extra.dat.
Genres ConvertOldGenre(GameFiles& files, const QString& code, GenreForm form, Troubles& troubles)
{
    const auto* const hit =
        std::find_if(kOldGenres.begin(), kOldGenres.end(), [&](const OldGenre& genre) {
            return genre.code == code;
        });
    const OldGenre& genre = hit == kOldGenres.end() ? kOtherGenre : *hit;
    const QStringView english =
        form == GenreForm::Scan ? genre.englishAtScan : genre.englishInPanel;
    Genres genres{genre.korean.toString(), english.toString()};

    const platform::Done korean = WriteGenre(files, GenreFile::Korean, genres.korean);
    const platform::Done second = WriteGenre(files, GenreFile::English, genres.english);
    troubles.AddIfFailed(korean);
    troubles.AddIfFailed(second);
    if (!korean || !second) {
        return genres;
    }
    troubles.AddIfFailed(DeleteMeta(files, kOldGenreFile));
    return genres;
}

platform::Done WriteMetaLines(GameFiles& files, QStringView name, const QStringList& lines)
{
    const platform::Encoded text = platform::EncodeCp949(lines.join(u"\r\n"_s) + u"\r\n"_s);
    return text.lost.isEmpty() ? WriteMeta(files, name, text.bytes)
                               : platform::Done(Unfit(files.MetaPath(name), text.lost));
}

} // namespace

QString CleanField(const QString& text)
{
    if (std::none_of(text.begin(), text.end(), IsFieldBreak)) {
        return text;
    }
    QString clean = text;
    clean.removeIf(IsFieldBreak);
    return clean;
}

Titles SplitTitleLine(const QString& line, const QString& folder)
{
    const bool blank = std::all_of(
        line.begin(), line.end(), [](QChar c) { return c == u' ' || c == kTitleSeparator; });
    if (blank) {
        return Titles{CleanField(folder), CleanField(folder)};
    }
    const QStringList pieces = line.split(kTitleSeparator);
    return Titles{CleanField(pieces[0]), CleanField(pieces.value(1, pieces[0]))};
}

Titles ReadTitles(const GameFiles& files, Troubles* troubles)
{
    // A folder's name is no title line: there is nothing in it to split.
    const std::optional<QString> line = FirstLine(files, kInfoFile, troubles);
    return SplitTitleLine(line.value_or(QString()), files.folder);
}

InfoText ReadInfo(const GameFiles& files)
{
    InfoText info;
    const platform::Outcome<InfoBytes> read = ReadInfoBytes(files);
    if (!read) {
        info.state = InfoState::Unreadable;
        return info;
    }
    const InfoBytes& bytes = read.Value();
    if (bytes.titleLine.isEmpty()) {
        return info;
    }
    info.state = bytes.whole ? InfoState::Whole : InfoState::Cut;
    const QString line =
        platform::DecodeCp949(bytes.titleLine.left(kMostTitleLine)); // its end is no field's
    const QStringList pieces = line.split(kTitleSeparator);
    if (pieces.size() == 1) {
        info.titles.first = TrimBlanks(CleanField(pieces[0]));
        info.titles.second = info.titles.first;
    } else {
        info.titles = Titles{CleanField(pieces[0]), CleanField(pieces[1])};
    }
    info.description = platform::SplitLines(platform::DecodeCp949(bytes.rest)).join(u"\r\n"_s);
    return info;
}

QString LostInInfo(const InfoChange& change)
{
    const QString titles = change.titles ? TitleLineOf(change.text.titles) : QString();
    const QString rest =
        change.description ? DescriptionLinesOf(change.text.description) : QString();
    return platform::EncodeCp949(titles + rest).lost;
}

platform::Done WriteInfo(GameFiles& files, const InfoChange& change, Loss loss)
{
    platform::Done made = MakeMetaDir(files);
    if (!made) {
        return made;
    }
    const QString path = files.MetaPath(kInfoFile);
    const platform::Outcome<InfoBytes> old = ReadInfoBytes(files);
    if (!old) {
        return old.Failure();
    }
    if (!old.Value().whole) {
        return TooLarge(path);
    }
    if (old.Value().exists && !change.titles && !change.description) {
        return platform::Success();
    }
    QString lost;
    const QByteArray bytes = ComposeInfo(old.Value(), change, lost);
    // Nothing is written that could not be edited again.
    if (bytes.size() > kMostInfo ||
        SplitInfoBytes({bytes, true}).titleLine.size() > kMostTitleLine) {
        return TooLarge(path);
    }
    if (loss == Loss::Refuse && !lost.isEmpty()) {
        return Unfit(path, lost);
    }
    return WriteMeta(files, kInfoFile, bytes);
}

Facts ReadFacts(const GameFiles& files, Troubles* troubles)
{
    const QStringList lines = FirstLines(files, kFactsFile, 4, troubles).value_or(QStringList());
    return Facts{
        CleanField(lines.value(0)),
        CleanField(lines.value(1)),
        CleanField(lines.value(2)),
        CleanField(lines.value(3))};
}

platform::Done WriteFacts(GameFiles& files, const Facts& facts)
{
    return WriteMetaLines(
        files,
        kFactsFile,
        {CleanField(facts.Maker),
         CleanField(facts.Release),
         CleanField(facts.GameLanguage),
         CleanField(facts.Country)});
}

platform::Done DeleteFacts(GameFiles& files)
{
    return DeleteMeta(files, kFactsFile);
}

Genres ReadGenres(GameFiles& files, GenreForm form, Troubles& troubles)
{
    if (const std::optional<QString> code = FirstLine(files, kOldGenreFile, &troubles)) {
        return ConvertOldGenre(files, *code, form, troubles);
    }
    return Genres{
        ReadGenreFile(files, GenreFile::Korean, kOtherGenre.korean, troubles),
        ReadGenreFile(files, GenreFile::English, kOtherGenre.englishAtScan, troubles)};
}

platform::Done WriteGenre(GameFiles& files, GenreFile which, const QString& genre)
{
    return WriteMetaLines(files, GenreFileName(which), {CleanField(genre)});
}

std::int16_t BuildOf(const QString& line)
{
    using Limits = std::numeric_limits<std::int16_t>;
    const std::int32_t build = platform::IntegerPrefix(line);
    return static_cast<std::int16_t>(std::clamp<std::int32_t>(build, Limits::min(), Limits::max()));
}

std::int16_t ReadBuild(const GameFiles& files, std::int16_t defaultBuild, Troubles* troubles)
{
    const std::optional<QStringList> lines = FirstLines(files, kOwnConfFile, 2, troubles);
    return lines ? BuildOf(lines->value(1)) : defaultBuild;
}

} // namespace pelorin::library
