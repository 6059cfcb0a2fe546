#pragma once

namespace pelorin::shell {
struct Launcher;
}

// The run modes. Each starts something of the current game (LibraryShell: of all games) under the
// build that its settings name. The right panel shows that game then: its unsaved start commands
// and CD count. What can't be started is told, and nothing is written then. Nothing while a job
// stands.

namespace pelorin::running {

/// With its start commands; without any the DOS prompt is offered.
void RunGame(shell::Launcher& launcher);
/// Without them: a file manager in DOS, or the bare guest.
void RunDosPrompt(shell::Launcher& launcher);
/// As RunGame, as the host of a network game.
void RunNetHost(shell::Launcher& launcher);
/// As RunGame, joining a host whose address is asked for and kept.
void RunNetClient(shell::Launcher& launcher);
/// The file manager over the whole games root, with the settings of all games.
void RunLibraryShell(shell::Launcher& launcher);
/// The file selected in fileEXE, with what is typed behind its name.
void RunFileWithArgs(shell::Launcher& launcher);

/// Picks one of all games, makes it the current one and starts it.
void RunRandomGame(shell::Launcher& launcher);

} // namespace pelorin::running
