#include "platform/XdgBin.h"

#include "platform/MountTable.h"
#include "support/DiskTroubles.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace pelorin::platform;
using pelorin::test::PrivateDisk;
using pelorin::test::TestFolder;

namespace {

class XdgBinTest : public testing::Test {
protected:
    QString Trash(const QString& below) const { return u"home/.local/share/Trash/"_s + below; }
    void ExpectRefused(const QString& path, ErrorKind kind)
    {
        SCOPED_TRACE(path.toStdString());
        const Done done = m_bin.MoveToBin(path);
        ASSERT_FALSE(done);
        EXPECT_EQ(done.Failure().kind, kind);
        EXPECT_TRUE(done.Failure().text.contains(path));
    }

    TestFolder m_folder;
    XdgBin m_bin{m_folder.Path(u"home/.local/share"_s)}; // not made
};

TEST_F(XdgBinTest, MakesTheDataFolderAndMovesFoldersFilesAndLinks)
{
    m_folder.WriteRaw(u"Games/스타 100%/save/a b.dat"_s, "saved");
    m_folder.WriteRaw(u"Games/precious/keep"_s, "kept");
    m_folder.MakeLink(u"Games/link"_s, u"precious"_s);
    m_folder.MakeLink(u"Games/broken"_s, u"nowhere"_s);
    m_folder.WriteRaw(u"Games/back\\slash"_s, "odd");

    for (const QString& name : {u"스타 100%/"_s, u"link"_s, u"broken"_s, u"back\\slash"_s}) {
        ASSERT_TRUE(m_bin.MoveToBin(m_folder.Path(u"Games/"_s + name))) << name.toStdString();
    }
    EXPECT_EQ(m_folder.Tree(u"Games"_s), (QStringList{u"precious/"_s, u"precious/keep"_s}));
    EXPECT_EQ(m_folder.ReadRaw(Trash(u"files/스타 100%/save/a b.dat"_s)), "saved");
    EXPECT_EQ(
        QFile::symLinkTarget(m_folder.Path(Trash(u"files/link"_s))),
        m_folder.Path(Trash(u"files/precious"_s)));
    const QByteArray info = m_folder.ReadRaw(Trash(u"info/스타 100%.trashinfo"_s));
    EXPECT_TRUE(info.startsWith("[Trash Info]\nPath=/")) << info.toStdString();
    EXPECT_TRUE(info.contains("/Games/%EC%8A%A4%ED%83%80%20100%25\nDeletionDate=20"))
        << info.toStdString();
    EXPECT_EQ(m_folder.Tree(Trash(u"files"_s)).size(), 6);
    EXPECT_EQ(m_folder.Tree(Trash(u"info"_s)).size(), 4);
}

TEST_F(XdgBinTest, SameNameAgainAndLongNamesGetNamesOfTheirOwn)
{
    const QString longName = QString(84, u'게') + u"1.x"_s; // 252 + 3 bytes, the most there is
    for (const QString& name : {u"Store.7z"_s, longName}) {
        for (int i = 0; i < 3; ++i) {
            m_folder.WriteRaw(name, QByteArray::number(i));
            ASSERT_TRUE(m_bin.MoveToBin(m_folder.Path(name)));
        }
    }
    // A thing without an info file is none of ours and stays too.
    m_folder.WriteRaw(Trash(u"files/other"_s), "theirs");
    m_folder.WriteRaw(u"other"_s, "ours");
    ASSERT_TRUE(m_bin.MoveToBin(m_folder.Path(u"other"_s)));

    EXPECT_EQ(m_folder.ReadRaw(Trash(u"files/Store.7z"_s)), "0");
    EXPECT_EQ(m_folder.ReadRaw(Trash(u"files/Store.7z.3"_s)), "2");
    EXPECT_EQ(m_folder.ReadRaw(Trash(u"files/other"_s)), "theirs");
    EXPECT_EQ(m_folder.ReadRaw(Trash(u"files/other.2"_s)), "ours");
    EXPECT_EQ(m_folder.Tree(Trash(u"files"_s)).size(), 8);
    EXPECT_EQ(m_folder.Tree(Trash(u"info"_s)).size(), 7);
}

TEST_F(XdgBinTest, ThroughALinkedFolderTheEntryItselfGoes)
{
    m_folder.WriteRaw(u"disk/games/Star/a"_s, "x");
    m_folder.MakeLink(u"Games"_s, u"disk/games"_s);
    ASSERT_TRUE(m_bin.MoveToBin(m_folder.Path(u"Games/Star"_s)));
    EXPECT_FALSE(m_folder.Exists(u"disk/games/Star"_s));
    EXPECT_TRUE(m_folder.ReadRaw(Trash(u"info/Star.trashinfo"_s)).contains("/disk/games/Star\n"));
}

TEST_F(XdgBinTest, RefusesRootsPartsOfPathsAndItsOwnHome)
{
    m_folder.MakeTree({u"home/.local/share/x"_s, u"Games/"_s});
    ExpectRefused(u"/"_s, ErrorKind::Refused);
    ExpectRefused(u"//"_s, ErrorKind::Refused);
    ExpectRefused(QString(), ErrorKind::Refused);
    ExpectRefused(u"Games"_s, ErrorKind::Refused);
    ExpectRefused(m_folder.Path(u"Games/.."_s), ErrorKind::Refused);
    ExpectRefused(m_folder.Path(u"Games/."_s), ErrorKind::Refused);
    ExpectRefused(u"/proc"_s, ErrorKind::Refused);
    ExpectRefused(m_folder.Path(u"home"_s), ErrorKind::Refused);
    ExpectRefused(m_folder.Path(u"home/.local/share"_s), ErrorKind::Refused);
    ExpectRefused(m_folder.Path(u"none"_s), ErrorKind::NotFound);
    ExpectRefused(m_folder.Path(u"no/ne"_s), ErrorKind::NotFound);
    EXPECT_TRUE(m_folder.Exists(u"Games"_s));
    EXPECT_TRUE(m_folder.Exists(u"home/.local/share/x"_s));
}

TEST_F(XdgBinTest, SourceStaysWhenTheBinCanNotBeMade)
{
    m_folder.WriteRaw(u"home/.local"_s, "a file in the way");
    m_folder.WriteRaw(u"Games/a"_s, "kept");
    ExpectRefused(m_folder.Path(u"Games"_s), ErrorKind::Unwritable);
    EXPECT_EQ(m_folder.ReadRaw(u"Games/a"_s), "kept");
}

TEST_F(XdgBinTest, OtherFileSystemHasABinOfItsOwn)
{
    m_folder.MakeTree({u"disk with blank/"_s});
    const PrivateDisk disk(m_folder.Path(u"disk with blank"_s), "1m");
    if (!disk.IsMounted()) {
        GTEST_SKIP() << "mounting needs root";
    }
    m_folder.WriteRaw(u"disk with blank/games/Star/a"_s, "x");
    m_folder.WriteRaw(u"disk with blank/games/Moon/a"_s, "y");
    ExpectRefused(m_folder.Path(u"disk with blank"_s), ErrorKind::Refused);

    ASSERT_TRUE(m_bin.MoveToBin(m_folder.Path(u"disk with blank/games/Star"_s)));
    const QString own = u"disk with blank/.Trash-"_s + QString::number(geteuid());
    EXPECT_EQ(m_folder.ReadRaw(own + u"/files/Star/a"_s), "x");
    EXPECT_TRUE(m_folder.ReadRaw(own + u"/info/Star.trashinfo"_s).contains("\nPath=games/Star\n"));

    // One that another user could have laid there is not used.
    ASSERT_TRUE(QDir(m_folder.Path(own)).removeRecursively());
    m_folder.MakeTree({u"elsewhere/"_s});
    m_folder.MakeLink(own, m_folder.Path(u"elsewhere"_s));
    ExpectRefused(m_folder.Path(u"disk with blank/games/Moon"_s), ErrorKind::Unwritable);
    EXPECT_EQ(m_folder.ReadRaw(u"disk with blank/games/Moon/a"_s), "y");

    ASSERT_TRUE(QFile::remove(m_folder.Path(own)));
    disk.MakeReadOnly();
    ExpectRefused(m_folder.Path(u"disk with blank/games/Moon"_s), ErrorKind::Unwritable);
    EXPECT_EQ(m_folder.ReadRaw(u"disk with blank/games/Moon/a"_s), "y");
}

TEST_F(XdgBinTest, AdministratorsBinIsPreferredWhenItIsSafe)
{
    m_folder.MakeTree({u"disk/"_s});
    const PrivateDisk disk(m_folder.Path(u"disk"_s), "1m");
    if (!disk.IsMounted()) {
        GTEST_SKIP() << "mounting needs root";
    }
    const QString user = QString::number(geteuid());
    m_folder.MakeTree({u"disk/.Trash/"_s, u"disk/first"_s, u"disk/second"_s});
    ASSERT_TRUE(m_bin.MoveToBin(m_folder.Path(u"disk/first"_s))); // no sticky bit: passed over
    EXPECT_TRUE(m_folder.Exists(u"disk/.Trash-%1/files/first"_s.arg(user)));
    ASSERT_EQ(chmod(QFile::encodeName(m_folder.Path(u"disk/.Trash"_s)).constData(), 01777), 0);
    ASSERT_TRUE(m_bin.MoveToBin(m_folder.Path(u"disk/second"_s)));
    EXPECT_TRUE(m_folder.Exists(u"disk/.Trash/%1/files/second"_s.arg(user)));
}

TEST_F(XdgBinTest, FolderThatHoldsAMountStays)
{
    m_folder.MakeTree({u"Games/Star/cd/"_s});
    const PrivateDisk disk(m_folder.Path(u"Games/Star/cd"_s), "1m");
    if (!disk.IsMounted()) {
        GTEST_SKIP() << "mounting needs root";
    }
    ExpectRefused(m_folder.Path(u"Games/Star"_s), ErrorKind::Refused);
    ExpectRefused(m_folder.Path(u"Games"_s), ErrorKind::Refused);
    EXPECT_TRUE(m_folder.Exists(u"Games/Star/cd"_s));
}

TEST(MountTableTest, ReadsPointsAndFindsTheNearest)
{
    const QStringList points =
        MountPointsIn("22 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                      "40 22 8:2 / /mnt/my\\040disk rw,noatime shared:1 - ext4 /dev/sdb rw\n"
                      "41 40 8:3 / /mnt/my\\040disk/in\\134ner rw - ext4 /dev/sdc rw\n"
                      "damaged\n");
    EXPECT_EQ(points, (QStringList{u"/"_s, u"/mnt/my disk"_s, u"/mnt/my disk/in\\ner"_s}));
    EXPECT_EQ(TopOfFileSystem(points, u"/mnt/my disk/a"_s), u"/mnt/my disk"_s);
    EXPECT_EQ(TopOfFileSystem(points, u"/mnt/my disk/in\\ner/a/b"_s), u"/mnt/my disk/in\\ner"_s);
    EXPECT_EQ(TopOfFileSystem(points, u"/mnt/my disk2/a"_s), u"/"_s);
    EXPECT_EQ(TopOfFileSystem({}, u"/opt"_s), u"/"_s);
    EXPECT_TRUE(HoldsMountPoint(points, u"/mnt"_s));
    EXPECT_TRUE(HoldsMountPoint(points, u"/mnt/my disk"_s));
    EXPECT_FALSE(HoldsMountPoint(points, u"/mnt/my"_s));
    EXPECT_FALSE(HoldsMountPoint(points, u"/mnt/my disk/inner"_s));
}

} // namespace
