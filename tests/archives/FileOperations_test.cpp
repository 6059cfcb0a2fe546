#include "archives/FileOperations.h"

#include "support/DiskTroubles.h"

#include <QFile>

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
    folder.MakeAll(u"Star/DosBox/Icon.jpg"_s);
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
        EXPECT_EQ(FileExists(folder.Path(one.path)), one.file) << one.path;
        EXPECT_EQ(FolderExists(folder.Path(one.path)), one.isFolder) << one.path;
    }
    EXPECT_FALSE(FileExists(QString()));
    EXPECT_FALSE(FolderExists(QString()));
}

TEST(DeleteFile, OneFile)
{
    const TestFolder folder;
    folder.MakeAll(u"cd/Image.ISO keep sub/"_s);
    folder.MakeTree({u"what?.txt"_s, u"whats.txt"_s});
    folder.MakeLink(u"link"_s, u"keep"_s);
    folder.MakeLink(u"broken"_s, u"nowhere"_s);
    folder.MakeLink(u"toFolder"_s, u"sub"_s);
    SetMode(folder.Path(u"cd/Image.ISO"_s), 0444);
    // A name that looks like a pattern is taken alone.
    for (const QString& name : {u"CD\\image.iso"_s, u"link"_s, u"broken"_s, u"what?.txt"_s}) {
        EXPECT_TRUE(DeleteFile(folder.Path(name)).Ok()) << name;
    }
    for (const QString& name : Words(u"sub toFolder sub/"_s)) {
        EXPECT_EQ(KindOf(DeleteFile(folder.Path(name))), ErrorKind::Refused) << name;
    }
    const Done missing = DeleteFile(folder.Path(u"missing"_s));
    EXPECT_EQ(KindOf(missing), ErrorKind::NotFound);
    EXPECT_TRUE(ErrorOf(missing).startsWith(folder.Path(u"missing"_s)));
    EXPECT_TRUE(DeleteFileIfThere(folder.Path(u"missing"_s)).Ok());
    EXPECT_EQ(KindOf(DeleteFileIfThere(folder.Path(u"sub"_s))), ErrorKind::Refused);
    EXPECT_EQ(folder.TreeText(), u"cd/ keep sub/ toFolder whats.txt"_s);
}

TEST(DeleteFile, Wildcards)
{
    const QString all = u".hidden README a.iso b.ISO b.iso.txt"_s;
    const std::pair<QString, QString> cases[] = {
        // pattern, what is left
        {u"*.*"_s, QString()},
        {u"*"_s, QString()},
        {u"*.iso"_s, u".hidden README b.iso.txt"_s},
        {u"?.iso"_s, u".hidden README b.iso.txt"_s},
        {u"readme.*"_s, u".hidden a.iso b.ISO b.iso.txt"_s},
        {u"b*"_s, u".hidden README a.iso"_s},
        {u"*.cue"_s, all},
        {u"?"_s, all},
    };
    for (const auto& [pattern, left] : cases) {
        const TestFolder folder;
        folder.MakeAll(u"sub/inside.iso CD/sub/inside.iso"_s);
        for (const QString& name : Words(all)) {
            folder.WriteRaw(u"CD/"_s + name, "x");
        }
        folder.MakeLink(u"CD/toFolder"_s, u"../sub"_s);
        EXPECT_TRUE(DeleteFile(folder.Path(u"cd/"_s) + pattern).Ok()) << pattern;
        const QStringList folders = Words(u"sub/ sub/inside.iso toFolder"_s);
        EXPECT_EQ(folder.Tree(u"CD"_s), Words(left) + folders) << pattern;
        EXPECT_TRUE(folder.Exists(u"sub/inside.iso"_s));
    }
    const TestFolder folder;
    folder.MakeAll(u"a.iso"_s);
    EXPECT_EQ(KindOf(DeleteFile(folder.Path(u"[ab].iso"_s))), ErrorKind::NotFound);
    EXPECT_TRUE(DeleteFile(folder.Path(u"missing/*.*"_s)).Ok());
    // Without a folder of their own they are refused.
    for (const QString& path : Words(u"*.* /*.* /tmp/../* cd/*"_s)) {
        EXPECT_EQ(KindOf(DeleteFile(path)), ErrorKind::Refused) << path;
    }
}

TEST(DeleteFile, NamesInOtherEncodingsGoToo)
{
    const TestFolder folder;
    folder.MakeFolder(u"cd"_s);
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
    folder.MakeAll(u"game/a/b/file game/.hidden treasure/save.dat treasure/deep/x"_s);
    folder.MakeLink(u"game/toFolder"_s, folder.Path(u"treasure"_s));
    folder.MakeLink(u"game/a/toFile"_s, folder.Path(u"treasure/save.dat"_s));
    folder.MakeLink(u"game/up"_s, u".."_s);
    folder.MakeLink(u"game/broken"_s, u"nowhere"_s);
    folder.MakeLink(u"alias"_s, u"treasure"_s);
    EXPECT_TRUE(DeleteFolder(folder.Path(u"GAME"_s)).Ok());
    EXPECT_TRUE(DeleteFolder(folder.Path(u"alias"_s)).Ok());
    EXPECT_EQ(folder.TreeText(), u"treasure/ treasure/deep/ treasure/deep/x treasure/save.dat"_s);
}

TEST(DeleteFolder, ReadOnlyThingsTooOrItSaysWhatStays)
{
    const TestFolder folder;
    folder.MakeAll(u"game/locked/deep/file game/file locked/game/file"_s);
    SetMode(folder.Path(u"game/file"_s), 0444);
    SetMode(folder.Path(u"game/locked/deep"_s), 0);
    SetMode(folder.Path(u"game/locked"_s), 0555);
    SetMode(folder.Path(u"locked"_s), 0555);
    {
        const OrdinaryUser user(folder);
        EXPECT_EQ(ErrorOf(DeleteFolder(folder.Path(u"game"_s))), QString());
        const Done done = DeleteFolder(folder.Path(u"locked/game"_s));
        EXPECT_EQ(KindOf(done), ErrorKind::Unwritable);
        EXPECT_TRUE(ErrorOf(done).startsWith(folder.Path(u"locked/game: "_s)));
    }
    SetMode(folder.Path(u"locked"_s), 0755);
    EXPECT_FALSE(folder.Exists(u"game"_s));
}

TEST(DeleteFolder, Refusals)
{
    const TestFolder folder;
    folder.MakeAll(u"games/star/file"_s);
    const QString games = folder.Path(u"games"_s);
    QStringList refused = Words(u"/ // games /proc"_s) << QString();
    for (const QString& end : Words(u"/ \\ /star/.. /. /star/file"_s)) {
        refused << games + end;
    }
    for (const QString& path : refused) {
        EXPECT_EQ(KindOf(DeleteFolder(path)), ErrorKind::Refused) << path;
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
