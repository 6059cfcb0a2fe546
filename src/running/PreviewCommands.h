#pragma once

#include "platform/Outcome.h"

#include <QString>

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::running {

/// The dosbox.conf that a start of the current game would write if the grid's selection were its
/// saved settings, with paths in the form of the program that it would find; no file of the game is
/// read or written. Of a game without start commands it is the text of the DOS prompt,
/// which such a start offers. Empty where the build is no DOSBox.
/// Error Refused where a start would write nothing.
platform::Outcome<QString> PreviewGameText(const shell::Launcher& launcher);

} // namespace pelorin::running
