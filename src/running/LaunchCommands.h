#pragma once

#include "dosboxconf/ConfCompose.h"
#include "platform/HostText.h"
#include "platform/Outcome.h"
#include "platform/ProgramHost.h"
#include "running/RunPlan.h"
#include "running/RunRequest.h"

#include <QString>
#include <QStringList>

namespace pelorin::shell {
struct Launcher;
}

// From a request to the running emulator: the same for all run modes.

namespace pelorin::running {

/// The text of a start without its ending: loads the configuration of the run into the grid, which
/// keeps it, and composes. Error Refused when it can't become a text.
platform::Outcome<dosboxconf::ConfText> BuildDosboxConf(
    shell::Launcher& launcher, const RunRequest& request, const QString& build);

/// What a start runs, by the build and the grid as it is.
struct Emulator {
    QString folder; // where it runs and finds its dosbox.conf
    QStringList arguments;
    platform::Outcome<platform::HostProgram> program;        // or why there is none
    platform::PathForm pathForm = platform::PathForm::Posix; // of the paths in its dosbox.conf
};

/// What a start comes to with the settings in the grid as they are.
struct ComposedStart {
    Emulator emulator;       // may have no program
    platform::HostText text; // the whole of dosbox.conf
    bool glideOn = false;    // glide.ini is to be rewritten
};

/// Composes and checks, and writes nothing. Error Refused for what the emulator would choke on.
platform::Outcome<ComposedStart> ComposeStart(
    const shell::Launcher& launcher, const RunRequest& request, const QString& build);

/// Composes, writes dosbox.conf (and glide.ini) into the folder of the build and starts the emulator
/// there. What holds it back is told in the status bar's fourth panel, and nothing is written then;
/// of an emulator that is missing or does not come up, dosbox.conf is written and the game enters
/// the recent list. Afterwards the page of options shows what it edits again, edits that are not saved
/// included.
void LaunchDosbox(shell::Launcher& launcher, const RunRequest& request, const QString& build);

} // namespace pelorin::running
