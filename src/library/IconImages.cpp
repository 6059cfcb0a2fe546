#include "library/IconImages.h"

#include "library/private/FreeImageHandles.h"
#include "library/private/IcoDirectory.h"
#include "platform/TextFile.h"

#include <array>
#include <cstring>
#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::library {

namespace {

static_assert(FREEIMAGE_COLORORDER == FREEIMAGE_COLORORDER_BGR);

constexpr int kBytesAPixel = 3;

platform::Error NoPicture(const QString& path)
{
    return platform::Error::Worded(
        platform::ErrorKind::Malformed, platform::Wording{475, u"<1> is no picture."_s, {path}});
}

platform::Outcome<QByteArray> ReadPictureFile(const QString& path)
{
    platform::Outcome<QByteArray> bytes = platform::ReadPlainFile(path, kMostPictureBytes);
    const bool refused = !bytes && bytes.Failure().kind == platform::ErrorKind::Refused;
    return refused ? NoPicture(path) : bytes;
}

Memory MemoryOf(const QByteArray& bytes)
{
    // FreeImage only reads from it; its interface has no const.
    auto* data = reinterpret_cast<BYTE*>(const_cast<char*>(bytes.constData()));
    return Memory(FreeImage_OpenMemory(data, static_cast<DWORD>(bytes.size())));
}

bool IsTooLarge(qint64 width, qint64 height)
{
    return width < 1 || height < 1 || width > kMostPicturePixels / height;
}

bool IsTooLarge(FIBITMAP* bitmap)
{
    return IsTooLarge(FreeImage_GetWidth(bitmap), FreeImage_GetHeight(bitmap));
}

struct JpegSize {
    int width = 0; // 0: not told
    int height = 0;
};

/// What the frame of a JPEG file tells. Most icons are JPEG files, and to have FreeImage read the
/// header beforehand takes half as long as the pixels.
JpegSize JpegSizeOf(const QByteArray& bytes)
{
    const auto byte = [&](qsizetype at) { return static_cast<quint8>(bytes[at]); };
    const auto word = [&](qsizetype at) { return byte(at) * 256 + byte(at + 1); };
    if (!bytes.startsWith("\xff\xd8\xff")) {
        return {};
    }
    // Segments: 0xff, a mark, the length with its own two bytes. The frame's begins with a byte of
    // depth, then the height and the width. Whatever else a file may hold on the way there is left to
    // FreeImage: two who read it differently would not agree on its size.
    qsizetype at = 2;
    while (at + 9 <= bytes.size() && byte(at) == 0xff) {
        const quint8 mark = byte(at + 1);
        if (mark >= 0xc0 && mark <= 0xcf && mark != 0xc4 && mark != 0xc8 && mark != 0xcc) {
            return {word(at + 7), word(at + 5)};
        }
        const bool segment = mark == 0xc4 || (mark >= 0xda && mark <= 0xfe);
        if (!segment || word(at + 2) < 2) {
            return {};
        }
        at += 2 + word(at + 2);
    }
    return {};
}

/// In full, or in a half, a quarter or an eighth of the size while that has all that an icon shows.
Bitmap UnpackJpeg(FIMEMORY* memory, JpegSize size)
{
    const bool square = size.width == size.height; // of others one side would become too short
    return Bitmap(FreeImage_LoadFromMemory(FIF_JPEG, memory, square ? kLargeIcon << 16 : 0));
}

/// The pixels of any format whose header can be looked at first.
Bitmap Unpack(const QByteArray& bytes)
{
    const Memory memory = MemoryOf(bytes);
    if (const JpegSize size = JpegSizeOf(bytes); !IsTooLarge(size.width, size.height)) {
        return UnpackJpeg(memory.get(), size);
    }
    const FREE_IMAGE_FORMAT format = FreeImage_GetFileTypeFromMemory(memory.get(), 0);
    if (format == FIF_UNKNOWN || FreeImage_FIFSupportsReading(format) == FALSE ||
        FreeImage_FIFSupportsNoPixels(format) == FALSE) {
        return nullptr;
    }
    const Bitmap header(FreeImage_LoadFromMemory(format, memory.get(), FIF_LOAD_NOPIXELS));
    if (!header || IsTooLarge(header.get())) {
        return nullptr;
    }
    FreeImage_SeekMemory(memory.get(), 0, SEEK_SET);
    return Bitmap(FreeImage_LoadFromMemory(format, memory.get(), 0));
}

/// 24 bits a pixel, what is transparent drawn on white.
Bitmap OnWhite(Bitmap bitmap)
{
    if (FreeImage_GetBPP(bitmap.get()) == 8 * kBytesAPixel &&
        FreeImage_IsTransparent(bitmap.get()) == FALSE) {
        return bitmap;
    }
    if (FreeImage_IsTransparent(bitmap.get()) == FALSE) {
        return Bitmap(FreeImage_ConvertTo24Bits(bitmap.get()));
    }
    const Bitmap deep(FreeImage_ConvertTo32Bits(bitmap.get()));
    if (!deep) {
        return nullptr;
    }
    RGBQUAD white = {255, 255, 255, 0};
    return Bitmap(FreeImage_Composite(deep.get(), FALSE, &white, nullptr));
}

/// FreeImage's rows go from the bottom up.
IconPixels PixelsOf(FIBITMAP* bitmap, int side)
{
    IconPixels icon{side, QByteArray(qsizetype{side} * side * kBytesAPixel, Qt::Uninitialized)};
    const auto rowBytes = static_cast<std::size_t>(side) * kBytesAPixel;
    for (int y = 0; y < side; ++y) {
        std::memcpy(
            icon.bgr.data() + static_cast<std::size_t>(y) * rowBytes,
            FreeImage_GetScanLine(bitmap, side - 1 - y),
            rowBytes);
    }
    return icon;
}

Bitmap BitmapOf(const IconPixels& icon)
{
    Bitmap bitmap(FreeImage_Allocate(icon.side, icon.side, 8 * kBytesAPixel));
    const auto rowBytes = static_cast<std::size_t>(icon.side) * kBytesAPixel;
    for (int y = 0; bitmap && y < icon.side; ++y) {
        std::memcpy(
            FreeImage_GetScanLine(bitmap.get(), icon.side - 1 - y),
            icon.bgr.constData() + static_cast<std::size_t>(y) * rowBytes,
            rowBytes);
    }
    return bitmap;
}

/// An icon without pixels if the bitmap can't be brought to this form.
IconPixels Scaled(const Bitmap& bitmap, int side)
{
    const auto wanted = static_cast<unsigned>(side);
    if (FreeImage_GetWidth(bitmap.get()) == wanted && FreeImage_GetHeight(bitmap.get()) == wanted) {
        return PixelsOf(bitmap.get(), side);
    }
    const Bitmap scaled(FreeImage_Rescale(bitmap.get(), side, side, FILTER_LANCZOS3));
    return scaled ? PixelsOf(scaled.get(), side) : IconPixels();
}

platform::Outcome<IconPixels> IconOf(Bitmap bitmap, const QString& path)
{
    if (!bitmap || IsTooLarge(bitmap.get())) {
        return NoPicture(path);
    }
    const Bitmap flat = OnWhite(std::move(bitmap));
    if (!flat) {
        return NoPicture(path);
    }
    IconPixels icon = Scaled(flat, kLargeIcon);
    return icon.side == 0 ? platform::Outcome<IconPixels>(NoPicture(path)) : icon;
}

} // namespace

