#include "library/IconSheetFile.h"

#include "platform/CacheReplacement.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::library {

namespace {

constexpr int kHeaderBytes = 54; // file header 14, information header 40
constexpr int kInfoHeaderBytes = 40;
constexpr int kBytesAPixel = 3;
constexpr int kFewBands = 4;        // one in so many, at most
constexpr int kPixelsAMetre = 2835; // 72 a inch, what FreeImage gives a new picture

/// A band is one row of cells.
int BandsOf(int count)
{
    return (count - 1) / kSheetColumns + 1;
}

/// Rows are a multiple of 96 bytes long, so they need no filling up to a multiple of 4.
qint64 BandBytesOf(SheetSize size)
{
    return qint64{size.width} * kBytesAPixel * kLargeIcon;
}

/// Where a band begins in the file. The lowest comes first.
qint64 BandOffset(SheetSize size, int band)
{
    const int below = size.height / kLargeIcon - 1 - band;
    return kHeaderBytes + below * BandBytesOf(size);
}

QByteArray HeaderOf(SheetSize size)
{
    QByteArray header(kHeaderBytes, '\0');
    const auto put16 = [&](int at, quint16 value) { qToLittleEndian(value, header.data() + at); };
    const auto put32 = [&](int at, qint64 value) {
        qToLittleEndian(static_cast<quint32>(value), header.data() + at);
    };
    header.replace(0, 2, "BM");
    put32(2, kHeaderBytes + BandBytesOf(size) * (size.height / kLargeIcon));
    put32(10, kHeaderBytes);
    put32(14, kInfoHeaderBytes);
    put32(18, size.width);
    put32(22, size.height);
    put16(26, 1); // planes
    put16(28, 8 * kBytesAPixel);
    put32(38, kPixelsAMetre);
    put32(42, kPixelsAMetre);
    return header;
}

/// Of the header only what tells where the pixels are; others may have written it.
bool IsSheetHeader(const QByteArray& header, SheetSize size)
{
    const auto at16 = [&](int at) { return qFromLittleEndian<quint16>(header.constData() + at); };
    const auto at32 = [&](int at) { return qFromLittleEndian<qint32>(header.constData() + at); };
    return header.size() == kHeaderBytes && header.startsWith("BM") && at32(10) == kHeaderBytes &&
           at32(14) == kInfoHeaderBytes && at32(18) == size.width && at32(22) == size.height &&
           at16(28) == 8 * kBytesAPixel && at32(30) == 0;
}

/// The positions of one row of cells, and how many they are.
struct BandPositions {
    const int* first = nullptr;
    int count = 0;
};

BandPositions PositionsOf(const std::vector<int>& positions, int band)
{
    const int first = band * kSheetColumns;
    const int behind = static_cast<int>(positions.size()) - first;
    return {positions.data() + first, std::min(kSheetColumns, behind)};
}

/// A band as the file has it: a sheet of a few icons is narrower than a band in memory.
QByteArray FileBand(
    const IconSheet& icons, const std::vector<int>& positions, SheetSize size, int band)
{
    const BandPositions wanted = PositionsOf(positions, band);
    QByteArray wide = icons.Band(wanted.first, wanted.count);
    if (BandBytesOf(size) == kBandBytes) {
        return wide;
    }
    const qsizetype rowBytes = qsizetype{size.width} * kBytesAPixel;
    QByteArray narrow;
    narrow.reserve(BandBytesOf(size));
    for (int y = 0; y < kLargeIcon; ++y) {
        narrow.append(wide.constData() + y * kBandRowBytes, rowBytes);
    }
    return narrow;
}

/// The opposite. Shorter than kBandBytes if the file ends within it.
QByteArray ReadBand(QFile& file, SheetSize size)
{
    const qsizetype rowBytes = qsizetype{size.width} * kBytesAPixel;
    if (rowBytes == kBandRowBytes) {
        return file.read(kBandBytes);
    }
    QByteArray wide(kBandBytes, '\0');
    for (int y = 0; y < kLargeIcon; ++y) {
        if (file.read(wide.data() + y * kBandRowBytes, rowBytes) != rowBytes) {
            return QByteArray();
        }
    }
    return wide;
}

/// The bands in which one line of pixels is not as it should be. Where an icon has changed it mostly
/// isn't, and the sheet need not be read whole to know it.
std::vector<bool> BandsWithAStaleLine(
    QFile& file, const IconSheet& icons, const std::vector<int>& positions, SheetSize size)
{
    constexpr int kLine = kLargeIcon / 2;
    const qsizetype rowBytes = qsizetype{size.width} * kBytesAPixel;
    std::vector<bool> stale(static_cast<std::size_t>(size.height / kLargeIcon));
    for (int band = 0; band < size.height / kLargeIcon; ++band) {
        file.seek(BandOffset(size, band) + kLine * rowBytes);
        const QByteArray line = file.read(rowBytes);
        const BandPositions wanted = PositionsOf(positions, band);
        stale[static_cast<std::size_t>(band)] =
            line != icons.Band(wanted.first, wanted.count).mid(kLine * kBandRowBytes, rowBytes);
    }
    return stale;
}

platform::Error FileError(platform::ErrorKind kind, const QFileDevice& file)
{
    return platform::Error{kind, u"%1: %2"_s.arg(file.fileName(), file.errorString())};
}

} // namespace

