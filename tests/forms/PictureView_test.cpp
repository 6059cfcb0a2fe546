#include "forms/PictureView.h"

#include "WindowFixture.h"
#include "forms/PictureFile.h"
#include "support/TestFolder.h"

#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QImage>
#include <QImageWriter>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPainter>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace pelorin::test {

namespace {

using forms::PictureTrouble;

QByteArray Encoded(const QImage& image, const char* format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    EXPECT_TRUE(writer.write(image)) << format;
    return buffer.data();
}

QImage Halves(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter painter(&image);
    painter.fillRect(QRect(0, 0, size.width() / 2, size.height()), Qt::blue);
    return image;
}

/// Two frames of one dot, the first of them red.
QByteArray AnimatedGif()
{
    return QByteArray::fromHex(
        "47494638396101000100800000ff00000000ff"
        "21ff0b4e45545343415045322e300301000000"
        "21f90400050000002c000000000100010000020244010021f90400050000002c0000000001000100000202"
        "4c01003b");
}

/// Its head alone, with another size in it.
QByteArray HugePng()
{
    QByteArray png = Encoded(Halves({8, 8}), "png");
    png.replace(16, 8, QByteArray::fromHex("0000753000007530")); // 30,000 x 30,000
    // The checksum of the head, so that only the size is odd.
    quint32 crc = 0xffffffff;
    for (const char c : png.mid(12, 17)) {
        crc ^= static_cast<quint8>(c);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xedb88320U : 0U);
        }
    }
    crc = ~crc;
    for (int i = 0; i < 4; ++i) {
        png[29 + i] = static_cast<char>(crc >> (24 - 8 * i));
    }
    return png;
}

/// Its first row is the top one.
QByteArray TopDownBmp()
{
    QByteArray bmp = Encoded(Halves({8, 4}), "bmp");
    return bmp.replace(22, 4, QByteArray::fromHex("fcffffff")); // the height, -4
}

} // namespace

TEST(PictureFile, IsReadByWhatItIsAndWithinBounds)
{
    QImage deep(4, 2, QImage::Format_RGBA64);
    deep.fill(Qt::red);
    QImage turned = Halves({40, 20});
    QByteArray turnedJpeg = Encoded(turned, "jpeg");
    // Exif: to be turned by 90 degrees.
    turnedJpeg.insert(
        2,
        QByteArray::fromHex(
            "ffe100224578696600004d4d002a00000008000101120003000000010006000000000000"));
    struct Case {
        const char* name;
        QByteArray bytes;
        PictureTrouble trouble;
        QSize size;
    };
    const std::vector<Case> cases{
        {"a.jpg", Encoded(Halves({300, 100}), "jpeg"), PictureTrouble::None, {200, 66}},
        {"small.png", Encoded(Halves({30, 10}), "png"), PictureTrouble::None, {30, 10}},
        {"16 bits.png", Encoded(deep, "png"), PictureTrouble::None, {4, 2}},
        {"really a gif.jpg", AnimatedGif(), PictureTrouble::None, {1, 1}},
        {"turned.jpg", turnedJpeg, PictureTrouble::None, {20, 40}},
        {"thin.png", Encoded(Halves({2000, 2}), "png"), PictureTrouble::None, {200, 1}},
        {"huge.png", HugePng(), PictureTrouble::TooLarge, {0, 0}},
        {"cut.png", Encoded(Halves({300, 100}), "png").left(60), PictureTrouble::Broken, {0, 0}},
        {"text.png", "no picture", PictureTrouble::NoPicture, {0, 0}},
        {"drawing.jpg",
         "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>",
         PictureTrouble::NoPicture,
         {0, 0}},
        {"top down.bmp", TopDownBmp(), PictureTrouble::None, {8, 4}},
        {"empty.bmp", "", PictureTrouble::NoPicture, {0, 0}},
    };
    const TestFolder folder;
    for (const Case& c : cases) {
        folder.WriteRaw(QString::fromLatin1(c.name), c.bytes);
        const forms::PictureFile picture =
            forms::ReadPicture(folder.Path(QString::fromLatin1(c.name)), {200, 200});
        EXPECT_EQ(picture.trouble, c.trouble) << c.name;
        EXPECT_EQ(picture.image.size(), c.size) << c.name;
    }
    EXPECT_EQ(forms::ReadPicture(folder.Path(u"huge.png"_s), {200, 200}).size, QSize(30000, 30000));
    EXPECT_EQ(
        forms::ReadPicture(folder.Path(u"gone.png"_s), {200, 200}).trouble,
        PictureTrouble::NoPicture);
    // It would be waited for.
    const QString pipe = folder.Path(u"pipe.png"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(forms::ReadPicture(pipe, {200, 200}).trouble, PictureTrouble::NoPicture);
}

class MediaTest : public WindowTest {
protected:
    MediaTest()
    {
        m_folder.WriteRaw(u"a.png"_s, Encoded(Halves({40, 10}), "png"));
        m_folder.WriteRaw(u"b.png"_s, "broken");
        screens.media.fileImages = {m_folder.Path(), {u"a.png"_s, u"b.png"_s}, 0};
        deeds.mnuPic = [] { return shell::MenuModel{{0, u"Open"_s}, {2, u"Delete"_s}}; };
        deeds.mnuPic_Click = NoteIndex(u"picture"_s);
        deeds.fileImages_Delete = Note(u"delete"_s);
        deeds.pic1_Click = Note(u"next"_s);
    }

    TestFolder m_folder;
};

namespace {

/// The room that the picture's two colours take.
QSize Painted(const QImage& image)
{
    int left = image.width();
    int right = -1;
    int top = image.height();
    int bottom = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            if (colour == QColor(Qt::red) || colour == QColor(Qt::blue)) {
                left = qMin(left, x);
                right = qMax(right, x);
                top = qMin(top, y);
                bottom = qMax(bottom, y);
            }
        }
    }
    return {right - left + 1, bottom - top + 1};
}

} // namespace