platform::Outcome<IconPixels> LoadIcon(const QString& path)
{
    const platform::Outcome<QByteArray> bytes = ReadPictureFile(path);
    if (!bytes) {
        return bytes.Failure();
    }
    return IconOf(Unpack(bytes.Value()), path);
}

platform::Outcome<IconPixels> LoadIco(const QString& path)
{
    const platform::Outcome<QByteArray> bytes = ReadPictureFile(path);
    if (!bytes) {
        return bytes.Failure();
    }
    const QByteArray single = SingleIco(bytes.Value(), kLargeIcon, kMostPicturePixels);
    if (single.isEmpty()) {
        return NoPicture(path);
    }
    const Memory memory = MemoryOf(single);
    return IconOf(Bitmap(FreeImage_LoadFromMemory(FIF_ICO, memory.get(), ICO_MAKEALPHA)), path);
}

IconPixels Rescaled(const IconPixels& icon, int side)
{
    if (icon.side == 0) {
        return IconPixels();
    }
    const Bitmap bitmap = BitmapOf(icon);
    return bitmap ? Scaled(bitmap, side) : IconPixels();
}

QByteArray EncodeJpeg(const IconPixels& icon)
{
    if (icon.side == 0) {
        return QByteArray();
    }
    const Bitmap bitmap = BitmapOf(icon);
    const Memory memory(FreeImage_OpenMemory(nullptr, 0));
    BYTE* data = nullptr;
    DWORD size = 0;
    if (!bitmap ||
        FreeImage_SaveToMemory(FIF_JPEG, bitmap.get(), memory.get(), JPEG_QUALITYSUPERB) == FALSE ||
        FreeImage_AcquireMemory(memory.get(), &data, &size) == FALSE) {
        return QByteArray();
    }
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

platform::Done SaveIcon(const QString& path, const IconPixels& icon)
{
    const QByteArray bytes = EncodeJpeg(icon);
    return bytes.isEmpty() ? platform::Done(NoPicture(path)) : platform::WriteBytes(path, bytes);
}

IconPixels PlainIcon(int side, std::uint8_t blue, std::uint8_t green, std::uint8_t red)
{
    const std::array<char, kBytesAPixel> pixel{
        static_cast<char>(blue), static_cast<char>(green), static_cast<char>(red)};
    IconPixels icon{side, QByteArray()};
    icon.bgr.reserve(qsizetype{side} * side * kBytesAPixel);
    for (int i = 0; i < side * side; ++i) {
        icon.bgr.append(pixel.data(), kBytesAPixel);
    }
    return icon;
}

} // namespace pelorin::library
