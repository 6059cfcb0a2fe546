#include "forms/pages/ValueCombo.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

ValueCombo::ValueCombo(
    QAbstractItemView& list, std::function<void(int index)> chosen, std::function<void()> left)
    : QComboBox(list.viewport())
    , m_list(list)
    , m_caption(new QLabel(list.viewport()))
    , m_chosen(std::move(chosen))
    , m_left(std::move(left))
{
    setObjectName(u"cmbConfig"_s);
    m_caption->setObjectName(u"lblConfig"_s);
    m_caption->setBuddy(this); // screen readers call a combo box by its label alone
    m_caption->hide();
    hide();
    connect(this, &QComboBox::activated, this, [this](int index) { m_chosen(index); });
    connect(list.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (isVisible()) {
            m_left();
        }
    });
}

void ValueCombo::Show(const dosboxconf::OptionCombo& combo, const QString& title)
{
    if (!combo.visible) {
        QComboBox::hidePopup();
        hide();
        return;
    }
    m_caption->setText(title);
    clear();
    addItems(combo.items);
    setCurrentIndex(combo.index);
    const QRect row = m_list.visualRect(m_list.model()->index(combo.row, 0));
    const int more = qMax(0, sizeHint().height() - row.height());
    const int top =
        qBound(0, row.top() - more / 2, qMax(0, m_list.viewport()->height() - row.height() - more));
    setGeometry(0, top, m_list.viewport()->width(), row.height() + more);
    show();
    setFocus();
    showPopup();
}

void ValueCombo::hidePopup()
{
    QComboBox::hidePopup();
    // A value that was chosen is told of in a moment; without one the user is done here.
    QTimer::singleShot(0, this, [this] {
        if (isVisible() && !view()->isVisible()) {
            m_left();
        }
    });
}

void ValueCombo::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape: m_left(); return;
    case Qt::Key_Return:
    case Qt::Key_Enter: m_chosen(currentIndex()); return;
    default: QComboBox::keyPressEvent(event);
    }
}

void ValueCombo::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    // Its own list of values takes the keyboard too, and so may another window for a while.
    const bool comesBack = view()->isVisible() || event->reason() == Qt::PopupFocusReason ||
                           event->reason() == Qt::ActiveWindowFocusReason;
    if (!comesBack && isVisible()) {
        m_left();
    }
}

void ValueCombo::wheelEvent(QWheelEvent* event)
{
    // The wheel scrolls lists; it does not choose.
    event->ignore();
}

} // namespace pelorin::forms
