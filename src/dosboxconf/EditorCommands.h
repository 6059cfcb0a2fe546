#pragma once

#include "dosboxconf/ConfFiles.h"
#include "dosboxconf/ConfigEditor.h"
#include "dosboxconf/OptionGrid.h"

#include <optional>

namespace pelorin::shell {
struct Launcher;
}

// The configuration page, which the tabs 3 (all games) and 4 (the game shown) share. Edits go into
// the grid alone until they are saved; loading another game or tab loses them.

namespace pelorin::dosboxconf {

/// Whether tabInfo shows the page.
bool ShowsConfigPage(const shell::Launcher& launcher);

/// Arranges the page for the tab and the game shown. `loaded` is what LoadGameConf has just given
/// for that game; the second form loads it. Without the page nothing but the loading happens.
void ShowConfigPage(shell::Launcher& launcher, const LoadedConf& loaded);
void ShowConfigPage(shell::Launcher& launcher);

/// What the page shown holds beyond its files, and the way back to it after something else was loaded
/// into the grid; the game and the tab are the same.
std::optional<Selection> UnsavedEdits(const shell::Launcher& launcher);
void ShowEdits(shell::Launcher& launcher, const Selection& edits);

/// The user took the check box to `checked`: the game's settings are edited, or its differences
/// shown again.
void chkEditConfig_Click(shell::Launcher& launcher, bool checked);
/// Another group was chosen.
void cmbConfigSub_Click(shell::Launcher& launcher, int group);
/// Ctrl+Tab and Ctrl+Shift+Tab among the titles.
void lstConfigTitle_CtrlTab(shell::Launcher& launcher, GroupStep step);
/// Another title was chosen, by its row.
void lstConfigTitle_Click(shell::Launcher& launcher, int row);
/// Another value was chosen, by its row.
void lstConfig_Row(shell::Launcher& launcher, int row);
/// A value was clicked: the means to edit it open, cmbConfig or a prompt for a number.
void lstConfig_Click(shell::Launcher& launcher, int row);
/// The same from its title, which also a value without a row is edited by.
void lstConfigTitle_DblClick(shell::Launcher& launcher, int item);
/// A value was chosen in cmbConfig, or it was left without one.
void cmbConfig_Click(shell::Launcher& launcher, int index);
void cmbConfig_Leave(shell::Launcher& launcher);
/// A row of the differences was chosen.
void lstEdit_Click(shell::Launcher& launcher, int row);

/// Saves the page: as the settings of all games, or of the game. Beside a game with settings of its
/// own the former saves nothing.
void cmdSaveConfig_Click(shell::Launcher& launcher);
/// Asks, and restores the defaults of all games or deletes the game's own settings, as its caption
/// says. What goes is kept as .bak.
void cmdDeleteConfig_Click(shell::Launcher& launcher);

} // namespace pelorin::dosboxconf
