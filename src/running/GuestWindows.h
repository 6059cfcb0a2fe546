#pragma once

#include "platform/HostText.h"
#include "running/RunRequest.h"

#include <QString>

namespace pelorin::shell {
struct Places;
}

namespace pelorin::running {

/// The lines by which a guest Windows comes up, for the builds "Win31KOR", "Win31ENG" and "Win98";
/// they begin with a line end of their own. Game, NetHost and NetClient bring the game's settings
/// along and take them back; DosPrompt gives the guest alone. For "Win98" the start commands are the
/// name of the game's hard disk image, relative to the game's folder, and its geometry; on this
/// machine the name takes its spelling on disk.
platform::HostText GuestWindowsLines(
    const RunRequest& request, const QString& build, const shell::Places& places);

} // namespace pelorin::running
