#include "platform/TextFile.h"

#include "support/DiskTroubles.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin::platform;
using pelorin::test::SmallFiles;
using pelorin::test::TestFolder;

namespace {

TEST(Cp949, KeepsWhatWindowsKeeps)
{
    struct Case {
        QString text;
        QByteArray bytes;
    };
    const Case cases[] = {
        {QString(), ""},
        {u"가힣"_s, "\xb0\xa1\xc6\x52"},
        // Syllables that Windows added to KS X 1001.
        {u"뷁펠"_s, "\x94\xee\xc6\xe7"},
        {u"똠믜"_s, "\x8c\x63\x92\xde"},
        {u"カタゲム"_s, "\xab\xab\xab\xbf\xab\xb2\xab\xe0"},
        {u"漢字"_s, "\xf9\xd3\xed\xae"},
        {u"C:\\Games\\?"_s, "C:\\Games\\?"},
        {QString::fromLatin1("\x01\x02\x03\t\r\n\x1a\x7f"), "\x01\x02\x03\t\r\n\x1a\x7f"},
    };
    for (const Case& one : cases) {
        const Encoded encoded = EncodeCp949(one.text);
        EXPECT_EQ(encoded.bytes.toHex(), one.bytes.toHex()) << one.text.toStdString();
        EXPECT_EQ(encoded.lost, QString()) << one.text.toStdString();
        EXPECT_EQ(DecodeCp949(one.bytes), one.text) << one.text.toStdString();
        EXPECT_TRUE(FitsCp949(one.text));
    }
}

TEST(Cp949, TellsWhatIsLostOnceAndInOrder)
{
    struct Case {
        QString text;
        QByteArray bytes;
        QString lost;
    };
    const Case cases[] = {
        {u"é"_s, "?", u"é"_s},
        {u"ー"_s, "?", u"ー"_s}, // kana are there, their long mark is not
        {u"₩"_s, "?", u"₩"_s},
        {u"a\u00a0b"_s, "a?b", u"\u00a0"_s},
        {u"😀"_s, "?", u"😀"_s},
        {u"é가?é😀뷁"_s, "?\xb0\xa1???\x94\xee", u"é😀"_s},
        {QString(QChar(0xd83d)) + u"x"_s, "?x", QString(QChar(0xd83d))},
        {u"x"_s + QChar(0xde00), "x?", QString(QChar(0xde00))},
        {u"\ufffd"_s, "?", u"\ufffd"_s},
    };
    for (const Case& one : cases) {
        const Encoded encoded = EncodeCp949(one.text);
        EXPECT_EQ(encoded.bytes.toHex(), one.bytes.toHex()) << one.text.toStdString();
        EXPECT_EQ(encoded.lost, one.lost) << one.text.toStdString();
        EXPECT_FALSE(FitsCp949(one.text));
    }
}

TEST(Cp949, BytesThatAreNoTextAreMarked)
{
    EXPECT_EQ(DecodeCp949("a\xb0"), u"a\ufffd"_s);
    EXPECT_EQ(DecodeCp949("\xb0\xa1\xb0\nx"), u"가\ufffd\nx"_s);
}

TEST(SplitLines, EveryLineEnd)
{
    struct Case {
        QString text;
        QStringList lines;
    };
    const Case cases[] = {
        {QString(), {}},
        {u"\r\n"_s, {QString()}},
        {u"a"_s, {u"a"_s}},
        {u"a\r\n"_s, {u"a"_s}},
        {u"a\r\nb\nc\rd"_s, {u"a"_s, u"b"_s, u"c"_s, u"d"_s}},
        {u"a\r\n\r\n"_s, {u"a"_s, QString()}},
        {u"a\n\rb"_s, {u"a"_s, QString(), u"b"_s}},
        {u" a \r"_s, {u" a "_s}},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(SplitLines(one.text), one.lines) << one.text.toStdString();
    }
}

TEST(TextFiles, WriteCrLfAndReadItBack)
{
    const TestFolder folder;
    const QStringList lines{
        u"펠로린"_s,
        QString(),
        u"a\x01"
        "b"_s};
    ASSERT_TRUE(WriteLines(folder.Path(u"x"_s), lines).Ok());
    EXPECT_EQ(
        folder.ReadRaw(u"x"_s),
        "\xc6\xe7\xb7\xce\xb8\xb0\r\n\r\na\x01"
        "b\r\n");
    EXPECT_EQ(ReadLines(folder.Path(u"x"_s)).ValueOr({}), lines);
}

TEST(TextFiles, FirstLinesOfALongFile)
{
    const TestFolder folder;
    QByteArray bytes;
    for (int i = 0; i < 2000; ++i) {
        bytes += "\xb0\xa1 line\r\n";
    }
    folder.WriteRaw(u"long"_s, bytes);
    folder.WriteRaw(u"old"_s, "a\rb\rc");
    const QString line = u"가 line"_s;
    EXPECT_EQ(ReadFirstLines(folder.Path(u"long"_s), 2).ValueOr({}), (QStringList{line, line}));
    EXPECT_EQ(ReadFirstLines(folder.Path(u"long"_s), 1999).ValueOr({}).last(), line);
    EXPECT_EQ(ReadFirstLines(folder.Path(u"long"_s), 9999).ValueOr({}).size(), 2000);
    EXPECT_EQ(ReadFirstLines(folder.Path(u"old"_s), 2).ValueOr({}), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(ReadFirstLines(folder.Path(u"none"_s), 2).Failure().kind, ErrorKind::NotFound);
}

TEST(TextFiles, FailureLeavesTheOldFileWhole)
{
    const TestFolder folder;
    folder.WriteRaw(u"info.txt"_s, "old");
    const Done lost = WriteText(folder.Path(u"info.txt"_s), u"caf\u00e9 😀"_s);
    ASSERT_FALSE(lost.Ok());
    EXPECT_EQ(lost.Failure().kind, ErrorKind::Unencodable);
    EXPECT_EQ(lost.Failure().text, folder.Path(u"info.txt"_s) + u": é😀"_s);
    EXPECT_EQ(folder.ReadRaw(u"info.txt"_s), "old");

    folder.MakeTree({u"folder/"_s});
    for (const QString& path : {u"folder"_s, u"none/info.txt"_s, u"info.txt/x"_s}) {
        const Done done = WriteText(folder.Path(path), u"new"_s);
        ASSERT_FALSE(done.Ok()) << path.toStdString();
        EXPECT_EQ(done.Failure().kind, ErrorKind::Unwritable);
        EXPECT_TRUE(done.Failure().text.startsWith(folder.Path(path) + u": "_s));
    }
    EXPECT_EQ(folder.Tree(), (QStringList{u"folder/"_s, u"info.txt"_s}));
}

TEST(TextFiles, ADiskThatTakesOnlyTheBeginningLeavesTheOldFileWhole)
{
    const TestFolder folder;
    folder.WriteRaw(u"info.txt"_s, "old");
    for (const qsizetype bytes : {100, 100'000}) { // below and above the size of a file's buffer
        const SmallFiles full(10);
        const Done done = WriteBytes(folder.Path(u"info.txt"_s), QByteArray(bytes, 'x'));
        ASSERT_FALSE(done.Ok()) << bytes;
        EXPECT_EQ(done.Failure().kind, ErrorKind::Unwritable);
    }
    EXPECT_EQ(folder.ReadRaw(u"info.txt"_s), "old");
    EXPECT_EQ(folder.Tree(), QStringList{u"info.txt"_s});
}

TEST(TextFiles, ReadingErrors)
{
    const TestFolder folder;
    folder.MakeTree({u"folder/"_s});
    EXPECT_EQ(ReadText(folder.Path(u"none"_s)).Failure().kind, ErrorKind::NotFound);
    EXPECT_EQ(ReadText(folder.Path(u"folder"_s)).Failure().kind, ErrorKind::Unreadable);
}

TEST(TextFiles, BackupReplacesAnOlderOne)
{
    const TestFolder folder;
    EXPECT_TRUE(KeepBackup(folder.Path(u"x"_s)).Ok());
    EXPECT_EQ(folder.Tree(), QStringList());
    folder.WriteRaw(u"x.bak"_s, "older");
    folder.WriteRaw(u"x"_s, "\xff\r");
    EXPECT_TRUE(KeepBackup(folder.Path(u"x"_s)).Ok());
    EXPECT_EQ(folder.ReadRaw(u"x.bak"_s), "\xff\r");
    EXPECT_EQ(folder.ReadRaw(u"x"_s), "\xff\r");
}

} // namespace
