#include "library/GameFiles.h"

#include "LibraryFixture.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using library::GameFiles;
using library::ListGame;
using test::Words;

namespace {

class GameFilesTest : public testing::Test {
protected:
    GameFiles List(const QString& folder) const { return ListGame(m_library.places, folder); }

    test::LibraryFolder m_library;
    test::TestFolder& m_root = m_library.root;
};

TEST_F(GameFilesTest, FindsTheMetadataFolderInAnyCase)
{
    m_root.MakeAll(u"Games/A/DOSBOX/Info.TXT Games/B/DosBox/x Games/B/dosbox/y"_s);
    const GameFiles a = List(u"A"_s);
    EXPECT_EQ(a.metaDir, m_root.Path(u"Games/A/DOSBOX"_s));
    EXPECT_TRUE(a.HasMetaFile(u"info.txt"_s));
    EXPECT_EQ(a.MetaPath(u"info.txt"_s), m_root.Path(u"Games/A/DOSBOX/Info.TXT"_s));
    EXPECT_EQ(a.MetaPath(u"GenreK.dat"_s), m_root.Path(u"Games/A/DOSBOX/GenreK.dat"_s));
    EXPECT_EQ(List(u"B"_s).metaDir, m_root.Path(u"Games/B/DosBox"_s)) << "the exact one first";
}

TEST_F(GameFilesTest, NoMetadataFolderIsMadeOverAFileOrInAGameThatIsGone)
{
    m_root.MakeAll(u"Games/A/dosbox"_s);
    for (const QString& name : Words(u"A gone"_s)) {
        GameFiles files = List(name);
        EXPECT_EQ(files.game.exists, name == u"A"_s);
        EXPECT_FALSE(files.meta.exists);
        EXPECT_FALSE(library::IsGameStored(files));
        EXPECT_FALSE(library::MakeMetaDir(files));
    }
    EXPECT_EQ(m_root.TreeText(), u"Games/ Games/A/ Games/A/dosbox"_s);
}

TEST_F(GameFilesTest, ListsByKindAndName)
{
    for (const QString& name :
         Words(u"Zork.EXE b.com A.bat readme.txt .h.exe sub.exe/ STORE.7Z"_s)) {
        m_root.MakeAll(u"Games/A/"_s + name);
    }
    for (const QString& name :
         Words(u"ICON.JPG z.Png b.jpeg c.ico song.VGM cut.avi MANUAL/2.txt MANUAL/1.txt"_s)) {
        m_root.MakeAll(u"Games/A/dosbox/"_s + name);
    }
    const GameFiles files = List(u"A"_s);
    EXPECT_EQ(library::RunnableFiles(files), Words(u"A.bat b.com Zork.EXE"_s));
    EXPECT_EQ(library::PictureFiles(files), Words(u"b.jpeg z.Png ICON.JPG"_s)) << "the icon last";
    EXPECT_EQ(library::RecordingFiles(files), Words(u"cut.avi song.VGM"_s));
    EXPECT_EQ(library::ManualFiles(files), Words(u"1.txt 2.txt"_s));
    EXPECT_TRUE(library::IsGameStored(files));
}

TEST_F(GameFilesTest, NotedEntriesAreFoundAndForgottenOnesAreNot)
{
    m_root.MakeAll(u"Games/A/DosBox/EXTRA.dat Games/A/DosBox/extra.DAT"_s);
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
    m_root.MakeAll(u"Games/A/ Elsewhere/Far/"_s);
    m_root.MakeLink(u"Games/self"_s, u"."_s);
    m_root.MakeLink(u"Games/above"_s, u".."_s);
    m_root.MakeLink(u"Games/slash"_s, u"/"_s);
    m_root.MakeLink(u"Games/brother"_s, u"A"_s);
    m_root.MakeLink(u"Games/far"_s, m_root.Path(u"Elsewhere/Far"_s));
    for (const QString& name : Words(u"A brother far"_s)) {
        EXPECT_TRUE(library::MayBeGame(m_library.places, name)) << name;
    }
    for (const QString& name : Words(u"self above slash a\\b .. \uFFFDx"_s)) {
        EXPECT_FALSE(library::MayBeGame(m_library.places, name)) << name;
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
