#pragma once

#include "platform/Desktop.h"

#include <QPoint>
#include <QPointF>
#include <QString>
#include <QStringView>

#include <span>

// Where the window of an emulator is put: what it paints comes to lie on a point of the screen.

namespace pelorin::running {

/// A class of windows that emulators have.
struct EmulatorWindow {
    QStringView name;
    bool toFront = false;    // placing it brings it to the front
    bool remembered = false; // its place can be remembered
};

/// In the order in which they are looked for: those of Windows programs, then those of native ones.
std::span<const EmulatorWindow> EmulatorWindows();

/// The value of a box, at most 99,999 either way; what is no number counts as 0.
double TypedCoordinate(const QString& typed);

/// Where the frame has to go so that what the window paints lies on `client`, in whole pixels.
QPoint OuterFor(const platform::WindowPlace& place, QPointF client);

} // namespace pelorin::running
