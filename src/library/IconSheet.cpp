#include "library/IconSheet.h"

#include "library/IconImages.h"

#include <array>
#include <cstring>
#include <numeric>
#include <utility>

namespace pelorin::library {

namespace {

std::size_t At(int index)
{
    return static_cast<std::size_t>(index);
}

/// Where the top row of a cell begins in its band.
qsizetype TopRow(std::int32_t cell)
{
    return (kLargeIcon - 1) * kBandRowBytes + cell % kSheetColumns * kIconRowBytes;
}

void PutRows(char* to, qsizetype toStep, const char* from, qsizetype fromStep)
{
    for (int y = 0; y < kLargeIcon; ++y, to += toStep, from += fromStep) {
        std::memcpy(to, from, static_cast<std::size_t>(kIconRowBytes));
    }
}

} // namespace

void IconSheet::Set(int index, const IconPixels& icon)
{
    const std::int32_t cell = m_cells[At(index)];
    char* const top = m_bands[At(cell / kSheetColumns)].data() + TopRow(cell);
    if (icon.side == kLargeIcon) {
        PutRows(top, -kBandRowBytes, icon.bgr.constData(), kIconRowBytes);
    } else {
        const std::array<char, kIconRowBytes> black{};
        PutRows(top, -kBandRowBytes, black.data(), 0);
    }
    m_small[At(index)] = IconPixels();
}

void IconSheet::Append(const IconPixels& icon)
{
    if (At(m_cellsUsed / kSheetColumns) == m_bands.size()) {
        m_bands.emplace_back(kBandBytes, '\0');
    }
    m_cells.push_back(m_cellsUsed++);
    m_small.emplace_back();
    Set(Count() - 1, icon);
}

void IconSheet::AppendBand(QByteArray band, int count)
{
    m_bands.push_back(std::move(band));
    for (int cell = count; cell < kSheetColumns; ++cell) {
        const std::array<char, kIconRowBytes> black{};
        PutRows(m_bands.back().data() + TopRow(cell), -kBandRowBytes, black.data(), 0);
    }
    m_cells.resize(m_cells.size() + At(count));
    std::iota(m_cells.end() - count, m_cells.end(), m_cellsUsed);
    m_cellsUsed += count;
    m_small.resize(m_cells.size());
}

void IconSheet::Remove(const std::vector<int>& indexes)
{
    auto next = indexes.begin();
    std::size_t free = 0;
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        if (next != indexes.end() && At(*next) == i) {
            ++next;
            continue;
        }
        if (free != i) {
            m_cells[free] = m_cells[i];
            m_small[free] = std::move(m_small[i]);
        }
        ++free;
    }
    m_cells.resize(free);
    m_small.resize(free);
}

IconPixels IconSheet::Large(int index) const
{
    IconPixels icon{kLargeIcon, QByteArray(kLargeIcon * kIconRowBytes, Qt::Uninitialized)};
    const std::int32_t cell = m_cells[At(index)];
    const char* const top = m_bands[At(cell / kSheetColumns)].constData() + TopRow(cell);
    PutRows(icon.bgr.data(), kIconRowBytes, top, -kBandRowBytes);
    return icon;
}

const IconPixels& IconSheet::Small(int index) const
{
    IconPixels& icon = m_small[At(index)];
    if (icon.side == 0) {
        icon = Rescaled(Large(index), kSmallIcon);
    }
    return icon;
}

QByteArray IconSheet::Band(const int* positions, int count) const
{
    const std::int32_t first = m_cells[At(positions[0])];
    bool together = first % kSheetColumns == 0;
    for (int n = 1; n < count && together; ++n) {
        together = m_cells[At(positions[n])] == first + n;
    }
    // Behind the last one the band must be black: cells that were dropped are not.
    if (together && (count == kSheetColumns || first + count == m_cellsUsed)) {
        return m_bands[At(first / kSheetColumns)];
    }
    QByteArray band(kBandBytes, '\0');
    for (int n = 0; n < count; ++n) {
        const std::int32_t cell = m_cells[At(positions[n])];
        const char* const top = m_bands[At(cell / kSheetColumns)].constData() + TopRow(cell);
        PutRows(band.data() + TopRow(n), -kBandRowBytes, top, -kBandRowBytes);
    }
    return band;
}

} // namespace pelorin::library
