#pragma once

#include "platform/Outcome.h"

namespace pelorin::shell {

struct Launcher;

/// Loads the option table and the language file, builds the window's title and the tree's fixed
/// nodes, and tells the form to take all its texts anew. Error: the program can't start; the text
/// names the file and the line.
platform::Done ReadLanguage(Launcher& launcher);

} // namespace pelorin::shell
