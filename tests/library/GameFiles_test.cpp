#include "library/GameFiles.h"

#include "LibraryFixture.h"

#include <QFileInfo>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using library::GameFiles;
using library::ListGame;
using testing::ElementsAre;

namespace {

class GameFilesTest : public testing::Test {
protected:
    GameFiles List(const QString& folder) const { return ListGame(m_library.places, folder); }

    test::LibraryFolder m_library;
    test::TestFolder& m_root = m_library.root;
};

TEST_F(GameFilesTest, FindsTheMetadataFolderInAnyCase)
{
    m_root.MakeTree({u"Games/A/DOSBOX/Info.TXT"_s, u"Games/B/DosBox/x"_s, u"Games/B/dosbox/y"_s});
    const GameFiles a = List(u"A"_s);
    EXPECT_EQ(a.metaDir, m_root.Path(u"Games/A/DOSBOX"_s));
    EXPECT_TRUE(a.HasMetaFile(u"info.txt"_s));
    EXPECT_EQ(a.MetaPath(u"info.txt"_s), m_root.Path(u"Games/A/DOSBOX/Info.TXT"_s));
    EXPECT_EQ(a.MetaPath(u"GenreK.dat"_s), m_root.Path(u"Games/A/DOSBOX/GenreK.dat"_s));
    EXPECT_EQ(List(u"B"_s).metaDir, m_root.Path(u"Games/B/DosBox"_s)) << "the exact one first";
}

TEST_F(GameFilesTest, AFileOfThatNameIsNoMetadataFolder)
{
    m_root.MakeTree({u"Games/A/dosbox"_s});
    GameFiles files = List(u"A"_s);
    EXPECT_FALSE(files.meta.exists);
    const platform::Done made = library::MakeMetaDir(files);
    ASSERT_FALSE(made);
    EXPECT_EQ(made.Failure().kind, platform::ErrorKind::Refused);
    EXPECT_EQ(m_root.Tree(), (QStringList{u"Games/"_s, u"Games/A/"_s, u"Games/A/dosbox"_s}));
}

TEST_F(GameFilesTest, AMissingFolderIsEmptyAndIsNotMadeAgain)
{
    GameFiles files = List(u"gone"_s);
    EXPECT_FALSE(files.game.exists);
    EXPECT_FALSE(library::IsGameStored(files));
    EXPECT_FALSE(library::MakeMetaDir(files));
    EXPECT_FALSE(m_root.Exists(u"Games/gone"_s));
}

TEST_F(GameFilesTest, ListsByKindAndName)
{
    m_root.MakeTree(
        {u"Games/A/Zork.EXE"_s,
         u"Games/A/b.com"_s,
         u"Games/A/A.bat"_s,
         u"Games/A/readme.txt"_s,
         u"Games/A/.hidden.exe"_s,
         u"Games/A/sub.exe/"_s,
         u"Games/A/STORE.7Z"_s,
         u"Games/A/dosbox/ICON.JPG"_s,
         u"Games/A/dosbox/z.Png"_s,
         u"Games/A/dosbox/b.jpeg"_s,
         u"Games/A/dosbox/c.ico"_s,
         u"Games/A/dosbox/song.VGM"_s,
         u"Games/A/dosbox/cut.avi"_s,
         u"Games/A/dosbox/MANUAL/page 2.txt"_s,
         u"Games/A/dosbox/MANUAL/Page 1.txt"_s});
    const GameFiles files = List(u"A"_s);
    EXPECT_THAT(library::RunnableFiles(files), ElementsAre(u"A.bat"_s, u"b.com"_s, u"Zork.EXE"_s));
    EXPECT_THAT(library::Pictures(files), ElementsAre(u"b.jpeg"_s, u"z.Png"_s, u"ICON.JPG"_s))
        << "the icon last";
    EXPECT_THAT(library::Recordings(files), ElementsAre(u"cut.avi"_s, u"song.VGM"_s));
    EXPECT_THAT(library::Manuals(files), ElementsAre(u"Page 1.txt"_s, u"page 2.txt"_s));
    EXPECT_TRUE(library::IsGameStored(files));
}

TEST_F(GameFilesTest, NotedEntriesAreFoundAndForgottenOnesAreNot)
{
    m_root.MakeTree({u"Games/A/DosBox/EXTRA.dat"_s, u"Games/A/DosBox/extra.DAT"_s});
    GameFiles files = List(u"A"_s);
    files.NoteMetaFile(u"GenreK.dat"_s);
    EXPECT_TRUE(files.HasMetaFile(u"genrek.DAT"_s));
    files.ForgetMetaFile(files.meta.Find(u"Extra.dat"_s));
    EXPECT_TRUE(files.HasMetaFile(u"Extra.dat"_s)) << "its twin of another case is still there";
    files.ForgetMetaFile(files.meta.Find(u"Extra.dat"_s));
    EXPECT_FALSE(files.HasMetaFile(u"Extra.dat"_s));
}

TEST_F(GameFilesTest, WhatLeadsBackToTheGamesIsNoGame)
{
    m_root.MakeTree({u"Games/A/"_s, u"Elsewhere/Far/"_s});
    m_root.MakeLink(u"Games/self"_s, u"."_s);
    m_root.MakeLink(u"Games/above"_s, u".."_s);
    m_root.MakeLink(u"Games/slash"_s, u"/"_s);
    m_root.MakeLink(u"Games/brother"_s, u"A"_s);
    m_root.MakeLink(u"Games/far"_s, m_root.Path(u"Elsewhere/Far"_s));
    const std::vector<std::pair<QString, bool>> cases{
        {u"A"_s, true},
        {u"brother"_s, true},
        {u"far"_s, true},
        {u"self"_s, false},
        {u"above"_s, false},
        {u"slash"_s, false},
        {u"a\\b"_s, false},
        {u".."_s, false},
        {u"\uFFFDx"_s, false},
    };
    for (const auto& [name, game] : cases) {
        EXPECT_EQ(library::MayBeGame(m_library.places, name), game) << name.toStdString();
    }
}

TEST(TroublesTest, CountsAllAndKeepsTheFirst)
{
    library::Troubles troubles;
    for (int i = 0; i < 5000; ++i) {
        troubles.Add(platform::Error{platform::ErrorKind::Unwritable, QString::number(i)});
    }
    troubles.AddIfFailed(platform::Success());
    EXPECT_EQ(troubles.count, 5000);
    ASSERT_EQ(troubles.kept.size(), std::size_t{library::Troubles::kMostKept});
    EXPECT_EQ(troubles.kept.front().text, u"0"_s);
}

} // namespace
