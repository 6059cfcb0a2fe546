#include "forms/PictureFile.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace pelorin::forms {

namespace {

qint64 BytesOf(QSize size, QImage::Format format)
{
    constexpr int kUsualBits = 32;
    const int bits = format == QImage::Format_Invalid
                         ? kUsualBits
                         : qMax(kUsualBits, int(QImage::toPixelFormat(format).bitsPerPixel()));
    return qint64{size.width()} * size.height() * bits / 8;
}

struct ShownFormat {
    const char* start; // of the file
    const char* name;
};

/// What a file is shows in its first bytes: its name promises anything.
constexpr std::array<ShownFormat, 4> kShownFormats{
    {{"\xff\xd8\xff", "jpeg"}, {"\x89PNG", "png"}, {"GIF8", "gif"}, {"BM", "bmp"}}};

/// Empty for all else.
QByteArray FormatOf(QFile& file)
{
    const QByteArray start = file.peek(8);
    const auto* const hit =
        std::find_if(kShownFormats.begin(), kShownFormats.end(), [&](const ShownFormat& format) {
            return start.startsWith(format.start);
        });
    return hit == kShownFormats.end() ? QByteArray() : QByteArray(hit->name);
}

} // namespace

PictureFile ReadPicture(const QString& path, QSize bound)
{
    PictureFile picture;
    QFile file(path);
    // A pipe would wait for somebody who writes into it.
    const bool opens = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
    const QByteArray format = opens ? FormatOf(file) : QByteArray();
    QImageReader reader(&file, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    if (format.isEmpty() || !reader.canRead()) {
        picture.trouble = PictureTrouble::NoPicture;
        return picture;
    }
    // The height of a bitmap whose first row is the top one is negative.
    const QSize size(reader.size().width(), std::abs(reader.size().height()));
    const bool lies = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    picture.size = lies ? size.transposed() : size;
    if (size.isEmpty()) {
        picture.trouble = PictureTrouble::Broken;
        return picture;
    }
    if (BytesOf(size, reader.imageFormat()) > kMostPictureMemory) {
        picture.trouble = PictureTrouble::TooLarge;
        return picture;
    }
    if (picture.size.width() > bound.width() || picture.size.height() > bound.height()) {
        const QSize scaled =
            picture.size.scaled(bound, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
        reader.setScaledSize(lies ? scaled.transposed() : scaled);
    }
    picture.image = reader.read();
    picture.trouble = picture.image.isNull() ? PictureTrouble::Broken : PictureTrouble::None;
    return picture;
}

} // namespace pelorin::forms
