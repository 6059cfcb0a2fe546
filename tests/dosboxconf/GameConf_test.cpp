#include "dosboxconf/ConfFilesTest.h"

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

namespace {

using GameConfTest = ConfFilesTest;

TEST_F(GameConfTest, OverridesAllButTheGlobalKeysAndListsWhatDiffers)
{
    folder.WriteLines(
        defaultConf,
        Current({{kRate, u"1"_s}, {kMaster, u"1"_s}, {kAutolock, u"1"_s}, {kCycles, u"1"_s}}));
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
    const LoadedConf loaded = LoadGameConf(places, u"Star"_s, grid);
    EXPECT_EQ(At(kRate), 1);
    EXPECT_EQ(At(kMaster), 1);
    EXPECT_EQ(At(kOverscan), -3);
    EXPECT_EQ(At({30, 0}), 4) << "cells without an option too";

    const Difference expected[] = {
        {kAutolock, u"sdl"_s, u"Lock"_s, u"false"_s},
        {kSensitivity, u"sdl"_s, u"Sensitivity"_s, u""_s}, // off its list
        {kMapper, u"sdl"_s, u"Map"_s, u"b.txt"_s},
        {kOverscan, u"sdl"_s, u"Overscan"_s, u"-3"_s},
        {kCycles, u"cpu"_s, u"Cycles"_s, u""_s}, // not set
        {kNewKey, u"mixer"_s, u"New"_s, u"8"_s},
    };
    ASSERT_EQ(loaded.differences.size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(loaded.differences[i].cell, expected[i].cell) << i;
        EXPECT_EQ(loaded.differences[i].group, expected[i].group) << i;
        EXPECT_EQ(loaded.differences[i].title, expected[i].title) << i;
        EXPECT_EQ(loaded.differences[i].value, expected[i].value) << i;
    }
}

TEST_F(GameConfTest, AFileOfTheOlderMarkIsRewrittenOnce)
{
    folder.WriteLines(editConf, Old(true, {{{1, 4}, u"1"_s}, {{3, 2}, u"3000"_s}}));
    const LoadedConf first = LoadGameConf(places, u"Star"_s, grid);
    EXPECT_TRUE(first.report.upgraded);
    EXPECT_FALSE(first.report.backupKept);
    EXPECT_EQ(At(kVersionCell), 1);
    const QStringList lines = folder.ReadLines(editConf);
    EXPECT_EQ(lines.size(), kLines);
    EXPECT_EQ(lines[LineOf(kCycles)], u"3000"_s);
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
    EXPECT_TRUE(loaded.report.upgraded);
    EXPECT_TRUE(loaded.report.backupKept);
    EXPECT_EQ(folder.ReadRaw(editConf + u".bak"_s), before);
    const QStringList lines = folder.ReadLines(editConf);
    EXPECT_EQ(lines.first(), u"ver.15.02.01"_s);
    EXPECT_EQ(lines[LineOf(kAutolock)], u"1"_s);
    EXPECT_EQ(lines[LineOf(kSampleRate)], u"2"_s);
    EXPECT_EQ(lines[LineOf(kSensitivity)], u"1"_s);
    EXPECT_EQ(At(kAutolock), 1);

    // A short one is replaced as well, so no line of it is missed.
    folder.WriteLines(editConf, {u"1"_s, u"2"_s});
    const ConfReport shortOne = LoadGameConf(places, u"Star"_s, grid).report;
    EXPECT_FALSE(shortOne.linesMissing);
    EXPECT_EQ(shortOne.notes.size(), 1) << "only where the old file is kept";
    EXPECT_EQ(At(kAutolock), 1);
}

TEST_F(GameConfTest, AShortFileReadsZerosAndIsKeptBeforeTheNextWrite)
{
    folder.WriteLines(editConf, Current({{kRate, u"5"_s}, {kAutolock, u"1"_s}}).mid(0, 90));
    const QByteArray before = folder.ReadRaw(editConf);
    const LoadedConf loaded = LoadGameConf(places, u"Star"_s, grid);
    EXPECT_TRUE(loaded.report.linesMissing);
    EXPECT_EQ(loaded.report.notes.size(), 1);
    EXPECT_EQ(At(kAutolock), 1);
    EXPECT_EQ(At(kSbtype), 0);
    EXPECT_EQ(folder.ReadRaw(editConf), before);

    const auto saved = SaveGameConf(places, u"Star"_s, grid);
    ASSERT_TRUE(saved);
    EXPECT_TRUE(saved.Value().backupKept);
    EXPECT_EQ(folder.ReadRaw(editConf + u".bak"_s), before);
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
    const QStringList game = folder.ReadLines(editConf);
    const QStringList global = folder.ReadLines(defaultConf);
    EXPECT_EQ(game[LineOf(kRate)], u"2"_s);
    EXPECT_EQ(game[LineOf(kAutolock)], u"1"_s);
    EXPECT_EQ(global[LineOf(kRate)], u"2"_s);
    EXPECT_EQ(global[LineOf(kAutolock)], u"0"_s);
    EXPECT_EQ(global[LineOf(kNewKey)], u"6"_s);
    EXPECT_EQ(global.size(), kLines);
}

TEST_F(GameConfTest, SavingOverAMissingABrokenAndAnOldGlobalFile)
{
    At(kAutolock) = 0;
    At(kWait) = 0;
    ASSERT_TRUE(SaveGameConf(places, u"Star"_s, grid).Value().created);
    EXPECT_EQ(At(kAutolock), 1) << "the grid holds the factory values then";
    EXPECT_EQ(folder.ReadLines(editConf)[LineOf(kAutolock)], u"0"_s);
    EXPECT_EQ(folder.ReadLines(defaultConf)[LineOf(kWait)], u"1"_s);

    folder.WriteLines(defaultConf, Current({}).mid(0, 50));
    At(kWait) = 0;
    At(kAutolock) = 0;
    const auto broken = SaveGameConf(places, u"Star"_s, grid);
    ASSERT_TRUE(broken);
    EXPECT_TRUE(broken.Value().fellBack && broken.Value().backupKept);
    EXPECT_EQ(folder.ReadLines(defaultConf)[LineOf(kWait)], u"0"_s);
    EXPECT_EQ(folder.ReadLines(defaultConf)[LineOf(kAutolock)], u"1"_s);

    folder.WriteLines(defaultConf, Old(true, {{{6, 0}, u"3"_s}, {{0, 7}, u"1"_s}}));
    const auto old = SaveGameConf(places, u"Star"_s, grid);
    ASSERT_TRUE(old);
    EXPECT_TRUE(old.Value().upgraded);
    EXPECT_EQ(folder.ReadLines(defaultConf)[LineOf(kSbtype)], u"3"_s);
    EXPECT_EQ(folder.ReadLines(defaultConf)[LineOf(kWait)], u"0"_s);
}

TEST_F(GameConfTest, WritesOnlyIntoAGameThatIsThere)
{
    for (const QString& name : {u""_s, u".."_s, u"a/b"_s, u"Gone"_s}) {
        EXPECT_FALSE(WriteGameConf(places, name, grid, grid.OptionSelection)) << name.toStdString();
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
    EXPECT_EQ(folder.ReadLines(defaultConf)[LineOf(kRate)], u"3"_s) << "generated";
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
        {{}, 0, u"0.74_SVN"_s},
        {Old(true, {{{0, 0}, u"1"_s}, {{1, 4}, u"2"_s}}), 1, u"0.74"_s}, // line 2 as it stands
    };
    for (const Case& c : cases) {
        folder.WriteLines(editConf, c.lines);
        EXPECT_EQ(ReadBuildIndex(places, u"Star"_s, grid), c.index);
        EXPECT_EQ(ReadGameBuild(places, u"Star"_s, grid), c.name) << c.index;
    }
}

TEST_F(GameConfTest, WithoutAFileTheGlobalSettingsHold)
{
    folder.WriteLines(defaultConf, Current({{kAutolock, u"1"_s}}));
    EXPECT_FALSE(HasGameConf(places, u"Star"_s));
    EXPECT_TRUE(LoadGameConf(places, u"Star"_s, grid).differences.empty());
    EXPECT_EQ(At(kAutolock), 1);
}

TEST_F(GameConfTest, AValueIsShownByItsKind)
{
    EXPECT_EQ(ShownValue(grid, kCycles, 1), u"max"_s);
    EXPECT_EQ(ShownValue(grid, kCycles, 2), u"auto"_s);
    EXPECT_EQ(ShownValue(grid, kCycles, 3), u"3"_s);
    EXPECT_EQ(ShownValue(grid, kCycles, 0), QString());
    EXPECT_EQ(ShownValue(grid, kMapper, 1), u"b.txt"_s);
    EXPECT_EQ(ShownValue(grid, kMapper, 2), QString());
}

} // namespace

} // namespace pelorin::dosboxconf
