#pragma once

#include "dosboxconf/CdPanel.h"
#include "platform/Outcome.h"
#include "shell/Places.h"

#include <QString>

namespace pelorin::library {
struct GameFiles;
}

// CD.conf in a game's metadata folder: line 1 chkMountCD (0 or 1), line 2 CdMountMode (0 or 1).
// That the file is there means that the game wants a CD. Images lie in the folder CD beside it.

namespace pelorin::dosboxconf {

/// Looks at the disk. An unreadable CD.conf counts as one with zeros.
CdFacts ReadCdFacts(const shell::Places& places, const QString& folder);
/// The same for a game whose folders are listed already.
CdFacts ReadCdFacts(const library::GameFiles& files);

/// Writes CD.conf; with chkCD but no row leaves all as it is; without chkCD deletes the file.
/// Makes the metadata folder, and CD in it where it can, if they are missing. Error Unwritable, or
/// Refused for a game that is not there.
platform::Done SaveCdConf(const shell::Places& places, const QString& folder, const CdPanel& panel);

} // namespace pelorin::dosboxconf
