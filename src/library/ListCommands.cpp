#include "library/ListCommands.h"

#include "archives/FileOperations.h"
#include "dosboxconf/Builds.h"
#include "dosboxconf/ConfFiles.h"
#include "library/CatalogueCommands.h"
#include "library/ConfigDetailCommands.h"
#include "library/DeleteCommands.h"
#include "library/FolderCommands.h"
#include "library/ListMenus.h"
#include "library/ShowinfoCommands.h"
#include "platform/Paths.h"
#include "platform/Prompts.h"
#include "platform/ShellVerbs.h"
#include "running/RunCommands.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"
#include "shell/RootFolders.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace pelorin::library {

using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.library";

struct MenuCommand {
    int index = 0;
    void (*run)(Launcher& launcher) = nullptr;
};

/// A link to a folder is opened under its own name; the desktop follows it.
void Open(Launcher& launcher, const QString& path)
{
    shell::TellIfFailed(launcher, kCategory, launcher.ports.shell.Open(path));
}

void OpenGameDir(Launcher& launcher)
{
    const QString folder = launcher.current.CurrentFolder;
    if (HasGameFolder(launcher, folder)) {
        Open(launcher, launcher.places.GameDir(folder));
    }
}

void OpenMetaDir(Launcher& launcher)
{
    const QString folder = launcher.current.CurrentFolder;
    if (!HasGameFolder(launcher, folder)) {
        return;
    }
    const QString path = launcher.places.MetaDir(folder);
    if (archives::FolderExists(path)) {
        Open(launcher, path);
    } else {
        shell::TellNote(
            launcher,
            kCategory,
            launcher.lang.OwnText(412, u"<1>: there is no metadata folder yet."_s, {folder}));
    }
}

void OpenGamesRoot(Launcher& launcher)
{
    Open(launcher, launcher.places.gamesRoot);
}

void OpenExportRoot(Launcher& launcher)
{
    const QString& root = launcher.places.exportRoot;
    const platform::Done made = shell::MakeRoot(root);
    shell::TellIfFailed(launcher, kCategory, made);
    if (made) {
        Open(launcher, root);
    }
}

constexpr MenuCommand kGameCommands[] = {
    {0, running::RunGame},
    {1, running::RunDosPrompt},
    {3, running::RunNetHost},
    {4, running::RunNetClient},
    {6, OpenGameDir},
    {7, OpenGameDir},
    {8, OpenMetaDir},
    {10, DeleteSelectedGames},
    {18, DeleteSelectedGames},
    {25, OpenDetails},
};

constexpr MenuCommand kFolderCommands[] = {
    {0, OpenGameDir},
    {1, OpenGameDir},
    {2, OpenMetaDir},
    {4, OpenGamesRoot},
    {6, cmdRefresh_Click},
    {8, OpenExportRoot},
};

template <class Commands>
void Run(Launcher& launcher, const Commands& commands, int index)
{
    const auto hit =
        std::find_if(std::begin(commands), std::end(commands), [&](const MenuCommand& command) {
            return command.index == index;
        });
    if (hit != std::end(commands) && !launcher.flags.JobHeld) {
        hit->run(launcher);
    }
}

QString TitleQuestion(const Launcher& launcher)
{
    if (launcher.lang.IsKorean()) {
        return launcher.settings.TitleLanguageKorean ? u"게임 제목을 영문으로 봅니다"_s
                                                     : u"게임 제목을 한글로 봅니다"_s;
    }
    return launcher.settings.TitleLanguageKorean ? u"Show Game Title in English"_s
                                                 : u"Show Game Title in Korean"_s;
}

} // namespace

std::vector<ListedGame> SelectedGames(const Launcher& launcher)
{
    const finding::GameList& list = launcher.screens.list;
    std::vector<ListedGame> games;
    games.reserve(list.selectedRows.size());
    for (const int row : list.selectedRows) {
        if (row >= 0 && row < static_cast<int>(list.items.size())) {
            const finding::GameItem& item = list.items[static_cast<std::size_t>(row)];
            games.push_back({item.Folder(), item.text[0]});
        }
    }
    return games;
}

void FillBatchSelection(Launcher& launcher, const std::vector<ListedGame>& games)
{
    if (games.size() < 2) {
        return;
    }
    launcher.current.BatchSelection.clear();
    for (const ListedGame& game : games) {
        launcher.current.BatchSelection << game.folder;
    }
}

shell::MenuModel mnuGame_Popup(Launcher& launcher)
{
    LVGamelist_ItemClick(launcher);
    const std::vector<ListedGame> games = SelectedGames(launcher);
    FillBatchSelection(launcher, games);
    GameMenuFacts facts;
    facts.selected = static_cast<int>(games.size());
    facts.title = launcher.current.CurrentTitle;
    facts.windowsGame = dosboxconf::KindOf(dosboxconf::ReadGameBuild(
                            launcher.places, launcher.current.CurrentFolder, launcher.options)) ==
                        dosboxconf::BuildKind::Windows;
    for (const MenuCommand& command : kGameCommands) {
        facts.commands << command.index;
    }
    return GameMenu(facts, launcher.lang);
}

void mnuGame_Click(Launcher& launcher, int index)
{
    Run(launcher, kGameCommands, index);
}

shell::MenuModel mnuFolder_Popup(const Launcher& launcher)
{
    const shell::Current& current = launcher.current;
    return FolderMenu(
        current.CurrentTitle, platform::IsPlainName(current.CurrentFolder), launcher.lang);
}

void mnuFolder_Click(Launcher& launcher, int index)
{
    Run(launcher, kFolderCommands, index);
}

void Picture2_Click(Launcher& launcher)
{
    if (launcher.flags.JobHeld) {
        return;
    }
    const platform::Answer answer = launcher.ports.prompts.Ask(platform::MessageBox{
        TitleQuestion(launcher),
        launcher.lang[1],
        platform::Buttons::YesNo,
        platform::BoxIcon::Question});
    if (answer != platform::Answer::Yes || launcher.flags.JobHeld) {
        return;
    }
    launcher.settings.TitleLanguageKorean = !launcher.settings.TitleLanguageKorean;
    launcher.screens.frame.changed.Tell(shell::MainFrame::TitlePicture);
    cmdRefresh_Click(launcher);
}

void FocusTitle(Launcher& launcher)
{
    if (launcher.flags.JobHeld || launcher.screens.list.selected < 0) {
        return;
    }
    constexpr int kInformationPage = 1;
    launcher.screens.frame.tabInfo = kInformationPage;
    launcher.screens.frame.changed.Tell(shell::MainFrame::Tab);
    launcher.screens.details.changed.Tell(shell::DetailsPanel::FocusTitle);
}

} // namespace pelorin::library
