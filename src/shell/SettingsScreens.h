#pragma once

#include "shell/LauncherCfg.h"
#include "shell/Places.h"
#include "shell/Screens.h"
#include "shell/Settings.h"

namespace pelorin::shell {

/// What the settings drive: the window's place, the list's view and columns, the placing of the
/// emulator, the title language, the two roots.
struct SettingsTargets {
    Screens& screens;
    Settings& settings;
    Places& places;
};

/// Tells the models it wrote.
void ShowSettings(const LauncherCfg& cfg, const SettingsTargets& targets);

/// The inverse, from what the controls hold now.
LauncherCfg CollectSettings(const Screens& screens, const Settings& settings, const Places& places);

} // namespace pelorin::shell
