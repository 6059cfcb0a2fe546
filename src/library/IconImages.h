#pragma once

#include "library/IconPixels.h"
#include "platform/Outcome.h"

#include <QByteArray>
#include <QString>

#include <cstdint>

// Icons in and out of picture files, through FreeImage. Files come from anywhere: larger than
// kMostPictureBytes or kMostPicturePixels is refused before the pixels are unpacked.

namespace pelorin::library {

inline constexpr qint64 kMostPictureBytes = 64LL * 1024 * 1024;
inline constexpr qint64 kMostPicturePixels = 64LL * 1024 * 1024;

/// A picture of any size, drawn on white and scaled to 32 x 32. Of all formats that FreeImage knows
/// those whose size it tells beforehand: JPEG, PNG, BMP and some more, but not GIF.
/// Error NotFound, Unreadable, or Malformed for what is no picture.
platform::Outcome<IconPixels> LoadIcon(const QString& path);

/// The picture of a .ico file that suits 32 x 32 best, drawn on white.
platform::Outcome<IconPixels> LoadIco(const QString& path);

/// The same picture with another side, by the Lanczos-3 filter. No picture gives no picture.
IconPixels Rescaled(const IconPixels& icon, int side);

/// The bytes of a JPEG file in the best quality. Empty for no picture.
QByteArray EncodeJpeg(const IconPixels& icon);

/// Writes a JPEG file, replacing an older one.
platform::Done SaveIcon(const QString& path, const IconPixels& icon);

/// A square of one colour.
IconPixels PlainIcon(int side, std::uint8_t blue, std::uint8_t green, std::uint8_t red);

} // namespace pelorin::library
