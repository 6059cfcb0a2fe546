#pragma once

#include "platform/Outcome.h"
#include "shell/Places.h"

#include <QString>

namespace pelorin::running {

// The address of a network game's host: a name or number, and a port behind a blank where it is not
// the usual one ("192.168.0.2 19900"). The last one stands in IP.cfg in AppDir, one line.

/// The address typed last: the first field of the file. Empty where there is none.
QString ReadNetAddress(const shell::Places& places);
/// Error Unwritable.
platform::Done WriteNetAddress(const shell::Places& places, const QString& address);

/// What was typed without blanks around it. Error Refused for what can't be an address: it would
/// break out of its line of dosbox.conf or make a line that DOS can't take.
platform::Outcome<QString> NetAddressOf(const QString& typed);

/// The port that a host can listen on here: the usual one, or its stand-in when this user may not.
int FreeServerPort();

} // namespace pelorin::running
