#include "shell/RecentFile.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin::shell;
using pelorin::test::TestFolder;

namespace {

const QString kMark = QString(QChar(1));

Places PlacesIn(const TestFolder& folder)
{
    return Places{folder.Path(), QString(), QString()};
}

RecentList ListOf(const QStringList& folders)
{
    RecentList recent;
    for (qsizetype i = 0; i < folders.size(); ++i) {
        recent.RecentFolders[static_cast<std::size_t>(i)] = folders[i];
        recent.RecentTitles[static_cast<std::size_t>(i)] = u"T-"_s + folders[i];
    }
    return recent;
}

/// All 15 places, a "-" for an empty one.
QString FoldersOf(const RecentList& recent)
{
    QStringList folders;
    for (const QString& folder : recent.RecentFolders) {
        folders << (folder.isEmpty() ? u"-"_s : folder);
    }
    return folders.join(u' ');
}

QStringList Names(int count)
{
    QStringList names;
    for (int i = 1; i <= count; ++i) {
        names << u"g%1"_s.arg(i);
    }
    return names;
}

TEST(Recent, LineOfAnotherFormLeavesAHole)
{
    const RecentList recent = ParseRecent(
        {u"a"_s + kMark + u"A"_s,
         u"no pair"_s,
         u"b"_s + kMark + u"B"_s + kMark + u"more"_s,
         u".."_s + kMark + u"up"_s,
         u"x/y"_s + kMark + u"deep"_s,
         kMark + u"nameless"_s,
         u"c"_s + kMark,
         QString()});
    EXPECT_EQ(FoldersOf(recent), u"a - - - - - c - - - - - - - -"_s);
    EXPECT_EQ(recent.RecentTitles[0], u"A"_s);
    EXPECT_EQ(recent.RecentTitles[6], QString());
    EXPECT_EQ(RecentLines(recent), QStringList{u"a"_s + kMark + u"A"_s});
}

TEST(Recent, LinesBehindTheLastPlaceAreIgnored)
{
    QStringList lines;
    for (const QString& name : Names(17)) {
        lines << name + kMark + name;
    }
    EXPECT_EQ(
        FoldersOf(ParseRecent(lines)), u"g1 g2 g3 g4 g5 g6 g7 g8 g9 g10 g11 g12 g13 g14 g15"_s);
}

TEST(Recent, StartedGameGoesToTheHead)
{
    struct Case {
        QStringList before;
        QString started;
        QString after;
    };
    const QString full = u"g1 g2 g3 g4 g5 g6 g7 g8 g9 g10 g11 g12 g13 g14"_s;
    const Case cases[] = {
        {{}, u"n"_s, u"n - - - - - - - - - - - - - -"_s},
        {{u"a"_s, u"b"_s}, u"n"_s, u"n a b - - - - - - - - - - - -"_s},
        {{u"a"_s, u"b"_s, u"c"_s}, u"b"_s, u"b a c - - - - - - - - - - - -"_s},
        {{u"a"_s, u"b"_s}, u"a"_s, u"a b - - - - - - - - - - - - -"_s},
        // Case matters: these are two games.
        {{u"a"_s}, u"A"_s, u"A a - - - - - - - - - - - - -"_s},
        // A hole is filled, and what stood behind it is in reach again.
        {{u"a"_s, QString(), u"c"_s}, u"n"_s, u"n a c - - - - - - - - - - - -"_s},
        {{QString(), u"b"_s}, u"n"_s, u"n b - - - - - - - - - - - - -"_s},
        // Full: the last falls off, be it the same game or not.
        {Names(15), u"n"_s, u"n "_s + full},
        {Names(15), u"g15"_s, u"g15 "_s + full},
        {Names(15), u"g14"_s, u"g14 g1 g2 g3 g4 g5 g6 g7 g8 g9 g10 g11 g12 g13 g15"_s},
        {{u"a"_s}, QString(), u"a - - - - - - - - - - - - - -"_s},
    };
    for (const Case& one : cases) {
        RecentList recent = ListOf(one.before);
        AddRecent(recent, one.started, u"new title"_s);
        EXPECT_EQ(FoldersOf(recent), one.after)
            << one.before.join(u' ').toStdString() << " + " << one.started.toStdString();
    }
}

TEST(Recent, KnownGameKeepsItsOldTitleUnlessItStandsLast)
{
    RecentList recent = ListOf(Names(15));
    AddRecent(recent, u"g3"_s, u"renamed"_s);
    EXPECT_EQ(recent.RecentTitles[0], u"T-g3"_s);
    EXPECT_EQ(recent.RecentTitles[3], u"T-g4"_s);
    AddRecent(recent, u"g15"_s, u"renamed"_s);
    EXPECT_EQ(recent.RecentTitles[0], u"renamed"_s);
    // The caller may hand over entries of the list itself.
    AddRecent(recent, recent.RecentFolders[5], recent.RecentTitles[5]);
    EXPECT_EQ(recent.RecentTitles[0], u"T-g5"_s);
    EXPECT_EQ(recent.RecentFolders[0], u"g5"_s);
}

TEST(Recent, MissingFileIsMadeWithOneEmptyLine)
{
    const TestFolder folder;
    const auto recent = ReadRecentFile(PlacesIn(folder));
    ASSERT_TRUE(recent.Ok());
    EXPECT_TRUE(recent.Value().RecentFolders[0].isEmpty());
    EXPECT_EQ(folder.Tree(), QStringList());
    ASSERT_TRUE(MakeRecentFile(PlacesIn(folder)));
    EXPECT_EQ(folder.ReadRaw(u"recent.sav"_s), "\r\n");
    folder.WriteRaw(u"recent.sav"_s, "kept");
    ASSERT_TRUE(MakeRecentFile(PlacesIn(folder)));
    EXPECT_EQ(folder.ReadRaw(u"recent.sav"_s), "kept");
}

TEST(Recent, ReadsAndWritesOneFileWhateverItsCase)
{
    const TestFolder folder;
    folder.WriteText(
        u"Recent.sav"_s, u"star"_s + kMark + u"별"_s + u"\r\n\r\nlost"_s + kMark + u"Lost"_s);
    auto recent = ReadRecentFile(PlacesIn(folder));
    ASSERT_TRUE(recent.Ok());
    ASSERT_TRUE(WriteRecentFile(PlacesIn(folder), recent.Value()).Ok());
    EXPECT_EQ(folder.Tree(), QStringList{u"Recent.sav"_s});
    EXPECT_EQ(folder.ReadText(u"Recent.sav"_s), u"star"_s + kMark + u"별\r\n"_s);
}

TEST(Recent, WhatTheFileCantKeepNeverNamesAnotherFolder)
{
    RecentList recent = ListOf({u"café"_s, u"bad\nname"_s, u"ok"_s});
    recent.RecentTitles[2] = u"caf\u00e9"_s + kMark + u"\r\n!"_s;
    const TestFolder folder;
    ASSERT_TRUE(WriteRecentFile(PlacesIn(folder), recent).Ok());
    EXPECT_EQ(
        folder.ReadRaw(u"recent.sav"_s),
        "ok\x01"
        "caf?!\r\n");
}

TEST(Recent, UnreadableFileIsAnErrorWithItsPath)
{
    const TestFolder folder;
    folder.MakeFolder(u"recent.sav"_s);
    const auto recent = ReadRecentFile(PlacesIn(folder));
    ASSERT_FALSE(recent.Ok());
    EXPECT_TRUE(recent.Failure().text.contains(folder.Path(u"recent.sav"_s)));
}

} // namespace
