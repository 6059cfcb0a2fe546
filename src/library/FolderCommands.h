#pragma once

#include <QSet>
#include <QString>

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::library {

/// Whether the game's folder is there; if not, a note tells so.
bool HasGameFolder(shell::Launcher& launcher, const QString& folder);

// What is kept by the names of game folders and outlives a selection: the one place that follows
// when a folder gets another name or goes.

/// The game's folder bears the new name on the disk and in the Catalogue.
void FolderRenamed(shell::Launcher& launcher, const QString& oldName, const QString& newName);

/// The games' folders are gone, from the disk and from the Catalogue.
void FoldersGone(shell::Launcher& launcher, const QSet<QString>& folders);

} // namespace pelorin::library
