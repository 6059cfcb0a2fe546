#include "library/FolderCommands.h"

#include "platform/Paths.h"
#include "shell/FolderCfgCommands.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"

#include <QFileInfo>

#include <map>

using namespace Qt::StringLiterals;

namespace pelorin::library {

using shell::Launcher;

bool HasGameFolder(Launcher& launcher, const QString& folder)
{
    if (!platform::IsPlainName(folder) || shell::ShowsFormerRoot(launcher)) {
        return false;
    }
    // By its exact name, since another game may differ by case alone.
    if (QFileInfo(launcher.places.GameDir(folder)).isDir()) {
        return true;
    }
    shell::TellNote(launcher, "pelorin.library", launcher.lang.Told(FolderIsGone(folder)));
    return false;
}

void FolderRenamed(Launcher& launcher, const QString& oldName, const QString& newName)
{
    for (QString& folder : launcher.current.BatchSelection) {
        if (folder == oldName) {
            folder = newName;
        }
    }
    MoveDraft(launcher.drafts, oldName, newName);
    if (launcher.screens.configDetail.folder == oldName) {
        launcher.screens.configDetail.folder = newName;
    }
}

void FoldersGone(Launcher& launcher, const QSet<QString>& folders)
{
    launcher.current.BatchSelection.removeIf(
        [&](const QString& folder) { return folders.contains(folder); });
    std::erase_if(
        launcher.drafts, [&](const auto& draft) { return folders.contains(draft.first); });
}

} // namespace pelorin::library