SheetSize SheetSizeOf(int count)
{
    const int bands = BandsOf(count);
    const int columns = bands > 1 ? kSheetColumns : (count - 1) % kSheetColumns + 1;
    return SheetSize{columns * kLargeIcon, bands * kLargeIcon};
}

platform::Outcome<IconSheet> ReadIconSheet(const QString& path, int count, ScanProgress& progress)
{
    using platform::Error;
    using platform::ErrorKind;
    const SheetSize size = SheetSizeOf(count);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return FileError(file.exists() ? ErrorKind::Unreadable : ErrorKind::NotFound, file);
    }
    const qint64 wanted = kHeaderBytes + BandBytesOf(size) * (size.height / kLargeIcon);
    if (file.size() < wanted || !IsSheetHeader(file.read(kHeaderBytes), size)) {
        return Error{ErrorKind::Malformed, u"%1: not the sheet of %2 icons"_s.arg(path).arg(count)};
    }
    IconSheet icons;
    ProgressSteps steps(progress, Phase::LoadingIcons, count);
    for (int n = 0; n < count; ++n) {
        if (n % kSheetColumns == 0) {
            file.seek(BandOffset(size, n / kSheetColumns));
            QByteArray band = ReadBand(file, size);
            if (band.size() != kBandBytes) {
                return FileError(ErrorKind::Unreadable, file);
            }
            icons.AppendBand(std::move(band), std::min(kSheetColumns, count - n));
        }
        if (!steps.At(n)) {
            return Error{ErrorKind::Abandoned, path};
        }
    }
    return icons;
}

std::optional<std::vector<int>> StaleBands(
    const QString& path, const IconSheet& icons, const std::vector<int>& positions)
{
    const SheetSize size = SheetSizeOf(static_cast<int>(positions.size()));
    const int bands = size.height / kLargeIcon;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ||
        file.size() != kHeaderBytes + BandBytesOf(size) * bands ||
        file.read(kHeaderBytes) != HeaderOf(size)) {
        return std::nullopt;
    }
    const std::vector<bool> surely = BandsWithAStaleLine(file, icons, positions, size);
    if (std::count(surely.begin(), surely.end(), true) * kFewBands > bands) {
        return std::nullopt;
    }
    std::vector<int> stale;
    file.seek(kHeaderBytes);
    QByteArray read(BandBytesOf(size), Qt::Uninitialized);
    for (int band = bands - 1; band >= 0; --band) {
        if (file.read(read.data(), read.size()) != read.size() ||
            read != FileBand(icons, positions, size, band)) {
            stale.push_back(band);
        }
    }
    const bool few = static_cast<int>(stale.size()) * kFewBands <= bands;
    return few ? std::optional(stale) : std::nullopt;
}

platform::Done RewriteBands(
    const QString& path,
    const IconSheet& icons,
    const std::vector<int>& positions,
    const std::vector<int>& bands)
{
    const SheetSize size = SheetSizeOf(static_cast<int>(positions.size()));
    QFile file(path);
    bool written = file.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    for (const int band : bands) {
        const QByteArray now = FileBand(icons, positions, size, band);
        written = written && file.seek(BandOffset(size, band)) && file.write(now) == now.size();
    }
    return written ? platform::Success()
                   : platform::Done(FileError(platform::ErrorKind::Unwritable, file));
}

platform::Done WriteIconSheet(
    const QString& path,
    const IconSheet& icons,
    const std::vector<int>& positions,
    const std::function<platform::Done()>& beforeReplacing,
    const std::function<void()>& afterRow)
{
    const SheetSize size = SheetSizeOf(static_cast<int>(positions.size()));
    platform::CacheReplacement file(path);
    platform::Done written = file.Append(HeaderOf(size));
    for (int band = size.height / kLargeIcon - 1; written && band >= 0; --band) {
        written = file.Append(FileBand(icons, positions, size, band));
        afterRow();
    }
    if (written) {
        written = beforeReplacing();
    }
    return written ? file.Replace() : written;
}

} // namespace pelorin::library
