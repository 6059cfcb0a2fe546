#include "shell/RecentFile.h"

#include "support/TestFolder.h"

using namespace Qt::StringLiterals;
using namespace pelorin::shell;
using namespace pelorin::test;

namespace {

const QString kMark = QString(QChar(1));

Places PlacesIn(const TestFolder& folder)
{
    return Places{folder.Path(), QString(), QString()};
}

/// A "-" is an empty place.
RecentList ListOf(const QString& text)
{
    RecentList recent;
    std::size_t i = 0;
    for (const QString& folder : Words(text)) {
        recent.RecentFolders.at(i) = folder == u"-"_s ? QString() : folder;
        recent.RecentTitles.at(i++) = u"T-"_s + folder;
    }
    return recent;
}

/// Up to the last place that is taken.
QString FoldersOf(const RecentList& recent)
{
    QString text;
    for (const QString& folder : recent.RecentFolders) {
        text += (folder.isEmpty() ? u"-"_s : folder) + u' ';
    }
    while (text.endsWith(u"- "_s)) {
        text.chop(2);
    }
    return text.chopped(text.isEmpty() ? 0 : 1);
}

const QString kThirteen = u"g1 g2 g3 g4 g5 g6 g7 g8 g9 g10 g11 g12 g13"_s;
const QString kFull = kThirteen + u" g14 g15"_s;

TEST(Recent, ALineOfAnotherFormLeavesAHole)
{
    RecentList recent = ParseRecent(
        {u"a"_s + kMark + u"A"_s,
         u"no pair"_s,
         u"b"_s + kMark + u"B"_s + kMark + u"more"_s,
         u".."_s + kMark + u"up"_s,
         u"x/y"_s + kMark + u"deep"_s,
         kMark + u"nameless"_s,
         u"c"_s + kMark,
         QString()});
    EXPECT_EQ(FoldersOf(recent), u"a - - - - - c"_s);
    EXPECT_EQ(recent.RecentTitles[0], u"A"_s);
    EXPECT_EQ(recent.RecentTitles[6], QString());
    EXPECT_EQ(RecentLines(recent), QStringList{u"a"_s + kMark + u"A"_s});

    QStringList lines;
    for (const QString& name : Words(kFull + u" g16 g17"_s)) {
        lines << name + kMark + name;
    }
    EXPECT_EQ(FoldersOf(ParseRecent(lines)), kFull) << "what stands behind the last place";
}

TEST(Recent, AStartedGameGoesToTheHead)
{
    struct Case {
        QString before;
        QString started;
        QString after;
        QString title; // "new" or its old one
    };
    const Case cases[] = {
        {QString(), u"n"_s, u"n"_s, u"new"_s},
        {u"a b"_s, u"n"_s, u"n a b"_s, u"new"_s},
        {u"a b c"_s, u"b"_s, u"b a c"_s, u"T-b"_s},
        {u"a b"_s, u"a"_s, u"a b"_s, u"T-a"_s},
        // Case matters: these are two games.
        {u"a"_s, u"A"_s, u"A a"_s, u"new"_s},
        // A hole is filled, and what stood behind it is in reach again.
        {u"a - c"_s, u"n"_s, u"n a c"_s, u"new"_s},
        {u"- b"_s, u"n"_s, u"n b"_s, u"new"_s},
        // Full: the last falls off, be it the same game or not.
        {kFull, u"n"_s, u"n "_s + kThirteen + u" g14"_s, u"new"_s},
        {kFull, u"g15"_s, u"g15 "_s + kThirteen + u" g14"_s, u"new"_s},
        {kFull, u"g14"_s, u"g14 "_s + kThirteen + u" g15"_s, u"T-g14"_s},
        {u"a"_s, QString(), u"a"_s, u"T-a"_s},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.before + u" + "_s + one.started);
        RecentList recent = ListOf(one.before);
        AddRecent(recent, one.started, u"new"_s);
        EXPECT_EQ(FoldersOf(recent), one.after);
        EXPECT_EQ(recent.RecentTitles[0], one.title);
    }
    // The caller may hand over entries of the list itself.
    RecentList recent = ListOf(kFull);
    AddRecent(recent, recent.RecentFolders[5], recent.RecentTitles[5]);
    EXPECT_EQ(recent.RecentTitles[0], u"T-g6"_s);
    EXPECT_EQ(recent.RecentFolders[0], u"g6"_s);
    EXPECT_EQ(recent.RecentTitles[5], u"T-g5"_s);
}

TEST(Recent, OneFileWhateverItsCaseAndNoneIsEmpty)
{
    const TestFolder folder;
    EXPECT_TRUE(ReadRecentFile(PlacesIn(folder)).Value().RecentFolders[0].isEmpty());
    EXPECT_EQ(folder.TreeText(), QString());
    ASSERT_TRUE(MakeRecentFile(PlacesIn(folder)));
    EXPECT_EQ(folder.ReadRaw(u"recent.sav"_s), "\r\n");

    const TestFolder other;
    other.WriteText(u"Recent.sav"_s, u"star\u0001별\r\n\r\nlost\u0001Lost"_s);
    ASSERT_TRUE(MakeRecentFile(PlacesIn(other)));
    auto recent = ReadRecentFile(PlacesIn(other));
    ASSERT_TRUE(recent.Ok());
    ASSERT_TRUE(WriteRecentFile(PlacesIn(other), recent.Value()).Ok());
    EXPECT_EQ(other.TreeText(), u"Recent.sav"_s);
    EXPECT_EQ(other.ReadText(u"Recent.sav"_s), u"star\u0001별\r\n"_s);
}

TEST(Recent, WhatTheFileCantKeepNeverNamesAnotherFolder)
{
    RecentList recent = ListOf(u"café bad ok"_s);
    recent.RecentFolders[1] = u"bad\nname"_s;
    recent.RecentTitles[2] = u"caf\u00e9"_s + kMark + u"\r\n!"_s;
    const TestFolder folder;
    ASSERT_TRUE(WriteRecentFile(PlacesIn(folder), recent).Ok());
    EXPECT_EQ(folder.ReadText(u"recent.sav"_s), u"ok\u0001caf?!\r\n"_s);
}

} // namespace
