#include "library/CatalogueCommands.h"

#include "archives/FileOperations.h"
#include "dosboxconf/ConfFiles.h"
#include "finding/BuildGameList.h"
#include "finding/FilterCommands.h"
#include "finding/TreeNodes.h"
#include "library/Catalogue.h"
#include "library/CatalogueCache.h"
#include "library/CatalogueScan.h"
#include "library/FolderCommands.h"
#include "library/ShowinfoCommands.h"
#include "platform/Bin.h"
#include "platform/Paths.h"
#include "platform/Prompts.h"
#include "platform/Timers.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"

#include <QFileInfo>
#include <QLoggingCategory>

using namespace Qt::StringLiterals;

namespace pelorin::library {

using platform::Done;
using platform::Outcome;
using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.library";

ReadingRules RulesOf(const Launcher& launcher)
{
    return ReadingRules{
        launcher.lang, dosboxconf::ReadDefaultBuild(launcher.places, launcher.options)};
}

void TellTroubles(Launcher& launcher, const Troubles& troubles)
{
    if (troubles.count == 0) {
        return;
    }
    QStringList story;
    for (const platform::Error& error : troubles.kept) {
        story << launcher.lang.Told(error.Told());
    }
    const QString text = troubles.count == 1 ? story.first()
                                             : launcher.lang.OwnText(
                                                   351,
                                                   u"<1> files could not be read or written."_s,
                                                   {QString::number(troubles.count)});
    shell::TellNote(launcher, kCategory, text, story.join(u'\n'));
}

void TellBeyondBound(Launcher& launcher, int folders)
{
    if (folders > 0) {
        const QString text = launcher.lang.OwnText(
            352,
            u"Folders left out, the last by name: <1>. A library holds 32,767 games at most."_s,
            {QString::number(folders)});
        shell::TellNote(launcher, kCategory, text);
    }
}

void TellLeftOut(Launcher& launcher, const ScanResult& scan)
{
    TellBeyondBound(launcher, scan.beyondBound);
    if (!scan.refused.isEmpty()) {
        QStringList story;
        for (const platform::Wording& reason : scan.refused) {
            story << launcher.lang.Told(reason);
        }
        const QString text = launcher.lang.OwnText(
            353, u"Folders that can't be games: <1>"_s, {QString::number(scan.refused.size())});
        shell::TellNote(launcher, kCategory, text, story.join(u'\n'));
    }
}

void TellWithoutCache(Launcher& launcher, const QStringList& folders)
{
    if (folders.isEmpty()) {
        return;
    }
    const QString text = launcher.lang.OwnText(
        354,
        u"Games with characters that the list's file can't keep: <1>"_s,
        {QString::number(folders.size())});
    shell::TellNote(launcher, kCategory, text, folders.join(u'\n'));
}

void FillTree(Launcher& launcher)
{
    finding::RefillValueNodes(launcher.screens.tree, launcher.catalogue);
}

void FillList(Launcher& launcher)
{
    const finding::ShownAsRows rows(launcher);
    launcher.screens.list.changed.Tell(finding::GameList::Icons);
    finding::RefreshGameList(launcher);
}

/// Drawn when the first scan needs it; most starts have none.
const IconPixels& DefaultIcon(Launcher& launcher)
{
    if (launcher.defaultIcon.side == 0 && launcher.drawDefaultIcon) {
        launcher.defaultIcon = launcher.drawDefaultIcon();
    }
    return launcher.defaultIcon;
}

ScanResult ScanUnderProgress(Launcher& launcher)
{
    ShownProgress progress(launcher);
    return ScanCatalogue(launcher.places, RulesOf(launcher), DefaultIcon(launcher), progress);
}

Outcome<CachedCatalogue> ReadCacheUnderProgress(Launcher& launcher)
{
    ShownProgress progress(launcher);
    return ReadCatalogueCache(launcher.places, progress);
}

/// The scan itself, as a part of the caller's job. The list passes the marks that the tree had.
/// False: GamesRoot holds no game.
bool FillByScan(Launcher& launcher)
{
    ScanResult scan = ScanUnderProgress(launcher);
    if (scan.abandoned) {
        return true;
    }
    launcher.catalogue = Catalogue(std::move(scan.catalogue));
    launcher.icons = std::move(scan.icons);
    launcher.settings.listedRoot = launcher.places.gamesRoot;
    launcher.settings.rootsChanged = false;
    TellTroubles(launcher, scan.troubles);
    TellLeftOut(launcher, scan);
    TellWithoutCache(launcher, GamesWithoutCache(launcher.catalogue));
    FillList(launcher);
    FillTree(launcher);
    shell::SetPanelsEnabled(launcher, !launcher.catalogue.empty());
    return !launcher.catalogue.empty();
}

/// Games that the cache files could not hold are read from their folders, behind the others.
void AddGamesWithoutCache(Launcher& launcher)
{
    const QStringList folders = FoldersWithoutCache(launcher.places, launcher.catalogue);
    if (folders.isEmpty()) {
        return;
    }
    const ReadingRules rules = RulesOf(launcher);
    Troubles troubles;
    int beyondBound = 0;
    for (const QString& folder : folders) {
        GameFiles files = ListGame(launcher.places, folder);
        const bool added = AddGame(
            files, rules, DefaultIcon(launcher), launcher.catalogue, launcher.icons, troubles);
        beyondBound += added ? 0 : 1;
    }
    TellTroubles(launcher, troubles);
    TellBeyondBound(launcher, beyondBound);
    TellWithoutCache(launcher, folders);
}

/// False: the cache is missing or damaged, nothing has changed.
/// The settings file was put back, or edited by hand, since the list was saved.
bool IsOfAnotherRoot(const Launcher& launcher, const GameEntries& entries)
{
    const auto isThere = [&](const GameEntry& entry) {
        return QFileInfo(launcher.places.GameDir(entry.Folder)).isDir();
    };
    return !entries.empty() && QFileInfo(launcher.places.gamesRoot).isDir() &&
           !isThere(entries.front()) && !isThere(entries.back());
}

bool FillByCache(Launcher& launcher)
{
    if (!HasCatalogueCache(launcher.places)) {
        return false;
    }
    Outcome<CachedCatalogue> cached = ReadCacheUnderProgress(launcher);
    const QLoggingCategory room(kCategory);
    if (!cached) {
        qCWarning(room).noquote() << cached.Failure().text;
        return false;
    }
    if (IsOfAnotherRoot(launcher, cached.Value().catalogue)) {
        qCWarning(room).noquote() << launcher.places.gamesRoot
                                  << ": the saved list is another folder's, it is read anew";
        return false;
    }
    launcher.catalogue = Catalogue(std::move(cached.Value().catalogue));
    launcher.icons = std::move(cached.Value().icons);
    launcher.settings.listedRoot = launcher.places.gamesRoot;
    AddGamesWithoutCache(launcher);
    FillTree(launcher);
    FillList(launcher);
    shell::SetPanelsEnabled(launcher, true);
    return true;
}

} // namespace

