#pragma once

#include "library/GameFiles.h"
#include "platform/Outcome.h"

#include <QString>
#include <QStringList>

namespace pelorin::library {

/// Writes a small file of the metadata folder that must not exist yet, each line ended by CR LF;
/// `files` tells. Without the detour by a temporary file, since there is nothing to lose; a scan makes
/// tens of thousands of these. Error Unwritable (also when there is one, or a dangling link), or
/// Unencodable with nothing written.
platform::Done WriteNewMeta(GameFiles& files, QStringView name, const QStringList& lines);

} // namespace pelorin::library
