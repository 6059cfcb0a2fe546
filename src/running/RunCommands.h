#pragma once

#include "dosboxconf/ConfCompose.h"
#include "platform/Outcome.h"
#include "running/RunRequest.h"
#include "shell/MenuModel.h"

#include <QString>

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::running {

/// Starts the current game with its start commands, under the build that its settings name. The
/// right panel shows that game then: its unsaved start commands and CD count. What can't be started
/// is told in the status bar's fourth panel, and nothing is written then; of an emulator that is
/// missing or does not come up, dosbox.conf is written and the game enters the recent list.
void RunGame(shell::Launcher& launcher);

/// The text of a start: loads the configuration of the run into the grid, which keeps it, and
/// composes. `facts` are those of the request. Error Refused when it can't become a text.
platform::Outcome<dosboxconf::ConfText> BuildDosboxConf(
    shell::Launcher& launcher, const RunRequest& request, const dosboxconf::RunFacts& facts);

/// mnuRun, the popup of cmdRun(1).
shell::MenuModel RunMenu(const shell::Launcher& launcher);

/// An entry of mnuRun was chosen. The recent games are 10 to 24; one whose folder is gone does
/// nothing. Nothing while a job stands.
void mnuRun_Click(shell::Launcher& launcher, int index);

} // namespace pelorin::running
