#include "forms/WindowGeometry.h"

#include "forms/FormUnits.h"

#include <QGuiApplication>
#include <QScreen>

namespace pelorin::forms {

using State = shell::MainFrame::State;

QSize WindowGeometry::FrameSize() const
{
    return m_window.frameGeometry().size() - m_window.geometry().size();
}

void WindowGeometry::Apply()
{
    if (m_frame.width > 0 && m_frame.height > 0) {
        m_wanted = QSize(PixelsOf(m_frame.width), PixelsOf(m_frame.height));
        m_window.resize(*m_wanted - FrameSize());
    }
    // A place that no screen shows (any more) is left to the window system.
    const QPoint place(PixelsOf(m_frame.left), PixelsOf(m_frame.top));
    for (const QScreen* screen : QGuiApplication::screens()) {
        if (screen->geometry().adjusted(-8, -8, -32, -32).contains(place)) {
            m_window.move(place);
            break;
        }
    }
}

void WindowGeometry::Show()
{
    if (m_frame.state == State::Maximized) {
        m_window.showMaximized();
    } else {
        m_window.show();
    }
    Remember();
}

void WindowGeometry::FitFrame()
{
    // The window manager frames the window some time after it was shown.
    if (m_wanted && m_window.isVisible() && FrameSize() != QSize(0, 0)) {
        const QSize inner = *m_wanted - FrameSize();
        m_wanted.reset();
        m_window.resize(inner);
    }
}

void WindowGeometry::Remember()
{
    if (!m_window.isVisible()) {
        return;
    }
    if (m_window.isMinimized()) {
        m_frame.state = State::Minimized;
        return;
    }
    if (m_window.isMaximized() || m_window.isFullScreen()) {
        m_frame.state = State::Maximized;
        return;
    }
    FitFrame();
    m_frame.state = State::Normal;
    const QRect outer = m_window.frameGeometry();
    m_frame.left = UnitsOf(outer.x());
    m_frame.top = UnitsOf(outer.y());
    m_frame.width = UnitsOf(outer.width());
    m_frame.height = UnitsOf(outer.height());
}

} // namespace pelorin::forms
