#include "forms/GameListView.h"

#include "forms/CellDelegate.h"
#include "forms/FormUnits.h"
#include "forms/Menus.h"
#include "forms/Metrics.h"
#include "forms/OwnTexts.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

using finding::GameList;

namespace {

constexpr int kSettleMs = 40;

/// Stored widths are for 96 dots an inch.
double DotsScale(const QWidget& widget)
{
    return widget.logicalDpiX() / 96.0;
}

/// Keys whose release takes the selection over, also when it could not move.
bool IsMovingKey(int key)
{
    constexpr std::array<int, 6> kKeys{
        Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown};
    return std::find(kKeys.begin(), kKeys.end(), key) != kKeys.end();
}

/// Ctrl+1 is the first column; -1 for other keys.
int ColumnOf(const QKeyEvent& event)
{
    const int column = event.key() - Qt::Key_1;
    const bool sorts = (event.modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier;
    return sorts && column >= 0 && column < finding::kColumns ? column : -1;
}

/// The list's keys that are commands of their own.
const Deeds::Deed* DeedOf(const Deeds& deeds, int key)
{
    switch (key) {
    case Qt::Key_F2: return &deeds.FocusTitle;
    case Qt::Key_F4: return &deeds.RenameGameFolder;
    case Qt::Key_F6: return &deeds.OpenDetails;
    default: return nullptr;
    }
}

} // namespace

GameListView::GameListView(const Shown& shown, const Deeds& deeds, QWidget* parent)
    : QStackedWidget(parent)
    , m_shown(shown)
    , m_deeds(deeds)
    , m_list(shown.screens.list)
    , m_model(m_list, shown.icons)
    , m_selection(&m_model)
    , m_cells(new CellDelegate(this))
    , m_icons(new HookedView<QListView>(Hooks(), this))
    , m_details(new HookedView<QTreeView>(Hooks(), this))
    , m_listening(m_list.changed, [this](std::uint32_t changed) { Follow(changed); })
{
    setObjectName(u"LVGamelist"_s);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    BuildViews();
    m_clock.start();
    m_settle.setSingleShot(true);
    m_settle.setTimerType(Qt::PreciseTimer);
    connect(&m_settle, &QTimer::timeout, this, [this] { Settle(); });
    connect(
        &m_selection, &QItemSelectionModel::selectionChanged, this, [this] { TakeSelection(); });
    connect(&m_selection, &QItemSelectionModel::currentChanged, this, [this] { TakeSelection(); });
    Follow(GameList::Reset | GameList::ViewMode | GameList::Columns);
}

GameListView::~GameListView()
{
    // A view that has the keyboard tells of its loss when it goes: as long as this is whole.
    m_moved = false;
    delete m_icons;
    delete m_details;
}

ViewHooks GameListView::Hooks()
{
    return {
        [this](const QKeyEvent& event) { return KeyPressed(event); },
        [this](const QKeyEvent& event) { KeyReleased(event); },
        [this](const QMouseEvent& event) { MouseReleased(event); },
        [this] { FocusLost(); },
        [this] { MenuKeyPressed(); },
        [this](const QString& text) {
            SelectByUser(m_typeAhead.Type(m_list, text, m_clock.elapsed()));
        },
        [this](const QInputMethodEvent& event) { Composed(event); },
        [this](QWidget& viewport) { m_empty.Paint(viewport); }};
}

QAbstractItemView* GameListView::View() const
{
    return m_list.view == finding::View::Details ? static_cast<QAbstractItemView*>(m_details)
                                                 : m_icons;
}

void GameListView::BuildViews()
{
    m_icons->setObjectName(u"LVGamelist_icons"_s);
    m_icons->setUniformItemSizes(true);
    m_icons->setResizeMode(QListView::Adjust);
    m_icons->setMovement(QListView::Static);
    m_icons->setWrapping(true);
    m_details->setObjectName(u"LVGamelist_details"_s);
    m_details->setUniformRowHeights(true);
    m_details->setRootIsDecorated(false);
    m_details->setItemsExpandable(false);
    m_details->setAllColumnsShowFocus(true);
    m_details->setAlternatingRowColors(true);
    m_details->setItemDelegate(new CellDelegate(m_details));
    m_icons->setItemDelegate(m_cells);
    m_icons->setBackgroundRole(QPalette::Base); // of its margins
    m_icons->setAutoFillBackground(true);
    Prepare(*m_icons);
    Prepare(*m_details);

    QHeaderView& header = *m_details->header();
    header.setSectionsClickable(true);
    header.setSectionsMovable(false);
    header.setStretchLastSection(false);
    header.setSortIndicatorShown(true);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(&header, &QHeaderView::sectionClicked, this, [this](int column) {
        Do(m_deeds.LVGamelist_ColumnClick, column);
    });
    connect(&header, &QHeaderView::sectionResized, this, [this] { TakeColumnWidths(); });
}

void GameListView::Prepare(QAbstractItemView& view)
{
    view.setModel(&m_model);
    view.setSelectionModel(&m_selection);
    view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setFrameShape(QFrame::NoFrame);
    connect(&view, &QAbstractItemView::doubleClicked, this, [this] {
        if (!QGuiApplication::mouseButtons().testAnyFlags(Qt::MiddleButton | Qt::RightButton)) {
            Do(m_deeds.LVGamelist_DblClick);
        }
    });
    addWidget(&view);
}

void GameListView::TakeTexts()
{
    const QString games = Own(m_shown.lang, kOwnGames);
    setAccessibleName(games);
    m_icons->setAccessibleName(games);
    m_details->setAccessibleName(games);
    ShowEmpty();
}

void GameListView::ShowEmpty()
{
    m_empty.Take(m_list, m_shown.lang);
    m_icons->setAccessibleDescription(m_empty.Spoken());
    m_details->setAccessibleDescription(m_empty.Spoken());
}

void GameListView::Follow(std::uint32_t changed)
{
    m_following = true;
    if ((changed & GameList::ViewMode) != 0) {
        ShowViewMode();
    }
    m_model.Follow(changed);
    if ((changed & (GameList::Columns | GameList::Reset)) != 0) {
        ShowColumns();
    }
    if ((changed & GameList::Reset) != 0) {
        ShowEmpty();
    }
    if ((changed & (GameList::Reset | GameList::Selection)) != 0) {
        ShowSelection();
    }
    m_following = false;
    if ((changed & GameList::Focus) != 0) {
        View()->setFocus();
    }
}

void GameListView::ShowViewMode()
{
    const bool large = m_list.view == finding::View::LargeIcons;
    const int side = large ? LargeSide(*this) : SmallSide(*this);
    m_model.SetIconSize(side, devicePixelRatioF());
    m_icons->setIconSize(QSize(side, side));
    m_details->setIconSize(QSize(side, side));
    const int gap = Gap(*this);
    m_icons->setViewMode(large ? QListView::IconMode : QListView::ListMode);
    const QSize cell = large ? QSize(Ems(*this, 10), side + Lines(*this, 2.2) + gap)
                             : QSize(Ems(*this, 18), side + gap);
    m_cells->SetCell(cell);
    m_icons->setGridSize(cell + QSize(gap, large ? gap : 0));
    // Icons keep off the edge, and off the ring that shows who has the keyboard.
    m_icons->setViewportMargins(gap, gap, 0, 0);
    m_icons->setWordWrap(large);
    m_icons->setWrapping(true);
    m_icons->setMovement(QListView::Static);
    m_icons->setResizeMode(QListView::Adjust);
    m_icons->setFlow(
        m_list.view == finding::View::List ? QListView::TopToBottom : QListView::LeftToRight);
    const bool focused = isAncestorOf(focusWidget()) && focusWidget()->hasFocus();
    setCurrentWidget(View());
    setFocusProxy(View());
    if (focused) {
        View()->setFocus();
    }
    if (m_viewModeShown) {
        m_viewModeShown();
    }
    if (m_list.selected >= 0) {
        View()->scrollTo(m_model.index(m_list.selected, 0));
    }
}

void GameListView::ShowColumns()
{
    QHeaderView& header = *m_details->header();
    for (int column = 0; column < finding::kColumns; ++column) {
        const double units = m_list.columnWidths[static_cast<std::size_t>(column)];
        if (units > 0) {
            header.resizeSection(column, PixelsOf(units * DotsScale(*this)));
        }
    }
    header.setSortIndicator(
        m_list.sort.column, m_list.sort.descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void GameListView::ShowSelection()
{
    QItemSelection rows;
    for (const int row : m_list.selectedRows) {
        rows.select(m_model.index(row, 0), m_model.index(row, finding::kColumns - 1));
    }
    m_selection.select(rows, QItemSelectionModel::ClearAndSelect);
    const QModelIndex current = m_model.index(m_list.selected, 0);
    m_selection.setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    if (current.isValid()) {
        View()->scrollTo(current);
    }
    m_moved = false;
}

void GameListView::TakeSelection()
{
    // Under a redraw lock the rows shown may be those of a former list: getting the focus, say,
    // selects one of them, and that is no deed of the user's.
    if (m_following || m_shown.screens.gate.Locked()) {
        return;
    }
    std::vector<int> rows;
    for (const QItemSelectionRange& range : m_selection.selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    const int current = m_selection.currentIndex().row();
    const bool kept = std::binary_search(rows.begin(), rows.end(), current);
    const int selected = kept ? current : (rows.empty() ? -1 : rows.front());
    if (selected == m_list.selected && rows == m_list.selectedRows) {
        return;
    }
    m_list.selected = selected;
    m_list.selectedRows = std::move(rows);
    m_moved = true;
    // The key may be held for long, or its release not come at all: an input method keeps it.
    if (!m_settle.isActive()) {
        m_settle.start(kSettleMs);
    }
    Do(m_deeds.LVGamelist_ItemClick);
}

void GameListView::TakeColumnWidths()
{
    if (m_following) {
        return;
    }
    for (int column = 0; column < finding::kColumns; ++column) {
        m_list.columnWidths[static_cast<std::size_t>(column)] =
            UnitsOf(m_details->header()->sectionSize(column)) / DotsScale(*this);
    }
}

void GameListView::Settle()
{
    m_settle.stop();
    if (m_shown.screens.gate.Locked()) {
        return; // the list is being rebuilt, which shows a game of its own
    }
    m_moved = false;
    m_settled = true;
    Do(m_deeds.LVGamelist_SelectionMoved);
}

bool GameListView::KeyPressed(const QKeyEvent& event)
{
    m_settled = false;
    const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (plain && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)) {
        if (!event.isAutoRepeat() && m_model.rowCount() > 0) {
            Do(m_deeds.LVGamelist_DblClick);
        }
        return true;
    }
    // Deleted on the release, so that a held key deletes one game.
    if (event.key() == Qt::Key_Delete) {
        m_deleting = true;
        return true;
    }
    // Not every platform makes a menu event of it.
    if (event.modifiers() == Qt::ShiftModifier && event.key() == Qt::Key_F10) {
        MenuKeyPressed();
        return true;
    }
    if (const int column = ColumnOf(event); column >= 0) {
        if (!event.isAutoRepeat()) {
            Do(m_deeds.LVGamelist_ColumnClick, column);
        }
        return true;
    }
    const Deeds::Deed* const deed = plain ? DeedOf(m_deeds, event.key()) : nullptr;
    if (deed == nullptr) {
        return false;
    }
    if (!event.isAutoRepeat() && m_list.selected >= 0) {
        Do(*deed);
    }
    return true;
}

void GameListView::KeyReleased(const QKeyEvent& event)
{
    if (event.isAutoRepeat()) {
        return;
    }
    if (event.key() == Qt::Key_Delete) {
        // A release whose press went to a box that stood here deletes nothing.
        if (std::exchange(m_deleting, false)) {
            Do(m_deeds.LVGamelist_Delete);
        }
        return;
    }
    if (m_moved || (IsMovingKey(event.key()) && !m_settled)) {
        Settle();
    }
}

void GameListView::MouseReleased(const QMouseEvent& event)
{
    Settle();
    if (event.button() == Qt::RightButton) {
        ShowGameMenu(event.globalPosition().toPoint());
    }
}

void GameListView::FocusLost()
{
    m_deleting = false;
    // The release of the key that moved the selection will come to somebody else.
    if (m_moved) {
        Settle();
    }
}

void GameListView::MenuKeyPressed()
{
    const QModelIndex selected = m_model.index(m_list.selected, 0);
    if (!selected.isValid()) {
        return;
    }
    Settle();
    View()->scrollTo(selected);
    ShowGameMenu(View()->viewport()->mapToGlobal(View()->visualRect(selected).center()));
}

void GameListView::Composed(const QInputMethodEvent& event)
{
    if (!event.commitString().isEmpty()) {
        SelectByUser(m_typeAhead.Type(m_list, event.commitString(), m_clock.elapsed()));
    }
    SelectByUser(m_typeAhead.Compose(m_list, event.preeditString(), m_clock.elapsed()));
}

/// -1 leaves the selection as it is.
void GameListView::SelectByUser(int row)
{
    if (row >= 0) {
        m_selection.setCurrentIndex(
            m_model.index(row, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        View()->scrollTo(m_selection.currentIndex());
    }
}

void GameListView::ShowGameMenu(QPoint position)
{
    if (m_deeds.mnuGame && !m_list.selectedRows.empty()) {
        PopupMenu(*this, u"mnuGame"_s, m_deeds.mnuGame(), m_deeds.mnuGame_Click, position);
    }
}

void GameListView::showEvent(QShowEvent* event)
{
    QStackedWidget::showEvent(event);
    m_list.visible = true;
    m_following = true;
    ShowViewMode(); // the screen's device pixel ratio is known now
    m_following = false;
}

void GameListView::hideEvent(QHideEvent* event)
{
    QStackedWidget::hideEvent(event);
    m_list.visible = false;
}

void GameListView::changeEvent(QEvent* event)
{
    QStackedWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_following = true;
        ShowViewMode();
        m_following = false;
    }
}

} // namespace pelorin::forms
