#pragma once

#include "platform/Outcome.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <cstdint>
#include <vector>

namespace pelorin::library {

inline constexpr int kLargeIcon = 32; // pixels a side
inline constexpr int kSmallIcon = 16;

/// A square picture, rows from the top, 3 bytes a pixel in the order blue, green, red, no padding.
struct IconPixels {
    int side = 0; // 0: no picture
    QByteArray bgr;
};

/// The icons of all games in Catalogue order, 32 x 32 each. The small ones are made when they are
/// first asked for.
class IconSheet {
public:
    int Count() const { return static_cast<int>(m_large.size()); }
    bool IsEmpty() const { return m_large.empty(); }
    void Clear();
    void Resize(int count, const IconPixels& fill);
    /// `icon.side` is 32.
    void Set(int index, const IconPixels& icon);
    void Append(const IconPixels& icon);
    /// Drops the icons at these places, ascending; those behind them move up.
    void Remove(const std::vector<int>& indexes);

    /// 0 to Count() - 1.
    const IconPixels& Large(int index) const;
    /// Rescaled by FreeImage's Lanczos-3 filter, once.
    const IconPixels& Small(int index) const;

private:
    std::vector<IconPixels> m_large;
    mutable std::vector<IconPixels> m_small; // side 0 until made
};

} // namespace pelorin::library
