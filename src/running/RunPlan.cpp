#include "running/RunPlan.h"

#include "dosboxconf/Builds.h"

using namespace Qt::StringLiterals;

namespace pelorin::running {

namespace {

using dosboxconf::BuildKind;
using dosboxconf::OptionGrid;
using platform::HostText;

constexpr auto kEnd = "\r\n"_L1;

bool StartsCommands(RunMode mode)
{
    return mode == RunMode::Game || mode == RunMode::NetHost || mode == RunMode::NetClient;
}

RunBranch WindowsBranch(RunMode mode)
{
    switch (mode) {
    case RunMode::Game: return RunBranch::WindowsGame;
    case RunMode::DosPrompt: return RunBranch::WindowsGameInWindow;
    case RunMode::FileWithArgs: return RunBranch::WindowsFile;
    case RunMode::NetHost:
    case RunMode::NetClient:
    case RunMode::LibraryShell: break;
    }
    return RunBranch::Nothing;
}

RunBranch GuestBranch(RunMode mode)
{
    return mode == RunMode::FileWithArgs ? RunBranch::RefuseGuest : RunBranch::GuestWindows;
}

/// A line end follows, whatever the line itself ends with.
void PrintLine(HostText& text, const QString& line)
{
    text.Text(line + kEnd);
}

void EndWithCommands(const RunEnding& ending, HostText& text)
{
    text.Text(kEnd);
    for (const QString& command : ending.startCommands) {
        PrintLine(text, command);
    }
    if (ending.startCommands.isEmpty() && ending.mode == RunMode::Game) {
        PrintLine(text, u"M\r\n"_s);
    }
}

} // namespace

RunBranch BranchOf(RunMode mode, const QString& build, qsizetype startCommands)
{
    if (mode == RunMode::LibraryShell) {
        return RunBranch::Dos; // whatever the selected game runs under
    }
    if (build.isEmpty()) {
        return RunBranch::NoSuchBuild;
    }
    switch (dosboxconf::KindOf(build)) {
    case BuildKind::Windows: return WindowsBranch(mode);
    case BuildKind::OtherEmulator:
        return mode == RunMode::Game ? RunBranch::OtherEmulator : RunBranch::Nothing;
    case BuildKind::GuestWindows: return GuestBranch(mode);
    case BuildKind::Windows98Lcd: return RunBranch::Dos;
    case BuildKind::Dosbox: break;
    }
    return StartsCommands(mode) && startCommands == 0 ? RunBranch::AskForPrompt : RunBranch::Dos;
}

QString ConfigFolder(RunMode mode, const QString& build)
{
    if (mode == RunMode::LibraryShell) {
        return build == dosboxconf::kWin98 ? build : dosboxconf::kHostBuild.toString();
    }
    return dosboxconf::IsGuestWindows(build) ? dosboxconf::kHostBuild.toString() : build;
}

QString CommandLine::Reference() const
{
    QString text;
    for (const QString& argument : arguments) {
        text += u' ' + argument;
    }
    return text;
}

CommandLine DosboxCommandLine(const OptionGrid& grid)
{
    const QString log = grid.SelectedText(dosboxconf::kLogCell);
    CommandLine line;
    line.program = log == u"true"_s ? u"dosbox_debug.exe"_s : u"dosbox.exe"_s;
    line.arguments << u"-nolog"_s << u"-disable_numlock_check"_s;
    if (log == u"false"_s && grid.SelectedText(dosboxconf::kWaitonerrorCell) == u"false"_s) {
        line.arguments << u"-noconsole"_s;
    }
    if (grid.SelectedText(dosboxconf::kMenuCell) == u"false"_s) {
        line.arguments << u"-nomenu"_s;
    }
    return line;
}

platform::ShowState ShowStateOf(RunMode mode)
{
    return mode == RunMode::Game ? platform::ShowState::Normal : platform::ShowState::Minimized;
}

bool EntersRecentList(RunMode mode)
{
    return StartsCommands(mode);
}

bool WantsAddkey(RunMode mode, const OptionGrid& grid, const QString& gamesRoot, bool numLockOn)
{
    if (!numLockOn || gamesRoot.startsWith(u"\\\\"_s)) {
        return false;
    }
    if (mode == RunMode::DosPrompt) {
        return grid.SelectedText(dosboxconf::kDirectXCell) == u"true"_s;
    }
    return mode == RunMode::LibraryShell &&
           grid.SelectedText(dosboxconf::kWaitonerrorCell) == u"true"_s;
}

HostText FinishRunText(const HostText& composed, const RunEnding& ending)
{
    HostText text = composed;
    const bool offersPrompt =
        ending.mode == RunMode::DosPrompt || ending.mode == RunMode::LibraryShell;
    if (offersPrompt && ending.addkey) {
        text.Text(u"\r\naddkey 62"_s);
    }
    if (ending.guestLines) {
        text.Append(*ending.guestLines).Text(kEnd);
    } else if (offersPrompt) {
        PrintLine(text, u"\r\nM\r\n"_s);
    } else if (ending.mode == RunMode::FileWithArgs) {
        PrintLine(text, kEnd + ending.typedLine);
        PrintLine(text, QString());
    } else {
        EndWithCommands(ending, text);
    }
    return text;
}

} // namespace pelorin::running
