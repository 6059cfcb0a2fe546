#include "library/ShowinfoCommands.h"

#include "dosboxconf/AutoexecFile.h"
#include "dosboxconf/ConfFiles.h"
#include "dosboxconf/ConfReportCommands.h"
#include "dosboxconf/EditorCommands.h"
#include "dosboxconf/StartList.h"
#include "dosboxconf/StartPageCommands.h"
#include "library/Catalogue.h"
#include "library/CatalogueCommands.h"
#include "library/GameFiles.h"
#include "library/GameInfo.h"
#include "library/InfoCommands.h"
#include "library/MediaCommands.h"
#include "platform/Paths.h"
#include "running/RunCommands.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"

using namespace Qt::StringLiterals;

namespace pelorin::library {

using shell::DetailsPanel;
using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.library";

void ShowGenres(Launcher& launcher, const QString& korean, const QString& english)
{
    DetailsPanel& details = launcher.screens.details;
    details.lblGenreK = korean;
    details.lblGenreE = english;
    details.changed.Tell(DetailsPanel::Genres);
}

/// The genres as the folder has them, an old code turned into its words. The entry that takes them
/// is the first whose folder ends with the game's name, as it always was; where names end alike
/// that is another game's, which reads its own again when it is refreshed.
void TakeGenres(Launcher& launcher, GameFiles& files)
{
    const int position = PositionBySuffix(launcher.catalogue, files.folder);
    if (position < 0) {
        return;
    }
    Troubles troubles; // a scan tells of them
    const Genres genres = ReadGenres(files, GenreForm::Panel, troubles);
    if (!files.game.exists || troubles.count > 0) {
        // What can't be read now, a disk that is unplugged, is no reason to forget what is known.
        const GameEntry& known = launcher.catalogue[static_cast<std::size_t>(position)];
        ShowGenres(launcher, known.GenreK, known.GenreE);
        return;
    }
    launcher.catalogue.Edit(position, [&](GameEntry& entry) {
        entry.GenreK = genres.korean;
        entry.GenreE = genres.english;
    });
    ShowGenres(launcher, genres.korean, genres.english);
}

void ShowIcon(Launcher& launcher, const GameFiles& files)
{
    DetailsPanel& details = launcher.screens.details;
    if (files.game.exists) {
        details.iconFile = files.HasMetaFile(kIconFile) ? files.MetaPath(kIconFile) : QString();
        details.changed.Tell(DetailsPanel::Icon);
    }
}

void ShowPath(Launcher& launcher, const GameFiles& files)
{
    shell::StatusBar& status = launcher.screens.status;
    status.folderPath = files.gameDir;
    status.folder = launcher.lang[106] + u' ' + files.gameDir;
    status.changed.Tell(shell::StatusBar::Texts);
}

/// What is edited there and not saved counts as long as the game stays the one that is shown.
void ShowStartPage(Launcher& launcher, const GameFiles& files, bool shownAlready)
{
    dosboxconf::StartCommands& start = launcher.screens.start;
    const platform::Outcome<QStringList> commands = dosboxconf::ReadAutoexecConf(files);
    if (!commands) {
        shell::TellNote(launcher, kCategory, commands.Failure());
    }
    if (shownAlready) {
        dosboxconf::RefillStartCommands(start, commands.ValueOr({}));
    } else {
        dosboxconf::FillStartCommands(start, commands.ValueOr({}));
    }
    start.fileEXE = RunnableFiles(files);
    start.fileRow = start.fileEXE.isEmpty() ? -1 : 0;
    start.changed.Tell(dosboxconf::StartCommands::Files | dosboxconf::StartCommands::FileRow);
    if (!shownAlready || !launcher.screens.cd.edited) {
        dosboxconf::FillCdList(launcher, files);
    }
}

/// A configuration of an older layout is rewritten here, and its build read anew, so that a start
/// finds the build where it looks for it.
void LoadConf(Launcher& launcher, const GameFiles& files)
{
    const dosboxconf::LoadedConf loaded =
        dosboxconf::LoadGameConf(launcher.places, files, launcher.options);
    dosboxconf::TellReport(launcher, loaded.report);
    if (loaded.report.upgraded) {
        RereadGameEntry(launcher, files.folder);
    }
    dosboxconf::ShowConfigPage(launcher, loaded);
}

void ShowCaption(Launcher& launcher)
{
    const QString& title = launcher.current.CurrentTitle;
    launcher.screens.frame.caption = title + u" : ["_s + launcher.WindowTitle + u']';
    launcher.screens.frame.changed.Tell(shell::MainFrame::Caption);
    launcher.screens.status.game = launcher.lang.Text(153, {title});
    launcher.screens.status.changed.Tell(shell::StatusBar::Texts);
}

/// The genre of the selected row.
QString SelectedTag(const finding::GameList& list)
{
    const auto row = static_cast<std::size_t>(list.selected);
    return list.selected >= 0 && row < list.items.size() ? list.items[row].Tag() : QString();
}

} // namespace

