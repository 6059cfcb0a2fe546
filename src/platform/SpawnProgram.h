#pragma once

#include "platform/Processes.h"

#include <sys/types.h>

namespace pelorin::platform {

/// Starts a program as our child, in a session of its own, all signals at their defaults. Its
/// standard input is empty, both output streams go to the descriptor `output` (-1: nowhere), no
/// other descriptor of ours is open in it. The caller reaps it. A failure to execute (rights, a
/// script whose interpreter is missing, not a program) is an error here, never a child that ends.
Outcome<pid_t> SpawnProgram(const ProcessRequest& request, int output);

} // namespace pelorin::platform
