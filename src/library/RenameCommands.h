#pragma once

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::library {

/// Asks for another name of the current game's folder and gives it that. What can't be done is told
/// in a box and leaves everything as it is.
void RenameGameFolder(shell::Launcher& launcher);

} // namespace pelorin::library
