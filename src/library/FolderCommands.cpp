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
}

void FolderGone(Launcher& launcher, const QString& folder)
{
    launcher.current.BatchSelection.removeAll(folder);
}

} // namespace pelorin::library
