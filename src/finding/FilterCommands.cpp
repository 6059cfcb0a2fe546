#include "finding/FilterCommands.h"

#include "finding/BuildGameList.h"
#include "platform/Timers.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace pelorin::finding {

using shell::Launcher;

namespace {

TitleOrder& OrderOf(Launcher& launcher)
{
    if (!launcher.titleOrder) {
        const bool korean = launcher.lang.IsKorean();
        launcher.titleOrder.emplace(
            QLocale(korean ? QLocale::Korean : QLocale::English),
            launcher.settings.TitleLanguageKorean);
    }
    return *launcher.titleOrder;
}

void ShowCount(Launcher& launcher)
{
    launcher.ports.timers.RunPendingEvents();
    launcher.screens.status.count = launcher.lang.Text(3, {u"게임"_s}) +
                                    QString::number(launcher.screens.list.items.size()) + u" / "_s +
                                    QString::number(launcher.icons.Count());
    launcher.screens.status.changed.Tell(shell::StatusBar::Texts);
}

} // namespace

void RefreshGameList(Launcher& launcher)
{
    const QStringList buildNames = launcher.options.BuildNames();
    const ListSource source{
        launcher.catalogue,
        buildNames,
        launcher.settings.TitleLanguageKorean,
        launcher.screens.search.txtFind};
    GameList& list = launcher.screens.list;
    const ListOutcome outcome =
        BuildGameList(list, OrderOf(launcher), source, WholeIndex(launcher.catalogue));
    switch (outcome) {
    case ListOutcome::NoFilterHit: break;
    case ListOutcome::NoItem:
        launcher.screens.frame.caption = launcher.WindowTitle;
        launcher.screens.frame.changed.Tell(shell::MainFrame::Caption);
        ShowCount(launcher);
        break;
    case ListOutcome::Items:
        shell::SetPanelsEnabled(launcher, true);
        ShowCount(launcher);
        break;
    }
    if (list.visible) {
        list.changed.Tell(GameList::Focus);
    } else if (!list.items.empty()) {
        launcher.screens.search.changed.Tell(SearchBox::Focus);
    }
}

void LVGamelist_ColumnClick(Launcher& launcher, int column)
{
    if (column < 0 || column >= kColumns) {
        return;
    }
    GameList& list = launcher.screens.list;
    const QString selected =
        list.selected < 0 ? QString() : list.items[static_cast<std::size_t>(list.selected)].folder;
    const platform::RedrawLock lock(launcher.screens.gate);
    list.sort = ListSort{column, column == list.sort.column && !list.sort.descending};
    RefreshGameList(launcher);
    if (const int row = list.RowOf(selected); row >= 0) {
        list.Select(row);
    }
}

void SetView(Launcher& launcher, View view)
{
    const platform::RedrawLock lock(launcher.screens.gate);
    launcher.screens.list.view = view;
    launcher.screens.list.changed.Tell(GameList::ViewMode);
    launcher.screens.notice.visible = false;
    launcher.screens.notice.changed.Tell(shell::BusyNotice::All);
}

} // namespace pelorin::finding
