#pragma once

#include "platform/Desktop.h"

#include <memory>

namespace pelorin::platform {

/// The X server that DISPLAY names, over a connection of our own. Without one nothing is known of
/// the screen.
class X11Desktop : public Desktop {
public:
    X11Desktop();
    ~X11Desktop() override;

    bool NumLockOn() override;

private:
    struct Connection;
    std::unique_ptr<Connection> m_connection;
};

} // namespace pelorin::platform
