#include "dosboxconf/ConfFiles.h"

#include "dosboxconf/ConfUpgrade.h"
#include "dosboxconf/OptionTable.h"
#include "support/TestFolder.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::dosboxconf;
using namespace pelorin::test;

namespace {

constexpr int kLines = 1 + kCells;
constexpr Cell kAutolock{1, 0};
constexpr Cell kSensitivity{1, 1};
constexpr Cell kPriority{1, 2};
constexpr Cell kMapper{1, 3};
constexpr Cell kWait{1, 4};
constexpr Cell kOverscan{1, 5};
constexpr Cell kCycles{2, 0};
constexpr Cell kMultiscan{2, 1};
constexpr Cell kDoublescan{2, 2};
constexpr Cell kRate{3, 0};
constexpr Cell kSampleRate{3, 1};
constexpr Cell kMaster{3, 2};
constexpr Cell kTimeout{3, 3};
constexpr Cell kNewKey{3, 4};
constexpr Cell kIde{4, 0};
constexpr Cell kFdc{4, 1};
constexpr Cell kGlideTitle{4, 2};
constexpr Cell kSbtype{4, 3};

const QString kTable = u"\n@Tlauncher\n"
                       "Build|version;0.74_SVN|0.74|Windows;<INDEX>\n"
                       "Window|DirectX;false|true;<INDEX>\n"
                       "Menu|Menu;false|true;<INDEX>\n"
                       "\n@Tsdl\n"
                       "Lock|autolock;false|true;<INDEX>\n"
                       "Sensitivity|sensitivity;0|1|2|3|4|5|6|7|8|9|10;<INDEX>\n"
                       "Priority|priority;0|1|2|3|4|5|6|7|8|9|10|11;<INDEX>\n"
                       "Map|mapperfile;a.txt|b.txt;<MAPPER>\n"
                       "Wait|waitonerror;false|true;<INDEX>\n"
                       "Overscan|overscan;0;<TEXT>\n"
                       "\n@Tcpu\n"
                       "Cycles|cycles;-;<CPUCYCLE>\n"
                       "multi|multiscan;0;<TEXT>\n"
                       "double|doublescan;0;<TEXT>\n"
                       "\n@Tmixer\n"
                       "Rate|rate;0|1|2|3|4|5;<INDEX>\n"
                       "Sample rate|samplerate;0|1|2|3;<INDEX>\n"
                       "MASTER|MASTER;50|100;<INDEX>\n"
                       "Time|timeout;0;<TEXT>\n"
                       "New|newkey;0;<TEXT>\n"
                       "\n@Tdrives\n"
                       "ide 0|gusbase;0|1;<INDEX>\n"
                       "fdc 0|gusirq;0|1;<INDEX>\n"
                       "glide|output;0|1|2|3|4|5;<INDEX>\n"
                       "Blaster|sbtype;0|1|2|3|4;<INDEX>\n"
                       "end"_s;

using Values = std::initializer_list<std::pair<Cell, QString>>;

/// Where a current file has a value; the mark is line 0.
qsizetype LineOf(Cell cell)
{
    return 1 + cell.group * kItems + cell.item;
}

/// A whole file in the current layout, zeros but for these cells.
QStringList Current(Values values)
{
    QStringList lines(kLines, u"0"_s);
    lines[0] = u"ver.15.02.01"_s;
    for (const auto& [cell, value] : values) {
        lines[LineOf(cell)] = value;
    }
    return lines;
}

/// A whole file of an older layout, with cells of that layout.
QStringList Old(bool marked, Values values)
{
    const qsizetype items = marked ? 21 : 11;
    QStringList lines(11 * items, u"0"_s);
    for (const auto& [cell, value] : values) {
        lines[cell.group * items + cell.item] = value;
    }
    return marked ? QStringList{u"ver.10.11.21"_s} + lines : lines;
}

/// An AppDir, a game "Star" with a metadata folder and a game "Bare" without.
struct ConfFilesTest : testing::Test {
    ConfFilesTest() { folder.MakeAll(u"app/ games/Star/DosBox/ games/Bare/"_s); }

    std::int32_t& At(Cell cell) { return grid.OptionSelection[OptionGrid::Index(cell)]; }
    QString Global(Cell cell) const { return folder.ReadLines(defaultConf)[LineOf(cell)]; }
    QString Game(Cell cell) const { return folder.ReadLines(editConf)[LineOf(cell)]; }

