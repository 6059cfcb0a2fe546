#include "library/ShowinfoCommands.h"

#include "dosboxconf/CdFile.h"
#include "dosboxconf/ConfFiles.h"
#include "dosboxconf/ConfReportCommands.h"
#include "dosboxconf/StartCommandsFile.h"
#include "dosboxconf/StartPageCommands.h"
#include "library/CatalogueCommands.h"
#include "library/CatalogueEdits.h"
#include "library/GameFiles.h"
#include "library/GameInfo.h"
#include "platform/Paths.h"
#include "running/RunCommands.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"
#include "shell/LossCommands.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pelorin::library {

using shell::DetailsPanel;
using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.library";

void ShowTexts(Launcher& launcher, const GameFiles& files)
{
    DetailsPanel& details = launcher.screens.details;
    const InfoText info = ReadInfo(files);
    details.txtTitle = {info.titles.first, info.titles.second};
    details.txtInfo = info.description;
    const int position = PositionOf(launcher.catalogue, files.folder);
    if (position >= 0) {
        const GameEntry& entry = launcher.catalogue[static_cast<std::size_t>(position)];
        details.lblGenreK = entry.GenreK;
        details.lblGenreE = entry.GenreE;
    }
    if (files.game.exists) {
        details.iconFile =
            files.HasMetaFile(u"Icon.jpg"_s) ? files.MetaPath(u"Icon.jpg"_s) : QString();
    }
    details.changed.Tell(DetailsPanel::Texts | DetailsPanel::Genres | DetailsPanel::Icon);
}

void ShowPath(Launcher& launcher, const GameFiles& files)
{
    shell::StatusBar& status = launcher.screens.status;
    status.folderPath = files.gameDir;
    status.folder = launcher.lang[106] + u' ' + files.gameDir;
    status.changed.Tell(shell::StatusBar::Texts);
}

void ShowStartPage(Launcher& launcher, const GameFiles& files)
{
    dosboxconf::StartCommands& start = launcher.screens.start;
    const platform::Outcome<QStringList> commands =
        dosboxconf::ReadAutoexecConf(launcher.places, files.folder);
    if (!commands) {
        shell::TellNote(launcher, kCategory, commands.Failure());
    }
    dosboxconf::FillStartCommands(start, commands.ValueOr({}));
    start.fileEXE = RunnableFiles(files);
    start.fileRow = start.fileEXE.isEmpty() ? -1 : 0;
    start.changed.Tell(dosboxconf::StartCommands::Files | dosboxconf::StartCommands::FileRow);
    dosboxconf::FillCdList(launcher);
}

/// A configuration of an older layout is rewritten here, and its build read anew, so that a start
/// finds the build where it looks for it.
void LoadConf(Launcher& launcher, const QString& folder)
{
    const dosboxconf::ConfReport report =
        dosboxconf::LoadGameConf(launcher.places, folder, launcher.options).report;
    dosboxconf::TellReport(launcher, report);
    if (report.upgraded) {
        RereadGameEntry(launcher, folder);
    }
    constexpr int kGlobalPage = 3;
    constexpr int kGamePage = 4;
    const int tab = launcher.screens.frame.tabInfo;
    if (tab == kGlobalPage || tab == kGamePage) {
        launcher.screens.frame.changed.Tell(shell::MainFrame::Tab); // it shows what is loaded
    }
}

void ShowCaption(Launcher& launcher)
{
    const QString& title = launcher.current.CurrentTitle;
    launcher.screens.frame.caption = title + u" : ["_s + launcher.WindowTitle + u']';
    launcher.screens.frame.changed.Tell(shell::MainFrame::Caption);
    launcher.screens.status.game = launcher.lang.Text(153, {title});
    launcher.screens.status.changed.Tell(shell::StatusBar::Texts);
}

} // namespace

void ShowinfoProcess(Launcher& launcher)
{
    if (!platform::IsPlainName(launcher.current.CurrentFolder)) {
        return;
    }
    const platform::RedrawLock lock(launcher.screens.gate);
    launcher.screens.details.folder = launcher.current.CurrentFolder;
    const GameFiles files = ListGame(launcher.places, launcher.current.CurrentFolder);
    ShowTexts(launcher, files);
    ShowPath(launcher, files);
    ShowStartPage(launcher, files);
    LoadConf(launcher, files.folder);
    ShowCaption(launcher);
}

void ShowNoGame(Launcher& launcher)
{
    const platform::RedrawLock lock(launcher.screens.gate);
    launcher.current.CurrentFolder.clear();
    launcher.current.CurrentTitle.clear();
    DetailsPanel& details = launcher.screens.details;
    details.folder.clear();
    details.txtTitle = {};
    details.txtInfo.clear();
    details.lblGenreK.clear();
    details.lblGenreE.clear();
    details.iconFile.clear();
    details.changed.Tell(DetailsPanel::Texts | DetailsPanel::Genres | DetailsPanel::Icon);
    dosboxconf::StartCommands& start = launcher.screens.start;
    dosboxconf::FillStartCommands(start, {});
    start.fileEXE.clear();
    start.fileRow = -1;
    start.changed.Tell(dosboxconf::StartCommands::Files | dosboxconf::StartCommands::FileRow);
    dosboxconf::ResetCdPanel(launcher.screens.cd);
    launcher.screens.cd.changed.Tell(dosboxconf::CdPanel::All);
    shell::StatusBar& status = launcher.screens.status;
    status.game.clear();
    status.folder.clear();
    status.folderPath.clear();
    status.changed.Tell(shell::StatusBar::Texts);
    launcher.screens.frame.caption = launcher.WindowTitle;
    launcher.screens.frame.changed.Tell(shell::MainFrame::Caption);
}

void WriteGameInfo(Launcher& launcher)
{
    const DetailsPanel& details = launcher.screens.details;
    const QString folder = details.folder; // the boxes are its, wherever the selection is by now
    const InfoText info{{details.txtTitle[0], details.txtTitle[1]}, details.txtInfo};
    if (!platform::IsPlainName(folder) || !shell::MayLose(launcher, LostInInfo(info))) {
        return;
    }
    GameFiles files = ListGame(launcher.places, folder);
    if (const platform::Done written = WriteInfo(files, info, Loss::Accept); !written) {
        shell::TellNote(launcher, kCategory, written.Failure());
    }
}

void LVGamelist_ItemClick(Launcher& launcher)
{
    const finding::GameList& list = launcher.screens.list;
    if (!launcher.flags.ListRefreshReady || list.selected < 0 ||
        list.selected >= static_cast<int>(list.items.size())) {
        return;
    }
    const finding::GameItem& item = list.items[static_cast<std::size_t>(list.selected)];
    launcher.current.CurrentFolder = item.folder;
    launcher.current.CurrentTitle = item.text[0];
}

void LVGamelist_SelectionMoved(Launcher& launcher)
{
    if (launcher.flags.ListRefreshReady) {
        LVGamelist_ItemClick(launcher);
        ShowinfoProcess(launcher);
    }
}

void LVGamelist_DblClick(Launcher& launcher)
{
    if (launcher.flags.ListRefreshReady && !launcher.screens.list.items.empty()) {
        LVGamelist_ItemClick(launcher);
        running::RunGame(launcher);
    }
}

} // namespace pelorin::library
