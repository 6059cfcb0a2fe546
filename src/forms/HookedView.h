#pragma once

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

#include <functional>
#include <utility>

namespace pelorin::forms {

/// What one of the two views passes on before or after it has done its own work.
struct ViewHooks {
    std::function<bool(const QKeyEvent& event)> keyPressed; // true: done with it
    std::function<void(const QKeyEvent& event)> keyReleased;
    std::function<void(const QMouseEvent& event)> mouseReleased;
    std::function<void()> focusLost;
    std::function<void()> menuKeyPressed;
    std::function<void(const QString& text)> typed; // letters that are no command
    std::function<void(const QInputMethodEvent& event)> composed;
    std::function<void(QWidget& viewport)> painted;
};

/// One of Qt's item views with hooks.
template <class QtView>
class HookedView : public QtView {
public:
    HookedView(ViewHooks hooks, QWidget* parent)
        : QtView(parent)
        , m_hooks(std::move(hooks))
    {}

    using QtView::setViewportMargins; // free room between the view's edge and its rows

    void keyboardSearch(const QString& text) override { m_hooks.typed(text); }

protected:
    void inputMethodEvent(QInputMethodEvent* event) override
    {
        m_hooks.composed(*event);
        event->accept();
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (!m_hooks.keyPressed(*event)) {
            QtView::keyPressEvent(event);
        }
    }
    void keyReleaseEvent(QKeyEvent* event) override
    {
        QtView::keyReleaseEvent(event);
        m_hooks.keyReleased(*event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        QtView::mouseReleaseEvent(event);
        m_hooks.mouseReleased(*event);
    }
    void focusOutEvent(QFocusEvent* event) override
    {
        QtView::focusOutEvent(event);
        m_hooks.focusLost();
    }
    void contextMenuEvent(QContextMenuEvent* event) override
    {
        if (event->reason() == QContextMenuEvent::Keyboard) {
            m_hooks.menuKeyPressed();
        }
    }
    void paintEvent(QPaintEvent* event) override
    {
        QtView::paintEvent(event);
        m_hooks.painted(*this->viewport());
    }

private:
    ViewHooks m_hooks;
};

} // namespace pelorin::forms
