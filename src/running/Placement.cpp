#include "running/Placement.h"

#include "platform/Numbers.h"

namespace pelorin::running {

namespace {

/// No screen reaches so far.
constexpr double kFarthest = 99'999;

} // namespace

std::span<const EmulatorWindow> EmulatorWindows()
{
    static constexpr EmulatorWindow kWindows[] = {
        {u"SDL_app", true, true},
        {u"zwxwnd", false, true},
        {u"Snes9X: WndClass", false, true},
        {u"KegaClass", false, true},
        {u"NP2-MainWindow"},
        {u"M88p2 WinUI"},
        {u"dosbox", true, true},
        {u"dosbox-debug", true, true},
        {u"dosbox_debug", true, true},
        {u"dosbox.exe", true, true}, // under Wine
        {u"dosbox_debug.exe", true, true},
    };
    return kWindows;
}

double TypedCoordinate(const QString& typed)
{
    return qBound(-kFarthest, platform::NumericPrefix(typed), kFarthest);
}

QPoint OuterFor(const platform::WindowPlace& place, QPointF client)
{
    const QPointF outer = client - (place.client - place.outer);
    return {platform::RoundHalfEven(outer.x()), platform::RoundHalfEven(outer.y())};
}

} // namespace pelorin::running
