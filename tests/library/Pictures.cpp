#include "Pictures.h"

#include <QtEndian>

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

QByteArray FileOf(FIBITMAP* bitmap, FREE_IMAGE_FORMAT format, int flags)
{
    FIMEMORY* memory = FreeImage_OpenMemory(nullptr, 0);
    FreeImage_SaveToMemory(format, bitmap, memory, flags);
    BYTE* data = nullptr;
    DWORD size = 0;
    FreeImage_AcquireMemory(memory, &data, &size);
    QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    FreeImage_CloseMemory(memory);
    FreeImage_Unload(bitmap);
    return bytes;
}

QByteArray PictureFile(FREE_IMAGE_FORMAT format, int width, int height, Colour colour)
{
    const bool png = format == FIF_PNG; // the only one of them that is transparent
    FIBITMAP* bitmap = FreeImage_Allocate(width, height, png ? 32 : 24);
    RGBQUAD pixel{colour.blue, colour.green, colour.red, colour.alpha};
    for (int i = 0; i < width * height; ++i) {
        FreeImage_SetPixelColor(
            bitmap, static_cast<unsigned>(i % width), static_cast<unsigned>(i / width), &pixel);
    }
    return FileOf(bitmap, format, format == FIF_JPEG ? JPEG_QUALITYSUPERB : 0);
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
