#pragma once

#include "shell/RootFolders.h"

namespace pelorin::shell {

struct Launcher;

/// frmFolderCFG is about to open: its boxes take the two roots.
void frmFolderCFG_Load(Launcher& launcher);

/// cmdGamesPath, cmdExportPath: asks for a folder. One that can't be a root is refused and told,
/// and the box keeps its text.
void ChooseRoot(Launcher& launcher, Root root);
/// cmdGamesDefault, cmdExportDefault.
void TakeDefaultRoot(Launcher& launcher, Root root);
/// cmdGamesOpen, cmdExportOpen.
void OpenRoot(Launcher& launcher, Root root);

/// cmdOk: false when one of the two is refused, which has been told; the dialog stays open then.
/// Else both are the roots from now on. Nothing is moved or read anew, so the list shows the former
/// games until the next scan, and a note says so.
/// Unsaved titles and descriptions belong to the former games and are asked about before.
bool AcceptRoots(Launcher& launcher);

/// True while the list still shows games of a root that is no longer the games root: then folders
/// of these names may be other games, and nothing may be done with them. Tells so.
bool ShowsFormerRoot(Launcher& launcher);

} // namespace pelorin::shell
