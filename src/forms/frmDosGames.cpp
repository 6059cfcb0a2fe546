#include "forms/frmDosGames.h"

#include "forms/AddGameButton.h"
#include "forms/EmptyLibraryButton.h"
#include "forms/FilterTreeView.h"
#include "forms/FormUnits.h"
#include "forms/GameListView.h"
#include "forms/Metrics.h"
#include "forms/Overlays.h"
#include "forms/Pictures.h"
#include "forms/RightPanel.h"
#include "forms/StatusPanels.h"
#include "forms/Texts.h"
#include "forms/Toolbar.h"
#include "forms/frmConfigDetail.h"
#include "shell/MinimumSize.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLayout>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

using shell::MainFrame;

namespace {

constexpr double kTreeEms = 14;
constexpr double kDesignEms = 108;
constexpr double kDesignLines = 50;
constexpr double kMostOfScreen = 0.95; // the rest is for the frame

QFrame* VerticalLine(QWidget* parent)
{
    auto* line = new QFrame(parent);
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

} // namespace

frmDosGames::frmDosGames(const Shown& shown, const Deeds& deeds)
    : m_shown(shown)
    , m_deeds(deeds)
    , m_geometry(*this, shown.screens.frame)
    , m_listening(shown.screens.frame.changed, [this](std::uint32_t changed) { Follow(changed); })
    , m_panelsListening(
          shown.screens.frame.panelsEnabled, [this](std::uint32_t) { ShowPanelsEnabled(); })
{
    setObjectName(u"frmDosGames"_s);
    setWindowIcon(ApplicationIcon());
    auto* back = new QWidget(this);
    setCentralWidget(back);
    auto* row = new QHBoxLayout(back);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    BuildLeft();
    m_picBack1 = new RightPanel(shown, deeds, back);
    row->addWidget(m_picBack0, 1);
    row->addWidget(VerticalLine(back));
    row->addWidget(m_picBack1);
    m_addGame = new AddGameButton(deeds, back);
    m_addGame->StandOver(m_toolbar->AddGamePlace());
    m_status = new StatusPanels(shown, deeds, this);
    setStatusBar(m_status);
    setTabOrder(m_toolbar->BeforeAddGame(), m_addGame);
    m_configDetail = new frmConfigDetail(shown, deeds, this);
    BuildKeys();
    Follow(MainFrame::Caption);
    if (shown.lang.IsLoaded()) {
        Follow(MainFrame::Language);
    }
    ShowPanelsEnabled();
    const QSize designed(Ems(*this, kDesignEms), Lines(*this, kDesignLines));
    resize(designed.boundedTo(screen()->availableSize() * kMostOfScreen));
    m_list->View()->setFocus();
}

frmDosGames::~frmDosGames() = default;

void frmDosGames::BuildLeft()
{
    m_picBack0 = new QWidget(centralWidget());
    m_picBack0->setObjectName(u"picBack_0"_s);
    m_toolbar = new Toolbar(m_shown, m_deeds, m_picBack0);
    auto* split = new QSplitter(Qt::Horizontal, m_picBack0);
    split->setChildrenCollapsible(false);
    split->setHandleWidth(qMax(3, Gap(*this) / 2));
    m_tree = new FilterTreeView(m_shown, m_deeds, split);
    m_list = new GameListView(m_shown, m_deeds, split);
    m_list->setMinimumWidth(Ems(*this, 12));
    m_tree->setMinimumWidth(Ems(*this, 6));
    split->addWidget(m_tree);
    split->addWidget(m_list);
    split->setStretchFactor(0, 0);
    split->setStretchFactor(1, 1);
    split->setSizes({Ems(*this, kTreeEms), Ems(*this, 3 * kTreeEms)});
    auto* column = new QVBoxLayout(m_picBack0);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_toolbar);
    column->addWidget(split, 1);
    // No children of the panel: they stay readable while that is disabled.
    m_progress = new ProgressOverlay(m_shown, centralWidget());
    m_notice = new NoticeOverlay(m_shown, m_deeds, centralWidget());
    m_emptyLibrary = new EmptyLibraryButton(m_deeds, centralWidget());
    m_list->installEventFilter(this);
    split->installEventFilter(this);
    m_list->SetViewModeListener([this] { m_toolbar->ShowViewMode(); });
}

