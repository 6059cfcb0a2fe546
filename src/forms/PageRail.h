#pragma once

#include <QTabBar>

namespace pelorin::forms {

/// tabInfo: the pages' names under their pictures, one below the other. Its height is fixed: with
/// the status bar it makes the smallest height of the window.
class PageRail : public QTabBar {
public:
    explicit PageRail(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void PaintTab(QPainter& painter, int index) const;

    int m_hovered = -1;
};

} // namespace pelorin::forms
