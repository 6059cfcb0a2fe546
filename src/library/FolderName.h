#pragma once

#include <QString>

namespace pelorin::library {

/// A typed name as a folder can bear it, on every system: without \ | " : / ? * and control
/// characters, with parentheses for < and >. May be empty.
QString CleanFolderName(const QString& typed);

/// Whether a cleaned name does for a game's folder. Not when it begins with a point, since such
/// folders are hidden; not when it ends with a point or a blank, which other systems drop; not with
/// control characters.
bool MayNameFolder(const QString& name);

} // namespace pelorin::library
