#include "library/DeleteCommands.h"

#include "finding/FilterCommands.h"
#include "library/Catalogue.h"
#include "library/CatalogueCommands.h"
#include "library/DeleteQuestion.h"
#include "library/ListCommands.h"
#include "library/ShowinfoCommands.h"
#include "platform/Prompts.h"
#include "platform/Timers.h"
#include "shell/FolderCfgCommands.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pelorin::library {

using shell::Launcher;

namespace {

constexpr qint64 kCountMs = 1000;

bool MayDelete(Launcher& launcher, const std::vector<ListedGame>& games)
{
    const qint64 start = launcher.ports.timers.NowMs();
    const auto keepCounting = [&] { return launcher.ports.timers.NowMs() - start < kCountMs; };
    archives::FolderSize size;
    QStringList names;
    for (const ListedGame& game : games) {
        names << NameForDeletion(game.title, game.folder);
        archives::AddFolderSize(size, launcher.places.GameDir(game.folder), keepCounting);
    }
    return launcher.ports.prompts.Ask(platform::MessageBox{
               DeleteQuestion(names, size, launcher.lang),
               launcher.lang.OwnText(419, u"Delete games"_s),
               platform::Buttons::YesNo,
               platform::BoxIcon::Exclamation,
               true}) == platform::Answer::Yes;
}

/// Why the game stays; empty when it has gone.
QString BinOne(Launcher& launcher, const QString& folder)
{
    if (launcher.runningGames.contains(folder)) {
        return launcher.lang.OwnText(420, u"It is running."_s);
    }
    const platform::Done binned = MoveGameToBin(launcher, folder);
    return binned ? QString() : launcher.lang.Told(binned.Failure().Told());
}

struct Deletion {
    QStringList gone;   // folders
    QStringList report; // a line for each game that stayed
};

/// Ends early when the user gives up.
Deletion BinAll(Launcher& launcher, const std::vector<ListedGame>& games)
{
    Deletion done;
    const int count = static_cast<int>(games.size());
    for (int i = 0; i < count; ++i) {
        const ListedGame& game = games[static_cast<std::size_t>(i)];
        if (count > 1 && !shell::ShowBatchStep(launcher, i, count, game.title)) {
            break;
        }
        const QString reason = BinOne(launcher, game.folder);
        if (reason.isEmpty()) {
            done.gone << game.folder;
        } else {
            done.report << launcher.lang[311] + game.title + u" ==> "_s + reason;
        }
    }
    return done;
}

Deletion DeleteAll(Launcher& launcher, const std::vector<ListedGame>& games)
{
    const shell::Job job(launcher);
    if (!job.Held()) {
        return {};
    }
    if (games.size() == 1) {
        return BinAll(launcher, games);
    }
    const shell::BusyMessage message(
        launcher, launcher.lang.OwnText(421, u"Moving games to the recycle bin."_s));
    return BinAll(launcher, games);
}

/// The folders of the rows that may take the selection, the best first: those below the selected
/// ones, then those above.
QStringList Neighbours(const finding::GameList& list)
{
    QStringList below;
    QStringList above;
    const int last = list.selectedRows.back();
    std::vector<bool> chosen(list.items.size());
    for (const int row : list.selectedRows) {
        chosen[static_cast<std::size_t>(row)] = true;
    }
    for (int row = 0; row < static_cast<int>(list.items.size()); ++row) {
        if (!chosen[static_cast<std::size_t>(row)]) {
            const QString& folder = list.items[static_cast<std::size_t>(row)].Folder();
            row > last ? below.append(folder) : above.prepend(folder);
        }
    }
    return below + above;
}

/// The games that stayed keep the selection, so that a second try needs no search for them.
void SelectAfterwards(
    Launcher& launcher, const std::vector<ListedGame>& games, const QStringList& neighbours)
{
    finding::GameList& list = launcher.screens.list;
    QSet<QString> chosen;
    for (const ListedGame& game : games) {
        chosen << game.folder;
    }
    std::vector<int> rows;
    for (int row = 0; row < static_cast<int>(list.items.size()); ++row) {
        if (chosen.contains(list.items[static_cast<std::size_t>(row)].Folder())) {
            rows.push_back(row);
        }
    }
    if (!rows.empty()) {
        list.Select(rows.front());
        list.selectedRows = rows;
        return;
    }
    for (const QString& neighbour : neighbours) {
        if (const int row = list.RowOf(neighbour); row >= 0) {
            list.Select(row);
            return;
        }
    }
}

/// The entries and the rows go at once: the icons of both are counted alike.
void ShowWhatIsLeft(
    Launcher& launcher,
    const QStringList& gone,
    const std::vector<ListedGame>& games,
    const QStringList& neighbours)
{
    const platform::RedrawLock lock(launcher.screens.gate);
    RemoveGameEntries(launcher, gone);
    finding::RefreshGameList(launcher);
    SelectAfterwards(launcher, games, neighbours);
    if (PositionOf(launcher.catalogue, launcher.current.CurrentFolder) < 0) {
        ShowNoGame(launcher);
    }
    LVGamelist_ItemClick(launcher);
    ShowinfoProcess(launcher);
}

} // namespace

void DeleteSelectedGames(Launcher& launcher)
{
    if (launcher.flags.JobHeld) {
        return;
    }
    const std::vector<ListedGame> games = SelectedGames(launcher);
    if (games.empty() || shell::ShowsFormerRoot(launcher)) {
        return;
    }
    FillBatchSelection(launcher, games);
    const QStringList neighbours = Neighbours(launcher.screens.list);
    if (!MayDelete(launcher, games) || launcher.flags.JobHeld) {
        return;
    }
    const Deletion done = DeleteAll(launcher, games);
    // The list first: it is seen beside the report.
    ShowWhatIsLeft(launcher, done.gone, games, neighbours);
    if (!done.report.isEmpty()) {
        launcher.ports.prompts.ShowReport(launcher.lang[312], done.report.join(u"\r\n"_s));
    }
    if (launcher.catalogue.empty()) {
        TellEmptyLibrary(launcher);
    }
}

} // namespace pelorin::library
