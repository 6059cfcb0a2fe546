#include "library/IconSheet.h"

#include "library/IconImages.h"

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

void IconSheet::Remove(int index)
{
    m_large.erase(m_large.begin() + index);
    m_small.erase(m_small.begin() + index);
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
