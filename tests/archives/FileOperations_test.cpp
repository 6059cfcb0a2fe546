#include "archives/FileOperations.h"

#include "support/DiskTroubles.h"
#include "support/TestFolder.h"

#include <QFile>

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace pelorin::archives;
using namespace pelorin::test;
using pelorin::platform::Done;
using pelorin::platform::ErrorKind;

namespace {

TEST(Existence, FilesAndFoldersAreToldApart)
{
    const TestFolder folder;
    folder.MakeTree({u"Star/DosBox/Icon.jpg"_s});
    folder.MakeLink(u"toFolder"_s, folder.Path(u"Star"_s));
    folder.MakeLink(u"toFile"_s, u"Star/DosBox/Icon.jpg"_s);
    folder.MakeLink(u"broken"_s, u"nowhere"_s);
    struct Case {
        QString path;
        bool file;
        bool isFolder;
    };
    const Case cases[] = {
        {u"Star"_s, false, true},
        {u"star/dosbox/"_s, false, true},
        {u"STAR\\DOSBOX\\icon.JPG"_s, true, false},
        {u"toFolder"_s, false, true},
        {u"toFile"_s, true, false},
        {u"broken"_s, false, false},
        {u"Star/missing"_s, false, false},
        {u"Star/DosBox/Icon.jpg/x"_s, false, false},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(FileExists(folder.Path(one.path)), one.file) << one.path.toStdString();
        EXPECT_EQ(FolderExists(folder.Path(one.path)), one.isFolder) << one.path.toStdString();
    }
    EXPECT_FALSE(FileExists(QString()));
    EXPECT_FALSE(FolderExists(QString()));
}

TEST(DeleteFile, OneFile)
{
    const TestFolder folder;
    folder.MakeTree({u"cd/Image.ISO"_s, u"keep"_s, u"sub/"_s});
    folder.MakeLink(u"link"_s, u"keep"_s);
    folder.MakeLink(u"broken"_s, u"nowhere"_s);
    folder.MakeLink(u"toFolder"_s, u"sub"_s);
    SetMode(folder.Path(u"cd/Image.ISO"_s), 0444);
    EXPECT_TRUE(DeleteFile(folder.Path(u"CD\\image.iso"_s)).Ok());
    EXPECT_TRUE(DeleteFile(folder.Path(u"link"_s)).Ok());
    EXPECT_TRUE(DeleteFile(folder.Path(u"broken"_s)).Ok());
    EXPECT_EQ(KindOf(DeleteFile(folder.Path(u"sub"_s))), ErrorKind::Refused);
    EXPECT_EQ(KindOf(DeleteFile(folder.Path(u"toFolder"_s))), ErrorKind::Refused);
    EXPECT_EQ(KindOf(DeleteFile(folder.Path(u"sub/"_s))), ErrorKind::Refused);
    const Done missing = DeleteFile(folder.Path(u"missing"_s));
    EXPECT_EQ(KindOf(missing), ErrorKind::NotFound);
    EXPECT_TRUE(missing.Failure().text.startsWith(folder.Path(u"missing"_s)));
    EXPECT_TRUE(DeleteFileIfThere(folder.Path(u"missing"_s)).Ok());
    EXPECT_EQ(KindOf(DeleteFileIfThere(folder.Path(u"sub"_s))), ErrorKind::Refused);
    EXPECT_EQ(folder.Tree(), (QStringList{u"cd/"_s, u"keep"_s, u"sub/"_s, u"toFolder"_s}));
}

TEST(DeleteFile, Wildcards)
{
    struct Case {
        QString pattern;
        QStringList left;
    };
    const QStringList all{u".hidden"_s, u"README"_s, u"a.iso"_s, u"b.ISO"_s, u"b.iso.txt"_s};
    const Case cases[] = {
        {u"*.*"_s, {}},
        {u"*"_s, {}},
        {u"*.iso"_s, {u".hidden"_s, u"README"_s, u"b.iso.txt"_s}},
        {u"?.iso"_s, {u".hidden"_s, u"README"_s, u"b.iso.txt"_s}},
        {u"readme.*"_s, {u".hidden"_s, u"a.iso"_s, u"b.ISO"_s, u"b.iso.txt"_s}},
        {u"b*"_s, {u".hidden"_s, u"README"_s, u"a.iso"_s}},
        {u"[ab].iso"_s, all},
        {u"*.cue"_s, all},
        {u"?"_s, all},
    };
    for (const Case& one : cases) {
        const TestFolder folder;
        folder.MakeTree({u"sub/inside.iso"_s, u"CD/sub/inside.iso"_s});
        for (const QString& name : all) {
            folder.WriteRaw(u"CD/"_s + name, "x");
        }
        folder.MakeLink(u"CD/toFolder"_s, u"../sub"_s);
        const Done done = DeleteFile(folder.Path(u"cd/"_s) + one.pattern);
        if (one.pattern.startsWith(u'[')) {
            EXPECT_EQ(KindOf(done), ErrorKind::NotFound);
        } else {
            EXPECT_TRUE(done.Ok()) << one.pattern.toStdString();
        }
        const QStringList folders{u"sub/"_s, u"sub/inside.iso"_s, u"toFolder"_s};
        EXPECT_EQ(folder.Tree(u"CD"_s), one.left + folders) << one.pattern.toStdString();
        EXPECT_TRUE(folder.Exists(u"sub/inside.iso"_s));
    }
}

TEST(DeleteFile, WildcardsWithoutAFolderOfTheirOwnAreRefused)
{
    for (const QString& path : {u"*.*"_s, u"/*.*"_s, u"/tmp/../*"_s, u"cd/*"_s}) {
        EXPECT_EQ(KindOf(DeleteFile(path)), ErrorKind::Refused) << path.toStdString();
    }
    const TestFolder folder;
    EXPECT_TRUE(DeleteFile(folder.Path(u"missing/*.*"_s)).Ok());
}

TEST(DeleteFile, NameThatLooksLikeAPatternIsTakenAlone)
{
    const TestFolder folder;
    folder.MakeTree({u"what?.txt"_s, u"whats.txt"_s});
    EXPECT_TRUE(DeleteFile(folder.Path(u"what?.txt"_s)).Ok());
    EXPECT_EQ(folder.Tree(), QStringList{u"whats.txt"_s});
}

TEST(DeleteFile, NamesInOtherEncodingsGoToo)
{
    const TestFolder folder;
    folder.MakeTree({u"cd/"_s});
    const QByteArray name = QFile::encodeName(folder.Path(u"cd/"_s)) + "\xb0\xd4\xc0\xd3.iso";
    std::FILE* file = std::fopen(name.constData(), "w");
    ASSERT_NE(file, nullptr);
    std::fclose(file);
    EXPECT_TRUE(DeleteFile(folder.Path(u"cd/*.*"_s)).Ok());
    EXPECT_NE(access(name.constData(), F_OK), 0);
}

TEST(DeleteFolder, RemovesLinksAndNeverWhatTheyLeadTo)
{
    const TestFolder folder;
    folder.MakeTree(
        {u"game/a/b/file"_s, u"game/.hidden"_s, u"treasure/save.dat"_s, u"treasure/deep/x"_s});
    folder.MakeLink(u"game/toFolder"_s, folder.Path(u"treasure"_s));
    folder.MakeLink(u"game/a/toFile"_s, folder.Path(u"treasure/save.dat"_s));
    folder.MakeLink(u"game/up"_s, u".."_s);
    folder.MakeLink(u"game/broken"_s, u"nowhere"_s);
    folder.MakeLink(u"alias"_s, u"treasure"_s);
    EXPECT_TRUE(DeleteFolder(folder.Path(u"GAME"_s)).Ok());
    EXPECT_TRUE(DeleteFolder(folder.Path(u"alias"_s)).Ok());
    EXPECT_EQ(
        folder.Tree(),
        (QStringList{
            u"treasure/"_s, u"treasure/deep/"_s, u"treasure/deep/x"_s, u"treasure/save.dat"_s}));
}

TEST(DeleteFolder, ReadOnlyThingsToo)
{
    const TestFolder folder;
    folder.MakeTree({u"game/locked/deep/file"_s, u"game/file"_s});
    SetMode(folder.Path(u"game/file"_s), 0444);
    SetMode(folder.Path(u"game/locked/deep"_s), 0);
    SetMode(folder.Path(u"game/locked"_s), 0555);
    const OrdinaryUser user(folder);
    const Done done = DeleteFolder(folder.Path(u"game"_s));
    EXPECT_TRUE(done.Ok()) << done.Failure().text.toStdString();
    EXPECT_EQ(folder.Tree(), QStringList());
}

TEST(DeleteFolder, SaysWhatCantBeRemoved)
{
    const TestFolder folder;
    folder.MakeTree({u"locked/game/file"_s});
    SetMode(folder.Path(u"locked"_s), 0555);
    {
        const OrdinaryUser user(folder);
        const Done done = DeleteFolder(folder.Path(u"locked/game"_s));
        EXPECT_EQ(KindOf(done), ErrorKind::Unwritable);
        EXPECT_TRUE(done.Failure().text.startsWith(folder.Path(u"locked/game: "_s)));
    }
    SetMode(folder.Path(u"locked"_s), 0755);
}

TEST(DeleteFolder, Refusals)
{
    const TestFolder folder;
    folder.MakeTree({u"games/star/file"_s});
    const QString games = folder.Path(u"games"_s);
    const QStringList refused{
        QString(),
        u"/"_s,
        u"//"_s,
        u"games"_s,
        games + u'/',
        games + u"\\"_s,
        games + u"/star/.."_s,
        games + u"/."_s,
        games + u"/star/file"_s,
        u"/proc"_s};
    for (const QString& path : refused) {
        EXPECT_EQ(KindOf(DeleteFolder(path)), ErrorKind::Refused) << path.toStdString();
    }
    EXPECT_EQ(KindOf(DeleteFolder(games + u"/missing"_s)), ErrorKind::NotFound);
    EXPECT_TRUE(folder.Exists(u"games/star/file"_s));
}

TEST(CheckFileTools, ReportsWhatIsMissing)
{
    const QString copy =
        u"Tools\\CopyFile.exe 가 없습니다.\r\n파일 복사가 작동하지 않습니다.\r\n\r\n"_s;
    const QString move =
        u"Tools\\MoveFile.exe 가 없습니다.\r\n파일/폴더 이동이 작동하지 않습니다.\r\n\r\n"_s;
    const QString advice = u"간혹 이 파일들이 백신에 의해 삭제되는 경우가 있으니\r\n"
                           "실시간 감지를 끄고 런처를 다시 다운 받으세요"_s;
    EXPECT_EQ(CheckFileTools({}), QString());
    EXPECT_EQ(CheckFileTools({true, false}), copy + advice);
    EXPECT_EQ(CheckFileTools({false, true}), move + advice);
    EXPECT_EQ(CheckFileTools({true, true}), copy + move + advice);
}

} // namespace
