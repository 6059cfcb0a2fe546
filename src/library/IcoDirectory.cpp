#include "library/private/IcoDirectory.h"

#include <QtEndian>

#include <algorithm>
#include <optional>
#include <vector>

// A .ico file: reserved 0, type 1, count (16 bits each); then 16 bytes a picture: width, height (0
// is 256), colours, reserved, planes, bits (16), length, offset (32). A picture is a DIB of doubled
// height (colours above, mask below) or a PNG file. All little-endian.

namespace pelorin::library {

namespace {

constexpr qsizetype kHeaderSize = 6;
constexpr qsizetype kEntrySize = 16;
constexpr int kMostPictures = 256;

struct Picture {
    QByteArray entry; // its 16 bytes
    QByteArray data;
    qint64 width = 0; // as the data itself claims, not the directory
    qint64 height = 0;
    int bits = 0;
};

template <class Number>
Number LittleAt(const QByteArray& bytes, qsizetype at)
{
    return qFromLittleEndian<Number>(bytes.constData() + at);
}

bool MeasurePng(Picture& picture)
{
    const QByteArray& data = picture.data;
    if (!data.startsWith("\x89PNG\r\n\x1a\n") || data.size() < 26) {
        return false;
    }
    picture.width = qFromBigEndian<quint32>(data.constData() + 16);
    picture.height = qFromBigEndian<quint32>(data.constData() + 20);
    picture.bits = 32;
    return true;
}

bool MeasureDib(Picture& picture)
{
    const QByteArray& data = picture.data;
    if (data.size() < 40 || LittleAt<quint32>(data, 0) != 40) {
        return false;
    }
    picture.width = LittleAt<qint32>(data, 4);
    picture.height = LittleAt<qint32>(data, 8) / 2;
    picture.bits = LittleAt<quint16>(data, 14);
    return true;
}

std::optional<Picture> PictureAt(const QByteArray& ico, int index)
{
    Picture picture;
    picture.entry = ico.mid(kHeaderSize + index * kEntrySize, kEntrySize);
    if (picture.entry.size() < kEntrySize) {
        return std::nullopt;
    }
    const qint64 length = LittleAt<quint32>(picture.entry, 8);
    const qint64 offset = LittleAt<quint32>(picture.entry, 12);
    if (offset + length > ico.size()) {
        return std::nullopt;
    }
    picture.data = ico.mid(offset, length);
    if (!MeasurePng(picture) && !MeasureDib(picture)) {
        return std::nullopt;
    }
    return picture;
}

/// Whether `a` suits better than `b`.
bool SuitsBetter(const Picture& a, const Picture& b, int side)
{
    const bool aFills = a.width >= side;
    const bool bFills = b.width >= side;
    if (aFills != bFills) {
        return aFills;
    }
    if (a.width != b.width) {
        return aFills ? a.width < b.width : a.width > b.width;
    }
    return a.bits > b.bits;
}

} // namespace

QByteArray SingleIco(const QByteArray& ico, int side, qint64 mostPixels)
{
    if (ico.size() < kHeaderSize || LittleAt<quint16>(ico, 0) != 0 ||
        LittleAt<quint16>(ico, 2) != 1) {
        return QByteArray();
    }
    const int count = std::min<int>(LittleAt<quint16>(ico, 4), kMostPictures);
    std::optional<Picture> best;
    for (int i = 0; i < count; ++i) {
        std::optional<Picture> picture = PictureAt(ico, i);
        const bool usable = picture && picture->width > 0 && picture->height > 0 &&
                            picture->width <= mostPixels / picture->height;
        if (usable && (!best || SuitsBetter(*picture, *best, side))) {
            best = std::move(picture);
        }
    }
    if (!best) {
        return QByteArray();
    }
    QByteArray single("\0\0\1\0\1\0", kHeaderSize);
    single += best->entry;
    qToLittleEndian<quint32>(
        static_cast<quint32>(kHeaderSize + kEntrySize), single.data() + kHeaderSize + 12);
    return single + best->data;
}

} // namespace pelorin::library
