#include "library/IconSheet.h"

#include "library/IconImages.h"

#include <utility>

namespace pelorin::library {

namespace {

std::size_t At(int index)
{
    return static_cast<std::size_t>(index);
}

} // namespace

void IconSheet::Clear()
{
    m_large.clear();
    m_small.clear();
}

void IconSheet::Resize(int count, const IconPixels& fill)
{
    m_large.resize(At(count), fill);
    m_small.resize(At(count));
}

void IconSheet::Set(int index, const IconPixels& icon)
{
    m_large[At(index)] = icon;
    m_small[At(index)] = IconPixels();
}

void IconSheet::Append(const IconPixels& icon)
{
    m_large.push_back(icon);
    m_small.emplace_back();
}

void IconSheet::Remove(const std::vector<int>& indexes)
{
    auto next = indexes.begin();
    std::size_t free = 0;
    for (std::size_t i = 0; i < m_large.size(); ++i) {
        if (next != indexes.end() && At(*next) == i) {
            ++next;
            continue;
        }
        if (free != i) {
            m_large[free] = std::move(m_large[i]);
            m_small[free] = std::move(m_small[i]);
        }
        ++free;
    }
    m_large.resize(free);
    m_small.resize(free);
}

const IconPixels& IconSheet::Large(int index) const
{
    return m_large[At(index)];
}

const IconPixels& IconSheet::Small(int index) const
{
    IconPixels& icon = m_small[At(index)];
    if (icon.side == 0) {
        icon = Rescaled(m_large[At(index)], kSmallIcon);
    }
    return icon;
}

} // namespace pelorin::library
