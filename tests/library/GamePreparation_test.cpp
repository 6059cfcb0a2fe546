#include "library/GamePreparation.h"

#include "LibraryFixture.h"
#include "Pictures.h"
#include "library/IconImages.h"

#include <QFile>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using library::GameFiles;
using library::IconPixels;
using test::Words;

namespace {

const IconPixels& DefaultIcon()
{
    static const IconPixels icon = library::PlainIcon(32, 1, 2, 3);
    return icon;
}

class PreparationTest : public testing::Test {
protected:
    GameFiles List(const QString& folder = u"Folder"_s) const
    {
        return library::ListGame(m_library.places, folder);
    }
    IconPixels Prepare(GameFiles& files)
    {
        return library::PrepareGameFolder(files, DefaultIcon(), m_troubles);
    }
    IconPixels Prepare()
    {
        GameFiles files = List();
        IconPixels icon = Prepare(files);
        EXPECT_THAT(files.meta.all, testing::UnorderedElementsAreArray(List().meta.all))
            << "files tells what was made";
        return icon;
    }

    test::LibraryFolder m_library;
    test::TestFolder& m_root = m_library.root;
    library::Troubles m_troubles;
};

TEST_F(PreparationTest, ABareFolderBecomesCompleteAndNothingIsMadeTwice)
{
    m_root.MakeFolder(u"Games/Folder"_s);
    EXPECT_EQ(Prepare().bgr, DefaultIcon().bgr);
    EXPECT_EQ(
        m_root.TreeText(u"Games/Folder"_s),
        u"DosBox/ DosBox/CD/ DosBox/Manual/ DosBox/autoexec.conf"_s);
    EXPECT_EQ(m_root.ReadText(u"Games/Folder/DosBox/autoexec.conf"_s), u"\r\n"_s);
    EXPECT_EQ(m_troubles.count, 0);

    const QString old = u"DOSBOX/ DOSBOX/AutoExec.CONF DOSBOX/MANUAL/ DOSBOX/cd/"_s;
    for (const QString& name : Words(old)) {
        m_root.MakeAll(u"Games/Old/"_s + name);
    }
    GameFiles files = List(u"Old"_s);
    Prepare(files);
    EXPECT_EQ(m_root.TreeText(u"Games/Old"_s), old) << "in another case";
}

TEST_F(PreparationTest, StartFileByRank)
{
    const std::pair<QString, QString> cases[] = {
        {u"PLAY.BAT"_s, u"play.bat"_s},
        {u"start.bat game.exe"_s, u"start.bat"_s},
        {u"GO.EXE folder.EXE play.com"_s, u"go.exe"_s},
        {u"FOLDER.COM"_s, u"Folder.com"_s},
        {u"folder.bat play.exe"_s, u"Folder.bat"_s},
        {u"setup.exe playing.exe game.bat.txt"_s, QString()},
        {u"game.exe/"_s, QString()}, // a folder
    };
    for (const auto& [there, found] : cases) {
        test::LibraryFolder folder;
        for (const QString& name : Words(there)) {
            folder.root.MakeAll(u"Games/Folder/"_s + name);
        }
        const GameFiles files = library::ListGame(folder.places, u"Folder"_s);
        EXPECT_EQ(library::DetectStartFile(files), found) << there;
    }
}

TEST_F(PreparationTest, AStartFileThatTheFileCantNameGivesAnEmptyLine)
{
    m_root.MakeTree({u"Games/Café/café.exe"_s});
    GameFiles files = List(u"Café"_s);
    Prepare(files);
    EXPECT_EQ(m_root.ReadText(u"Games/Café/DosBox/autoexec.conf"_s), u"\r\n"_s);
    ASSERT_EQ(m_troubles.count, 1);
    EXPECT_EQ(m_troubles.kept[0].kind, platform::ErrorKind::Unencodable);
}

TEST_F(PreparationTest, TheIconFileIsTakenInAnyCaseOrElseMadeOutOfTheFirstIco)
{
    const QString meta = u"Games/Folder/DosBox/"_s;
    m_root.WriteRaw(meta + u"b.ico"_s, test::IcoFile({test::IcoDib(32, {0, 0, 0})}));
    m_root.WriteRaw(meta + u"A.ICO"_s, test::IcoFile({test::IcoDib(32, {200, 100, 50})}));
    m_root.MakeAll(meta + u"SmallIcon.JPG"_s);
    EXPECT_EQ(Prepare().bgr, library::PlainIcon(32, 50, 100, 200).bgr);
    EXPECT_TRUE(QFile::remove(m_root.Path(meta + u"Icon.jpg"_s)));
    EXPECT_TRUE(m_root.Exists(meta + u"A.ICO"_s));
    EXPECT_FALSE(m_root.Exists(meta + u"SmallIcon.JPG"_s));

    m_root.WriteRaw(meta + u"ICON.jpg"_s, test::PictureFile(FIF_JPEG, 32, 32, {90, 90, 90}));
    EXPECT_NEAR(static_cast<std::uint8_t>(Prepare().bgr[300]), 90, 3);
    EXPECT_FALSE(m_root.Exists(meta + u"Icon.jpg"_s));
}

TEST_F(PreparationTest, BrokenPicturesGiveTheDefaultIconAndNoFile)
{
    m_root.WriteRaw(u"Games/Folder/DosBox/a.ico"_s, QByteArray("no icon"));
    EXPECT_EQ(Prepare().bgr, DefaultIcon().bgr);
    EXPECT_FALSE(m_root.Exists(u"Games/Folder/DosBox/Icon.jpg"_s));
    m_root.WriteRaw(u"Games/Folder/DosBox/Icon.jpg"_s, QByteArray("no picture"));
    EXPECT_EQ(Prepare().bgr, DefaultIcon().bgr);
    EXPECT_EQ(m_root.ReadRaw(u"Games/Folder/DosBox/Icon.jpg"_s), QByteArray("no picture"));
    EXPECT_EQ(m_troubles.count, 2);
}

TEST_F(PreparationTest, WhatCantBeMadeIsTold)
{
    m_root.MakeFolder(u"Games/Folder"_s);
    m_root.MakeLink(u"Games/Folder/DosBox"_s, u"DosBox"_s); // leads to itself
    EXPECT_EQ(Prepare().bgr, DefaultIcon().bgr);
    EXPECT_EQ(m_troubles.count, 1);
    GameFiles gone = List(u"gone"_s);
    Prepare(gone);
    EXPECT_EQ(m_troubles.count, 2);
    EXPECT_FALSE(m_root.Exists(u"Games/gone"_s));
}

} // namespace
