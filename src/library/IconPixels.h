#pragma once

#include <QByteArray>

namespace pelorin::library {

inline constexpr int kLargeIcon = 32; // pixels a side
inline constexpr int kSmallIcon = 16;

/// A square picture, rows from the top, 3 bytes a pixel in the order blue, green, red, no padding.
struct IconPixels {
    int side = 0; // 0: no picture
    QByteArray bgr;
};

} // namespace pelorin::library
