#pragma once

#include "library/GameFiles.h"
#include "shell/Places.h"

#include <QString>

namespace pelorin::dosboxconf {

inline QString DefaultConfPath(const shell::Places& places)
{
    return places.InAppDir(QStringLiteral("Default.conf"));
}

inline QString GameConfPath(const shell::Places& places, const QString& folder)
{
    return places.InMetaDir(folder, library::kOwnConfFile.toString());
}

} // namespace pelorin::dosboxconf
