#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace pelorin::forms {

enum class PictureTrouble {
    None,
    NoPicture, // not one of the kinds that can be shown, whatever the name says
    Broken,
    TooLarge, // would take more memory than a picture may
};

struct PictureFile {
    QImage image; // null when there is a trouble
    PictureTrouble trouble = PictureTrouble::None;
    QSize size; // as the file tells; of the picture the right way up
};

/// A picture may take so many bytes while it is read; 32 million dots of 4 bytes.
inline constexpr qint64 kMostPictureMemory = qint64{128} * 1024 * 1024;

/// Reads a JPEG, PNG, GIF or BMP, told apart by content. Of an animation the first picture. Made
/// smaller where it is larger than `bound`, in shape.
PictureFile ReadPicture(const QString& path, QSize bound);

} // namespace pelorin::forms
