#pragma once

#include "dosboxconf/OptionGrid.h"

#include <QString>

namespace pelorin::dosboxconf {

/// What a library without a Default.conf begins with. An option of a drive controller (its title
/// contains "ide " or "fdc ") is 0 whatever its key says.
Selection FactorySelection(const OptionGrid& grid);

/// FactorySelection into the grid.
void SetFactoryDefaults(OptionGrid& grid);

/// One of the 18 keys that a game's own file never overrides: they describe the machine and the
/// screen of the user, and are always saved to Default.conf.
bool IsGlobalOnlyKey(const QString& key);

} // namespace pelorin::dosboxconf
