#include "library/RenameCommands.h"

#include "archives/FileOperations.h"
#include "library/Catalogue.h"
#include "library/CatalogueCommands.h"
#include "library/FolderCommands.h"
#include "library/FolderName.h"
#include "platform/Paths.h"
#include "platform/Prompts.h"
#include "shell/Launcher.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pelorin::library {

using shell::Launcher;

namespace {

/// Whether another game's folder bears the name, in whatever case. The game's own folder does not
/// count, so that the case alone can be changed.
bool IsTaken(const Launcher& launcher, const QString& oldName, const QString& newName)
{
    const QStringList folders = platform::ListFolder(launcher.places.gamesRoot).folders;
    return std::any_of(folders.begin(), folders.end(), [&](const QString& folder) {
        return folder != oldName && folder.compare(newName, Qt::CaseInsensitive) == 0;
    });
}

/// Why the folder can't get the name; empty when it can.
QString WhyNot(const Launcher& launcher, const QString& oldName, const QString& newName)
{
    if (!MayNameFolder(newName)) {
        return launcher.lang.OwnText(
            422,
            u"<1>: the name of a game's folder can't begin with a dot, or end with a dot or a space."_s,
            {newName});
    }
    if (IsTaken(launcher, oldName, newName)) {
        return launcher.lang.Text(120, {newName});
    }
    if (launcher.runningGames.contains(oldName)) {
        return launcher.lang.OwnText(
            423,
            u"<1>: the game is running. Its folder can be renamed once it has ended."_s,
            {oldName});
    }
    return QString();
}

QString AskForName(Launcher& launcher, const QString& oldName)
{
    const QString prompt = launcher.lang.Text(316, {oldName}) + u"\r\n\r\n"_s + launcher.lang[314];
    return CleanFolderName(launcher.ports.prompts.InputText(prompt, launcher.lang[315], oldName));
}

void Refuse(Launcher& launcher, const QString& reason)
{
    launcher.ports.prompts.Ask(platform::MessageBox{
        reason, launcher.lang[315], platform::Buttons::Ok, platform::BoxIcon::Exclamation});
}

/// All that knows the game by the folder's name, but for the recent list, which keeps what was
/// started.
void FollowRename(Launcher& launcher, const QString& oldName, const QString& newName)
{
    const platform::RedrawLock lock(launcher.screens.gate);
    const int position = PositionOf(launcher.catalogue, oldName);
    if (position >= 0) {
        launcher.catalogue.Edit(position, [&](GameEntry& entry) { entry.Folder = newName; });
    }
    finding::GameList& list = launcher.screens.list;
    if (const int row = list.RowOf(oldName); row >= 0) {
        list.items[static_cast<std::size_t>(row)].text[finding::kFolderColumn] = newName;
        list.changed.Tell(finding::GameList::Rows);
    }
    for (QString* const name :
         {&launcher.current.CurrentFolder, &launcher.screens.details.folder}) {
        if (*name == oldName) {
            *name = newName;
        }
    }
    FolderRenamed(launcher, oldName, newName);
    RefreshGameEntry(launcher, newName);
}

} // namespace

void RenameGameFolder(Launcher& launcher)
{
    const QString oldName = launcher.current.CurrentFolder;
    if (launcher.flags.JobHeld || !HasGameFolder(launcher, oldName)) {
        return;
    }
    const QString newName = AskForName(launcher, oldName);
    if (newName.isEmpty() || newName == oldName || launcher.flags.JobHeld) {
        return;
    }
    if (const QString reason = WhyNot(launcher, oldName, newName); !reason.isEmpty()) {
        Refuse(launcher, reason);
        return;
    }
    const platform::Done moved = archives::MoveFolderQuiet(
        launcher.places.GameDir(oldName), launcher.places.GameDir(newName));
    if (!moved) {
        Refuse(
            launcher,
            launcher.lang.OwnText(
                424,
                u"<1> could not be renamed: <2>"_s,
                {oldName, launcher.lang.Told(moved.Failure().Told())}));
        return;
    }
    FollowRename(launcher, oldName, newName);
}

} // namespace pelorin::library
