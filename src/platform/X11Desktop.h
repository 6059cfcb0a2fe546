#pragma once

#include "platform/Desktop.h"

#include <memory>

namespace pelorin::platform {

/// The X server that DISPLAY names, over a connection of our own, and its window manager by the
/// Extended Window Manager Hints. Without a server nothing is known of the screen; under Wayland
/// there are only the windows of X programs.
class X11Desktop : public Desktop {
public:
    X11Desktop();
    ~X11Desktop() override;

    bool NumLockOn() override;
    std::optional<WindowId> FindWindow(const QString& className) override;
    std::optional<WindowPlace> PlaceOf(WindowId window) override;
    void Move(WindowId window, QPoint outer) override;
    void BringToFront(WindowId window) override;

private:
    class Connection;
    std::unique_ptr<Connection> m_connection; // null without a server
};

} // namespace pelorin::platform
