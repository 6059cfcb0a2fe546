#pragma once

#include "dosboxconf/OptionGrid.h"

#include <QString>

#include <optional>

namespace pelorin::dosboxconf {

/// The layouts that a configuration file may have. Line 1 tells them apart.
enum class ConfLayout {
    Current,  // "ver.15.02.01", then 41 groups of 81 values
    Groups21, // "ver.10.11.21", then 11 groups of 21 values; only read
    Groups11, // no mark: 11 groups of 11 values from line 1; only read
};

/// Where the layouts before the current one kept an option. nullopt: they did not know it.
std::optional<Cell> OldCellOf(const QString& key);

/// Moves the values of an old layout, read into the low corner of `old`, to their present cells in
/// `target`. Values whose lists have changed since are translated, in `old` itself. A key that old
/// layouts did not know keeps what `target` holds. An option of a drive controller (its title
/// contains "ide" or "fdc", with or without a blank) is set to 0 in the grid's own selection, also
/// when `target` is another table. `target` may be the grid's selection.
void UpgradeOldGrid(OptionGrid& grid, Selection& old, Selection& target);

} // namespace pelorin::dosboxconf
