#pragma once

#include "platform/Numbers.h"
#include "shell/MinimumSize.h"

namespace pelorin::forms {

inline int PixelsOf(double units)
{
    return platform::RoundHalfEven(units / shell::kUnitsPerPixel);
}

inline double UnitsOf(int pixels)
{
    return pixels * shell::kUnitsPerPixel;
}

} // namespace pelorin::forms
