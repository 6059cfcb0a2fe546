#include "finding/FilterCommands.h"

#include "finding/BuildGameList.h"
#include "finding/CheckMarks.h"
#include "library/ShowinfoCommands.h"
#include "platform/Timers.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace pelorin::finding {

using shell::Launcher;

namespace {

constexpr int kStoreMarkEntry = 257;

TitleOrder& OrderOf(Launcher& launcher)
{
    const bool koreanTitles = launcher.settings.TitleLanguageKorean;
    if (!launcher.titleOrder || launcher.titleOrder->IsOfKoreanTitles() != koreanTitles) {
        const bool korean = launcher.lang.IsKorean();
        launcher.titleOrder.emplace(
            QLocale(korean ? QLocale::Korean : QLocale::English), koreanTitles);
    }
    return *launcher.titleOrder;
}

ListSource SourceOf(const Launcher& launcher, const QStringList& buildNames)
{
    return {
        launcher.catalogue,
        buildNames,
        launcher.settings.TitleLanguageKorean,
        launcher.screens.search.txtFind,
        launcher.lang[kStoreMarkEntry]};
}

void ShowCount(Launcher& launcher)
{
    launcher.ports.timers.RunPendingEvents();
    launcher.screens.status.count = launcher.lang.Text(3, {u"게임"_s}) +
                                    QString::number(launcher.screens.list.items.size()) + u" / "_s +
                                    QString::number(launcher.icons.Count());
    launcher.screens.status.changed.Tell(shell::StatusBar::Texts);
}

void ShowView(GameList& list, View view)
{
    list.view = view;
    list.changed.Tell(GameList::ViewMode);
}

/// Rebuilds the list for what the user asked of the tree or the search box, and shows its first game.
void Search(Launcher& launcher)
{
    const platform::RedrawLock lock(launcher.screens.gate);
    const ShownAsRows rows(launcher);
    RefreshGameList(launcher);
    if (!launcher.screens.list.items.empty()) {
        library::LVGamelist_ItemClick(launcher);
        library::ShowinfoProcess(launcher);
    }
}

/// What the two deeds on the tree have in common. `mark` sets the marks and tells whether the list
/// is to follow.
template <class Mark>
void RefreshFromTree(Launcher& launcher, const Mark& mark)
{
    {
        const platform::RedrawLock lock(launcher.screens.gate);
        if (!mark(launcher.screens.tree)) {
            return;
        }
    }
    launcher.ports.timers.RunPendingEvents();
    Search(launcher);
}

void EmptyTheBox(SearchBox& search)
{
    search.txtFind.clear();
    search.changed.Tell(SearchBox::Text);
}

} // namespace

ShownAsRows::ShownAsRows(Launcher& launcher)
    : m_list(launcher.screens.list)
    , m_icons(m_list.view == View::LargeIcons)
{
    if (m_icons) {
        ShowView(m_list, View::List);
    }
}

ShownAsRows::~ShownAsRows()
{
    if (m_icons) {
        ShowView(m_list, View::LargeIcons);
    }
}

void RefreshGameList(Launcher& launcher)
{
    const QStringList buildNames = launcher.options.BuildNames();
    const ListSource source = SourceOf(launcher, buildNames);
    GameList& list = launcher.screens.list;
    BuildGameList(list, OrderOf(launcher), source, BuildFilterIndex(launcher.screens.tree, source));
    if (list.outcome == ListOutcome::Items) {
        shell::SetPanelsEnabled(launcher, true);
        library::tabInfo_Click(launcher);
    } else if (list.outcome != ListOutcome::NoFilterHit) {
        launcher.screens.frame.caption = launcher.WindowTitle;
        launcher.screens.frame.changed.Tell(shell::MainFrame::Caption);
    }
    if (list.outcome != ListOutcome::NoFilterHit) {
        ShowCount(launcher);
    }
    if (list.visible) {
        list.changed.Tell(GameList::Focus);
    } else if (!list.items.empty()) {
        launcher.screens.search.changed.Tell(SearchBox::Focus);
    }
}

void TreeView1_NodeCheck(Launcher& launcher, const NodePlace& place, bool checked)
{
    RefreshFromTree(launcher, [&](FilterTree& tree) { return ToggleNode(tree, place, checked); });
}

void TreeView1_NodeClick(Launcher& launcher, const NodePlace& place)
{
    RefreshFromTree(launcher, [&](FilterTree& tree) { return ClickNode(tree, place); });
}

void cmdFind_Click(Launcher& launcher)
{
    Search(launcher);
}

void txtFind_Esc(Launcher& launcher)
{
    EmptyTheBox(launcher.screens.search);
    Search(launcher);
}

void cmdFind_Esc(Launcher& launcher)
{
    EmptyTheBox(launcher.screens.search);
    const platform::RedrawLock lock(launcher.screens.gate);
    RefreshGameList(launcher);
    library::LVGamelist_ItemClick(launcher);
    library::ShowinfoProcess(launcher);
}

void LVGamelist_ColumnClick(Launcher& launcher, int column)
{
    if (column < 0 || column >= kColumns) {
        return;
    }
    GameList& list = launcher.screens.list;
    const platform::RedrawLock lock(launcher.screens.gate);
    list.sort = ListSort{column, column == list.sort.column && !list.sort.descending};
    const QStringList buildNames = launcher.options.BuildNames();
    SortGameList(list, OrderOf(launcher), SourceOf(launcher, buildNames));
}

void SetView(Launcher& launcher, View view)
{
    const platform::RedrawLock lock(launcher.screens.gate);
    ShowView(launcher.screens.list, view);
    launcher.screens.notice.visible = false;
    launcher.screens.notice.changed.Tell(shell::BusyNotice::All);
}

} // namespace pelorin::finding
