#pragma once

#include "library/GameFiles.h"
#include "library/IconPixels.h"

#include <QString>

namespace pelorin::library {

/// The start file of a folder: play, game, start, go and the folder's own name, as .bat, else as
/// .exe, else as .com, at the top of the folder. The name as listed here, not as on disk; empty if
/// there is none.
QString DetectStartFile(const GameFiles& files);

/// Makes a game folder complete: the metadata folder with CD and Manual (never a second one beside
/// one of another case), autoexec.conf with the start file when it is missing, Icon.jpg out of the
/// first *.ico when there is no icon file; smallicon.jpg is deleted. `files` tells what was made.
/// Returns the game's icon, 32 x 32; `defaultIcon` when it has none or it can't be read. Nothing is
/// written in a folder that can't be listed. Failures go to `troubles`; the rest is done.
IconPixels PrepareGameFolder(GameFiles& files, const IconPixels& defaultIcon, Troubles& troubles);

} // namespace pelorin::library
