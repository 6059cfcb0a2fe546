#include "library/GamePreparation.h"

#include "LibraryFixture.h"
#include "Pictures.h"
#include "library/IconImages.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using library::GameFiles;
using library::IconPixels;

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
    QStringList Tree() { return m_root.Tree(u"Games/Folder"_s); }
    QString StartCommand() { return m_root.ReadText(u"Games/Folder/DosBox/autoexec.conf"_s); }

    test::LibraryFolder m_library;
    test::TestFolder& m_root = m_library.root;
    library::Troubles m_troubles;
};

TEST_F(PreparationTest, ABareFolderBecomesComplete)
{
    m_root.MakeFolder(u"Games/Folder"_s);
    EXPECT_EQ(Prepare().bgr, DefaultIcon().bgr);
    EXPECT_EQ(
        Tree(),
        (QStringList{
            u"DosBox/"_s, u"DosBox/CD/"_s, u"DosBox/Manual/"_s, u"DosBox/autoexec.conf"_s}));
    EXPECT_EQ(StartCommand(), u"\r\n"_s);
    EXPECT_EQ(m_troubles.count, 0);
}

TEST_F(PreparationTest, NothingIsMadeASecondTimeInAnotherCase)
{
    m_root.MakeTree(
        {u"Games/Folder/DOSBOX/cd/"_s,
         u"Games/Folder/DOSBOX/MANUAL/"_s,
         u"Games/Folder/DOSBOX/AutoExec.CONF"_s});
    const QStringList before = Tree();
    Prepare();
    EXPECT_EQ(Tree(), before);
}

TEST_F(PreparationTest, StartFileByRank)
{
    struct Case {
        QStringList there;
        QString found;
    };
    const std::vector<Case> cases{
        {{u"PLAY.BAT"_s}, u"play.bat"_s},
        {{u"start.bat"_s, u"game.exe"_s}, u"start.bat"_s},
        {{u"GO.EXE"_s, u"folder.EXE"_s, u"play.com"_s}, u"go.exe"_s},
        {{u"FOLDER.COM"_s}, u"Folder.com"_s},
        {{u"folder.bat"_s, u"play.exe"_s}, u"Folder.bat"_s},
        {{u"setup.exe"_s, u"playing.exe"_s, u"game.bat.txt"_s}, QString()},
        {{u"game.exe/"_s}, QString()}, // a folder
    };
    for (const Case& c : cases) {
        test::LibraryFolder folder;
        for (const QString& name : c.there) {
            folder.root.MakeTree({u"Games/Folder/"_s + name});
        }
        const GameFiles files = library::ListGame(folder.places, u"Folder"_s);
        EXPECT_EQ(library::DetectStartFile(files), c.found) << c.there.join(u' ').toStdString();
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

TEST_F(PreparationTest, TheIconFileIsTakenInAnyCase)
{
    m_root.WriteRaw(
        u"Games/Folder/DosBox/ICON.jpg"_s,
        test::PictureFile(test::PictureFormat::Jpeg, 32, 32, {90, 90, 90}));
    m_root.WriteRaw(u"Games/Folder/DosBox/a.ico"_s, test::IcoFile({test::IcoDib(32, {1, 1, 1})}));
    m_root.MakeTree({u"Games/Folder/DosBox/SmallIcon.JPG"_s});
    const IconPixels icon = Prepare();
    EXPECT_NEAR(static_cast<std::uint8_t>(icon.bgr[300]), 90, 3);
    EXPECT_FALSE(m_root.Exists(u"Games/Folder/DosBox/Icon.jpg"_s));
    EXPECT_FALSE(m_root.Exists(u"Games/Folder/DosBox/SmallIcon.JPG"_s));
}

TEST_F(PreparationTest, AnIconIsMadeOutOfTheFirstIco)
{
    m_root.WriteRaw(u"Games/Folder/DosBox/b.ico"_s, test::IcoFile({test::IcoDib(32, {0, 0, 0})}));
    m_root.WriteRaw(
        u"Games/Folder/DosBox/A.ICO"_s, test::IcoFile({test::IcoDib(32, {200, 100, 50})}));
    const IconPixels icon = Prepare();
    EXPECT_EQ(icon.bgr, library::PlainIcon(32, 50, 100, 200).bgr);
    EXPECT_TRUE(m_root.Exists(u"Games/Folder/DosBox/Icon.jpg"_s));
    EXPECT_TRUE(m_root.Exists(u"Games/Folder/DosBox/A.ICO"_s));
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
