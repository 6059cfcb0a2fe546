#pragma once

#include <QString>

namespace pelorin::shell {

/// What Launcher.cfg keeps that no screen model holds.
struct Settings {
    bool TitleLanguageKorean = true; // which title the list shows
    bool owesOldCfg = false;         // Launcher.cfg could not be kept before it is written over
    QString listedRoot;              // the games root whose games the list holds
    bool rootsChanged = false;       // it is no longer the one that is set: the cache is stale
};

} // namespace pelorin::shell
