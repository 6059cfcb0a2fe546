#include "running/RunPlan.h"

#include "dosboxconf/OptionTable.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::running;
using dosboxconf::Cell;
using dosboxconf::OptionGrid;
using platform::HostText;
using platform::PathForm;

namespace {

constexpr RunMode kModes[] = {
    RunMode::Game,
    RunMode::DosPrompt,
    RunMode::NetHost,
    RunMode::NetClient,
    RunMode::LibraryShell,
    RunMode::FileWithArgs};

TEST(RunPlanTest, TheBranchFollowsBuildModeAndCommands)
{
    using enum RunBranch;
    struct Case {
        const char* build;
        int commands;
        RunBranch branches[6]; // in the order of kModes
    };
    const Case cases[] = {
        {"0.74", 1, {Dos, Dos, Dos, Dos, Dos, Dos}},
        {"0.74", 0, {AskForPrompt, Dos, AskForPrompt, AskForPrompt, Dos, Dos}},
        {"Windows", 0, {WindowsGame, WindowsGameInWindow, Nothing, Nothing, Dos, WindowsFile}},
        {"Windows", 2, {WindowsGame, WindowsGameInWindow, Nothing, Nothing, Dos, WindowsFile}},
        {"Win98_LCD", 0, {Dos, Dos, Dos, Dos, Dos, Dos}},
        {"", 1, {NoSuchBuild, NoSuchBuild, NoSuchBuild, NoSuchBuild, Dos, NoSuchBuild}},
        {"win98", 0, {AskForPrompt, Dos, AskForPrompt, AskForPrompt, Dos, Dos}}, // another name
    };
    for (const Case& c : cases) {
        for (std::size_t i = 0; i < std::size(kModes); ++i) {
            EXPECT_EQ(BranchOf(kModes[i], QString::fromLatin1(c.build), c.commands), c.branches[i])
                << c.build << ' ' << c.commands << " mode " << i;
        }
    }
    const RunBranch guest[] = {
        GuestWindows, GuestWindows, GuestWindows, GuestWindows, Dos, RefuseGuest};
    const RunBranch other[] = {OtherEmulator, Nothing, Nothing, Nothing, Dos, Nothing};
    for (std::size_t i = 0; i < std::size(kModes); ++i) {
        for (const QString& build : {u"Win31KOR"_s, u"Win31ENG"_s, u"Win98"_s}) {
            EXPECT_EQ(BranchOf(kModes[i], build, 0), guest[i]) << build.toStdString() << i;
        }
        for (const QString& build : {u"ANEX86"_s, u"SNES9X"_s, u"FUSION"_s, u"NP21"_s, u"M88"_s}) {
            EXPECT_EQ(BranchOf(kModes[i], build, 0), other[i]) << build.toStdString() << i;
        }
    }
}

TEST(RunPlanTest, GuestsAndTheLibraryRunUnderTheSvnBuild)
{
    const QString svn = u"0.74_SVN"_s;
    for (const QString& build : {u"Win31KOR"_s, u"Win31ENG"_s, u"Win98"_s}) {
        EXPECT_EQ(ConfigFolder(RunMode::Game, build), svn);
        EXPECT_EQ(ConfigFolder(RunMode::DosPrompt, build), svn);
    }
    EXPECT_EQ(ConfigFolder(RunMode::Game, u"Win98_LCD"_s), u"Win98_LCD"_s);
    EXPECT_EQ(ConfigFolder(RunMode::FileWithArgs, u"0.72"_s), u"0.72"_s);
    for (const QString& build : {u"0.72"_s, u"Windows"_s, u"Win31KOR"_s, u"Win98_LCD"_s, u""_s}) {
        EXPECT_EQ(ConfigFolder(RunMode::LibraryShell, build), svn) << build.toStdString();
    }
    EXPECT_EQ(ConfigFolder(RunMode::LibraryShell, u"Win98"_s), u"Win98"_s);
}

struct RunOptionsTest : testing::Test {
    RunOptionsTest()
    {
        grid.OptionValue[OptionGrid::Index(dosboxconf::kDirectXCell)] = values;
        grid.OptionValue[OptionGrid::Index(dosboxconf::kMenuCell)] = values;
        grid.OptionValue[OptionGrid::Index(dosboxconf::kWaitonerrorCell)] = values;
        grid.OptionValue[OptionGrid::Index(dosboxconf::kLogCell)] = values;
    }

    void Set(Cell cell, int value) { grid.OptionSelection[OptionGrid::Index(cell)] = value; }

