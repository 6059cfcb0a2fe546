#pragma once

#include "platform/Outcome.h"

#include <QString>

#include <functional>

namespace pelorin::platform {

/// The desktop's own way to open things.
class ShellVerbs {
public:
    virtual ~ShellVerbs() = default;

    /// A file or folder by its native path, with the program that the desktop has for it.
    virtual Done Open(const QString& path) = 0;
    /// An address in the browser.
    virtual Done OpenUrl(const QString& url) = 0;

    /// Called when what was started has ended without opening it, with what it printed. May be empty.
    std::function<void(const Error& failure, const QString& output)> failed;
};

} // namespace pelorin::platform
