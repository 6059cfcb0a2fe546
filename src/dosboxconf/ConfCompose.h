#pragma once

#include "dosboxconf/OptionGrid.h"
#include "dosboxconf/RunFacts.h"
#include "platform/HostText.h"

#include <QString>

namespace pelorin::dosboxconf {

/// The text of dosbox.conf from its first section to the mounts and the network line of
/// [autoexec]. The start commands and the last line end are the run mode's (FinishRunText).
struct ConfText {
    platform::HostText text;
    QString mixerLine;    // also a line of the text
    bool glideOn = false; // glide.ini is to be rewritten before the start
};

/// Pure: the grid's selection is the configuration of the run. One text serves all builds, which
/// pass over the keys that they don't know; CR LF throughout.
ConfText ComposeDosboxConf(const RunFacts& facts, const OptionGrid& grid);

} // namespace pelorin::dosboxconf
