#pragma once

#include "dosboxconf/OptionGrid.h"
#include "library/IconSheet.h"
#include "platform/Prompts.h"
#include "shell/LangTable.h"
#include "shell/Screens.h"
#include "shell/Settings.h"

namespace pelorin::forms {

/// What the main window shows, and whom it asks to show the status bar's notes. All of it belongs
/// to the caller and outlives the window.
struct Shown {
    shell::Screens& screens;
    const shell::LangTable& lang;
    const shell::Settings& settings;
    const library::IconSheet& icons;
    const dosboxconf::OptionGrid& options;
    platform::Prompts& prompts;
};

} // namespace pelorin::forms
