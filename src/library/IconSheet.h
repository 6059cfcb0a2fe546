#pragma once

#include "library/IconPixels.h"

#include <QByteArray>

#include <cstdint>
#include <vector>

namespace pelorin::library {

inline constexpr int kSheetColumns = 512;
inline constexpr qsizetype kIconRowBytes = qsizetype{3} * kLargeIcon;
inline constexpr qsizetype kBandRowBytes = kSheetColumns * kIconRowBytes;
inline constexpr qsizetype kBandBytes = kBandRowBytes * kLargeIcon;

/// The icons of all games in Catalogue order, 32 x 32 each. They lie in bands of 512 cells, each a
/// picture whose rows go from the bottom up, as the sheet's file has them: so a sheet of tens of
/// thousands is read and written without taking it to pieces. An icon is cut out, and its small
/// form made, when somebody asks for it.
class IconSheet {
public:
    int Count() const { return static_cast<int>(m_cells.size()); }
    /// An icon of another side than 32 is none: the cell is black.
    void Set(int index, const IconPixels& icon);
    void Append(const IconPixels& icon);
    /// `count` icons in a band of kBandBytes. Only behind full bands.
    void AppendBand(QByteArray band, int count);
    /// Drops the icons at these places, ascending; those behind them move up.
    void Remove(const std::vector<int>& indexes);

    /// 0 to Count() - 1.
    IconPixels Large(int index) const;
    /// Rescaled by FreeImage's Lanczos-3 filter, once.
    const IconPixels& Small(int index) const;

    /// The icons at those positions, kSheetColumns of them at most, in one band; cells behind the
    /// last one are black. Shared with the sheet where they lie together in it already.
    QByteArray Band(const int* positions, int count) const;

private:
    std::vector<QByteArray> m_bands;
    std::vector<std::int32_t> m_cells; // by index: where in the bands it lies
    std::int32_t m_cellsUsed = 0;
    mutable std::vector<IconPixels> m_small; // side 0 until made
};

} // namespace pelorin::library
