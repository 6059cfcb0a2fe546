#include "running/Placement.h"

#include "platform/Numbers.h"

namespace pelorin::running {

namespace {

/// No screen reaches so far.
constexpr std::int32_t kFarthest = 99'999;

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
        {u"dosbox.exe", true, true}, // under Wine
    };
    return kWindows;
}

QPoint TypedPoint(const std::array<QString, 2>& typed)
{
    const auto number = [](const QString& text) {
        return qBound(
            -kFarthest, platform::RoundHalfEven(platform::NumericPrefix(text)), kFarthest);
    };
    return {number(typed[0]), number(typed[1])};
}

QPoint OuterFor(const platform::WindowPlace& place, QPoint client)
{
    return client - (place.client - place.outer);
}

} // namespace pelorin::running
