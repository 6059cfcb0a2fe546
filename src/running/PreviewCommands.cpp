#include "running/PreviewCommands.h"

#include "dosboxconf/ConfCompose.h"
#include "platform/Paths.h"
#include "running/DosboxLaunch.h"
#include "running/LaunchCommands.h"
#include "running/RunPlan.h"
#include "shell/Launcher.h"

namespace pelorin::running {

platform::Outcome<QString> PreviewGameText(const shell::Launcher& launcher)
{
    RunRequest request;
    request.folder = launcher.screens.details.folder;
    request.title = launcher.current.CurrentTitle;
    request.startCommands = launcher.screens.start.lstAutoexec;
    request.cd = dosboxconf::ChoiceOf(launcher.screens.cd);
    const QString build = launcher.options.SelectedText(dosboxconf::kVersionCell);
    if (!platform::IsPlainName(request.folder) || build.isEmpty()) {
        return QString();
    }
    switch (BranchOf(request.mode, build, request.startCommands.size())) {
    case RunBranch::Dos:
    case RunBranch::GuestWindows: break;
    case RunBranch::AskForPrompt: request.mode = RunMode::DosPrompt; break;
    default: return QString();
    }
    if (const platform::Done possible = CheckRequest(request, build); !possible) {
        return possible.Failure();
    }
    const platform::PathForm form = FindEmulator(launcher, request.mode, build).pathForm;
    if (const platform::Done possible = CheckCommands(request, build, form); !possible) {
        return possible.Failure();
    }
    const dosboxconf::RunFacts facts =
        dosboxconf::LoadRunFacts(launcher.places, ConfRequestOf(request, build));
    const platform::HostText composed = dosboxconf::ComposeDosboxConf(facts, launcher.options).text;
    const platform::HostText text = FinishRunText(composed, EndingOf(launcher, request, build));
    if (const platform::Done fits = CheckLaunch(facts, text, form); !fits) {
        return fits.Failure();
    }
    return text.Preview(form);
}

} // namespace pelorin::running
