#pragma once

#include "dosboxconf/ConfCompose.h"
#include "dosboxconf/OptionGrid.h"
#include "platform/HostText.h"
#include "platform/Processes.h"
#include "running/RunRequest.h"

#include <QString>
#include <QStringList>

#include <optional>

// The decisions of a start, without doing any of it.

namespace pelorin::running {

/// Where a start goes once its build is known.
enum class RunBranch {
    Nothing,             // the mode does not go with this build
    NoSuchBuild,         // the build's index lies outside the list: a message, no start
    WindowsGame,         // through the shell, from the game's folder
    WindowsGameInWindow, // the same in a window
    WindowsFile,         // FileWithArgs: the file itself through the shell
    OtherEmulator,       // ANEX86, SNES9X, FUSION, NP21, M88
    AskForPrompt,        // no start commands: offer the DOS prompt
    GuestWindows,        // Win31KOR, Win31ENG, Win98: the guest's lines end the text
    RefuseGuest,         // FileWithArgs: compose, then say that a guest can't do it
    Dos,                 // compose and launch
};

RunBranch BranchOf(RunMode mode, const QString& build, qsizetype startCommands);

/// The folder below AppDir\DOSBox that runs a build and takes its dosbox.conf: guests run under
/// "0.74_SVN", and so does the library shell, except for "Win98".
QString ConfigFolder(RunMode mode, const QString& build);

/// A program with its arguments, not yet resolved for this machine.
struct CommandLine {
    QString program; // "dosbox.exe" or "dosbox_debug.exe", to be looked up in the build's folder
    QStringList arguments;

    /// The arguments in one text, each behind a blank: " -nolog -disable_numlock_check".
    QString Reference() const;
};

/// By the grid's selection after the composition.
CommandLine DosboxCommandLine(const dosboxconf::OptionGrid& grid);

/// Normal for Game, minimized for all others.
platform::ShowState ShowStateOf(RunMode mode);

/// Game, NetHost and NetClient go to the head of the recent list.
bool EntersRecentList(RunMode mode);

/// Whether the guest's NumLock is switched on by a line of the text: only in DosPrompt and
/// LibraryShell, by the option that the mode looks at, not for games on a network share
/// (`gamesRoot` begins with two backslashes).
bool WantsAddkey(
    RunMode mode, const dosboxconf::OptionGrid& grid, const QString& gamesRoot, bool numLockOn);

/// How a mode ends the composed text.
struct RunEnding {
    RunMode mode = RunMode::Game;
    QStringList startCommands; // Game, NetHost, NetClient
    QString typedLine;         // FileWithArgs
    bool addkey = false;       // WantsAddkey
    /// A guest's own lines, in the place of commands: GuestWindows branches of Game, NetHost,
    /// NetClient and DosPrompt. They begin with their own line end.
    std::optional<platform::HostText> guestLines;
};

/// The whole of dosbox.conf.
platform::HostText FinishRunText(const platform::HostText& composed, const RunEnding& ending);

} // namespace pelorin::running
