#include "library/TitleMarks.h"

#include "library/GameInfo.h"
#include "shell/LangTable.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace pelorin::library {

namespace {

constexpr int kCdEntry = 163;
constexpr int kEditedEntry = 164;
constexpr int kStoreEntry = 257;

struct BuildMark {
    std::int16_t build;
    int entry;
};

constexpr std::array<BuildMark, 9> kBuildMarks{{
    {8, 54},
    {9, 165},
    {10, 63},
    {12, 239},
    {13, 284},
    {14, 285},
    {15, 286},
    {16, 300},
    {17, 339},
}};

void SetTitles(
    GameEntry& entry, const GameFiles& files, const ReadingRules& rules, Troubles* troubles)
{
    const Titles titles = ReadTitles(files, troubles);
    const std::int16_t build = ReadBuild(files, rules.defaultBuild, troubles);
    const MarkFacts facts = MarkFactsOf(files, build);
    entry.DosboxVersion = build;
    entry.TitleK = MarkedTitle(titles.first, facts, rules.lang);
    entry.TitleE = MarkedTitle(titles.second, facts, rules.lang);
}

} // namespace

MarkFacts MarkFactsOf(const GameFiles& files, std::int16_t build)
{
    return MarkFacts{
        files.HasMetaFile(kCdConfFile),
        files.HasMetaFile(kOwnConfFile),
        build,
        IsGameStored(files)};
}

QString MarkedTitle(const QString& title, const MarkFacts& facts, const shell::LangTable& lang)
{
    QString marked = title;
    if (facts.cd) {
        marked += u' ' + lang[kCdEntry];
    }
    if (facts.edited) {
        marked += u' ' + lang[kEditedEntry];
        const auto* const mark =
            std::find_if(kBuildMarks.begin(), kBuildMarks.end(), [&](const BuildMark& candidate) {
                return candidate.build == facts.build;
            });
        if (mark != kBuildMarks.end()) {
            marked += u' ' + lang[mark->entry];
        }
    }
    marked.replace(u"] ["_s, u", "_s);
    return facts.stored ? marked + lang[kStoreEntry] : marked;
}

GameEntry ReadGameFolder(
    GameFiles& files, int position, const ReadingRules& rules, Troubles& troubles)
{
    GameEntry entry;
    entry.Folder = files.folder;
    entry.ListIndex = static_cast<std::int16_t>(position + 1);
    const Facts facts = ReadFacts(files, &troubles);
    entry.Maker = facts.Maker;
    entry.Release = facts.Release;
    entry.GameLanguage = facts.GameLanguage;
    entry.Country = facts.Country;
    SetTitles(entry, files, rules, &troubles);
    const Genres genres = ReadGenres(files, GenreForm::Scan, troubles);
    entry.GenreK = genres.korean;
    entry.GenreE = genres.english;
    return entry;
}

void RefreshEntry(GameEntry& entry, const GameFiles& files, const ReadingRules& rules)
{
    SetTitles(entry, files, rules, nullptr);
}

} // namespace pelorin::library
