#pragma once

#include <QToolButton>

namespace pelorin::forms {

/// A tool button with a menu, whose arrow has a place of its own beside picture and text.
class MenuButton : public QToolButton {
public:
    using QToolButton::QToolButton;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    /// The right button and the menu key open the menu as well.
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    int ArrowWidth() const;
};

} // namespace pelorin::forms
