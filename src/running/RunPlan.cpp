#include "running/RunPlan.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace pelorin::running {

namespace {

using dosboxconf::OptionGrid;
using platform::HostText;

constexpr auto kEnd = "\r\n"_L1;

template <std::size_t Count>
bool IsOneOf(const QString& name, const QStringView (&names)[Count])
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

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

/// Print puts a line end behind what it is given.
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

bool IsOtherEmulator(const QString& build)
{
    static constexpr QStringView kNames[] = {u"ANEX86", u"SNES9X", u"FUSION", u"NP21", u"M88"};
    return IsOneOf(build, kNames);
}

bool IsGuestWindows(const QString& build)
{
    static constexpr QStringView kNames[] = {u"Win31KOR", u"Win31ENG", u"Win98"};
    return IsOneOf(build, kNames);
}

RunBranch BranchOf(RunMode mode, const QString& build, qsizetype startCommands)
{
    if (mode == RunMode::LibraryShell) {
        return RunBranch::Dos; // whatever the selected game runs under
    }
    if (build.isEmpty()) {
        return RunBranch::NoSuchBuild;
    }
    if (build == u"Windows"_s) {
        return WindowsBranch(mode);
    }
    if (IsOtherEmulator(build)) {
        return mode == RunMode::Game ? RunBranch::OtherEmulator : RunBranch::Nothing;
    }
    if (IsGuestWindows(build)) {
        return GuestBranch(mode);
    }
    if (StartsCommands(mode) && startCommands == 0 && build != u"Win98_LCD"_s) {
        return RunBranch::AskForPrompt;
    }
    return RunBranch::Dos;
}

QString ConfigFolder(RunMode mode, const QString& build)
{
    if (mode == RunMode::LibraryShell) {
        return build == u"Win98"_s ? build : u"0.74_SVN"_s;
    }
    return IsGuestWindows(build) ? u"0.74_SVN"_s : build;
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
