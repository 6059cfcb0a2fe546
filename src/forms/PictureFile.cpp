#include "forms/PictureFile.h"

#include <QImageReader>

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

bool IsShown(const QByteArray& format)
{
    return format == "jpeg" || format == "png" || format == "gif" || format == "bmp";
}

} // namespace

PictureFile ReadPicture(const QString& path, QSize bound)
{
    PictureFile picture;
    QImageReader reader(path);
    // Told by its content: a name promises anything.
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!reader.canRead() || !IsShown(reader.format())) {
        picture.trouble = PictureTrouble::NoPicture;
        return picture;
    }
    const QSize size = reader.size();
    const bool lies = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    picture.size = lies ? size.transposed() : size;
    if (size.isEmpty()) {
        picture.trouble = PictureTrouble::Broken;
        return picture;
    }
    if (BytesOf(size, reader.imageFormat()) > kMostPictureBytes) {
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
