#pragma once

#include "platform/Outcome.h"

#include <QString>

namespace pelorin::platform {

/// The desktop's own way to open things.
class ShellVerbs {
public:
    virtual ~ShellVerbs() = default;

    /// A file or folder by its native path, with the program that the desktop has for it.
    virtual Done Open(const QString& path) = 0;
    /// An address in the browser.
    virtual Done OpenUrl(const QString& url) = 0;
};

} // namespace pelorin::platform
