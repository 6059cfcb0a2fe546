#pragma once

#include "archives/KeepGoing.h"
#include "platform/Outcome.h"

#include <QByteArray>
#include <QString>

// Removing, copying and moving whole trees. Paths are bytes, see TreeWalk.h.

namespace pelorin::archives {

/// Whether there is anything at the path, a link that leads nowhere included.
bool Stands(const QByteArray& path);
bool Stands(const QString& path);

platform::Error NoSuchThing(const QString& path);

platform::Done RemoveFile(const QByteArray& path);

/// Refused, with nothing removed, when another file system is mounted on the folder or in it.
platform::Done RemoveTree(const QByteArray& path);

/// The content of a file, its mode and its time; `to` is replaced at the end and by a whole copy.
platform::Done CopyOneFile(
    const QByteArray& from, const QByteArray& to, const KeepGoing& keepGoing);

/// Moves whatever stands at `from` to `to`, where nothing stands. Over file systems it is copied
/// under a hidden name, compared, put in place, and then removed.
platform::Done MoveTree(const QByteArray& from, const QByteArray& to, const KeepGoing& keepGoing);

} // namespace pelorin::archives
