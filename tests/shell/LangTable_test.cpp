#include "shell/LangTable.h"

#include "shell/WindowTitle.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using shell::LangTable;

namespace {

QStringList Lines(int count, const QString& name)
{
    QStringList lines{name};
    for (int entry = 2; entry <= count; ++entry) {
        lines << u"text %1"_s.arg(entry);
    }
    return lines;
}

LangTable TableOf(const QStringList& lines)
{
    return LangTable::FromLines(lines).Take();
}

TEST(LangTable, KeepsLinesAsTheyStandButForLineBreaks)
{
    QStringList lines = Lines(shell::kLastEntry, u"Pelorin"_s);
    lines[256] = u" [stored] "_s;
    lines[9] = u"one\\n\\ntwo\\n"_s;
    lines[10] = u"a\\b\\"_s;
    const LangTable lang = TableOf(lines);
    EXPECT_EQ(lang[257], u" [stored] "_s);
    EXPECT_EQ(lang[10], u"one\r\n\r\ntwo\r\n"_s);
    EXPECT_EQ(lang[11], u"a\\b\\"_s);
    EXPECT_EQ(lang[339], u"text 339"_s);
    EXPECT_EQ(lang[340], QString());
    EXPECT_EQ(lang[-1], QString());
}

TEST(LangTable, TellsTheLanguageByTheExactName)
{
    struct Case {
        QString name;
        bool korean;
        QString maker;
    };
    const Case cases[] = {
        {u"펠로린"_s, true, u"베스프라"_s},
        {u"펠로린 "_s, false, u"mirel55"_s},
        {u" 펠로린"_s, false, u"mirel55"_s},
        {u"Pelorin"_s, false, u"mirel55"_s},
        {QString(), false, u"mirel55"_s},
    };
    for (const Case& one : cases) {
        const LangTable lang = TableOf(Lines(shell::kLastEntry, one.name));
        EXPECT_EQ(lang.IsKorean(), one.korean) << one.name.toStdString();
        EXPECT_EQ(lang[0], one.maker) << one.name.toStdString();
    }
}

TEST(LangTable, FillsPlaceholdersInOrder)
{
    QStringList lines = Lines(shell::kLastEntry, u"Pelorin"_s);
    lines[1] = u"<2> and <1>, <1>; <3>"_s;
    const LangTable lang = TableOf(lines);
    EXPECT_EQ(lang.Text(2, {u"a"_s, u"b"_s}), u"b and a, a; <3>"_s);
    // A value that holds a later placeholder is filled again, one that holds an earlier is not.
    EXPECT_EQ(lang.Text(2, {u"<2>"_s, u"<1>"_s}), u"<1> and <1>, <1>; <3>"_s);
    EXPECT_EQ(lang.Text(2, {u"$1\\1"_s, u"x"_s, u"&"_s}), u"x and $1\\1, $1\\1; &"_s);
}

TEST(LangTable, ServesOurOwnEntriesWithEnglishWhereAFileLacksThem)
{
    QStringList lines = Lines(342, u"Pelorin"_s);
    lines[340] = QString();
    const LangTable lang = TableOf(lines);
    EXPECT_EQ(lang.OwnText(340, u"english"_s), u"text 340"_s);
    EXPECT_EQ(lang.OwnText(341, u"english"_s), u"english"_s);
    EXPECT_EQ(lang.OwnText(343, u"english"_s), u"english"_s);
}

TEST(LangTable, ShortOrMissingFileNamesItselfAndTheFirstMissingLine)
{
    const test::TestFolder folder;
    const auto missing = shell::ReadLanguageFile(folder.Path(u"Language.dat"_s));
    ASSERT_FALSE(missing.Ok());
    EXPECT_EQ(missing.Failure().kind, platform::ErrorKind::NotFound);
    EXPECT_EQ(
        missing.Failure().text,
        folder.Path(u"Language.dat"_s) + u": line 1: the file is missing"_s);

    folder.WriteLines(u"Language.dat"_s, Lines(338, u"펠로린"_s));
    const auto shortOne = shell::ReadLanguageFile(folder.Path(u"Language.dat"_s));
    ASSERT_FALSE(shortOne.Ok());
    EXPECT_EQ(shortOne.Failure().kind, platform::ErrorKind::Malformed);
    EXPECT_EQ(
        shortOne.Failure().text,
        folder.Path(u"Language.dat"_s) + u": line 339: missing, 339 lines are needed"_s);

    folder.WriteRaw(u"Language.dat"_s, QByteArray());
    const auto empty = shell::ReadLanguageFile(folder.Path(u"Language.dat"_s));
    ASSERT_FALSE(empty.Ok());
    EXPECT_TRUE(empty.Failure().text.contains(u"line 1:"_s));

    QByteArray broken = Lines(341, u"Pelorin"_s).join(u"\r\n"_s).toLatin1();
    folder.WriteRaw(u"Language.dat"_s, QByteArray(broken).replace("text 341", "\xb0 "));
    EXPECT_TRUE(shell::ReadLanguageFile(folder.Path(u"Language.dat"_s))) << "has a stand-in";
    folder.WriteRaw(u"Language.dat"_s, broken.replace("text 12\r", "\xb0 \r"));
    EXPECT_TRUE(shell::ReadLanguageFile(folder.Path(u"Language.dat"_s))
                    .Failure()
                    .text.contains(u"Language.dat: line 12: bytes that are no text"_s));
}

TEST(LangTable, ReadsCodePage949AndALastLineWithoutEnd)
{
    const test::TestFolder folder;
    QStringList lines = Lines(339, u"펠로린"_s);
    lines[338] = u"뷁"_s;
    folder.WriteText(u"Language.dat"_s, lines.join(u"\r\n"_s));
    const auto lang = shell::ReadLanguageFile(folder.Path(u"Language.dat"_s));
    ASSERT_TRUE(lang.Ok());
    EXPECT_TRUE(lang.Value().IsKorean());
    EXPECT_EQ(lang.Value()[339], u"뷁"_s);
}

TEST(WindowTitle, HoldsTheStampInPairs)
{
    const LangTable korean = TableOf(Lines(shell::kLastEntry, u"펠로린"_s));
    EXPECT_EQ(
        shell::BuildWindowTitle(shell::OwnBuildStamp(), korean),
        u"[펠로린 Ver.16.10.01.03] by 베스프라"_s);
    const LangTable other = TableOf(Lines(shell::kLastEntry, u"Pelorin"_s));
    EXPECT_EQ(
        shell::BuildWindowTitle(u"17020304"_s, other), u"[Pelorin Ver.17.02.03.04] by mirel55"_s);
}

} // namespace
