#pragma once

#include <QByteArray>

#include <FreeImage.h>

#include <cstdint>
#include <vector>

namespace pelorin::test {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 255;
};

/// What FreeImage writes for a bitmap, which goes with the call.
QByteArray FileOf(FIBITMAP* bitmap, FREE_IMAGE_FORMAT format, int flags = 0);

/// A picture file of one colour: FIF_PNG, FIF_JPEG or FIF_BMP.
QByteArray PictureFile(FREE_IMAGE_FORMAT format, int width, int height, Colour colour);

struct IcoPicture {
    QByteArray data;
    int side = 0;
};

/// A DIB with an empty mask, as .ico files hold them.
IcoPicture IcoDib(int side, Colour colour);
QByteArray IcoFile(const std::vector<IcoPicture>& pictures);

} // namespace pelorin::test
