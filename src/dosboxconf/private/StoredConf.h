#pragma once

#include "dosboxconf/ConfUpgrade.h"
#include "dosboxconf/OptionGrid.h"

#include <QStringList>

namespace pelorin::dosboxconf {

/// A configuration file as it was read, before any upgrade.
struct StoredConf {
    ConfLayout layout = ConfLayout::Current;
    bool whole = false; // every value had its line; what was missing is 0
    Selection values{}; // an old layout fills the low corner
};

/// The layout by line 1, the values by the numeric prefix of each line, rounded. A text without
/// any line counts as a current file with nothing in it.
StoredConf ParseConf(const QStringList& lines);

/// The lines of a file in the current layout.
QStringList PrintConf(const Selection& table);

} // namespace pelorin::dosboxconf
