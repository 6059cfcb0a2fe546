#include "archives/FileOperations.h"
#include "support/DiskTroubles.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace pelorin::archives;
using namespace pelorin::test;
using pelorin::platform::Done;
using pelorin::platform::ErrorKind;

namespace {

struct Refusal {
    QString source;
    QString destination;
    ErrorKind kind;
};

TEST(MoveFolder, WithinAFileSystem)
{
    const TestFolder folder;
    folder.MakeAll(u"from/game/file games/taken/ games/other/"_s);
    EXPECT_TRUE(MoveFolderQuiet(folder.Path(u"from/GAME"_s), folder.Path(u"Games/star"_s)).Ok());
    EXPECT_EQ(
        KindOf(MoveFolderQuiet(folder.Path(u"games/star"_s), folder.Path(u"games/TAKEN"_s))),
        ErrorKind::Refused);
    // Another case of the same name is a new name, not a taken one.
    EXPECT_TRUE(MoveFolderQuiet(folder.Path(u"games/star"_s), folder.Path(u"games/STAR"_s)).Ok());
    EXPECT_TRUE(MoveFolderQuiet(folder.Path(u"games/other"_s), folder.Path(u"from\\"_s)).Ok());
    EXPECT_EQ(
        folder.TreeText(), u"from/ from/other/ games/ games/STAR/ games/STAR/file games/taken/"_s);
}

TEST(MoveFolder, Refusals)
{
    const TestFolder folder;
    folder.MakeAll(u"game/sub/file file empty/"_s);
    folder.MakeLink(u"alias"_s, u"game/sub"_s);
    const Refusal cases[] = {
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
    const QString before = folder.TreeText();
    for (const Refusal& one : cases) {
        SCOPED_TRACE(one.source + u" to "_s + one.destination);
        EXPECT_EQ(
            KindOf(MoveFolderQuiet(folder.Path(one.source), folder.Path(one.destination))),
            one.kind);
    }
    EXPECT_EQ(folder.TreeText(), before);
}

class MoveOverDisks : public testing::Test {
protected:
    void SetUp() override
    {
        if (!m_other.IsOther(m_folder)) {
            GTEST_SKIP() << "/dev/shm is no file system of its own here";
        }
        m_folder.MakeAll(u"treasure/save game/empty/"_s);
        m_folder.WriteRaw(u"game/big"_s, QByteArray(3 << 20, 'x'));
        m_folder.WriteRaw(u"game/DosBox/한글.txt"_s, "text");
        m_folder.MakeLink(u"game/link"_s, m_folder.Path(u"treasure"_s));
        m_folder.MakeLink(u"game/broken"_s, u"../nowhere"_s);
    }
    Done MoveGame(const KeepGoing& goOn = nullptr) const
    {
        return MoveFolderQuiet(m_folder.Path(u"game"_s), m_other.Path(u"star"_s), goOn);
    }
    QStringList Arrived() const
    {
        return QDir(m_other.Path(QString()))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    const TestFolder m_folder;
    const OtherDisk m_other;
};

TEST_F(MoveOverDisks, EverythingArrivesAsItWas)
{
    const QDateTime then = QDateTime::fromSecsSinceEpoch(800000000);
    QFile big(m_folder.Path(u"game/big"_s));
    ASSERT_TRUE(big.open(QIODevice::ReadWrite));
    ASSERT_TRUE(big.setFileTime(then, QFileDevice::FileModificationTime));
    big.close();
    SetMode(m_folder.Path(u"game/DosBox/한글.txt"_s), 0400);
    SetMode(m_folder.Path(u"game/DosBox"_s), 0555);

    ASSERT_TRUE(MoveGame().Ok());
    EXPECT_EQ(m_folder.TreeText(), u"treasure/ treasure/save"_s);
    EXPECT_EQ(Arrived(), QStringList{u"star"_s});
    EXPECT_EQ(QFileInfo(m_other.Path(u"star/big"_s)).size(), 3 << 20);
    EXPECT_EQ(QFileInfo(m_other.Path(u"star/big"_s)).lastModified(), then);
    EXPECT_TRUE(QFileInfo(m_other.Path(u"star/empty"_s)).isDir());
    struct stat status = {};
    const QByteArray text = QFile::encodeName(m_other.Path(u"star/DosBox/한글.txt"_s));
    ASSERT_EQ(stat(text.constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0400U);
    EXPECT_EQ(QFile::symLinkTarget(m_other.Path(u"star/link"_s)), m_folder.Path(u"treasure"_s));
    EXPECT_TRUE(QFileInfo(m_other.Path(u"star/broken"_s)).isSymLink());
    EXPECT_TRUE(DeleteFolder(m_other.Path(u"star"_s)).Ok());
}

TEST_F(MoveOverDisks, AFailureLeavesTheSourceAndNoHalfCopy)
{
    const QString before = m_folder.TreeText();
    {
        const SmallFiles limit(1 << 20);
        EXPECT_EQ(KindOf(MoveGame()), ErrorKind::Unwritable);
    }
    int asked = 0;
    EXPECT_EQ(KindOf(MoveGame([&asked] { return ++asked < 3; })), ErrorKind::Abandoned);
    ASSERT_EQ(mkfifo(QFile::encodeName(m_folder.Path(u"game/pipe"_s)).constData(), 0600), 0);
    const Done pipe = MoveGame();
    EXPECT_EQ(KindOf(pipe), ErrorKind::Refused);
    EXPECT_TRUE(ErrorOf(pipe).startsWith(m_folder.Path(u"game/pipe"_s)));
    QFile::remove(m_folder.Path(u"game/pipe"_s));
    EXPECT_EQ(m_folder.TreeText(), before);
    EXPECT_EQ(QFileInfo(m_folder.Path(u"game/big"_s)).size(), 3 << 20);

    const Done changed = MoveGame([&] {
        m_folder.WriteRaw(u"game/late%1"_s.arg(++asked), "written while events ran");
        return true;
    });
    EXPECT_EQ(KindOf(changed), ErrorKind::Unwritable);
    EXPECT_TRUE(m_folder.Exists(u"game/big"_s));
    EXPECT_EQ(Arrived(), QStringList());
}

TEST_F(MoveOverDisks, AnUnreadableFolderIsNotTakenForAnEmptyOne)
{
    SetMode(m_folder.Path(u"game/DosBox"_s), 0);
    {
        const OrdinaryUser user(m_folder);
        SetMode(m_folder.Path(), 0755);
        const OtherDisk ours;
        const Done done = MoveFolderQuiet(m_folder.Path(u"game"_s), ours.Path(u"star"_s));
        EXPECT_EQ(KindOf(done), ErrorKind::Unreadable);
    }
    SetMode(m_folder.Path(u"game/DosBox"_s), 0755);
    EXPECT_TRUE(m_folder.Exists(u"game/DosBox/한글.txt"_s));
}

TEST_F(MoveOverDisks, SingleFiles)
{
    EXPECT_TRUE(MoveFile(m_folder.Path(u"game/big"_s), m_other.Path(QString()) + u'/').Ok());
    EXPECT_TRUE(MoveFile(m_folder.Path(u"game/DosBox/한글.txt"_s), m_other.Path(u"x.txt"_s)).Ok());
    EXPECT_EQ(QFileInfo(m_other.Path(u"big"_s)).size(), 3 << 20);
    EXPECT_EQ(QFileInfo(m_other.Path(u"x.txt"_s)).size(), 4);
    EXPECT_FALSE(m_folder.Exists(u"game/big"_s));
    EXPECT_FALSE(m_folder.Exists(u"game/DosBox/한글.txt"_s));
}

TEST(MoveFile, IntoAFolderOrToAName)
{
    const TestFolder folder;
    folder.WriteRaw(u"disc.iso"_s, "disc");
    folder.WriteRaw(u"CD/Taken.iso"_s, "old");
    folder.WriteRaw(u"taken.ISO"_s, "new");
    const auto move = [&](const QString& from, const QString& to) {
        return MoveFile(folder.Path(from), folder.Path(to));
    };
    EXPECT_TRUE(move(u"Disc.ISO"_s, u"cd\\"_s).Ok());
    EXPECT_EQ(folder.ReadRaw(u"CD/disc.iso"_s), "disc");
    EXPECT_TRUE(move(u"CD/disc.iso"_s, u"CD/Disc.iso"_s).Ok());
    EXPECT_TRUE(move(u"CD/Disc.iso"_s, u"plain"_s).Ok());
    // A folder without a separator behind it is still a folder.
    EXPECT_EQ(KindOf(move(u"taken.ISO"_s, u"cd"_s)), ErrorKind::Refused);
    EXPECT_EQ(KindOf(move(u"taken.ISO"_s, u"no/"_s)), ErrorKind::NotFound);
    EXPECT_EQ(KindOf(move(u"CD"_s, u"x"_s)), ErrorKind::NotFound);
    EXPECT_EQ(folder.TreeText(), u"CD/ CD/Taken.iso plain taken.ISO"_s);
    EXPECT_EQ(folder.ReadRaw(u"CD/Taken.iso"_s), "old");
}

TEST(CopyFile, ReplacesWholeOrNotAtAll)
{
    const TestFolder folder;
    folder.WriteRaw(u"edit.conf"_s, QByteArray(2 << 20, 'n'));
    folder.WriteRaw(u"preset/Edit.conf"_s, "old");
    folder.WriteRaw(u"a::b%1$x;.7z"_s, "odd");
    {
        const SmallFiles limit(1 << 20);
        const Done full = CopyFile(folder.Path(u"edit.conf"_s), folder.Path(u"preset/"_s));
        EXPECT_EQ(KindOf(full), ErrorKind::Unwritable);
    }
    EXPECT_EQ(folder.ReadRaw(u"preset/Edit.conf"_s), "old");
    EXPECT_TRUE(CopyFile(folder.Path(u"edit.conf"_s), folder.Path(u"preset/"_s)).Ok());
    EXPECT_EQ(folder.ReadRaw(u"preset/Edit.conf"_s).size(), 2 << 20);
    EXPECT_TRUE(CopyFile(folder.Path(u"a::b%1$x;.7z"_s), folder.Path(u"Preset/odd"_s)).Ok());
    EXPECT_EQ(folder.TreeText(), u"a::b%1$x;.7z edit.conf preset/ preset/Edit.conf preset/odd"_s);

    folder.WriteRaw(u"Store.7z"_s, "archive");
    folder.MakeLink(u"alias"_s, u"Store.7z"_s);
    folder.MakeAll(u"folder/store.7z/"_s);
    const Refusal cases[] = {
        {u"Store.7z"_s, u"STORE.7z"_s, ErrorKind::Refused},
        {u"Store.7z"_s, u"alias"_s, ErrorKind::Refused},
        {u"Store.7z"_s, u"folder/"_s, ErrorKind::Refused},
        {u"Store.7z"_s, u"no/Store.7z"_s, ErrorKind::NotFound},
        {u"no"_s, u"x"_s, ErrorKind::NotFound},
    };
    for (const Refusal& one : cases) {
        SCOPED_TRACE(one.source + u" to "_s + one.destination);
        EXPECT_EQ(
            KindOf(CopyFile(folder.Path(one.source), folder.Path(one.destination))), one.kind);
    }
    EXPECT_EQ(folder.ReadRaw(u"Store.7z"_s), "archive");
}

} // namespace
