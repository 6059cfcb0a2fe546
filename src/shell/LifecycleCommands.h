#pragma once

#include "platform/Outcome.h"

namespace pelorin::shell {

struct Launcher;

/// Brings the system up, in a fixed order, once. `launcher.places.appDir` and the ports are set.
/// Error: the program can't start; nothing of the user's has been written then.
platform::Done Form_Load(Launcher& launcher);

/// The user closes the window. False: it stays open, because a job runs or because something could
/// not be saved and the user would rather keep the window. True: all is saved, the program ends.
bool Form_Unload(Launcher& launcher);

} // namespace pelorin::shell
