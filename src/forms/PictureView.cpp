#include "forms/PictureView.h"

#include "forms/Metrics.h"
#include "forms/OwnTexts.h"
#include "forms/Texts.h"

#include <QFileInfo>
#include <QMouseEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

namespace {

/// No screen's pic1 shows more; so little is kept, and resizing scales it quickly.
constexpr QSize kMostKept(2048, 2048);

} // namespace

PictureView::PictureView(const shell::LangTable& lang, QWidget* parent)
    : QFrame(parent)
    , m_lang(lang)
{
    setFrameShape(QFrame::StyledPanel);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

QSize PictureView::sizeHint() const
{
    return {LargeSide(*this), LargeSide(*this)};
}

void PictureView::Show(const QString& path)
{
    m_path = path;
    m_read = false;
    m_pic2 = PictureFile();
    m_scaled = QPixmap();
    TakeTexts();
    update();
}

void PictureView::TakeTexts()
{
    const QString name = m_path.isEmpty() ? QString() : QFileInfo(m_path).fileName();
    setAccessibleDescription(QString(name + u' ' + Words()).trimmed());
    setToolTip(AsToolTip(name));
}

QString PictureView::Words() const
{
    if (m_path.isEmpty()) {
        return Own(m_lang, kOwnNoPicture);
    }
    switch (m_pic2.trouble) {
    case PictureTrouble::NoPicture: return Own(m_lang, kOwnNotAPicture);
    case PictureTrouble::Broken: return Own(m_lang, kOwnPictureBroken);
    case PictureTrouble::TooLarge:
        return m_lang.OwnText(
            kOwnPictureLarge.entry,
            QString::fromUtf16(kOwnPictureLarge.english),
            {QString::number(m_pic2.size.width()), QString::number(m_pic2.size.height())});
    case PictureTrouble::None: break;
    }
    return {};
}

void PictureView::Read()
{
    if (!m_read && !m_path.isEmpty()) {
        m_read = true;
        m_pic2 = ReadPicture(m_path, kMostKept);
        TakeTexts();
    }
}

void PictureView::PaintPicture(QPainter& painter, const QRect& area)
{
    const double ratio = devicePixelRatioF();
    const QSize fit = m_pic2.image.size()
                          .scaled(area.size() * ratio, Qt::KeepAspectRatio)
                          .expandedTo(QSize(1, 1));
    if (m_scaled.size() != fit) {
        m_scaled = QPixmap::fromImage(
            m_pic2.image.scaled(fit, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        m_scaled.setDevicePixelRatio(ratio);
    }
    const QSizeF shown = QSizeF(fit) / ratio;
    const QPointF corner(
        area.x() + (area.width() - shown.width()) / 2,
        area.y() + (area.height() - shown.height()) / 2);
    // On a dot of the screen, or the picture would be smeared over two.
    painter.drawPixmap(
        QPointF(qRound(corner.x() * ratio) / ratio, qRound(corner.y() * ratio) / ratio), m_scaled);
}

void PictureView::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    Read();
    QPainter painter(this);
    const QRect area = contentsRect();
    if (!m_pic2.image.isNull()) {
        PaintPicture(painter, area);
        return;
    }
    const int margin = Gap(*this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(
        area.adjusted(margin, margin, -margin, -margin),
        Qt::AlignCenter | Qt::TextWordWrap,
        Words());
}

void PictureView::mouseReleaseEvent(QMouseEvent* event)
{
    if (!rect().contains(event->position().toPoint())) {
        return;
    }
    if (event->button() == Qt::LeftButton && m_clicked) {
        m_clicked();
    } else if (event->button() == Qt::RightButton && m_menu) {
        m_menu(event->globalPosition().toPoint());
    }
}

} // namespace pelorin::forms
