#pragma once

#include "platform/Wording.h"

namespace pelorin::platform {

// What several rooms have to say of a path.

Wording NotThere(const QString& path);
Wording NoFolder(const QString& path); // something else bears that name
Wording IsAFolder(const QString& path);
Wording FolderNotMade(const QString& path);

} // namespace pelorin::platform
