#pragma once

#include "platform/Outcome.h"
#include "platform/TextFile.h"
#include "shell/Places.h"

#include <QString>
#include <QStringList>

namespace pelorin::library {
struct GameFiles;
}

// autoexec.conf in a game's metadata folder: one start command a line, code page 949, CR LF, no
// header. Empty lines mean nothing: they are passed over on reading and not written.

namespace pelorin::dosboxconf {

/// The non-empty lines; none without a file. Error Unreadable.
platform::Outcome<QStringList> ReadAutoexecConf(const shell::Places& places, const QString& folder);
/// The same for a game whose folders are listed already.
platform::Outcome<QStringList> ReadAutoexecConf(const library::GameFiles& files);

/// Replaces the file by the non-empty lines, in order; makes the metadata folder if it is missing.
/// Error Unwritable, Refused for a game that is not there, or, where `loss` refuses that,
/// Unencodable with the characters that code page 949 can't keep; the old file stands then.
platform::Done WriteAutoexecConf(
    const shell::Places& places,
    const QString& folder,
    const QStringList& commands,
    platform::Loss loss = platform::Loss::Refuse);

} // namespace pelorin::dosboxconf