void frmDosGames::BuildKeys()
{
    // Of the left panel, so that they rest with it.
    auto* refresh = new QShortcut(QKeySequence(Qt::Key_F5), m_picBack0);
    refresh->setContext(Qt::WidgetWithChildrenShortcut);
    // In an empty library the panels rest, and games are only found by reading again.
    m_refreshEmpty = new QShortcut(QKeySequence(Qt::Key_F5), this);
    for (QShortcut* key : {refresh, m_refreshEmpty}) {
        key->setAutoRepeat(false);
        connect(key, &QShortcut::activated, this, [this] { Do(m_deeds.cmdRefresh_Click); });
    }
    auto* find = new QShortcut(QKeySequence(Qt::Key_F3), m_picBack0);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, this, [this] {
        if (!m_shown.screens.list.items.empty()) {
            m_toolbar->Find()->setFocus();
            m_toolbar->Find()->selectAll();
        }
    });
}

void frmDosGames::Follow(std::uint32_t changed)
{
    if ((changed & MainFrame::Language) != 0) {
        TakeTexts();
    }
    if ((changed & MainFrame::TitlePicture) != 0) {
        m_toolbar->ShowTitlePicture();
    }
    if ((changed & MainFrame::Site) != 0) {
        m_toolbar->ShowSite();
    }
    if ((changed & MainFrame::Tab) != 0) {
        m_picBack1->ShowTab();
    }
    FollowWindow(changed);
}

void frmDosGames::ShowPanelsEnabled()
{
    m_picBack0->setEnabled(m_shown.screens.frame.picBack0Enabled);
    m_refreshEmpty->setEnabled(!m_picBack0->isEnabled());
    m_picBack1->setEnabled(m_shown.screens.frame.picBack1Enabled);
    m_emptyLibrary->SetShown(m_shown.screens.frame.isEmptyLibrary);
}

void frmDosGames::FollowWindow(std::uint32_t changed)
{
    if ((changed & MainFrame::Caption) != 0) {
        setWindowTitle(m_shown.screens.frame.caption);
        QCoreApplication::setApplicationName(m_shown.screens.frame.applicationTitle);
    }
    if ((changed & MainFrame::Geometry) != 0) {
        ShowMinimumSize();
        m_geometry.Apply();
    }
    if ((changed & MainFrame::Show) != 0) {
        m_geometry.Show();
    }
    if ((changed & MainFrame::Front) != 0) {
        raise();
        activateWindow();
    }
}

void frmDosGames::TakeTexts()
{
    ApplyTexts(*this, m_shown.lang);
    m_toolbar->TakeTexts();
    m_list->TakeTexts();
    m_notice->TakeTexts(m_shown.lang);
    m_picBack1->TakeTexts();
    m_addGame->ShowPicture(m_shown.lang.IsKorean());
    m_addGame->TakeSize();
    if (isVisible()) {
        ShowMinimumSize(); // else as it comes up
    }
}

void frmDosGames::ShowMinimumSize()
{
    // The formulas tell the limit, not what the layouts would like.
    layout()->setSizeConstraint(QLayout::SetNoConstraint);
    if (!m_shown.screens.frame.minimumSizeHook) {
        setMinimumSize(1, 1);
        return;
    }
    const QSize frame = frameGeometry().size() - geometry().size();
    shell::FrameParts parts;
    parts.cmdVespraLeft = UnitsOf(m_toolbar->VespraLeft());
    parts.cmdVespraWidth = UnitsOf(m_toolbar->Vespra()->sizeHint().width());
    parts.picBack1Width = UnitsOf(m_picBack1->minimumWidth());
    parts.picInfo0Left = UnitsOf(m_picBack1->layout()->contentsMargins().left());
    parts.outerWidth = UnitsOf(width() + frame.width());
    parts.innerWidth = UnitsOf(width());
    parts.tabInfoHeight = UnitsOf(m_picBack1->Rail()->sizeHint().height());
    parts.sbDirectoryHeight = UnitsOf(m_status->sizeHint().height());
    parts.outerHeight = UnitsOf(height() + frame.height());
    parts.innerHeight = UnitsOf(height());
    const shell::PixelSize outer = shell::MinimumSize(parts);
    setMinimumSize(outer.width - frame.width(), outer.height - frame.height());
}

void frmDosGames::PlaceOverlays()
{
    const QRect area(m_list->mapTo(centralWidget(), QPoint(0, 0)), m_list->size());
    m_progress->Place(area);
    m_notice->Place(area);
    m_emptyLibrary->Place(area);
}

void frmDosGames::closeEvent(QCloseEvent* event)
{
    m_geometry.Remember();
    event->setAccepted(!m_deeds.Form_Unload || m_deeds.Form_Unload());
}

void frmDosGames::moveEvent(QMoveEvent* event)
{
    QMainWindow::moveEvent(event);
    m_geometry.Remember();
}

void frmDosGames::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    m_geometry.Remember();
}

void frmDosGames::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        m_geometry.Remember();
    }
}

bool frmDosGames::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) {
        PlaceOverlays();
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace pelorin::forms
