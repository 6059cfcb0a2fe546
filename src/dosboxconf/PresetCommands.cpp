#include "dosboxconf/PresetCommands.h"

#include "dosboxconf/ConfCopies.h"
#include "dosboxconf/EditorCommands.h"
#include "library/CatalogueCommands.h"
#include "library/ShowinfoCommands.h"
#include "platform/Paths.h"
#include "platform/Prompts.h"
#include "platform/TextFile.h"
#include "shell/FolderCfgCommands.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.dosboxconf";

platform::FileDialog PresetDialog(const Launcher& launcher, const QString& title)
{
    const bool korean = launcher.lang.IsKorean();
    const QString folder = launcher.places.InAppDir(u"preset"_s);
    // A dialog for a folder that is not there opens somewhere else.
    QDir().mkpath(folder);
    return {title, folder, {korean ? u"프리셋 파일 (*.conf)"_s : u"Preset files (*.conf)"_s}};
}

/// Copies the preset into place, with a copy of what stands there.
platform::Done Install(Launcher& launcher, const QString& preset, bool ofGame)
{
    const platform::Outcome<QByteArray> bytes = ReadPreset(preset);
    if (!bytes) {
        return bytes.Failure();
    }
    return ofGame ? ReplaceGameConf(launcher.places, launcher.screens.details.folder, bytes.Value())
                  : ReplaceDefaultConf(launcher.places, bytes.Value());
}

} // namespace

void cmdOpenPreset_Click(Launcher& launcher)
{
    const bool ofGame = launcher.screens.frame.tabInfo == kGameTab;
    const QString folder = launcher.screens.details.folder;
    const bool hasGame = platform::IsPlainName(folder);
    if (launcher.flags.JobHeld || (ofGame && (!hasGame || shell::ShowsFormerRoot(launcher)))) {
        return;
    }
    const QString title = launcher.lang.IsKorean() ? u"프리셋 열기"_s : u"Open preset"_s;
    const QString preset = launcher.ports.prompts.OpenFile(PresetDialog(launcher, title));
    // Window events ran: the preset was meant for the game that was shown.
    if (launcher.screens.details.folder != folder || launcher.flags.JobHeld) {
        return;
    }
    if (!preset.isEmpty()) {
        if (const platform::Done done = Install(launcher, preset, ofGame); !done) {
            shell::TellNote(launcher, kCategory, done.Failure());
            return;
        }
    }
    if (hasGame) {
        library::RereadGameEntry(launcher, folder);
    }
    if (preset.isEmpty()) {
        return; // and what is edited stays
    }
    if (hasGame) {
        library::LVGamelist_ItemClick(launcher);
        library::ShowinfoProcess(launcher);
    } else {
        ShowConfigPage(launcher);
    }
}

void cmdSavePreset_Click(Launcher& launcher)
{
    const QString folder = launcher.screens.details.folder;
    platform::FileDialog dialog =
        PresetDialog(launcher, launcher.lang.IsKorean() ? u"프리셋 저장"_s : u"Save preset"_s);
    dialog.filters << (launcher.lang.IsKorean() ? u"모든 파일 (*)"_s : u"All files (*)"_s);
    const QString name = launcher.ports.prompts.SaveFile(dialog);
    if (!name.isEmpty()) {
        shell::TellIfFailed(launcher, kCategory, SavePreset(launcher.places, folder, name));
    }
}

} // namespace pelorin::dosboxconf
