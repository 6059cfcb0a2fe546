#include "shell/SettingsCommands.h"

#include "shell/JobCommands.h"
#include "shell/Launcher.h"
#include "shell/SettingsFile.h"
#include "shell/SettingsScreens.h"

using namespace Qt::StringLiterals;

namespace pelorin::shell {

namespace {

constexpr auto kCategory = "pelorin.shell";

SettingsTargets TargetsOf(Launcher& launcher)
{
    return SettingsTargets{launcher.screens, launcher.settings, launcher.places};
}

} // namespace

platform::Done LoadSettings(Launcher& launcher)
{
    const platform::Outcome<LoadedSettings> loaded = LoadSettingsFiles(launcher.places);
    if (!loaded) {
        return loaded.Failure();
    }
    const LoadedSettings& settings = loaded.Value();
    ShowSettings(settings.cfg, TargetsOf(launcher));
    launcher.recent = settings.recent;
    launcher.titleOrder.reset();
    launcher.screens.frame.caption = launcher.WindowTitle;
    launcher.screens.frame.changed.Tell(MainFrame::Caption | MainFrame::TitlePicture);
    if (!settings.replacementReason.isEmpty()) {
        TellNote(launcher, kCategory, settings.replacementReason);
    }
    for (const QString& root : settings.lostRoots) {
        const QString text = launcher.lang.OwnText(
            348, u"<1> is not there; the default folder stands in."_s, {root});
        TellNote(launcher, kCategory, text);
    }
    return platform::Success();
}

platform::Done SaveSettings(Launcher& launcher)
{
    const LauncherCfg cfg = CollectSettings(launcher.screens, launcher.settings, launcher.places);
    return SaveSettingsFiles(launcher.places, cfg, launcher.recent);
}

} // namespace pelorin::shell
