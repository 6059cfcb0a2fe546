#pragma once

namespace pelorin::shell {
struct Launcher;
}

// Presets: copies of Default.conf or of a game's edit.conf under names of the user's choice, in
// AppDir/preset to begin with. One of an older layout is upgraded when it is next loaded.

namespace pelorin::dosboxconf {

/// Asks for a preset and puts it in the place of the game's settings on the game's tab, else of
/// those of all games; what stood there is kept as .bak. A file that is no configuration is refused.
void cmdOpenPreset_Click(shell::Launcher& launcher);

/// Asks for a name and saves the game's settings under it, or those of all games where it has none
/// of its own, whichever tab is open.
void cmdSavePreset_Click(shell::Launcher& launcher);

} // namespace pelorin::dosboxconf
