#pragma once

#include <QString>

namespace pelorin::shell {

/// What Launcher.cfg keeps that no screen model holds.
struct Settings {
    bool TitleLanguageKorean = true; // which title the list shows
    bool owesOldCfg = false;         // Launcher.cfg could not be kept before it is written over
    bool rootsChanged = false;       // a root was changed since the last scan: the cache is stale
};

} // namespace pelorin::shell
