#include "running/RunMenuCommands.h"

#include "archives/FileOperations.h"
#include "library/ShowinfoCommands.h"
#include "platform/Paths.h"
#include "running/RunCommands.h"
#include "shell/Launcher.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace pelorin::running {

using shell::Launcher;

namespace {

constexpr int kFirstRecent = 10; // of mnuRun's indexes

struct MenuCommand {
    int index = 0;
    void (*run)(Launcher& launcher) = nullptr;
};

constexpr MenuCommand kCommands[] = {
    {0, RunRandomGame},
    {2, RunGame},
    {3, RunDosPrompt},
    {5, RunNetHost},
    {6, RunNetClient},
    {8, RunLibraryShell},
};

/// One whose folder is gone does nothing.
void RunRecent(Launcher& launcher, int entry)
{
    const auto slot = static_cast<std::size_t>(entry);
    const QString folder = launcher.recent.RecentFolders[slot];
    const QString title = launcher.recent.RecentTitles[slot];
    if (!platform::IsPlainName(folder) ||
        !archives::FolderExists(launcher.places.GameDir(folder))) {
        return;
    }
    launcher.current.CurrentFolder = folder;
    launcher.current.CurrentTitle = title;
    library::ShowinfoProcess(launcher);
    RunGame(launcher);
}

} // namespace

shell::MenuModel RunMenu(const Launcher& launcher)
{
    const QStringList title{shell::MenuTitle(launcher.current.CurrentTitle)};
    const bool windowsGame =
        launcher.options.SelectedText(dosboxconf::kDirectXCell) == u"Windows"_s;
    const bool hasGame = !launcher.current.CurrentFolder.isEmpty();
    shell::MenuModel menu{
        {0, launcher.lang.OwnText(346, u"Run a random game"_s), !launcher.catalogue.empty()},
        {1, QString(), false, true},
        {2, launcher.lang.Text(140, title), hasGame},
        {3, launcher.lang.Text(windowsGame ? 255 : 141, title), hasGame},
        {4, QString(), false, true},
        {5, launcher.lang.Text(142, title), hasGame},
        {6, launcher.lang.Text(143, title), hasGame},
        {7, QString(), false, true},
        {8, launcher.lang.OwnText(347, u"DOS prompt over all games"_s)},
        {9, QString(), false, true},
    };
    for (int i = 0; i < shell::kRecentGames; ++i) {
        const auto slot = static_cast<std::size_t>(i);
        if (launcher.recent.RecentFolders[slot].isEmpty()) {
            break;
        }
        menu.push_back({kFirstRecent + i, shell::MenuTitle(launcher.recent.RecentTitles[slot])});
    }
    return menu;
}

void mnuRun_Click(Launcher& launcher, int index)
{
    if (launcher.flags.JobHeld) {
        return;
    }
    const auto* const hit =
        std::find_if(std::begin(kCommands), std::end(kCommands), [&](const MenuCommand& command) {
            return command.index == index;
        });
    if (hit != std::end(kCommands)) {
        hit->run(launcher);
    } else if (index >= kFirstRecent && index < kFirstRecent + shell::kRecentGames) {
        RunRecent(launcher, index - kFirstRecent);
    }
}

} // namespace pelorin::running
