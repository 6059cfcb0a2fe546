#include "forms/MenuButton.h"

#include <QContextMenuEvent>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace pelorin::forms {

int MenuButton::ArrowWidth() const
{
    return qMax(10, fontMetrics().height() * 3 / 4);
}

QSize MenuButton::sizeHint() const
{
    return QToolButton::sizeHint() + QSize(ArrowWidth(), 0);
}

void MenuButton::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    showMenu();
}

void MenuButton::paintEvent(QPaintEvent*)
{
    QStyleOptionToolButton whole;
    initStyleOption(&whole);
    whole.features &= ~QStyleOptionToolButton::HasMenu;
    QStyleOptionToolButton frame = whole;
    frame.icon = QIcon();
    frame.text.clear();
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ToolButton, frame);
    const int width = ArrowWidth();
    const int edge = width / 3;
    whole.rect.adjust(edge, 0, -width, 0);
    painter.drawControl(QStyle::CE_ToolButtonLabel, whole);
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = QRect(rect().right() - width - edge / 2, (height() - width) / 2, width, width);
    painter.drawPrimitive(QStyle::PE_IndicatorArrowDown, arrow);
}

} // namespace pelorin::forms
