#include "archives/FileOperations.h"

#include "support/TestFolder.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::archives;
using platform::Done;
using platform::ErrorKind;
using test::TestFolder;

namespace {

constexpr uid_t kNobody = 65534;

/// Runs the scope as an ordinary user, since root may do what a mode forbids.
class OrdinaryUser {
public:
    explicit OrdinaryUser(const TestFolder& folder)
    {
        if (geteuid() != 0) {
            return;
        }
        GiveAway(folder.Path());
        for (const QString& entry : folder.Tree()) {
            GiveAway(folder.Path(entry));
        }
        m_changed = seteuid(kNobody) == 0;
    }
    ~OrdinaryUser()
    {
        if (m_changed) {
            EXPECT_EQ(seteuid(0), 0);
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    static void GiveAway(const QString& path)
    {
        EXPECT_EQ(lchown(QFile::encodeName(path).constData(), kNobody, kNobody), 0);
    }
    bool m_changed = false;
};

/// No file may grow beyond `bytes` within the scope: what a full disk looks like to a program.
class SmallFiles {
public:
    explicit SmallFiles(rlim_t bytes)
    {
        m_signal = std::signal(SIGXFSZ, SIG_IGN);
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &m_before), 0);
        const rlimit small{bytes, m_before.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    ~SmallFiles()
    {
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &m_before), 0);
        std::signal(SIGXFSZ, m_signal);
    }
    SmallFiles(const SmallFiles&) = delete;
    SmallFiles& operator=(const SmallFiles&) = delete;

private:
    rlimit m_before = {};
    void (*m_signal)(int) = nullptr;
};

/// A temporary folder on another file system than TestFolder's, where there is one.
class OtherDisk {
public:
    OtherDisk()
        : m_folder(u"/dev/shm/pelorin-XXXXXX"_s)
    {}
    bool IsOther(const TestFolder& than) const
    {
        return m_folder.isValid() && DeviceOf(m_folder.path()) != DeviceOf(than.Path());
    }
    QString Path(const QString& relative) const { return m_folder.filePath(relative); }

private:
    static dev_t DeviceOf(const QString& path)
    {
        struct stat status = {};
        EXPECT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
        return status.st_dev;
    }
    QTemporaryDir m_folder;
};

void SetMode(const QString& path, mode_t mode)
{
    EXPECT_EQ(chmod(QFile::encodeName(path).constData(), mode), 0) << path.toStdString();
}

ErrorKind KindOf(const Done& done)
{
    EXPECT_FALSE(done.Ok());
    return done.Ok() ? ErrorKind::Malformed : done.Failure().kind;
}

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

TEST(MoveFolder, WithinAFileSystem)
{
    const TestFolder folder;
    folder.MakeTree({u"from/game/file"_s, u"games/taken/"_s, u"games/other/"_s});
    EXPECT_TRUE(MoveFolderQuiet(folder.Path(u"from/GAME"_s), folder.Path(u"Games/star"_s)).Ok());
    EXPECT_EQ(
        KindOf(MoveFolderQuiet(folder.Path(u"games/star"_s), folder.Path(u"games/TAKEN"_s))),
        ErrorKind::Refused);
    // Another case of the same name is a new name, not a taken one.
    EXPECT_TRUE(MoveFolderQuiet(folder.Path(u"games/star"_s), folder.Path(u"games/STAR"_s)).Ok());
    EXPECT_TRUE(MoveFolderQuiet(folder.Path(u"games/other"_s), folder.Path(u"from\\"_s)).Ok());
    EXPECT_EQ(
        folder.Tree(),
        (QStringList{
            u"from/"_s,
            u"from/other/"_s,
            u"games/"_s,
            u"games/STAR/"_s,
            u"games/STAR/file"_s,
            u"games/taken/"_s}));
}

TEST(MoveFolder, Refusals)
{
    const TestFolder folder;
    folder.MakeTree({u"game/sub/file"_s, u"file"_s, u"empty/"_s});
    folder.MakeLink(u"alias"_s, u"game/sub"_s);
    struct Case {
        QString source;
        QString destination;
        ErrorKind kind;
    };
    const Case cases[] = {
        {u"game"_s, u"game"_s, ErrorKind::Refused},
        {u"game"_s, u"game/sub/game"_s, ErrorKind::Refused},
        {u"game"_s, u"alias/game"_s, ErrorKind::Refused},
        {u"game"_s, u"game/"_s, ErrorKind::Refused},
        {u"game"_s, u"empty"_s, ErrorKind::Refused},
        {u"game"_s, u"file"_s, ErrorKind::Refused},
        {u"game"_s, u"no/such/place"_s, ErrorKind::NotFound},
        {u"file"_s, u"new"_s, ErrorKind::NotFound},
        {u"missing"_s, u"new"_s, ErrorKind::NotFound},
    };
    const QStringList before = folder.Tree();
    for (const Case& one : cases) {
        EXPECT_EQ(
            KindOf(MoveFolderQuiet(folder.Path(one.source), folder.Path(one.destination))),
            one.kind)
            << one.source.toStdString() << " to " << one.destination.toStdString();
    }
    EXPECT_EQ(folder.Tree(), before);
}

class MoveOverDisks : public testing::Test {
protected:
    void SetUp() override
    {
        if (!other.IsOther(folder)) {
            GTEST_SKIP() << "/dev/shm is no file system of its own here";
        }
        folder.MakeTree({u"treasure/save"_s, u"game/empty/"_s});
        folder.WriteRaw(u"game/big"_s, QByteArray(3 << 20, 'x'));
        folder.WriteRaw(u"game/DosBox/한글.txt"_s, "text");
        folder.MakeLink(u"game/link"_s, folder.Path(u"treasure"_s));
        folder.MakeLink(u"game/broken"_s, u"../nowhere"_s);
    }

