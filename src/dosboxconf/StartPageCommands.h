#pragma once

#include "shell/MenuModel.h"

namespace pelorin::library {
struct GameFiles;
}
namespace pelorin::shell {
struct Launcher;
}

// What the start page's buttons do beyond the lists in memory (StartList.h, CdPanel.h). All
// of it is about the game that the page shows (DetailsPanel::folder), wherever the selection is.

namespace pelorin::dosboxconf {

/// Asks for the text of a line of lstAutoexec. A reply of blanks leaves it, as does one that comes
/// when the line stands there no more.
void lstAutoexec_DblClick(shell::Launcher& launcher, int row);
/// cmdSaveExec: writes the list as the game's autoexec.conf.
void WriteAutoexecConf(shell::Launcher& launcher);

/// Shows how the game gets its CD; nothing of the former game stays.
void FillCdList(shell::Launcher& launcher, const library::GameFiles& files);
/// The same for the game that is shown already: what its folder doesn't tell stays as it was chosen.
void RefillCdList(shell::Launcher& launcher, const library::GameFiles& files);
void chkCD_Click(shell::Launcher& launcher, bool checked);
void chkMountCD_Click(shell::Launcher& launcher, bool checked);
/// mnuCD, the popup of cmdCD: 0 the game's folder, 1 images.
shell::MenuModel CdMenu(const shell::Launcher& launcher);
void mnuCD_Click(shell::Launcher& launcher, int index);
/// Writes or deletes CD.conf and refreshes the game's entry.
void cmdSaveCD_Click(shell::Launcher& launcher);

} // namespace pelorin::dosboxconf
