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

void TellReplaced(Launcher& launcher, const LoadedSettings& settings)
{
    if (!settings.replacementReason) {
        return;
    }
    const QString text = launcher.lang.OwnText(
        383,
        u"<1>. The default settings stand in."_s,
        {launcher.lang.Told(*settings.replacementReason)});
    const QString kept =
        launcher.lang.OwnText(384, u"The old file is kept as <1>."_s, {u"Launcher.cfg.bak"_s});
    TellNote(launcher, kCategory, settings.oldCfgKept ? text + u' ' + kept : text);
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
    launcher.settings.rootsChanged = settings.gamesRootReplaced;
    launcher.settings.owesOldCfg =
        !settings.oldCfgKept && (settings.replacementReason || !settings.lostRoots.isEmpty());
    for (const platform::Wording& words : settings.unwritten) {
        TellNote(launcher, kCategory, launcher.lang.Told(words));
    }
    TellReplaced(launcher, settings);
    for (const QString& root : settings.lostRoots) {
        const QString text = launcher.lang.OwnText(
            348, u"<1> is not there; the default folder stands in."_s, {root});
        TellNote(launcher, kCategory, text);
    }
    return platform::Success();
}

platform::Done SaveSettings(Launcher& launcher)
{
    if (launcher.settings.owesOldCfg) {
        platform::Done kept = KeepOldCfg(launcher.places);
        if (!kept) {
            return kept;
        }
        launcher.settings.owesOldCfg = false;
    }
    const LauncherCfg cfg = CollectSettings(launcher.screens, launcher.settings, launcher.places);
    return SaveSettingsFiles(launcher.places, cfg, launcher.recent);
}

} // namespace pelorin::shell