ShownProgress::~ShownProgress()
{
    m_launcher.screens.progress.visible = false;
    m_launcher.screens.progress.changed.Tell(shell::ProgressPanel::All);
}

void ShownProgress::Begin(Phase phase, int maximum)
{
    shell::ProgressPanel& panel = m_launcher.screens.progress;
    panel.maximum = maximum;
    panel.value = 0;
    panel.text = phase == Phase::SavingList ? SavingText(m_launcher.lang, maximum)
                                            : ProgressText(m_launcher.lang, phase, 0);
    panel.visible = true;
    panel.changed.Tell(shell::ProgressPanel::All);
}

bool ShownProgress::Step(Phase phase, int value, int percent)
{
    shell::ProgressPanel& panel = m_launcher.screens.progress;
    panel.value = value;
    panel.text = ProgressText(m_launcher.lang, phase, percent);
    panel.changed.Tell(shell::ProgressPanel::All);
    return RunEvents();
}

bool ShownProgress::Breathe()
{
    constexpr qint64 kLongestWaitMs = 20;
    return m_launcher.ports.timers.NowMs() - m_eventsRan < kLongestWaitMs || RunEvents();
}

bool ShownProgress::RunEvents()
{
    m_launcher.ports.timers.RunPendingEvents();
    m_eventsRan = m_launcher.ports.timers.NowMs();
    return !m_launcher.flags.Ending;
}

void ReadGameList(Launcher& launcher)
{
    bool hasGames = true;
    {
        const platform::RedrawLock lock(launcher.screens.gate);
        const shell::Job job(launcher);
        const bool isStale = launcher.settings.rootsChanged;
        hasGames = (!isStale && FillByCache(launcher)) || FillByScan(launcher);
    }
    if (!hasGames) {
        TellEmptyLibrary(launcher);
    }
}

