#pragma once

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::library {

/// Brings everything that shows the current game up to date: details, start commands, runnable
/// files, CD, configuration (the grid takes the game's, an edit.conf of an older layout is
/// rewritten), caption, status bar and media. What fails leaves the rest as it stands. Each folder
/// is listed once and each file read once.
void ShowinfoProcess(shell::Launcher& launcher);

/// The game that the right panel shows is gone, and no other takes its place: all of it is emptied,
/// and nothing can be saved to a folder that isn't there.
void ShowNoGame(shell::Launcher& launcher);

/// A page of the right panel comes on top: those of the configuration load it anew, so that what
/// was changed there and not saved is gone. A rebuild of the list calls it as well.
void tabInfo_Click(shell::Launcher& launcher);

/// Takes the selected row over as the current game. Without one, or while the list is being built,
/// the current game stays.
void LVGamelist_ItemClick(shell::Launcher& launcher);

/// The user has moved the selection, by mouse or key: taken over and shown.
void LVGamelist_SelectionMoved(shell::Launcher& launcher);

/// A double click, or Enter: taken over and started.
void LVGamelist_DblClick(shell::Launcher& launcher);

} // namespace pelorin::library
