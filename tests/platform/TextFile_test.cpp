#include "platform/TextFile.h"

#include "support/DiskTroubles.h"

using namespace Qt::StringLiterals;
using namespace pelorin::platform;
using namespace pelorin::test;

namespace {

TEST(Cp949, KeepsWhatWindowsKeepsAndTellsWhatIsLostOnceAndInOrder)
{
    struct Case {
        QString text;
        QByteArray bytes;
        QString lost;
    };
    const QString half = QString(QChar(0xd83d));
    const Case cases[] = {
        {QString(), "", {}},
        {u"가힣"_s, "\xb0\xa1\xc6\x52", {}},
        // Syllables that Windows added to KS X 1001.
        {u"뷁펠"_s, "\x94\xee\xc6\xe7", {}},
        {u"똠믜"_s, "\x8c\x63\x92\xde", {}},
        {u"カタゲム"_s, "\xab\xab\xab\xbf\xab\xb2\xab\xe0", {}},
        {u"漢字"_s, "\xf9\xd3\xed\xae", {}},
        {u"C:\\Games\\?"_s, "C:\\Games\\?", {}},
        {QString::fromLatin1("\x01\x02\x03\t\r\n\x1a\x7f"), "\x01\x02\x03\t\r\n\x1a\x7f", {}},
        {u"é"_s, "?", u"é"_s},
        {u"ー"_s, "?", u"ー"_s}, // kana are there, their long mark is not
        {u"₩"_s, "?", u"₩"_s},
        {u"a\u00a0b"_s, "a?b", u"\u00a0"_s},
        {u"é가?é😀뷁"_s, "?\xb0\xa1???\x94\xee", u"é😀"_s},
        {half + u"x"_s, "?x", half},
        {u"x"_s + QChar(0xde00), "x?", QString(QChar(0xde00))},
        {u"\ufffd"_s, "?", u"\ufffd"_s},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.text);
        const Encoded encoded = EncodeCp949(one.text);
        EXPECT_EQ(encoded.bytes.toHex(), one.bytes.toHex());
        EXPECT_EQ(encoded.lost, one.lost);
        EXPECT_EQ(FitsCp949(one.text), one.lost.isEmpty());
        if (one.lost.isEmpty()) {
            EXPECT_EQ(DecodeCp949(one.bytes), one.text);
        }
    }
}

TEST(Cp949, AsciiIsItself)
{
    QByteArray bytes;
    for (int c = 0; c < 128; ++c) {
        bytes += static_cast<char>(c);
    }
    // With a syllable behind them they go another way.
    EXPECT_EQ(DecodeCp949(bytes), DecodeCp949(bytes + "\xb0\xa1").chopped(1));
}

TEST(Cp949, MarksBytesThatAreNoText)
{
    EXPECT_EQ(DecodeCp949("a\xb0"), u"a\ufffd"_s);
    EXPECT_EQ(DecodeCp949("\xb0\xa1\xb0\nx"), u"가\ufffd\nx"_s);
}

TEST(TextFiles, LinesEndInManyWays)
{
    const std::pair<QString, QStringList> cases[] = {
        {QString(), {}},
        {u"\r\n"_s, {QString()}},
        {u"a"_s, {u"a"_s}},
        {u"a\r\n"_s, {u"a"_s}},
        {u"a\r\nb\nc\rd"_s, {u"a"_s, u"b"_s, u"c"_s, u"d"_s}},
        {u"a\r\n\r\n"_s, {u"a"_s, QString()}},
        {u"a\n\rb"_s, {u"a"_s, QString(), u"b"_s}},
        {u" a \r"_s, {u" a "_s}},
    };
    for (const auto& [text, lines] : cases) {
        EXPECT_EQ(SplitLines(text), lines) << text;
    }
    const TestFolder folder;
    const QStringList lines{u"펠로린"_s, QString(), u"a\u0001b"_s};
    ASSERT_TRUE(WriteLines(folder.Path(u"x"_s), lines).Ok());
    const QByteArray bytes = folder.ReadRaw(u"x"_s);
    EXPECT_EQ(bytes.toPercentEncoding("\r\n"), "%C6%E7%B7%CE%B8%B0\r\n\r\na%01b\r\n");
    EXPECT_EQ(ReadLines(folder.Path(u"x"_s)).ValueOr({}), lines);
}