    const TestFolder folder;
    const OtherDisk other;
};

TEST_F(MoveOverDisks, EverythingArrivesAsItWas)
{
    const QDateTime then = QDateTime::fromSecsSinceEpoch(800000000);
    QFile big(folder.Path(u"game/big"_s));
    ASSERT_TRUE(big.open(QIODevice::ReadWrite));
    ASSERT_TRUE(big.setFileTime(then, QFileDevice::FileModificationTime));
    big.close();
    SetMode(folder.Path(u"game/DosBox/한글.txt"_s), 0400);
    SetMode(folder.Path(u"game/DosBox"_s), 0555);

    ASSERT_TRUE(MoveFolderQuiet(folder.Path(u"game"_s), other.Path(u"star"_s)).Ok());
    EXPECT_EQ(folder.Tree(), (QStringList{u"treasure/"_s, u"treasure/save"_s}));
    EXPECT_EQ(
        QDir(other.Path(QString()))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{u"star"_s});
    EXPECT_EQ(QFileInfo(other.Path(u"star/big"_s)).size(), 3 << 20);
    EXPECT_EQ(QFileInfo(other.Path(u"star/big"_s)).lastModified(), then);
    EXPECT_TRUE(QFileInfo(other.Path(u"star/empty"_s)).isDir());
    struct stat status = {};
    ASSERT_EQ(
        stat(QFile::encodeName(other.Path(u"star/DosBox/한글.txt"_s)).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0400U);
    EXPECT_EQ(QFile::symLinkTarget(other.Path(u"star/link"_s)), folder.Path(u"treasure"_s));
    EXPECT_TRUE(QFileInfo(other.Path(u"star/broken"_s)).isSymLink());
    EXPECT_TRUE(DeleteFolder(other.Path(u"star"_s)).Ok());
}

TEST_F(MoveOverDisks, FailureLeavesTheSourceAndNoHalfCopy)
{
    const QStringList before = folder.Tree();
    {
        const SmallFiles limit(1 << 20);
        const Done full = MoveFolderQuiet(folder.Path(u"game"_s), other.Path(u"star"_s));
        EXPECT_EQ(KindOf(full), ErrorKind::Unwritable);
    }
    int asked = 0;
    const Done givenUp = MoveFolderQuiet(
        folder.Path(u"game"_s), other.Path(u"star"_s), [&asked] { return ++asked < 3; });
    EXPECT_EQ(KindOf(givenUp), ErrorKind::Abandoned);
    ASSERT_EQ(mkfifo(QFile::encodeName(folder.Path(u"game/pipe"_s)).constData(), 0600), 0);
    const Done pipe = MoveFolderQuiet(folder.Path(u"game"_s), other.Path(u"star"_s));
    EXPECT_EQ(KindOf(pipe), ErrorKind::Refused);
    EXPECT_TRUE(pipe.Failure().text.startsWith(folder.Path(u"game/pipe"_s)));
    QFile::remove(folder.Path(u"game/pipe"_s));

    EXPECT_EQ(folder.Tree(), before);
    EXPECT_EQ(QFileInfo(folder.Path(u"game/big"_s)).size(), 3 << 20);
    EXPECT_TRUE(QDir(other.Path(QString())).isEmpty());
}

TEST_F(MoveOverDisks, ChangeDuringTheCopyKeepsTheSource)
{
    int asked = 0;
    const Done done = MoveFolderQuiet(folder.Path(u"game"_s), other.Path(u"star"_s), [&] {
        folder.WriteRaw(u"game/late%1"_s.arg(++asked), "written while events ran");
        return true;
    });
    EXPECT_EQ(KindOf(done), ErrorKind::Unwritable);
    EXPECT_TRUE(folder.Exists(u"game/big"_s));
    EXPECT_TRUE(QDir(other.Path(QString())).isEmpty());
}

TEST_F(MoveOverDisks, UnreadableFolderIsNotTakenForAnEmptyOne)
{
    SetMode(folder.Path(u"game/DosBox"_s), 0);
    {
        const OrdinaryUser user(folder);
        SetMode(folder.Path(), 0755);
        const OtherDisk ours;
        const Done done = MoveFolderQuiet(folder.Path(u"game"_s), ours.Path(u"star"_s));
        EXPECT_EQ(KindOf(done), ErrorKind::Unreadable);
    }
    SetMode(folder.Path(u"game/DosBox"_s), 0755);
    EXPECT_TRUE(folder.Exists(u"game/DosBox/한글.txt"_s));
}

TEST_F(MoveOverDisks, SingleFiles)
{
    EXPECT_TRUE(MoveFile(folder.Path(u"game/big"_s), other.Path(QString()) + u'/').Ok());
    EXPECT_TRUE(MoveFile(folder.Path(u"game/DosBox/한글.txt"_s), other.Path(u"x.txt"_s)).Ok());
    EXPECT_EQ(QFileInfo(other.Path(u"big"_s)).size(), 3 << 20);
    EXPECT_EQ(QFileInfo(other.Path(u"x.txt"_s)).size(), 4);
    EXPECT_FALSE(folder.Exists(u"game/big"_s));
    EXPECT_FALSE(folder.Exists(u"game/DosBox/한글.txt"_s));
}

TEST(MoveFile, IntoAFolderOrToAName)
{
    const TestFolder folder;
    folder.WriteRaw(u"disc.iso"_s, "disc");
    folder.WriteRaw(u"CD/Taken.iso"_s, "old");
    folder.WriteRaw(u"taken.ISO"_s, "new");
    EXPECT_TRUE(MoveFile(folder.Path(u"Disc.ISO"_s), folder.Path(u"cd\\"_s)).Ok());
    EXPECT_EQ(folder.ReadRaw(u"CD/disc.iso"_s), "disc");
    EXPECT_TRUE(MoveFile(folder.Path(u"CD/disc.iso"_s), folder.Path(u"CD/Disc.iso"_s)).Ok());
    EXPECT_TRUE(MoveFile(folder.Path(u"CD/Disc.iso"_s), folder.Path(u"plain"_s)).Ok());
    // A folder without a separator behind it is still a folder.
    EXPECT_EQ(
        KindOf(MoveFile(folder.Path(u"taken.ISO"_s), folder.Path(u"cd"_s))), ErrorKind::Refused);
    EXPECT_EQ(
        KindOf(MoveFile(folder.Path(u"taken.ISO"_s), folder.Path(u"no/"_s))), ErrorKind::NotFound);
    EXPECT_EQ(KindOf(MoveFile(folder.Path(u"CD"_s), folder.Path(u"x"_s))), ErrorKind::NotFound);
    EXPECT_EQ(
        folder.Tree(), (QStringList{u"CD/"_s, u"CD/Taken.iso"_s, u"plain"_s, u"taken.ISO"_s}));
    EXPECT_EQ(folder.ReadRaw(u"CD/Taken.iso"_s), "old");
}

TEST(CopyFile, ReplacesWholeOrNotAtAll)
{
    const TestFolder folder;
    folder.WriteRaw(u"edit.conf"_s, QByteArray(2 << 20, 'n'));
    folder.WriteRaw(u"preset/Edit.conf"_s, "old");
    folder.WriteRaw(u"a::b%1 $x;.7z"_s, "odd");
    {
        const SmallFiles limit(1 << 20);
        const Done full = CopyFile(folder.Path(u"edit.conf"_s), folder.Path(u"preset/"_s));
        EXPECT_EQ(KindOf(full), ErrorKind::Unwritable);
    }
    EXPECT_EQ(folder.ReadRaw(u"preset/Edit.conf"_s), "old");
    EXPECT_TRUE(CopyFile(folder.Path(u"edit.conf"_s), folder.Path(u"preset/"_s)).Ok());
    EXPECT_EQ(folder.ReadRaw(u"preset/Edit.conf"_s).size(), 2 << 20);
    EXPECT_TRUE(CopyFile(folder.Path(u"a::b%1 $x;.7z"_s), folder.Path(u"Preset/odd"_s)).Ok());
    EXPECT_EQ(
        folder.Tree(),
        (QStringList{
            u"a::b%1 $x;.7z"_s,
            u"edit.conf"_s,
            u"preset/"_s,
            u"preset/Edit.conf"_s,
            u"preset/odd"_s}));
}

TEST(CopyFile, Refusals)
{
    const TestFolder folder;
    folder.WriteRaw(u"Store.7z"_s, "archive");
    folder.MakeLink(u"alias"_s, u"Store.7z"_s);
    folder.MakeTree({u"folder/store.7z/"_s});
    const QString store = folder.Path(u"Store.7z"_s);
    EXPECT_EQ(KindOf(CopyFile(store, folder.Path(u"STORE.7z"_s))), ErrorKind::Refused);
    EXPECT_EQ(KindOf(CopyFile(store, folder.Path(u"alias"_s))), ErrorKind::Refused);
    EXPECT_EQ(KindOf(CopyFile(store, folder.Path(u"folder/"_s))), ErrorKind::Refused);
    EXPECT_EQ(KindOf(CopyFile(store, folder.Path(u"no/Store.7z"_s))), ErrorKind::NotFound);
    EXPECT_EQ(KindOf(CopyFile(folder.Path(u"no"_s), folder.Path(u"x"_s))), ErrorKind::NotFound);
    EXPECT_EQ(folder.ReadRaw(u"Store.7z"_s), "archive");
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