void ScanGames(Launcher& launcher)
{
    bool hasGames = true;
    {
        const platform::RedrawLock lock(launcher.screens.gate);
        const shell::Job job(launcher);
        if (!job.Held()) {
            return;
        }
        hasGames = FillByScan(launcher);
    }
    if (!hasGames) {
        TellEmptyLibrary(launcher);
    }
}

void cmdRefresh_Click(Launcher& launcher)
{
    if (launcher.flags.JobHeld) {
        return;
    }
    launcher.flags.ListRefreshReady = false;
    ScanGames(launcher);
    launcher.flags.ListRefreshReady = true;
    launcher.screens.frame.changed.Tell(shell::MainFrame::Front);
    if (PositionOf(launcher.catalogue, launcher.current.CurrentFolder) < 0) {
        ShowNoGame(launcher);
    }
    LVGamelist_ItemClick(launcher);
    ShowinfoProcess(launcher);
}

void RereadGameEntry(Launcher& launcher, const QString& folder)
{
    const int position = PositionOf(launcher.catalogue, folder);
    if (position < 0) {
        return;
    }
    const GameFiles files = ListGame(launcher.places, folder);
    if (!files.game.exists) {
        return; // what the list knows of it is more than its folder tells
    }
    launcher.catalogue.Edit(
        position, [&](GameEntry& entry) { RefreshEntry(entry, files, RulesOf(launcher)); });
    ShowGameEntry(launcher, folder);
}

void ShowGameEntry(Launcher& launcher, const QString& folder)
{
    finding::GameList& list = launcher.screens.list;
    const int position = PositionOf(launcher.catalogue, folder);
    if (position < 0) {
        return;
    }
    const finding::GameItem item = finding::ItemOf(
        launcher.catalogue[static_cast<std::size_t>(position)],
        launcher.options.BuildNames(),
        launcher.settings.TitleLanguageKorean);
    if (folder == launcher.current.CurrentFolder) {
        launcher.current.CurrentTitle = item.text[0]; // also of a game that the filter hides
    }
    if (const int row = list.RowOf(folder); row >= 0) {
        list.items[static_cast<std::size_t>(row)] = item;
        list.changed.Tell(finding::GameList::Rows);
    }
}

void RefreshGameEntry(Launcher& launcher, const QString& folder)
{
    if (PositionOf(launcher.catalogue, folder) >= 0) {
        RereadGameEntry(launcher, folder);
        ShowinfoProcess(launcher);
    }
}

Done MoveGameToBin(Launcher& launcher, const QString& folder)
{
    if (!platform::IsPlainName(folder)) {
        return platform::Error{platform::ErrorKind::Refused, folder};
    }
    const QString path = launcher.places.GameDir(folder);
    Done binned = launcher.ports.bin.MoveToBin(path);
    // Without its root a game may be on a disk that is unplugged, and then it is not gone.
    // By its exact name, since another game may differ by case alone.
    const bool vanished =
        !binned && !QFileInfo(path).isDir() && archives::FolderExists(launcher.places.gamesRoot);
    return vanished ? platform::Success() : binned;
}

void RemoveGameEntries(Launcher& launcher, const QStringList& folders)
{
    const QSet<QString> gone(folders.begin(), folders.end());
    launcher.icons.Remove(launcher.catalogue.Remove(gone));
    launcher.screens.list.changed.Tell(finding::GameList::Icons);
    FoldersGone(launcher, gone);
    shell::SetPanelsEnabled(launcher, !launcher.catalogue.empty());
}

void TellEmptyLibrary(Launcher& launcher)
{
    shell::TellIfFailed(launcher, kCategory, DeleteCatalogueCache(launcher.places));
    launcher.ports.prompts.Ask(platform::MessageBox{
        launcher.lang[135] + u"\r\n\r\n"_s + launcher.lang[134],
        launcher.lang[1],
        platform::Buttons::Ok,
        platform::BoxIcon::Information});
}

Done SaveCatalogue(Launcher& launcher)
{
    if (launcher.settings.rootsChanged) {
        return DeleteCatalogueCache(launcher.places);
    }
    ShownProgress progress(launcher);
    const Outcome<CacheReport> saved =
        SaveCatalogueCache(launcher.places, launcher.catalogue, launcher.icons, progress);
    if (!saved) {
        return saved.Failure();
    }
    for (const platform::Wording& reason : saved.Value().formerSheets) {
        shell::TellNote(launcher, kCategory, launcher.lang.Told(reason));
    }
    TellWithoutCache(launcher, saved.Value().leftOut);
    return platform::Success();
}

} // namespace pelorin::library
