#include "running/RunPlan.h"

#include "dosboxconf/OptionTable.h"
#include "support/Values.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::running;
using namespace pelorin::test;
using dosboxconf::OptionGrid;
using platform::HostText;

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
        QString builds;
        int commands;
        RunBranch branches[6]; // in the order of kModes
    };
    const Case cases[] = {
        {u"0.74"_s, 1, {Dos, Dos, Dos, Dos, Dos, Dos}},
        {u"0.74 win98"_s, 0, {AskForPrompt, Dos, AskForPrompt, AskForPrompt, Dos, Dos}},
        {u"Windows"_s, 0, {WindowsGame, WindowsGameInWindow, Nothing, Nothing, Dos, WindowsFile}},
        {u"Windows"_s, 2, {WindowsGame, WindowsGameInWindow, Nothing, Nothing, Dos, WindowsFile}},
        {u"Win98_LCD"_s, 0, {Dos, Dos, Dos, Dos, Dos, Dos}},
        {u"Win31KOR Win31ENG Win98"_s,
         0,
         {GuestWindows, GuestWindows, GuestWindows, GuestWindows, Dos, RefuseGuest}},
        {u"ANEX86 SNES9X FUSION NP21 M88"_s,
         0,
         {OtherEmulator, Nothing, Nothing, Nothing, Dos, Nothing}},
    };
    for (const Case& c : cases) {
        for (const QString& build : Words(c.builds)) {
            for (std::size_t i = 0; i < std::size(kModes); ++i) {
                EXPECT_EQ(BranchOf(kModes[i], build, c.commands), c.branches[i])
                    << build << ' ' << c.commands << " mode " << i;
            }
        }
    }
    for (const RunMode mode : kModes) {
        const bool shell = mode == RunMode::LibraryShell;
        EXPECT_EQ(BranchOf(mode, QString(), 1), shell ? Dos : NoSuchBuild);
    }
}

TEST(RunPlanTest, GuestsAndTheLibraryRunUnderTheSvnBuild)
{
    struct Case {
        QString build;
        QString folder;
        QString ofTheLibrary;
    };
    const QString svn = u"0.74_SVN"_s;
    const Case cases[] = {
        {u"Win31KOR"_s, svn, svn},
        {u"Win31ENG"_s, svn, svn},
        {u"Win98"_s, svn, u"Win98"_s},
        {u"Win98_LCD"_s, u"Win98_LCD"_s, svn},
        {u"0.72"_s, u"0.72"_s, svn},
        {u""_s, u""_s, svn},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ConfigFolder(RunMode::Game, c.build), c.folder);
        EXPECT_EQ(ConfigFolder(RunMode::FileWithArgs, c.build), c.folder);
        EXPECT_EQ(ConfigFolder(RunMode::LibraryShell, c.build), c.ofTheLibrary) << c.build;
    }
    for (const RunMode mode : kModes) {
        const bool normal = ShowStateOf(mode) == platform::ShowState::Normal;
        EXPECT_EQ(normal, mode == RunMode::Game);
    }
    EXPECT_TRUE(EntersRecentList(RunMode::NetClient));
    EXPECT_FALSE(EntersRecentList(RunMode::FileWithArgs));
    RunRequest request;
    request.ipxAddress = u"10.0.0.1"_s; // left from an earlier start
    request.mode = RunMode::NetHost;
    EXPECT_EQ(ConfRequestOf(request, u"0.74"_s).ipxAddress, QString());
}

OptionGrid GridWith(int directX, int menu, int wait, int log)
{
    const std::pair<dosboxconf::Cell, int> cells[] = {
        {dosboxconf::kDirectXCell, directX},
        {dosboxconf::kMenuCell, menu},
        {dosboxconf::kWaitonerrorCell, wait},
        {dosboxconf::kLogCell, log}};
    OptionGrid grid;
    for (const auto& [cell, selected] : cells) {
        grid.OptionValue[OptionGrid::Index(cell)] = Words(u"false true other"_s);
        grid.OptionSelection[OptionGrid::Index(cell)] = selected;
    }
    return grid;
}

TEST(RunPlanTest, TheCommandLineFollowsTheOptions)
{
    struct Case {
        int log;
        int wait;
        int menu;
        QString line;
    };
    const Case cases[] = {
        {0, 0, 0, u"dosbox.exe -nolog -disable_numlock_check -noconsole -nomenu"_s},
        {0, 0, 1, u"dosbox.exe -nolog -disable_numlock_check -noconsole"_s},
        {0, 1, 0, u"dosbox.exe -nolog -disable_numlock_check -nomenu"_s},
        {0, 1, 1, u"dosbox.exe -nolog -disable_numlock_check"_s},
        {1, 0, 0, u"dosbox_debug.exe -nolog -disable_numlock_check -nomenu"_s},
        {1, 0, 1, u"dosbox_debug.exe -nolog -disable_numlock_check"_s},
        {1, 1, 0, u"dosbox_debug.exe -nolog -disable_numlock_check -nomenu"_s},
        {1, 1, 1, u"dosbox_debug.exe -nolog -disable_numlock_check"_s},
        {1, 1, 2, u"dosbox_debug.exe -nolog -disable_numlock_check"_s},
        {2, 0, 99, u"dosbox.exe -nolog -disable_numlock_check"_s},
        {-1, 0, 0, u"dosbox.exe -nolog -disable_numlock_check -nomenu"_s},
    };
    for (const Case& c : cases) {
        const CommandLine line = DosboxCommandLine(GridWith(0, c.menu, c.wait, c.log));
        EXPECT_EQ(line.program + line.Reference(), c.line);
    }
}

TEST(RunPlanTest, NumLockIsPassedOnByTwoModesEachWithItsOption)
{
    for (const RunMode mode : kModes) {
        const QString root = u"D:\\Games"_s;
        const bool prompt = mode == RunMode::DosPrompt;
        const bool library = mode == RunMode::LibraryShell;
        EXPECT_EQ(WantsAddkey(mode, GridWith(1, 0, 0, 0), root, true), prompt);
        EXPECT_EQ(WantsAddkey(mode, GridWith(0, 0, 1, 0), root, true), library);
        EXPECT_FALSE(WantsAddkey(mode, GridWith(1, 0, 1, 0), root, false));
        EXPECT_FALSE(WantsAddkey(mode, GridWith(1, 0, 1, 0), u"\\\\server\\games"_s, true));
    }
}

TEST(RunPlanTest, AGuestsLinesStandInThePlaceOfCommands)
{
    const HostText text = HostText().Text(u"c:"_s);
    RunEnding ending;
    ending.startCommands = QStringList{u"disk.img"_s};
    ending.guestLines = HostText().Text(u"\r\nboot -l c"_s);
    ending.addkey = true; // of no effect in this mode
    EXPECT_EQ(
        FinishRunText(text, ending).Print(platform::PathForm::Windows), "c:\r\nboot -l c\r\n");
    ending.mode = RunMode::DosPrompt;
    EXPECT_EQ(
        FinishRunText(text, ending).Print(platform::PathForm::Windows),
        "c:\r\naddkey 62\r\nboot -l c\r\n");
}

} // namespace