TEST(TextFiles, FirstLinesOfALongFile)
{
    const TestFolder folder;
    folder.WriteRaw(u"long"_s, QByteArray("\xb0\xa1 line\r\n").repeated(2000));
    folder.WriteRaw(u"old"_s, "a\rb\rc");
    const QString line = u"가 line"_s;
    EXPECT_EQ(ReadFirstLines(folder.Path(u"long"_s), 2).ValueOr({}), (QStringList{line, line}));
    EXPECT_EQ(ReadFirstLines(folder.Path(u"long"_s), 1999).ValueOr({}).last(), line);
    EXPECT_EQ(ReadFirstLines(folder.Path(u"long"_s), 9999).ValueOr({}).size(), 2000);
    EXPECT_EQ(ReadFirstLines(folder.Path(u"old"_s), 2).ValueOr({}), Words(u"a b"_s));
    EXPECT_EQ(KindOf(ReadFirstLines(folder.Path(u"none"_s), 2)), ErrorKind::NotFound);
    EXPECT_EQ(KindOf(ReadText(folder.Path(u"none"_s))), ErrorKind::NotFound);
    EXPECT_EQ(KindOf(ReadText(folder.Path())), ErrorKind::Unreadable);
    folder.WriteRaw(u"lead"_s, "a\xb0\r\nb");
    EXPECT_EQ(ReadFirstLines(folder.Path(u"lead"_s), 1).ValueOr({}), QStringList(u"a\ufffd"_s));
}

TEST(TextFiles, AFailureLeavesTheOldFileWhole)
{
    const TestFolder folder;
    folder.WriteRaw(u"info.txt"_s, "old");
    const Done lost = WriteText(folder.Path(u"info.txt"_s), u"caf\u00e9 😀"_s);
    EXPECT_EQ(KindOf(lost), ErrorKind::Unencodable);
    EXPECT_EQ(ErrorOf(lost), folder.Path(u"info.txt"_s) + u": é😀"_s);
    for (const qsizetype bytes : {100, 100'000}) { // below and above the size of a file's buffer
        const SmallFiles full(10);
        const Done done = WriteBytes(folder.Path(u"info.txt"_s), QByteArray(bytes, 'x'));
        EXPECT_EQ(KindOf(done), ErrorKind::Unwritable) << bytes;
    }
    folder.MakeFolder(u"folder"_s);
    for (const QString& path : Words(u"folder none/info.txt info.txt/x"_s)) {
        const Done done = WriteText(folder.Path(path), u"new"_s);
        EXPECT_EQ(KindOf(done), ErrorKind::Unwritable);
        EXPECT_TRUE(ErrorOf(done).startsWith(folder.Path(path) + u": "_s));
    }
    EXPECT_EQ(folder.ReadRaw(u"info.txt"_s), "old");
    EXPECT_EQ(folder.TreeText(), u"folder/ info.txt"_s);
}

TEST(TextFiles, ABackupReplacesAnOlderOne)
{
    const TestFolder folder;
    EXPECT_TRUE(KeepBackup(folder.Path(u"x"_s)).Ok());
    EXPECT_EQ(folder.TreeText(), QString());
    folder.WriteRaw(u"x.bak"_s, "older");
    folder.WriteRaw(u"x"_s, "\xff\r");
    EXPECT_TRUE(KeepBackup(folder.Path(u"x"_s)).Ok());
    EXPECT_EQ(folder.ReadRaw(u"x.bak"_s), "\xff\r");
    EXPECT_EQ(folder.ReadRaw(u"x"_s), "\xff\r");
}

} // namespace