    const TestFolder folder;
    const shell::Places places{
        folder.Path(u"app"_s), folder.Path(u"games"_s), folder.Path(u"export"_s)};
    OptionGrid grid = ParseOptionTable(kTable, u"table"_s).Take();
    const QString defaultConf = u"app/Default.conf"_s;
    const QString editConf = u"games/Star/DosBox/edit.conf"_s;
};

using GlobalConfTest = ConfFilesTest;

TEST_F(GlobalConfTest, AMissingFileIsMadeWithFactoryValues)
{
    At(kNewKey) = 7;
    EXPECT_TRUE(ReadDefaultConf(places, grid).created);
    EXPECT_EQ(At(kRate), 3);
    EXPECT_EQ(At(kCycles), 1);
    EXPECT_EQ(At(kNewKey), 0);
    // Drive controllers stay off whatever their key says; "glide" is none.
    EXPECT_EQ(At(kIde), 0);
    EXPECT_EQ(At(kFdc), 0);
    EXPECT_EQ(At(kGlideTitle), 5);
    EXPECT_EQ(At(kSbtype), 4);

    const QByteArray bytes = folder.ReadRaw(defaultConf);
    EXPECT_EQ(bytes.count("\r\n"), kLines);
    EXPECT_EQ(bytes.count('\n'), kLines);
    EXPECT_TRUE(bytes.startsWith("ver.15.02.01\r\n0\r\n1\r\n0\r\n")) << "build, DirectX, Menu";
    EXPECT_EQ(Global(kCycles), u"1"_s);
}

TEST_F(GlobalConfTest, EveryCellHasItsLineGroupsOutside)
{
    for (int group = 0; group < kGroups; ++group) {
        for (int item = 0; item < kItems; ++item) {
            At({group, item}) = group * 1000 + item - 5;
        }
    }
    const Selection before = grid.OptionSelection;
    ASSERT_TRUE(WriteDefaultConf(places, grid));
    const QStringList lines = folder.ReadLines(defaultConf);
    EXPECT_EQ(lines[1], u"-5"_s);
    EXPECT_EQ(lines[2], u"-4"_s);
    EXPECT_EQ(lines[82], u"995"_s);
    EXPECT_EQ(lines.last(), u"40075"_s);

    grid.OptionSelection.fill(0);
    const ConfReport report = ReadDefaultConf(places, grid);
    EXPECT_FALSE(report.upgraded || report.fellBack || report.created);
    EXPECT_EQ(grid.OptionSelection, before);
    EXPECT_EQ(folder.ReadLines(defaultConf), lines);
}

TEST_F(GlobalConfTest, NumbersAreReadByTheirPrefixAndTheFileUnderAnyCase)
{
    folder.WriteLines(
        u"app/DEFAULT.CONF"_s,
        Current(
            {{kRate, u" 2 # two"_s},
             {kTimeout, u"2.5"_s},
             {kNewKey, u"none"_s},
             {kCycles, u"99999999999"_s}}));
    EXPECT_FALSE(ReadDefaultConf(places, grid).created);
    EXPECT_EQ(At(kRate), 2);
    EXPECT_EQ(At(kTimeout), 2);
    EXPECT_EQ(At(kNewKey), 0);
    EXPECT_EQ(At(kCycles), 2147483647);
    EXPECT_TRUE(WriteDefaultConf(places, grid));
    EXPECT_FALSE(folder.Exists(defaultConf)) << "the spelling on disk stays";
}

TEST_F(GlobalConfTest, ACutOffFileGivesFactoryValuesAndIsKeptOnce)
{
    for (const QStringList& cut :
         {Current({}).mid(0, kLines - 1),
          Old(true, {}).mid(0, 231),
          Old(false, {}).mid(0, 120),
          QStringList()}) {
        SCOPED_TRACE(cut.size());
        folder.WriteLines(defaultConf, cut);
        At(kRate) = 1;
        const ConfReport report = ReadDefaultConf(places, grid);
        EXPECT_TRUE(report.fellBack);
        EXPECT_EQ(report.notes.size(), 1);
        EXPECT_EQ(At(kRate), 3);
        EXPECT_EQ(folder.ReadLines(defaultConf), cut);
        EXPECT_TRUE(WriteDefaultConf(places, grid).Value().backupKept);
        EXPECT_EQ(folder.ReadLines(defaultConf + u".bak"_s), cut);
        EXPECT_EQ(folder.ReadLines(defaultConf).size(), kLines);
        EXPECT_FALSE(WriteDefaultConf(places, grid).Value().backupKept);
    }
}

TEST_F(GlobalConfTest, BothOldLayoutsAreUpgradedAndTranslated)
{
    struct Case {
        Cell old;
        QString value;
        Cell now;
        std::int32_t result;
    };
    const Case cases[] = {
        {{0, 5}, u"1"_s, kAutolock, 1},
        {{0, 6}, u"10"_s, kSensitivity, 0},
        {{0, 6}, u"9"_s, kSensitivity, 10},
        {{0, 6}, u"3"_s, kSensitivity, 4},
        {{0, 8}, u"9"_s, kPriority, 11},
        {{0, 8}, u"3"_s, kPriority, 4},
        {{0, 8}, u"2147483647"_s, kPriority, 2147483647},
        {{1, 4}, u"2"_s, kVersionCell, 2},
        {{2, 5}, u"6"_s, kMultiscan, 6},
        {{2, 5}, u"6"_s, kDoublescan, 6},
        {{3, 2}, u"12000"_s, kCycles, 12000},
        {{4, 1}, u"5"_s, kRate, 3},
        {{4, 1}, u"4"_s, kRate, 4},
        {{7, 7}, u"0"_s, kSampleRate, 3},
        {{7, 7}, u"2"_s, kSampleRate, 2},
        {{7, 2}, u"1"_s, kIde, 0},
        {{7, 3}, u"1"_s, kFdc, 0},
        {{0, 4}, u"4"_s, kGlideTitle, 0},
        {{6, 0}, u"2"_s, kSbtype, 2},
    };
    for (const bool marked : {true, false}) {
        for (const Case& c : cases) {
            SCOPED_TRACE(testing::Message() << marked << ": " << c.old.group << ',' << c.old.item);
            folder.WriteLines(defaultConf, Old(marked, {{c.old, c.value}}));
            grid.OptionSelection.fill(0);
            At(kNewKey) = 5;
            const ConfReport report = ReadDefaultConf(places, grid);
            EXPECT_TRUE(report.upgraded);
            EXPECT_EQ(At(c.now), c.result);
            EXPECT_EQ(At(kNewKey), 5) << "the old files did not know it";
            EXPECT_EQ(Global(c.now), QString::number(c.result));
            EXPECT_EQ(report.backupKept, !marked) << "without a mark it may be any file";
        }
    }
    // The smaller layout lacks the items behind its eleven.
    folder.WriteLines(defaultConf, Old(true, {{{10, 12}, u"77"_s}}));
    ReadDefaultConf(places, grid);
    EXPECT_EQ(At(kTimeout), 77);
    folder.WriteLines(defaultConf, Old(false, {}));
    ReadDefaultConf(places, grid);
    EXPECT_EQ(At(kTimeout), 0);
}

TEST_F(GlobalConfTest, AnUpgradeClearsDriveControllersInTheGridWhateverItsTarget)
{
    Selection old{};
    Selection target{};
    target.fill(9);
    At(kIde) = 1;
    At(kSbtype) = 1;
    UpgradeOldGrid(grid, old, target);
    EXPECT_EQ(At(kIde), 0);
    EXPECT_EQ(At(kSbtype), 1);
    EXPECT_EQ(target[OptionGrid::Index(kIde)], 9);
    EXPECT_EQ(target[OptionGrid::Index(kSbtype)], 0);
    EXPECT_EQ(old[OptionGrid::Index({0, 6})], 1) << "translated in the old table itself";
}

using GameConfTest = ConfFilesTest;

TEST_F(GameConfTest, OverridesAllButTheGlobalKeysAndListsWhatDiffers)
{
    folder.WriteLines(
        defaultConf,
        Current({{kRate, u"1"_s}, {kMaster, u"1"_s}, {kAutolock, u"1"_s}, {kCycles, u"1"_s}}));
    EXPECT_FALSE(HasGameConf(places, u"Star"_s));
    EXPECT_TRUE(LoadGameConf(places, u"Star"_s, grid).differences.empty());
    EXPECT_EQ(At(kAutolock), 1) << "without a file the global settings hold";
    folder.WriteLines(
        u"games/Star/DosBox/EDIT.conf"_s,
        Current(
            {{kRate, u"5"_s},
             {kMapper, u"1"_s},
             {kOverscan, u"-3"_s},
             {kCycles, u"0"_s},
             {kSensitivity, u"500"_s},
             {kNewKey, u"8"_s},
             {{30, 0}, u"4"_s}}));
    ASSERT_TRUE(HasGameConf(places, u"Star"_s));
    QStringList differences;
    for (const Difference& one : LoadGameConf(places, u"Star"_s, grid).differences) {
        differences << u"%1,%2 %3 %4 %5"_s.arg(one.cell.group)
                           .arg(one.cell.item)
                           .arg(one.group, one.title, one.value);
    }
    EXPECT_EQ(
        differences.join(u" | "_s),
        u"1,0 sdl Lock false | 1,1 sdl Sensitivity  | 1,3 sdl Map b.txt | 1,5 sdl Overscan -3 | "
        "2,0 cpu Cycles  | 3,4 mixer New 8"_s);
    EXPECT_EQ(At(kRate), 1);
    EXPECT_EQ(At(kMaster), 1);
    EXPECT_EQ(At(kOverscan), -3);
    EXPECT_EQ(At({30, 0}), 4) << "cells without an option too";
}

TEST_F(GameConfTest, AFileOfTheOlderMarkIsRewrittenOnce)
{
    folder.WriteLines(editConf, Old(true, {{{1, 4}, u"1"_s}, {{3, 2}, u"3000"_s}}));
    const ConfReport first = LoadGameConf(places, u"Star"_s, grid).report;
    EXPECT_TRUE(first.upgraded);
    EXPECT_FALSE(first.backupKept);
    EXPECT_EQ(At(kVersionCell), 1);
    EXPECT_EQ(folder.ReadLines(editConf).size(), kLines);
    EXPECT_EQ(Game(kCycles), u"3000"_s);
    EXPECT_FALSE(LoadGameConf(places, u"Star"_s, grid).report.upgraded);
}

TEST_F(GameConfTest, AFileWithoutAMarkIsReplacedByValuesOfTheGlobalFileAndKept)
{
    // Taken for 11 groups of 11, the global file has its mark at (0,0), its cell (0,n) at place
    // n + 1 and its cell (1,n) at place 82 + n. So old (0,5), autolock, is cell (0,4), and old
    // (7,7), samplerate, at place 84, is cell (1,2), priority.
    folder.WriteLines(defaultConf, Current({{{0, 4}, u"1"_s}, {kPriority, u"2"_s}}));
    folder.WriteLines(editConf, Old(false, {{{1, 4}, u"1"_s}}));
    const QByteArray before = folder.ReadRaw(editConf);
    const LoadedConf loaded = LoadGameConf(places, u"Star"_s, grid);
    EXPECT_TRUE(loaded.report.upgraded && loaded.report.backupKept);
    EXPECT_EQ(folder.ReadRaw(editConf + u".bak"_s), before);
    EXPECT_EQ(folder.ReadLines(editConf).first(), u"ver.15.02.01"_s);
    EXPECT_EQ(Game(kAutolock), u"1"_s);
    EXPECT_EQ(Game(kSampleRate), u"2"_s);
    EXPECT_EQ(Game(kSensitivity), u"1"_s);
    EXPECT_EQ(At(kAutolock), 1);

    // A short one is replaced as well, so no line of it is missed.
    folder.WriteLines(editConf, {u"1"_s, u"2"_s});
    const ConfReport shortOne = LoadGameConf(places, u"Star"_s, grid).report;
    EXPECT_FALSE(shortOne.linesMissing);
    EXPECT_EQ(shortOne.notes.size(), 1) << "only where the old file is kept";
}

TEST_F(GameConfTest, SavingSendsTheGlobalKeysToTheGlobalFile)
{
    folder.WriteLines(
        defaultConf, Current({{kRate, u"1"_s}, {kAutolock, u"0"_s}, {kNewKey, u"6"_s}}));
    ReadDefaultConf(places, grid);
    At(kRate) = 2;
    At(kAutolock) = 1;
    At(kNewKey) = 7;
    ASSERT_TRUE(SaveGameConf(places, u"Star"_s, grid));
    EXPECT_EQ(Game(kRate), u"2"_s);
    EXPECT_EQ(Game(kAutolock), u"1"_s);
    EXPECT_EQ(Global(kRate), u"2"_s);
    EXPECT_EQ(Global(kAutolock), u"0"_s);
    EXPECT_EQ(Global(kNewKey), u"6"_s);
    EXPECT_EQ(folder.ReadLines(defaultConf).size(), kLines);
}

TEST_F(GameConfTest, SavingOverAMissingABrokenAndAnOldGlobalFile)
{
    At(kAutolock) = 0;
    At(kWait) = 0;
    ASSERT_TRUE(SaveGameConf(places, u"Star"_s, grid).Value().created);
    EXPECT_EQ(At(kAutolock), 1) << "the grid holds the factory values then";
    EXPECT_EQ(Game(kAutolock), u"0"_s);
    EXPECT_EQ(Global(kWait), u"1"_s);

    folder.WriteLines(defaultConf, Current({}).mid(0, 50));
    At(kWait) = 0;
    At(kAutolock) = 0;
    const auto broken = SaveGameConf(places, u"Star"_s, grid);
    EXPECT_TRUE(broken.Value().fellBack && broken.Value().backupKept);
    EXPECT_EQ(Global(kWait), u"0"_s);
    EXPECT_EQ(Global(kAutolock), u"1"_s);

    folder.WriteLines(defaultConf, Old(true, {{{6, 0}, u"3"_s}, {{0, 7}, u"1"_s}}));
    const auto marked = SaveGameConf(places, u"Star"_s, grid);
    EXPECT_TRUE(marked.Value().upgraded && !marked.Value().backupKept);
    EXPECT_EQ(Global(kSbtype), u"3"_s);
    EXPECT_EQ(Global(kWait), u"0"_s);
    folder.WriteLines(defaultConf, Old(false, {}));
    EXPECT_TRUE(SaveGameConf(places, u"Star"_s, grid).Value().backupKept) << "it may be any file";
}

TEST_F(GameConfTest, WritesOnlyIntoAGameThatIsThere)
{
    for (const QString& name : {u""_s, u".."_s, u"a/b"_s, u"Gone"_s}) {
        EXPECT_FALSE(WriteGameConf(places, name, grid, grid.OptionSelection)) << name;
        EXPECT_FALSE(HasGameConf(places, name));
    }
    ASSERT_TRUE(WriteGameConf(places, u"Bare"_s, grid, grid.OptionSelection));
    EXPECT_TRUE(folder.Exists(u"games/Bare/DosBox/edit.conf"_s));

    folder.MakeFolder(editConf); // can't be written over
    EXPECT_FALSE(SaveGameConf(places, u"Star"_s, grid));
    EXPECT_FALSE(folder.Exists(defaultConf)) << "stopped at the first failure";
}

TEST_F(GameConfTest, TheBuildIsLineTwoOfTheGamesFileOrElseOfTheGlobalOne)
{
    At(kRate) = 1;
    EXPECT_EQ(ReadBuildIndex(places, u"Star"_s, grid), 0);
    EXPECT_EQ(Global(kRate), u"3"_s) << "generated";
    EXPECT_EQ(At(kRate), 1) << "the grid is left alone";

    folder.WriteLines(defaultConf, Current({{kVersionCell, u"1"_s}}));
    EXPECT_EQ(ReadGameBuild(places, u"Star"_s, grid), u"0.74"_s);
    EXPECT_EQ(ReadGameBuild(places, QString(), grid), u"0.74"_s);

    const QString mark = u"ver.15.02.01"_s;
    struct Case {
        QStringList lines;
        int index;
        QString name;
    };
    const Case cases[] = {
        {{mark, u"2"_s}, 2, u"Windows"_s},
        {{mark, u" 1x"_s}, 1, u"0.74"_s},
        {{mark, u"150"_s}, 150, u""_s},
        {{mark, u"-1"_s}, -1, u""_s},
        {{mark, u"text"_s}, 0, u"0.74_SVN"_s},
        {{mark}, 0, u"0.74_SVN"_s},
        {Old(true, {{{0, 0}, u"1"_s}, {{1, 4}, u"2"_s}}), 1, u"0.74"_s}, // line 2 as it stands
    };
    for (const Case& c : cases) {
        folder.WriteLines(editConf, c.lines);
        EXPECT_EQ(ReadBuildIndex(places, u"Star"_s, grid), c.index);
        EXPECT_EQ(ReadGameBuild(places, u"Star"_s, grid), c.name) << c.index;
    }
    // A file that can't be read is as none, here as in the list and for what a start takes of it.
    QFile::remove(folder.Path(editConf));
    folder.MakeFolder(editConf);
    EXPECT_EQ(ReadGameBuild(places, u"Star"_s, grid), u"0.74"_s);
    const std::pair<int, QString> cycles[] = {
        {0, QString()}, {1, u"max"_s}, {2, u"auto"_s}, {3, u"3"_s}};
    for (const auto& [value, shown] : cycles) {
        EXPECT_EQ(ShownValue(grid, kCycles, value), shown);
    }
}

} // namespace
