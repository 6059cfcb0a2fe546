#include "library/IconImages.h"

#include "LibraryFixture.h"
#include "Pictures.h"
#include "library/IconSheet.h"

#include <QtEndian>

using namespace Qt::StringLiterals;
using namespace pelorin;
using library::IconPixels;
using test::Colour;

namespace {

constexpr Colour kRed{255, 0, 0};

QByteArray Png(int side, Colour colour)
{
    return test::PictureFile(FIF_PNG, side, side, colour);
}

/// The colour in the middle, each part within what JPEG loses.
void ExpectColour(const IconPixels& icon, Colour colour)
{
    ASSERT_EQ(icon.side, library::kLargeIcon);
    ASSERT_EQ(icon.bgr.size(), 32 * 32 * 3);
    const auto at = [&](int part) {
        return static_cast<int>(static_cast<std::uint8_t>(icon.bgr[(16 * 32 + 16) * 3 + part]));
    };
    EXPECT_NEAR(at(0), colour.blue, 4);
    EXPECT_NEAR(at(1), colour.green, 4);
    EXPECT_NEAR(at(2), colour.red, 4);
}

class IconImagesTest : public testing::Test {
protected:
    QString File(const QByteArray& bytes)
    {
        m_root.WriteRaw(u"picture"_s, bytes);
        return m_root.Path(u"picture"_s);
    }

    test::TestFolder m_root;
};

TEST_F(IconImagesTest, LoadsAnyFormatAndSize)
{
    for (const FREE_IMAGE_FORMAT format : {FIF_JPEG, FIF_PNG, FIF_BMP}) {
        for (const auto& [width, height] :
             {std::pair(32, 32), {16, 16}, {300, 40}, {513, 513}, {1, 1}}) {
            const auto icon =
                library::LoadIcon(File(test::PictureFile(format, width, height, {10, 200, 90})));
            ASSERT_TRUE(icon) << format << ' ' << width;
            ExpectColour(icon.Value(), {10, 200, 90});
        }
    }
}

TEST_F(IconImagesTest, TransparencyIsDrawnOnWhite)
{
    const auto half = library::LoadIcon(File(Png(32, {0, 0, 0, 128})));
    ASSERT_TRUE(half);
    ExpectColour(half.Value(), {127, 127, 127});
    const auto ico = library::LoadIco(File(test::IcoFile({test::IcoDib(32, {9, 9, 9, 0})})));
    ASSERT_TRUE(ico);
    ExpectColour(ico.Value(), {255, 255, 255});
}

TEST_F(IconImagesTest, OfAnIcoTheOneThatSuits)
{
    const Colour other{0, 0, 255};
    const std::pair<std::vector<test::IcoPicture>, const char*> cases[] = {
        {{test::IcoDib(16, other), test::IcoDib(32, kRed), test::IcoDib(48, other)}, "its size"},
        {{test::IcoDib(16, other), {Png(64, kRed), 64}, {Png(128, other), 128}}, "larger"},
        {{test::IcoDib(8, other), test::IcoDib(24, kRed)}, "largest of the small"},
        {{{QByteArray("junk"), 32}, test::IcoDib(16, kRed)}, "a damaged one is passed over"},
    };
    for (const auto& [pictures, what] : cases) {
        SCOPED_TRACE(what);
        const auto icon = library::LoadIco(File(test::IcoFile(pictures)));
        ASSERT_TRUE(icon);
        ExpectColour(icon.Value(), kRed);
    }
}

TEST_F(IconImagesTest, WhatIsNoPictureIsAnError)
{
    const QByteArray jpeg = test::PictureFile(FIF_JPEG, 32, 32, kRed);
    const QByteArray ico = test::IcoFile({test::IcoDib(32, kRed)});
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("text"), jpeg.left(30), QByteArray(500, '\xff')}) {
        EXPECT_FALSE(library::LoadIcon(File(bytes)));
    }
    for (const QByteArray& bytes :
         {QByteArray(), ico.left(5), ico.left(20), ico.left(300), jpeg, QByteArray(500, '\0')}) {
        EXPECT_FALSE(library::LoadIco(File(bytes)));
    }
    EXPECT_EQ(
        library::LoadIcon(m_root.Path(u"missing"_s)).Failure().kind, platform::ErrorKind::NotFound);
    EXPECT_FALSE(library::LoadIcon(m_root.Path())) << "a folder";
}

