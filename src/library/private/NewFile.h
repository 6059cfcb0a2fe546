#pragma once

#include "platform/Outcome.h"

#include <QString>
#include <QStringList>

namespace pelorin::library {

/// Writes a small file that must not exist yet, each line ended by CR LF. Without the detour by a
/// temporary file, since there is nothing to lose; a scan makes tens of thousands of these. Error
/// Unwritable (also when there is one, or a dangling link), or Unencodable with nothing written.
platform::Done WriteNewFile(const QString& path, const QStringList& lines);

} // namespace pelorin::library
