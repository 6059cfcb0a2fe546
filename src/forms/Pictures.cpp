#include "forms/Pictures.h"

#include "forms/ReadablePalette.h"

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

namespace {

QByteArray SvgText(const QString& name)
{
    QFile file(u":/pictures/"_s + name + u".svg"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage DrawSvg(const QByteArray& svg, QSize pixels)
{
    QBuffer buffer;
    buffer.setData(svg);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize(pixels);
    return reader.read();
}

/// Draws an SVG text. "currentColor" in it becomes the palette's text colour and "accentColor" its
/// highlight, made to stand out from buttons, at the moment of drawing.
class SvgEngine : public QIconEngine {
public:
    explicit SvgEngine(QString name)
        : m_name(std::move(name))
    {}

    QIconEngine* clone() const override { return new SvgEngine(m_name); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const double ratio = painter->device()->devicePixelRatioF();
        QPixmap pixmap = this->pixmap(rect.size() * ratio, mode, state);
        pixmap.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect, pixmap);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        const bool disabled = mode == QIcon::Disabled;
        const QPalette palette = QApplication::palette();
        const auto group = disabled ? QPalette::Disabled : QPalette::Active;
        const bool selected = mode == QIcon::Selected;
        const QColor text =
            palette.color(group, selected ? QPalette::HighlightedText : QPalette::ButtonText);
        const QColor accent = disabled || selected ? text
                                                   : Contrasting(
                                                         palette.color(QPalette::Highlight),
                                                         text,
                                                         palette.color(QPalette::Button),
                                                         kLineContrast);
        const int side = qMin(size.width(), size.height());
        const QString key = u"pelorin %1 %2 %3 %4x%5"_s.arg(m_name, text.name(), accent.name())
                                .arg(size.width())
                                .arg(size.height());
        QPixmap drawn;
        if (!QPixmapCache::find(key, &drawn)) {
            drawn = Draw(size, side, text, accent);
            QPixmapCache::insert(key, drawn);
        }
        return drawn;
    }

private:
    QPixmap Draw(QSize size, int side, const QColor& text, const QColor& accent) const
    {
        const QByteArray svg = SvgText(m_name)
                                   .replace("currentColor", text.name().toLatin1())
                                   .replace("accentColor", accent.name().toLatin1());
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        const QImage drawn = DrawSvg(svg, QSize(side, side));
        if (!drawn.isNull()) {
            QPainter painter(&image);
            painter.drawImage((size.width() - side) / 2, (size.height() - side) / 2, drawn);
        }
        return QPixmap::fromImage(image);
    }

    QString m_name;
};

} // namespace

QIcon PictureIcon(const QString& name)
{
    return QIcon(new SvgEngine(name));
}

QIcon ApplicationIcon()
{
    return PictureIcon(u"pelorin"_s);
}

library::IconPixels DefaultGameIcon()
{
    const QSize size(library::kLargeIcon, library::kLargeIcon);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    const QImage drawn = DrawSvg(SvgText(u"game"_s), size);
    if (!drawn.isNull()) {
        QPainter painter(&image);
        painter.drawImage(0, 0, drawn);
    }
    const QImage bgr = image.convertToFormat(QImage::Format_BGR888);
    library::IconPixels pixels{library::kLargeIcon, {}};
    for (int y = 0; y < library::kLargeIcon; ++y) {
        const auto* row = reinterpret_cast<const char*>(bgr.constScanLine(y));
        pixels.bgr.append(row, qsizetype{3} * library::kLargeIcon);
    }
    return pixels;
}

QPixmap IconPixmap(const library::IconPixels& icon, int side, double devicePixelRatio)
{
    if (icon.side <= 0 || icon.bgr.size() < qsizetype{3} * icon.side * icon.side) {
        return {};
    }
    const QImage image(
        reinterpret_cast<const uchar*>(icon.bgr.constData()),
        icon.side,
        icon.side,
        qsizetype{3} * icon.side,
        QImage::Format_BGR888);
    const int pixels = qMax(1, qRound(side * devicePixelRatio));
    QPixmap pixmap = QPixmap::fromImage(
        image.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

} // namespace pelorin::forms