TEST_F(IconImagesTest, APictureThatClaimsToBeHugeIsNotUnpacked)
{
    // Whole, and small as a file: nothing but its size stands against it.
    const auto bitonal = [](int side) {
        FIBITMAP* const bitmap = FreeImage_Allocate(side, side, 1);
        FIMEMORY* const memory = FreeImage_OpenMemory(nullptr, 0);
        FreeImage_SaveToMemory(FIF_PNG, bitmap, memory, 0);
        BYTE* data = nullptr;
        DWORD size = 0;
        FreeImage_AcquireMemory(memory, &data, &size);
        const QByteArray file(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
        FreeImage_CloseMemory(memory);
        FreeImage_Unload(bitmap);
        return file;
    };
    EXPECT_TRUE(library::LoadIcon(File(bitonal(1000))));
    EXPECT_FALSE(library::LoadIcon(File(bitonal(8193)))) << "just above the bound";

    QByteArray png = Png(32, kRed);
    qToBigEndian<quint32>(60000, png.data() + 16);
    qToBigEndian<quint32>(60000, png.data() + 20);
    EXPECT_FALSE(library::LoadIcon(File(png)));
    EXPECT_FALSE(library::LoadIco(File(test::IcoFile({{png, 32}}))));

    QByteArray bmp = test::PictureFile(FIF_BMP, 32, 32, kRed);
    qToLittleEndian<qint32>(200000, bmp.data() + 18);
    qToLittleEndian<qint32>(200000, bmp.data() + 22);
    EXPECT_FALSE(library::LoadIcon(File(bmp)));

    QByteArray jpeg = test::PictureFile(FIF_JPEG, 32, 32, kRed);
    const qsizetype frame = jpeg.indexOf("\xff\xc0");
    ASSERT_GT(frame, 0);
    // Fill bytes and a false frame before the one that counts.
    const QByteArray false32 = jpeg.mid(frame, 19);
    qToBigEndian<quint32>(0xea60ea60, jpeg.data() + frame + 5);
    EXPECT_FALSE(library::LoadIcon(File(jpeg)));
    const QByteArray hidden = QByteArray("\xff\xff\xff\xfe\x00\x15", 6) + false32;
    EXPECT_FALSE(library::LoadIcon(File(QByteArray(jpeg).insert(frame, hidden))));
}

TEST_F(IconImagesTest, SavesAJpegThatComesBack)
{
    const QString path = m_root.Path(u"Icon.jpg"_s);
    ASSERT_TRUE(library::SaveIcon(path, library::PlainIcon(32, 30, 60, 200)));
    EXPECT_TRUE(m_root.ReadRaw(u"Icon.jpg"_s).startsWith("\xff\xd8\xff"));
    const auto icon = library::LoadIcon(path);
    ASSERT_TRUE(icon);
    ExpectColour(icon.Value(), {200, 60, 30});
    EXPECT_FALSE(library::SaveIcon(path, IconPixels()));
    EXPECT_TRUE(m_root.Exists(u"Icon.jpg"_s)) << "no picture replaces no picture";
}

TEST(IconSheetTest, SmallIconsFollowTheLargeOnes)
{
    library::IconSheet icons;
    icons.Append(library::PlainIcon(32, 1, 2, 3));
    icons.Append(library::PlainIcon(32, 50, 60, 70));
    EXPECT_EQ(icons.Small(1).bgr, library::PlainIcon(16, 50, 60, 70).bgr);
    icons.Set(1, library::PlainIcon(32, 200, 0, 0));
    EXPECT_EQ(icons.Small(1).bgr, library::PlainIcon(16, 200, 0, 0).bgr);
    icons.Remove({0});
    EXPECT_EQ(icons.Count(), 1);
    EXPECT_EQ(icons.Small(0).bgr, library::PlainIcon(16, 200, 0, 0).bgr);
    EXPECT_EQ(library::Rescaled(IconPixels(), 16).side, 0);
}

} // namespace
