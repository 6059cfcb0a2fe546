#pragma once

#include "forms/PictureFile.h"

#include <QFrame>
#include <QPixmap>

#include <functional>

namespace pelorin::shell {
class LangTable;
}

namespace pelorin::forms {

/// pic1: a picture as large as it fits, in shape and in the dots of the screen; or a word about
/// what is wrong with it. The file is read when it is first seen. pic2, the picture whole, is the
/// image that is kept.
class PictureView : public QFrame {
public:
    PictureView(const shell::LangTable& lang, QWidget* parent);

    /// Empty: there is none. The same path again is read again.
    void Show(const QString& path);
    /// A click with the left button, or the right one at a place of the screen.
    void SetClicked(std::function<void()> clicked) { m_clicked = std::move(clicked); }
    void SetMenu(std::function<void(QPoint position)> menu) { m_menu = std::move(menu); }
    void TakeTexts();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void Read();
    void PaintPicture(QPainter& painter, const QRect& area);
    QString Words() const;

    const shell::LangTable& m_lang;
    QString m_path;
    bool m_read = false;
    PictureFile m_pic2;
    QPixmap m_scaled; // in the dots of the screen
    std::function<void()> m_clicked;
    std::function<void(QPoint position)> m_menu;
};

} // namespace pelorin::forms
