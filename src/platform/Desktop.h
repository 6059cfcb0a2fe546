#pragma once

#include <QPoint>
#include <QString>

#include <optional>

namespace pelorin::platform {

/// A window of another program; it may be gone at any time.
using WindowId = unsigned long;

/// Where a window stands, in pixels of the whole screen.
struct WindowPlace {
    QPoint outer;  // the top left corner of its frame
    QPoint client; // that of what the program paints
};

/// What the program asks of the screen beyond its own windows. What can't be done or is not known
/// does nothing; nobody waits for it.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// Whether the keyboard's NumLock is on. False where nobody can tell.
    virtual bool NumLockOn() = 0;

    /// The topmost window of a class, without regard to case.
    virtual std::optional<WindowId> FindWindow(const QString& className) = 0;
    virtual std::optional<WindowPlace> PlaceOf(WindowId window) = 0;
    /// Puts the corner of the window's frame there; its size stays.
    virtual void Move(WindowId window, QPoint outer) = 0;
    virtual void BringToFront(WindowId window) = 0;
};

} // namespace pelorin::platform
