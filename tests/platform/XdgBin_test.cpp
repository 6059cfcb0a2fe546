#include "platform/XdgBin.h"

#include "platform/MountTable.h"
#include "support/DiskTroubles.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace pelorin::platform;
using namespace pelorin::test;

namespace {

class XdgBinTest : public testing::Test {
protected:
    QString Trash(const QString& below) const { return u"home/.local/share/Trash/"_s + below; }
    bool Moves(const QString& name) { return m_bin.MoveToBin(m_folder.Path(name)).Ok(); }
    void ExpectRefused(const QString& path, ErrorKind kind)
    {
        SCOPED_TRACE(path);
        const Done done = m_bin.MoveToBin(path);
        EXPECT_EQ(KindOf(done), kind);
        EXPECT_TRUE(ErrorOf(done).contains(path));
    }

    TestFolder m_folder;
    XdgBin m_bin{m_folder.Path(u"home/.local/share"_s)}; // not made
};

TEST_F(XdgBinTest, MakesTheDataFolderAndMovesFoldersFilesAndLinks)
{
    m_folder.WriteRaw(u"Games/스타 100%/save/a b.dat"_s, "saved");
    m_folder.MakeAll(u"Games/precious/keep Games/back\\slash disk/games/Star/a"_s);
    m_folder.MakeLink(u"Games/link"_s, u"precious"_s);
    m_folder.MakeLink(u"Games/broken"_s, u"nowhere"_s);
    m_folder.MakeLink(u"Linked"_s, u"disk/games"_s);

    for (const QString& name : {u"스타 100%/"_s, u"link"_s, u"broken"_s, u"back\\slash"_s}) {
        ASSERT_TRUE(Moves(u"Games/"_s + name)) << name;
    }
    EXPECT_EQ(m_folder.TreeText(u"Games"_s), u"precious/ precious/keep"_s);
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

    ASSERT_TRUE(Moves(u"Linked/Star"_s)) << "through a linked folder the entry itself goes";
    EXPECT_FALSE(m_folder.Exists(u"disk/games/Star"_s));
    EXPECT_TRUE(m_folder.ReadRaw(Trash(u"info/Star.trashinfo"_s)).contains("/disk/games/Star\n"));
}

TEST_F(XdgBinTest, SameNameAgainAndLongNamesGetNamesOfTheirOwn)
{
    const QString longName = QString(84, u'게') + u"1.x"_s; // 252 + 3 bytes, the most there is
    for (const QString& name : {u"Store.7z"_s, longName}) {
        for (int i = 0; i < 3; ++i) {
            m_folder.WriteRaw(name, QByteArray::number(i));
            ASSERT_TRUE(Moves(name));
        }
    }
    // A thing without an info file is none of ours and stays too.
    m_folder.WriteRaw(Trash(u"files/other"_s), "theirs");
    m_folder.WriteRaw(u"other"_s, "ours");
    ASSERT_TRUE(Moves(u"other"_s));

    EXPECT_EQ(m_folder.ReadRaw(Trash(u"files/Store.7z"_s)), "0");
    EXPECT_EQ(m_folder.ReadRaw(Trash(u"files/Store.7z.3"_s)), "2");
    EXPECT_EQ(m_folder.ReadRaw(Trash(u"files/other"_s)), "theirs");
    EXPECT_EQ(m_folder.ReadRaw(Trash(u"files/other.2"_s)), "ours");
    EXPECT_EQ(m_folder.Tree(Trash(u"files"_s)).size(), 8);
    EXPECT_EQ(m_folder.Tree(Trash(u"info"_s)).size(), 7);
}

TEST_F(XdgBinTest, RefusesRootsPartsOfPathsAndItsOwnHome)
{
    m_folder.MakeAll(u"home/.local/share/x Games/ blocked/.local"_s);
    for (const QString& path : {u"/"_s, u"//"_s, QString(), u"Games"_s, u"/proc"_s}) {
        ExpectRefused(path, ErrorKind::Refused);
    }
    for (const QString& name : Words(u"Games/.. Games/. home home/.local/share"_s)) {
        ExpectRefused(m_folder.Path(name), ErrorKind::Refused);
    }
    ExpectRefused(m_folder.Path(u"none"_s), ErrorKind::NotFound);
    ExpectRefused(m_folder.Path(u"no/ne"_s), ErrorKind::NotFound);
    EXPECT_TRUE(m_folder.Exists(u"home/.local/share/x"_s));

    m_bin = XdgBin(m_folder.Path(u"blocked/.local/share"_s)); // below a file: can't be made
    ExpectRefused(m_folder.Path(u"Games"_s), ErrorKind::Unwritable);
    EXPECT_TRUE(m_folder.Exists(u"Games"_s));
}

TEST_F(XdgBinTest, OtherFileSystemHasABinOfItsOwn)
{
    m_folder.MakeFolder(u"disk with blank"_s);
    const PrivateDisk disk(m_folder.Path(u"disk with blank"_s), "1m");
    if (!disk.IsMounted()) {
        GTEST_SKIP() << "mounting needs root";
    }
    const QString games = u"disk with blank/games/"_s;
    const QString own = u"disk with blank/.Trash-"_s + QString::number(geteuid());
    m_folder.WriteRaw(games + u"Star/a"_s, "x");
    m_folder.WriteRaw(games + u"Moon/a"_s, "y");
    ExpectRefused(m_folder.Path(u"disk with blank"_s), ErrorKind::Refused);
    ExpectRefused(m_folder.Path(), ErrorKind::Refused); // it holds a mount

    ASSERT_TRUE(Moves(games + u"Star"_s));
    EXPECT_EQ(m_folder.ReadRaw(own + u"/files/Star/a"_s), "x");
    EXPECT_TRUE(m_folder.ReadRaw(own + u"/info/Star.trashinfo"_s).contains("\nPath=games/Star\n"));

    // One that another user could have laid there is not used.
    ASSERT_TRUE(QDir(m_folder.Path(own)).removeRecursively());
    m_folder.MakeFolder(u"disk with blank/elsewhere"_s);
    m_folder.MakeLink(own, u"elsewhere"_s);
    ExpectRefused(m_folder.Path(games + u"Moon"_s), ErrorKind::Unwritable);
    ASSERT_TRUE(QFile::remove(m_folder.Path(own)));
    disk.MakeReadOnly();
    ExpectRefused(m_folder.Path(games + u"Moon"_s), ErrorKind::Unwritable);
    EXPECT_EQ(m_folder.ReadRaw(games + u"Moon/a"_s), "y");
    disk.MakeReadOnly(false);

    // The administrator's is preferred when it is safe.
    const QString user = QString::number(geteuid());
    const QString shared = u"disk with blank/.Trash"_s;
    m_folder.MakeFolder(shared);
    ASSERT_TRUE(Moves(games + u"Moon/a"_s)); // no sticky bit: passed over
    EXPECT_TRUE(m_folder.Exists(own + u"/files/a"_s));
    SetMode(m_folder.Path(shared), 01777);
    ASSERT_TRUE(Moves(games + u"Moon"_s));
    EXPECT_TRUE(m_folder.Exists(shared + u'/' + user + u"/files/Moon"_s));
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
