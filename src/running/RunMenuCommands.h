#pragma once

#include "shell/MenuModel.h"

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::running {

/// mnuRun, the popup of cmdRun(1).
shell::MenuModel RunMenu(const shell::Launcher& launcher);

/// An entry of mnuRun was chosen. The recent games are 10 to 24; one whose folder is gone does
/// nothing. Nothing while a job stands.
void mnuRun_Click(shell::Launcher& launcher, int index);

} // namespace pelorin::running