TEST_F(MediaTest, ThePictureFitsInShapeAndFollowsTheSize)
{
    Open();
    auto* pic1 = Find("pic1");
    const auto shown = [&] { return Painted(pic1->grab().toImage()); };
    for (const QSize size : {QSize(200, 150), QSize(90, 200)}) {
        pic1->setFixedSize(size);
        const QSize seen = shown();
        EXPECT_NEAR(seen.width(), size.width() - 2, 2);
        EXPECT_NEAR(seen.height() * 4, seen.width(), 4);
    }
    screens.media.fileImages.row = 1;
    screens.media.changed.Tell(library::MediaPanel::ImageRow);
    EXPECT_EQ(shown(), QSize(-pic1->width(), -pic1->height())) << "nothing of the former one";
    EXPECT_EQ(
        pic1->accessibleDescription(), u"b.png This file is not a picture that can be shown."_s);
}

TEST_F(MediaTest, ListsAndPictureAreUsedByKeysAndMouse)
{
    Open();
    auto* list = Find<QListView>("fileImages");
    EXPECT_EQ(list->currentIndex().row(), 0);
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(screens.media.fileImages.row, 1);
    QTest::keyClick(list, Qt::Key_Return);
    QTest::keyClick(list, Qt::Key_Delete);
    auto* pic1 = Find("pic1");
    QTest::mouseClick(pic1, Qt::LeftButton);
    QTest::mouseClick(pic1, Qt::RightButton);
    auto* menu = Find<QMenu>("mnuPicRoot");
    ASSERT_TRUE(menu->isVisible());
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_EQ(did, (QStringList{u"picture 0"_s, u"delete"_s, u"next"_s, u"picture 0"_s}));
    screens.media.fileImages.files.clear();
    screens.media.TabStrip1 = 3;
    screens.media.changed.Tell(library::MediaPanel::Images | library::MediaPanel::Tab);
    EXPECT_TRUE(Find("fileManual")->isVisible());
    EXPECT_EQ(list->model()->rowCount(), 0);
}

TEST_F(MediaTest, TheDetailsAreTypedThroughByEnter)
{
    deeds.SaveDetails = [&] {
        did << u"save"_s;
        screens.configDetail.changed.Tell(library::ConfigDetail::Close);
    };
    deeds.DeleteDetails = Note(u"delete"_s);
    Open();
    library::ConfigDetail& dialog = screens.configDetail;
    const auto open = [&] {
        dialog.Combo1 = {u"Beta"_s, {}, {}, {}};
        dialog.values[0] = {u"Alpha"_s, u"Beta"_s, u"Sega"_s};
        dialog.changed.Tell(library::ConfigDetail::Open | library::ConfigDetail::Texts);
        const auto* form = Find("frmConfigDetail");
        // A dialog counts as active as soon as its parent is.
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == form; }));
    };
    open();
    auto* form = Find("frmConfigDetail");
    EXPECT_EQ(form->windowTitle(), u"E317"_s);
    const auto box = [&](int i) { return Find<QComboBox>(qPrintable(u"Combo1_%1"_s.arg(i))); };
    EXPECT_EQ(box(0)->lineEdit()->selectedText(), u"Beta"_s);
    QTest::keyClicks(box(0), u"al"_s);
    EXPECT_EQ(dialog.Combo1[0], u"al"_s) << "as typed, not as suggested";
    QTest::keyClick(box(0), Qt::Key_Down);
    QTest::keyClick(box(0), Qt::Key_Return);
    EXPECT_TRUE(box(1)->hasFocus());
    QTest::keyClicks(box(1), u"1988"_s);
    QTest::keyClick(box(1), Qt::Key_Enter);
    QTest::keyClick(box(2), Qt::Key_Return);
    EXPECT_EQ(did, QStringList());
    QTest::keyClick(box(3), Qt::Key_Return);
    EXPECT_EQ(did, QStringList{u"save"_s});
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(dialog.Combo1, (std::array{u"Sega"_s, u"1988"_s, QString(), QString()}));

    open();
    EXPECT_EQ(box(1)->currentText(), QString());
    QTest::keyClick(box(2), Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(box(i)->accessibleName(), u"E%1"_s.arg(307 + i));
    }
}

} // namespace pelorin::test
