#include "running/PreviewCommands.h"

#include "dosboxconf/ConfCompose.h"
#include "platform/Paths.h"
#include "running/DosboxLaunch.h"
#include "running/LaunchCommands.h"
#include "running/RunPlan.h"
#include "shell/Launcher.h"

namespace pelorin::running {

QString PreviewGameText(const shell::Launcher& launcher)
{
    RunRequest request;
    request.folder = launcher.screens.details.folder;
    request.title = launcher.current.CurrentTitle;
    request.startCommands = launcher.screens.start.lstAutoexec;
    request.cd = dosboxconf::ChoiceOf(launcher.screens.cd);
    const QString build = launcher.options.SelectedText(dosboxconf::kVersionCell);
    if (!platform::IsPlainName(request.folder) || !CheckRequest(request, build)) {
        return QString();
    }
    switch (BranchOf(request.mode, build, request.startCommands.size())) {
    case RunBranch::Dos:
    case RunBranch::GuestWindows: break;
    case RunBranch::AskForPrompt: request.mode = RunMode::DosPrompt; break;
    default: return QString();
    }
    const dosboxconf::RunFacts facts =
        dosboxconf::LoadRunFacts(launcher.places, ConfRequestOf(request, build));
    const platform::HostText composed = dosboxconf::ComposeDosboxConf(facts, launcher.options).text;
    return FinishRunText(composed, EndingOf(launcher, request, build))
        .Preview(FindEmulator(launcher, request.mode, build).pathForm);
}

} // namespace pelorin::running
