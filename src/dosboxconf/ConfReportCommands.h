#pragma once

#include "dosboxconf/ConfFiles.h"

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::dosboxconf {

/// Tells what happened to a configuration file, each text once as long as it stands among the
/// notes: the files are read again at every selection.
void TellReport(shell::Launcher& launcher, const ConfReport& report);

} // namespace pelorin::dosboxconf
