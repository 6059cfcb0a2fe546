#pragma once

#include "platform/Numbers.h"

namespace pelorin::forms {

/// Stored geometry is in form units, 15 to a pixel whatever the screen's real ratio is.
inline constexpr double kUnitsPerPixel = 15.0;

inline int PixelsOf(double units)
{
    return platform::RoundHalfEven(units / kUnitsPerPixel);
}

inline double UnitsOf(int pixels)
{
    return pixels * kUnitsPerPixel;
}

} // namespace pelorin::forms
