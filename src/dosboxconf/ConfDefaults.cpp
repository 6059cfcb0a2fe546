#include "dosboxconf/ConfDefaults.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

namespace {

struct Default {
    QStringView key;
    std::int32_t value = 0;
};

// Indexes into the value lists of option.dat, but for cycles (1 is "max").
constexpr Default kDefaults[] = {
    {u"DirectX", 1},      {u"fullscreen", 1}, {u"windowresolution", 3},
    {u"output", 5},       {u"autolock", 1},   {u"sensitivity", 1},
    {u"waitonerror", 1},  {u"priority", 1},   {u"pixelshader", 15},
    {u"machine", 6},      {u"memsize", 4},    {u"aspect", 1},
    {u"scaler", 1},       {u"cycles", 1},     {u"cycleup", 2},
    {u"cycledown", 1},    {u"nosound", 1},    {u"rate", 3},
    {u"blocksize", 2},    {u"mididevice", 6}, {u"sbtype", 4},
    {u"irq", 2},          {u"dma", 1},        {u"hdma", 3},
    {u"oplrate", 3},      {u"gusrate", 3},    {u"gusbase", 1},
    {u"gusirq", 1},       {u"gusdma", 2},     {u"samplerate", 3},
    {u"sidbase", 3},      {u"pcrate", 3},     {u"tandyrate", 3},
    {u"ps1audiorate", 3}, {u"autofire", 1},   {u"swap34", 1},
    {u"buttonwrap", 1},
};

constexpr QStringView kGlobalOnlyKeys[] = {
    u"Menu",
    u"DirectX",
    u"fullscreen",
    u"fulldouble",
    u"fullresolution",
    u"windowresolution",
    u"waitonerror",
    u"pixelshader",
    u"aspect",
    u"scaler",
    u"rate",
    u"oplrate",
    u"gusrate",
    u"samplerate",
    u"pcrate",
    u"tandyrate",
    u"ps1audiorate",
    u"MASTER",
};

std::int32_t DefaultOf(const QString& key)
{
    const auto* hit = std::find_if(
        std::begin(kDefaults), std::end(kDefaults), [&](const Default& d) { return key == d.key; });
    return hit == std::end(kDefaults) ? 0 : hit->value;
}

} // namespace

Selection FactorySelection(const OptionGrid& grid)
{
    Selection factory{};
    for (std::size_t at = 0; at < factory.size(); ++at) {
        const QString& title = grid.OptionTitle[at];
        if (!title.contains(u"ide "_s) && !title.contains(u"fdc "_s)) {
            factory[at] = DefaultOf(grid.OptionKey[at]);
        }
    }
    return factory;
}

void SetFactoryDefaults(OptionGrid& grid)
{
    grid.OptionSelection = FactorySelection(grid);
}

bool IsGlobalOnlyKey(const QString& key)
{
    return std::find(std::begin(kGlobalOnlyKeys), std::end(kGlobalOnlyKeys), key) !=
           std::end(kGlobalOnlyKeys);
}

} // namespace pelorin::dosboxconf
