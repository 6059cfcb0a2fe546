#include "forms/FocusRing.h"

#include "forms/ReadablePalette.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QPainter>

namespace pelorin::forms {

namespace {

class Ring : public QWidget {
public:
    explicit Ring(QWidget* parent)
        : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        setGeometry(parent->rect());
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        constexpr double kLine = 2;
        QPainter painter(this);
        const QPalette& colours = palette();
        const QColor line = Contrasting(
            colours.color(QPalette::Highlight),
            colours.color(QPalette::Text),
            colours.color(QPalette::Base),
            kLineContrast);
        painter.setPen(QPen(line, kLine));
        painter.drawRect(QRectF(rect()).adjusted(kLine / 2, kLine / 2, -kLine / 2, -kLine / 2));
    }
};

} // namespace

FocusRing::FocusRing(QApplication& application)
{
    connect(&application, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        StandAround(now);
    });
}

FocusRing::~FocusRing()
{
    delete m_ring;
}

void FocusRing::StandAround(QWidget* focused)
{
    delete m_ring;
    if (qobject_cast<QAbstractScrollArea*>(focused) != nullptr) {
        m_ring = new Ring(focused);
        focused->installEventFilter(this);
        m_ring->show();
    }
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    const bool isAround = m_ring != nullptr && m_ring->parent() == watched;
    if (event->type() == QEvent::Resize && isAround) {
        m_ring->setGeometry(m_ring->parentWidget()->rect());
    }
    if (!isAround) {
        watched->removeEventFilter(this);
    }
    return false;
}

} // namespace pelorin::forms
