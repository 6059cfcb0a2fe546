#include "dosboxconf/ConfUpgrade.h"

#include <algorithm>
#include <iterator>
#include <limits>

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

namespace {

struct OldPlace {
    QStringView key;
    Cell cell;
};

// In the order of the old files. multiscan and doublescan were one option.
constexpr OldPlace kOldPlaces[] = {
    {u"fullscreen", {0, 0}},
    {u"fulldouble", {0, 1}},
    {u"fullresolution", {0, 2}},
    {u"windowresolution", {0, 3}},
    {u"output", {0, 4}},
    {u"autolock", {0, 5}},
    {u"sensitivity", {0, 6}},
    {u"waitonerror", {0, 7}},
    {u"priority", {0, 8}},
    {u"mapperfile", {0, 9}},
    {u"usescancodes", {0, 10}},
    {u"overscan", {0, 11}},
    {u"pixelshader", {0, 12}},
    {u"machine", {1, 1}},
    {u"captures", {1, 2}},
    {u"memsize", {1, 3}},
    {u"version", {1, 4}},
    {u"vmemsize", {1, 5}},
    {u"DirectX", {1, 7}},
    {u"Menu", {1, 8}},
    {u"SavePath", {1, 9}},
    {u"frameskip", {2, 0}},
    {u"aspect", {2, 1}},
    {u"scaler", {2, 2}},
    {u"linewise", {2, 3}},
    {u"char9", {2, 4}},
    {u"multiscan", {2, 5}},
    {u"doublescan", {2, 5}},
    {u"vsyncmode", {2, 6}},
    {u"vsyncrate", {2, 7}},
    {u"autofit", {2, 8}},
    {u"core", {3, 0}},
    {u"cputype", {3, 1}},
    {u"cycles", {3, 2}},
    {u"cycleup", {3, 3}},
    {u"cycledown", {3, 4}},
    {u"forcerate", {3, 5}},
    {u"cgasnow", {3, 6}},
    {u"isapnpbios", {3, 7}},
    {u"aux_", {3, 8}},
    {u"auxdevice", {3, 9}},
    {u"voodoo", {3, 10}},
    {u"nosound", {4, 0}},
    {u"rate", {4, 1}},
    {u"blocksize", {4, 2}},
    {u"prebuffer", {4, 3}},
    {u"swapstereo", {4, 4}},
    {u"MASTER", {4, 5}},
    {u"SPKR", {4, 6}},
    {u"GUS", {4, 7}},
    {u"SB", {4, 8}},
    {u"FM", {4, 9}},
    {u"MT32", {4, 10}},
    {u"mpu401", {5, 0}},
    {u"mididevice", {5, 1}},
    {u"midiconfig", {5, 2}},
    {u"mt32", {5, 3}},
    {u"Mmt32.dac", {5, 4}},
    {u"mt32reverb.mode", {5, 5}},
    {u"mt32reverb.time", {5, 6}},
    {u"mt32reverb.level", {5, 7}},
    {u"mt32.thread", {5, 9}},
    {u"mt32.partials", {5, 10}},
    {u"sbtype", {6, 0}},
    {u"sbbase", {6, 1}},
    {u"irq", {6, 2}},
    {u"dma", {6, 3}},
    {u"hdma", {6, 4}},
    {u"sbmixer", {6, 5}},
    {u"oplmode", {6, 6}},
    {u"oplemu", {6, 7}},
    {u"oplrate", {6, 8}},
    {u"hardwarebase", {6, 9}},
    {u"goldplay", {6, 10}},
    {u"gus", {7, 0}},
    {u"gusrate", {7, 1}},
    {u"gusbase", {7, 2}},
    {u"gusirq", {7, 3}},
    {u"gusdma", {7, 4}},
    {u"innova", {7, 6}},
    {u"samplerate", {7, 7}},
    {u"sidbase", {7, 8}},
    {u"quality", {7, 9}},
    {u"pcspeaker", {8, 0}},
    {u"pcrate", {8, 1}},
    {u"tandy", {8, 2}},
    {u"tandyrate", {8, 3}},
    {u"disney", {8, 4}},
    {u"ps1audio", {8, 5}},
    {u"ps1audiorate", {8, 6}},
    {u"xms", {9, 0}},
    {u"ems", {9, 1}},
    {u"umb", {9, 2}},
    {u"keyboardlayout", {9, 3}},
    {u"glide", {9, 4}},
    {u"grport", {9, 5}},
    {u"lfb", {9, 6}},
    {u"splash", {9, 7}},
    {u"joysticktype", {10, 0}},
    {u"timed", {10, 1}},
    {u"autofire", {10, 2}},
    {u"swap34", {10, 3}},
    {u"buttonwrap", {10, 4}},
    {u"printer", {10, 5}},
    {u"dpi", {10, 6}},
    {u"width", {10, 7}},
    {u"height", {10, 8}},
    {u"printoutput", {10, 9}},
    {u"multipage", {10, 10}},
    {u"timeout", {10, 12}},
};

/// How the value lists of a key have changed since the old layouts.
enum class Translation { None, Sensitivity, Priority, Rate, FixedRate };

Translation TranslationOf(const QString& key)
{
    struct Row {
        QStringView key;
        Translation translation = Translation::None;
    };
    static constexpr Row kRows[] = {
        {u"sensitivity", Translation::Sensitivity},
        {u"priority", Translation::Priority},
        {u"rate", Translation::Rate},
        {u"oplrate", Translation::Rate},
        {u"gusrate", Translation::Rate},
        {u"pcrate", Translation::Rate},
        {u"tandyrate", Translation::Rate},
        {u"samplerate", Translation::FixedRate},
        {u"sidbase", Translation::FixedRate},
        {u"ps1audiorate", Translation::FixedRate},
    };
    const auto* hit = std::find_if(
        std::begin(kRows), std::end(kRows), [&](const Row& r) { return key == r.key; });
    return hit == std::end(kRows) ? Translation::None : hit->translation;
}

/// One more, where the old value leaves room for it.
std::int32_t Next(std::int32_t value)
{
    return value == std::numeric_limits<std::int32_t>::max() ? value : value + 1;
}

std::int32_t Translated(Translation translation, std::int32_t old)
{
    switch (translation) {
    case Translation::None: return old;
    case Translation::Sensitivity: return Next(old) > 10 ? 0 : Next(old);
    case Translation::Priority: return Next(old == 9 ? 10 : old); // a value came in at 0, one at 10
    case Translation::Rate: return old == 5 ? 3 : old;
    case Translation::FixedRate: return old == 0 ? 3 : old;
    }
    return old;
}

} // namespace

std::optional<Cell> OldCellOf(const QString& key)
{
    const auto* hit = std::find_if(
        std::begin(kOldPlaces), std::end(kOldPlaces), [&](const auto& p) { return key == p.key; });
    return hit == std::end(kOldPlaces) ? std::nullopt : std::optional<Cell>(hit->cell);
}

void UpgradeOldGrid(OptionGrid& grid, Selection& old, Selection& target)
{
    for (std::size_t at = 0; at < target.size(); ++at) {
        const QString& title = grid.OptionTitle[at];
        if (title.contains(u"ide"_s) || title.contains(u"fdc"_s)) {
            grid.OptionSelection[at] = 0;
            continue;
        }
        const QString& key = grid.OptionKey[at];
        if (const std::optional<Cell> place = OldCellOf(key)) {
            std::int32_t& value = old[OptionGrid::Index(*place)];
            value = Translated(TranslationOf(key), value);
            target[at] = value;
        }
    }
}

} // namespace pelorin::dosboxconf
