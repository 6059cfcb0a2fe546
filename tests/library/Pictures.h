#pragma once

#include <QByteArray>

#include <cstdint>
#include <utility>
#include <vector>

namespace pelorin::test {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 255;
};

enum class PictureFormat { Jpeg, Png, Bmp };

/// A picture file of one colour, made by FreeImage.
QByteArray PictureFile(PictureFormat format, int width, int height, Colour colour);

struct IcoPicture {
    QByteArray data;
    int side = 0;
};

/// A DIB with an empty mask, as .ico files hold them.
IcoPicture IcoDib(int side, Colour colour);
IcoPicture IcoPng(int side, Colour colour);
QByteArray IcoFile(const std::vector<IcoPicture>& pictures);

} // namespace pelorin::test
