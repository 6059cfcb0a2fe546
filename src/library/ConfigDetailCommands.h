#pragma once

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::library {

/// F6: opens frmConfigDetail for the current game, with the values that the library knows.
void OpenDetails(shell::Launcher& launcher);

/// Command1: saves the four facts into file, entry, tree and list, and closes. On a failure the
/// dialog stays as it is. Asks first when the file can't hold all of them.
void SaveDetails(shell::Launcher& launcher);

/// Command3: asks, and empties the facts everywhere; the file goes. The dialog stays open.
void DeleteDetails(shell::Launcher& launcher);

} // namespace pelorin::library
