#pragma once

#include <QString>

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::running {

/// The dosbox.conf that a start of the current game would write if the grid's selection were its
/// saved settings; nothing is read from the game's files or written. Empty where such a start writes
/// none: the game has no start commands, or its build is no DOSBox.
QString PreviewGameText(const shell::Launcher& launcher);

} // namespace pelorin::running
