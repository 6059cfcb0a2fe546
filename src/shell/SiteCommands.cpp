#include "shell/SiteCommands.h"

#include "platform/ShellVerbs.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"

namespace pelorin::shell {

namespace {

constexpr auto kCategory = "pelorin.shell";

} // namespace

void LoadEndpoints(Launcher& launcher)
{
    const platform::Outcome<Endpoints> read = ReadEndpoints(launcher.places);
    if (!read) {
        TellNote(launcher, kCategory, read.Failure());
    }
    launcher.endpoints = read.ValueOr(Endpoints{});
    launcher.screens.frame.hasSite = !launcher.endpoints.siteRoot.isEmpty();
    launcher.screens.frame.changed.Tell(MainFrame::Site);
}

void cmdVespra_Click(Launcher& launcher)
{
    if (!launcher.endpoints.siteRoot.isEmpty()) {
        TellIfFailed(
            launcher, kCategory, launcher.ports.shell.OpenUrl(launcher.endpoints.siteRoot));
    }
}

} // namespace pelorin::shell
