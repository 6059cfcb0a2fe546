#pragma once

#include "platform/Outcome.h"
#include "shell/Places.h"

#include <QString>

// Endpoints.cfg in AppDir names the addresses of network services, a line each, "site=https://...";
// blanks around both and lines that begin with "#" don't count. Without the file or without a line
// there is no such service, and nothing is asked of the network.

namespace pelorin::shell {

struct Endpoints {
    QString siteRoot; // "site": an http or https address that ends with "/"; empty: there is none
};

/// Error Malformed or Unreadable, with path and line, for what can't be read or is no such address.
platform::Outcome<Endpoints> ReadEndpoints(const Places& places);

} // namespace pelorin::shell