    const QStringList values{u"false"_s, u"true"_s, u"other"_s};
    OptionGrid grid;
};

TEST_F(RunOptionsTest, TheCommandLine)
{
    struct Case {
        int log;
        int wait;
        int menu;
        const char* program;
        const char* arguments;
    };
    const Case cases[] = {
        {0, 0, 0, "dosbox.exe", " -nolog -disable_numlock_check -noconsole -nomenu"},
        {0, 0, 1, "dosbox.exe", " -nolog -disable_numlock_check -noconsole"},
        {0, 1, 0, "dosbox.exe", " -nolog -disable_numlock_check -nomenu"},
        {1, 0, 1, "dosbox_debug.exe", " -nolog -disable_numlock_check"},
        {1, 1, 2, "dosbox_debug.exe", " -nolog -disable_numlock_check"},
        {2, 0, 99, "dosbox.exe", " -nolog -disable_numlock_check"},
        {-1, 0, 0, "dosbox.exe", " -nolog -disable_numlock_check -nomenu"},
    };
    for (const Case& c : cases) {
        Set(dosboxconf::kLogCell, c.log);
        Set(dosboxconf::kWaitonerrorCell, c.wait);
        Set(dosboxconf::kMenuCell, c.menu);
        const CommandLine line = DosboxCommandLine(grid);
        EXPECT_EQ(line.program.toStdString(), c.program);
        EXPECT_EQ(line.Reference().toStdString(), c.arguments);
    }
}

TEST_F(RunOptionsTest, NumLockIsPassedOnByTwoModesEachWithItsOption)
{
    const QString root = u"D:\\Games"_s;
    const QString share = u"\\\\server\\games"_s;
    Set(dosboxconf::kDirectXCell, 1);
    EXPECT_TRUE(WantsAddkey(RunMode::DosPrompt, grid, root, true));
    EXPECT_FALSE(WantsAddkey(RunMode::DosPrompt, grid, root, false));
    EXPECT_FALSE(WantsAddkey(RunMode::DosPrompt, grid, share, true));
    EXPECT_FALSE(WantsAddkey(RunMode::LibraryShell, grid, root, true));
    Set(dosboxconf::kDirectXCell, 0);
    Set(dosboxconf::kWaitonerrorCell, 1);
    EXPECT_TRUE(WantsAddkey(RunMode::LibraryShell, grid, root, true));
    for (const RunMode mode :
         {RunMode::DosPrompt, RunMode::Game, RunMode::NetHost, RunMode::FileWithArgs}) {
        EXPECT_FALSE(WantsAddkey(mode, grid, root, true));
    }
}

QByteArray Finished(const RunEnding& ending)
{
    HostText text;
    text.Text(u"c:"_s);
    return FinishRunText(text, ending).Print(PathForm::Windows);
}

TEST(FinishRunTextTest, EachModeHasItsEnding)
{
    RunEnding ending;
    ending.startCommands = QStringList{u"cd a"_s, u"b.exe"_s};
    ending.typedLine = u"b.exe -x"_s;
    ending.addkey = true; // of no effect but in the two modes
    struct Case {
        RunMode mode;
        QByteArray full;
        QByteArray noCommands;
    };
    const Case cases[] = {
        {RunMode::Game, "c:\r\ncd a\r\nb.exe\r\n", "c:\r\nM\r\n\r\n"},
        {RunMode::NetHost, "c:\r\ncd a\r\nb.exe\r\n", "c:\r\n"},
        {RunMode::NetClient, "c:\r\ncd a\r\nb.exe\r\n", "c:\r\n"},
        {RunMode::DosPrompt, "c:\r\naddkey 62\r\nM\r\n\r\n", "c:\r\naddkey 62\r\nM\r\n\r\n"},
        {RunMode::LibraryShell, "c:\r\naddkey 62\r\nM\r\n\r\n", "c:\r\naddkey 62\r\nM\r\n\r\n"},
        {RunMode::FileWithArgs, "c:\r\nb.exe -x\r\n\r\n", "c:\r\nb.exe -x\r\n\r\n"},
    };
    for (const Case& c : cases) {
        ending.mode = c.mode;
        EXPECT_EQ(Finished(ending), c.full);
        RunEnding empty = ending;
        empty.startCommands.clear();
        EXPECT_EQ(Finished(empty), c.noCommands);
    }
    ending.mode = RunMode::DosPrompt;
    ending.addkey = false;
    EXPECT_EQ(Finished(ending), "c:\r\nM\r\n\r\n");
}

TEST(FinishRunTextTest, AGuestsLinesStandInThePlaceOfCommands)
{
    RunEnding ending;
    ending.startCommands = QStringList{u"disk.img"_s};
    ending.guestLines = HostText().Text(u"\r\nboot -l c"_s);
    EXPECT_EQ(Finished(ending), "c:\r\nboot -l c\r\n");
    ending.mode = RunMode::DosPrompt;
    ending.addkey = true;
    EXPECT_EQ(Finished(ending), "c:\r\naddkey 62\r\nboot -l c\r\n");
}

TEST(RunRequestTest, AsksTheTextForWhatTheModeNeeds)
{
    RunRequest request;
    request.ipxAddress = u"10.0.0.1"_s; // left from an earlier start
    for (const RunMode mode : kModes) {
        request.mode = mode;
        const auto conf = ConfRequestOf(request, u"0.74"_s);
        EXPECT_EQ(conf.mountRoot, mode == RunMode::LibraryShell);
        EXPECT_EQ(conf.ipx, mode == RunMode::NetHost || mode == RunMode::NetClient);
        EXPECT_EQ(conf.ipxAddress.isEmpty(), mode != RunMode::NetClient);
        EXPECT_EQ(UsesGlobalConf(mode, true), mode == RunMode::LibraryShell);
        EXPECT_TRUE(UsesGlobalConf(mode, false));
        const bool normal = ShowStateOf(mode) == platform::ShowState::Normal;
        EXPECT_EQ(normal, mode == RunMode::Game);
    }
    EXPECT_TRUE(EntersRecentList(RunMode::NetClient));
    EXPECT_FALSE(EntersRecentList(RunMode::FileWithArgs));
}

} // namespace
