#pragma once

#include "platform/Outcome.h"
#include "shell/Places.h"

#include <QByteArray>
#include <QString>

// The configuration files as wholes: kept, deleted, put into place and copied away.

namespace pelorin::dosboxconf {

/// Keeps Default.conf as .bak, if there is one. Error Unwritable.
platform::Done KeepDefaultConf(const shell::Places& places);
/// Deletes the game's edit.conf, which is kept as .bak. No error if it has none.
platform::Done RemoveGameConf(const shell::Places& places, const QString& folder);

// Presets are plain copies of the two files.

/// The bytes of a file that is a whole configuration of any layout. Error Malformed for any other,
/// Unreadable.
platform::Outcome<QByteArray> ReadPreset(const QString& path);
/// Put such bytes in the place of a file, which is kept as .bak. Error Unwritable, or Refused for a
/// folder that is no game here.
platform::Done ReplaceDefaultConf(const shell::Places& places, const QByteArray& bytes);
platform::Done ReplaceGameConf(
    const shell::Places& places, const QString& folder, const QByteArray& bytes);
/// Copies the game's edit.conf, or else Default.conf; what stands there is kept as .bak. Error Unreadable, Unwritable.
platform::Done SavePreset(const shell::Places& places, const QString& folder, const QString& path);

} // namespace pelorin::dosboxconf
