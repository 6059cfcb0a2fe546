#pragma once

#include "dosboxconf/OptionGrid.h"
#include "platform/Outcome.h"
#include "shell/Places.h"

#include <QStringList>

// glide.ini of OpenGLide, the wrapper that builds with 3dfx support carry beside the emulator.

namespace pelorin::running {

/// Its lines for the display options of the grid's selection.
QStringList GlideLines(const dosboxconf::OptionGrid& grid);

/// Rewrites the file in the folder of the selected build; "Win98" runs in that of "0.74_SVN". One
/// that is not there is not made. The first one ever replaced is kept as glide.ini.bak. Error
/// Unwritable.
platform::Done WriteGlideIni(const shell::Places& places, const dosboxconf::OptionGrid& grid);

} // namespace pelorin::running
