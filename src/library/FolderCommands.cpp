#include "library/FolderCommands.h"

#include "shell/Launcher.h"

namespace pelorin::library {

using shell::Launcher;

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

void FolderGone(Launcher& launcher, const QString& folder)
{
    launcher.current.BatchSelection.removeAll(folder);
    launcher.drafts.erase(folder);
}

} // namespace pelorin::library
