#include "Pictures.h"

#include <QtEndian>

#include <FreeImage.h>

namespace pelorin::test {

namespace {

template <class Number>
void Put(QByteArray& bytes, Number value)
{
    const qsizetype at = bytes.size();
    bytes.resize(at + static_cast<qsizetype>(sizeof value));
    qToLittleEndian(value, bytes.data() + at);
}

} // namespace

QByteArray PictureFile(PictureFormat format, int width, int height, Colour colour)
{
    FIBITMAP* bitmap = FreeImage_Allocate(width, height, 32);
    for (int y = 0; y < height; ++y) {
        BYTE* line = FreeImage_GetScanLine(bitmap, y);
        for (int x = 0; x < width; ++x, line += 4) {
            line[FI_RGBA_RED] = colour.red;
            line[FI_RGBA_GREEN] = colour.green;
            line[FI_RGBA_BLUE] = colour.blue;
            line[FI_RGBA_ALPHA] = colour.alpha;
        }
    }
    FREE_IMAGE_FORMAT kind = FIF_PNG;
    FIBITMAP* shown = nullptr;
    switch (format) {
    case PictureFormat::Png: shown = FreeImage_Clone(bitmap); break;
    case PictureFormat::Jpeg:
        kind = FIF_JPEG;
        shown = FreeImage_ConvertTo24Bits(bitmap);
        break;
    case PictureFormat::Bmp:
        kind = FIF_BMP;
        shown = FreeImage_ConvertTo24Bits(bitmap);
        break;
    }
    FIMEMORY* memory = FreeImage_OpenMemory(nullptr, 0);
    FreeImage_SaveToMemory(kind, shown, memory, kind == FIF_JPEG ? JPEG_QUALITYSUPERB : 0);
    BYTE* data = nullptr;
    DWORD size = 0;
    FreeImage_AcquireMemory(memory, &data, &size);
    QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    FreeImage_CloseMemory(memory);
    FreeImage_Unload(shown);
    FreeImage_Unload(bitmap);
    return bytes;
}

IcoPicture IcoDib(int side, Colour colour)
{
    QByteArray data;
    Put<quint32>(data, 40);
    Put<qint32>(data, side);
    Put<qint32>(data, side * 2);
    Put<quint16>(data, 1);
    Put<quint16>(data, 32);
    data.append(24, '\0');
    for (int i = 0; i < side * side; ++i) {
        const std::uint8_t pixel[]{colour.blue, colour.green, colour.red, colour.alpha};
        data.append(reinterpret_cast<const char*>(pixel), 4);
    }
    data.append(qsizetype{4} * ((side + 31) / 32) * side, '\0'); // mask
    return {data, side};
}

IcoPicture IcoPng(int side, Colour colour)
{
    return {PictureFile(PictureFormat::Png, side, side, colour), side};
}

QByteArray IcoFile(const std::vector<IcoPicture>& pictures)
{
    QByteArray file;
    Put<quint16>(file, 0);
    Put<quint16>(file, 1);
    Put<quint16>(file, static_cast<quint16>(pictures.size()));
    auto offset = static_cast<quint32>(6 + 16 * pictures.size());
    for (const IcoPicture& picture : pictures) {
        const auto side = static_cast<quint8>(picture.side);
        Put<quint8>(file, side);
        Put<quint8>(file, side);
        Put<quint16>(file, 0);
        Put<quint16>(file, 1);
        Put<quint16>(file, 32);
        Put<quint32>(file, static_cast<quint32>(picture.data.size()));
        Put<quint32>(file, offset);
        offset += static_cast<quint32>(picture.data.size());
    }
    for (const IcoPicture& picture : pictures) {
        file += picture.data;
    }
    return file;
}

} // namespace pelorin::test
