#include "shell/MinimumSize.h"

#include "platform/Numbers.h"

namespace pelorin::shell {

namespace {

constexpr double kRoomUnderTabs = 135; // form units between the tabs' page and the status bar

} // namespace

PixelSize MinimumSize(const FrameParts& parts)
{
    const double width = parts.cmdVespraLeft + parts.cmdVespraWidth + parts.outerWidth -
                         parts.innerWidth + parts.picBack1Width + parts.picInfo0Left;
    const double height = parts.tabInfoHeight + kRoomUnderTabs + parts.outerHeight -
                          parts.innerHeight + parts.sbDirectoryHeight;
    return PixelSize{
        platform::RoundHalfEven(width / kUnitsPerPixel),
        platform::RoundHalfEven(height / kUnitsPerPixel)};
}

} // namespace pelorin::shell
