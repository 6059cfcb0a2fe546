#include "forms/AddGameButton.h"

#include "forms/Menus.h"
#include "forms/Metrics.h"
#include "forms/Pictures.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

namespace {

QStringList LocalPaths(const QMimeData& data)
{
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            paths << url.toLocalFile();
        }
    }
    return paths;
}

} // namespace

AddGameButton::AddGameButton(const Deeds& deeds, QWidget* parent)
    : QToolButton(parent)
    , m_deeds(deeds)
{
    setObjectName(u"picAddGame"_s);
    ShowPicture(true);
    const int side = SmallSide(*this);
    setIconSize(QSize(side, side));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setAcceptDrops(static_cast<bool>(deeds.picAddGame_DragDrop));
    setEnabled(deeds.picAddGame_Click || deeds.mnuDownload || deeds.picAddGame_DragDrop);
    connect(this, &QToolButton::clicked, this, [this] { Do(m_deeds.picAddGame_Click); });
}

void AddGameButton::StandOver(QWidget* place)
{
    m_place = place;
    // The place moves within its parents as well as with them.
    for (QWidget* widget = place; widget != nullptr && widget != parentWidget();
         widget = widget->parentWidget()) {
        widget->installEventFilter(this);
    }
    TakeSize();
}

void AddGameButton::ShowPicture(bool korean)
{
    setIcon(PictureIcon(korean ? u"add-game-korean"_s : u"add-game-english"_s));
}

void AddGameButton::TakeSize()
{
    if (m_place == nullptr) {
        return;
    }
    m_place->setFixedSize(sizeHint());
    Follow();
}

void AddGameButton::Follow()
{
    setGeometry(QRect(m_place->mapTo(parentWidget(), QPoint(0, 0)), m_place->size()));
    raise();
}

bool AddGameButton::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) {
        Follow();
    }
    return QToolButton::eventFilter(watched, event);
}

void AddGameButton::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_deeds.mnuDownload) {
        PopupMenu(
            *this,
            u"mnuDownload"_s,
            m_deeds.mnuDownload(),
            m_deeds.mnuDownload_Click,
            event->globalPos());
    }
}

void AddGameButton::dragEnterEvent(QDragEnterEvent* event)
{
    if (!LocalPaths(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void AddGameButton::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    Do(m_deeds.picAddGame_DragDrop, LocalPaths(*event->mimeData()));
}

} // namespace pelorin::forms
