#pragma once

#include "platform/Outcome.h"
#include "shell/Places.h"

#include <QString>

namespace pelorin::dosboxconf {

/// Sees to it that the game's metadata folder is there before a file of it is written. Error
/// Refused for a name that is none of a game's folder here: neither GamesRoot nor a game that has
/// vanished gets one. Error Unwritable.
platform::Done MakeMetaDir(const shell::Places& places, const QString& folder);

} // namespace pelorin::dosboxconf
