#pragma once

#include "platform/Outcome.h"

namespace pelorin::shell {

struct Launcher;

/// Reads Launcher.cfg and the recent list into the tables and models, and sets the window's
/// caption. A root that is gone and a file that was replaced are told as notes. Error: the program
/// can't start.
platform::Done LoadSettings(Launcher& launcher);

/// Writes both files from what the controls hold.
platform::Done SaveSettings(Launcher& launcher);

} // namespace pelorin::shell
