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
    if (launcher.endpoints.siteRoot.isEmpty()) {
        return;
    }
    const platform::Done opened = launcher.ports.shell.OpenUrl(launcher.endpoints.siteRoot);
    if (!opened) {
        TellNote(launcher, kCategory, opened.Failure());
    }
}

} // namespace pelorin::shell
