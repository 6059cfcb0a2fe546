#pragma once

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::running {

/// Puts the emulator's window on the coordinates of the boxes. Without one nothing happens.
void cmdSetPos_Click(shell::Launcher& launcher);
/// Takes the coordinates of the emulator's window into the boxes.
void cmdRememberPos_Click(shell::Launcher& launcher);
/// One pixel: 0 up, 1 left, 2 right, 3 down. The window follows.
void cmdMoveDosbox_Click(shell::Launcher& launcher, int index);
/// Adds to a box (0 x, 1 y); the window stays.
void txtDosboxPos_Step(shell::Launcher& launcher, int box, int step);

/// An emulator was started: where that is wanted, its window is placed once, after the time set.
void StartPlacementTimer(shell::Launcher& launcher);

} // namespace pelorin::running
