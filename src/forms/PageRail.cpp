#include "forms/PageRail.h"

#include "forms/Metrics.h"

#include <QKeyEvent>
#include <QPainter>

namespace pelorin::forms {

namespace {

constexpr double kTabEms = 5.5;
constexpr double kTabLines = 4.3;
constexpr double kRailLines = 31;
constexpr int kSelectedAlpha = 46;
constexpr int kHoveredAlpha = 22;

} // namespace

PageRail::PageRail(QWidget* parent)
    : QTabBar(parent)
{
    setShape(RoundedEast);
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideNone);
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize PageRail::sizeHint() const
{
    return {Ems(*this, kTabEms), Lines(*this, kRailLines)};
}

QSize PageRail::tabSizeHint(int) const
{
    return {Ems(*this, kTabEms), Lines(*this, kTabLines)};
}

void PageRail::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int index = 0; index < count(); ++index) {
        PaintTab(painter, index);
    }
}

void PageRail::PaintTab(QPainter& painter, int index) const
{
    const int gap = Gap(*this);
    const bool selected = index == currentIndex();
    const QRectF tab = QRectF(tabRect(index)).adjusted(1, 1, -1, -gap / 2.0);
    QColor ground = palette().color(QPalette::Highlight);
    ground.setAlpha(selected ? kSelectedAlpha : kHoveredAlpha);
    if (isEnabled() && (selected || index == m_hovered)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawRoundedRect(tab, gap, gap);
    }
    if (selected && hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(tab, gap, gap);
    }
    if (selected) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Highlight));
        painter.drawRoundedRect(
            QRectF(tab.right() - gap / 3.0, tab.top() + gap, gap / 3.0, tab.height() - 2.0 * gap),
            gap / 6.0,
            gap / 6.0);
    }
    const int side = qRound(SmallSide(*this) * 1.35);
    const QRect picture(
        qRound(tab.center().x() - side / 2.0), qRound(tab.top() + gap * 1.2), side, side);
    tabIcon(index).paint(
        &painter, picture, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    QFont font = Scaled(this->font(), 0.88);
    font.setBold(selected);
    painter.setFont(font);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    const QRectF words(
        tab.left(),
        picture.bottom() + gap / 2.0,
        tab.width(),
        tab.bottom() - picture.bottom() - gap / 2.0);
    painter.drawText(words, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, tabText(index));
}

void PageRail::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up: setCurrentIndex(qMax(0, currentIndex() - 1)); break;
    case Qt::Key_Down: setCurrentIndex(qMin(count() - 1, currentIndex() + 1)); break;
    case Qt::Key_Home: setCurrentIndex(0); break;
    case Qt::Key_End: setCurrentIndex(count() - 1); break;
    default: QTabBar::keyPressEvent(event);
    }
}

void PageRail::mouseMoveEvent(QMouseEvent* event)
{
    QTabBar::mouseMoveEvent(event);
    m_hovered = tabAt(event->position().toPoint());
    update();
}

void PageRail::leaveEvent(QEvent* event)
{
    QTabBar::leaveEvent(event);
    m_hovered = -1;
    update();
}

} // namespace pelorin::forms