void ShowinfoProcess(Launcher& launcher)
{
    const QString folder = launcher.current.CurrentFolder;
    const platform::RedrawLock lock(launcher.screens.gate);
    if (!platform::IsPlainName(folder)) {
        ShowNoGame(launcher);
        const QString tag = SelectedTag(launcher.screens.list);
        ShowGenres(launcher, tag, tag);
        return;
    }
    const bool shownAlready = launcher.screens.details.folder == folder;
    launcher.screens.details.folder = folder;
    // The one listing of the folder, and each file read once. What fails says so where it is read,
    // and the rest goes on.
    GameFiles files = ListGame(launcher.places, folder);
    TakeGenres(launcher, files);
    ShowIcon(launcher, files);
    ShowPath(launcher, files);
    ShowInfo(launcher, files);
    ShowStartPage(launcher, files, shownAlready);
    LoadConf(launcher, files);
    ShowCaption(launcher);
    FillMedia(launcher, files);
}

void ShowNoGame(Launcher& launcher)
{
    const platform::RedrawLock lock(launcher.screens.gate);
    launcher.current.CurrentFolder.clear();
    launcher.current.CurrentTitle.clear();
    DetailsPanel& details = launcher.screens.details;
    details.folder.clear();
    details.iconFile.clear();
    details.changed.Tell(DetailsPanel::Icon);
    ShowGenres(launcher, QString(), QString());
    ShowInfo(launcher, GameFiles());
    ShowStartPage(launcher, GameFiles(), false);
    ClearMedia(launcher);
    shell::StatusBar& status = launcher.screens.status;
    status.game.clear();
    status.folder.clear();
    status.folderPath.clear();
    status.changed.Tell(shell::StatusBar::Texts);
    launcher.screens.frame.caption = launcher.WindowTitle;
    launcher.screens.frame.changed.Tell(shell::MainFrame::Caption);
    dosboxconf::ShowConfigPage(launcher);
}

void tabInfo_Click(Launcher& launcher)
{
    if (!dosboxconf::ShowsConfigPage(launcher)) {
        return;
    }
    const QString folder = launcher.screens.details.folder;
    if (!platform::IsPlainName(folder)) {
        dosboxconf::ShowConfigPage(launcher);
        return;
    }
    const GameFiles files = ListGame(launcher.places, folder);
    dosboxconf::RefillCdList(launcher, files);
    LoadConf(launcher, files);
}

void LVGamelist_ItemClick(Launcher& launcher)
{
    const finding::GameList& list = launcher.screens.list;
    if (!launcher.flags.ListRefreshReady || list.selected < 0 ||
        list.selected >= static_cast<int>(list.items.size())) {
        return;
    }
    const finding::GameItem& item = list.items[static_cast<std::size_t>(list.selected)];
    launcher.current.CurrentFolder = item.Folder();
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
