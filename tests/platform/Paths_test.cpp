#include "platform/Paths.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin::platform;
using pelorin::test::TestFolder;

namespace {

TEST(Paths, Texts)
{
    EXPECT_EQ(LastPathSegment(u"Z:\\games\\star"_s), u"star"_s);
    EXPECT_EQ(LastPathSegment(u"/games\\a/b"_s), u"b"_s);
    EXPECT_EQ(LastPathSegment(u"/games/"_s), QString());
    EXPECT_EQ(LastPathSegment(u"star"_s), u"star"_s);
    EXPECT_EQ(LastPathSegment(QString()), QString());

    EXPECT_EQ(NativePath(u"DOSBox\\0.74\\"_s), u"DOSBox/0.74"_s);
    EXPECT_EQ(NativePath(u"/a//"_s), u"/a"_s);
    EXPECT_EQ(NativePath(u"\\"_s), u"/"_s);
    EXPECT_EQ(NativePath(QString()), QString());

    EXPECT_EQ(WindowsPath(u"/opt/게임/x"_s), u"Z:\\opt\\게임\\x"_s);
    EXPECT_EQ(WindowsPath(u"../../Dos"_s), u"..\\..\\Dos"_s);
    EXPECT_EQ(WindowsPath(u"C:\\x"_s), u"C:\\x"_s);
}

TEST(Paths, PlainNames)
{
    for (const QString& name : {u"star"_s, u".hidden"_s, u"..."_s, u"a b"_s, u"C:"_s}) {
        EXPECT_TRUE(IsPlainName(name)) << name.toStdString();
    }
    for (const QString& name :
         {QString(), u"."_s, u".."_s, u"a/b"_s, u"a\\b"_s, u"/"_s, u"a"_s + QChar(0)}) {
        EXPECT_FALSE(IsPlainName(name)) << name.toStdString();
    }
}

TEST(Listing, SortsAndLeavesOutWhatIsHiddenOrBroken)
{
    const TestFolder folder;
    folder.MakeTree(
        {u"b.txt"_s, u"A.txt"_s, u"한글"_s, u".hidden"_s, u".git/"_s, u"Zed/"_s, u"able/"_s});
    folder.MakeLink(u"toFolder"_s, u"Zed"_s);
    folder.MakeLink(u"toFile"_s, u"b.txt"_s);
    folder.MakeLink(u"broken"_s, u"nowhere"_s);
    const Listing listing = ListFolder(folder.Path());
    EXPECT_TRUE(listing.exists);
    EXPECT_EQ(listing.folders, (QStringList{u"able"_s, u"toFolder"_s, u"Zed"_s}));
    EXPECT_EQ(listing.files, (QStringList{u"A.txt"_s, u"b.txt"_s, u"toFile"_s, u"한글"_s}));
    EXPECT_TRUE(listing.HasFile(u".HIDDEN"_s));
    EXPECT_FALSE(listing.HasFile(u".git"_s));
    EXPECT_TRUE(listing.HasFolder(u".Git"_s));
    EXPECT_TRUE(listing.HasFolder(u"TOFOLDER"_s));
    EXPECT_FALSE(listing.HasFile(u"broken"_s));
    EXPECT_FALSE(listing.HasFolder(u"none"_s));
    EXPECT_EQ(listing.Find(QString()), QString());
}

TEST(Listing, MissingFolderIsTold)
{
    const TestFolder folder;
    folder.MakeTree({u"file"_s});
    EXPECT_FALSE(ListFolder(folder.Path(u"none"_s)).exists);
    EXPECT_FALSE(ListFolder(folder.Path(u"file"_s)).exists);
    EXPECT_TRUE(ListFolder(folder.Path()).exists);
}

TEST(Listing, ExactNameGoesBeforeOneThatDiffersByCase)
{
    const TestFolder folder;
    folder.MakeTree({u"DosBox/a"_s, u"DOSBOX/b"_s, u"dosbox/c"_s});
    const Listing listing = ListFolder(folder.Path());
    EXPECT_EQ(listing.Find(u"DosBox"_s), u"DosBox"_s);
    EXPECT_EQ(listing.Find(u"dosbox"_s), u"dosbox"_s);
    EXPECT_EQ(listing.Find(u"dOSbOX"_s), u"DOSBOX"_s);
    EXPECT_EQ(FindPath(folder.Path(), u"dosbox/c"_s), folder.Path(u"dosbox/c"_s));
    EXPECT_EQ(FindPath(folder.Path(), u"dosbox/b"_s), std::nullopt);
}

TEST(FindPath, WalksPartByPart)
{
    const TestFolder folder;
    folder.MakeTree({u"Emulator/NP21/np21nt.INI"_s, u"ÄÖ/É"_s, u"file"_s});
    folder.MakeLink(u"broken"_s, u"nowhere"_s);
    struct Case {
        QString relative;
        QString found; // empty: none
    };
    const Case cases[] = {
        {u"emulator\\np21/NP21NT.ini"_s, u"Emulator/NP21/np21nt.INI"_s},
        {u"EMULATOR"_s, u"Emulator"_s},
        {u"emulator//np21\\"_s, u"Emulator/NP21"_s},
        {u"emulator/../FILE"_s, u"Emulator/../file"_s},
        {u"./File"_s, u"./file"_s},
        {u"äö/é"_s, u"ÄÖ/É"_s},
        {u"emulator/none"_s, QString()},
        {u"file/x"_s, QString()},
        {u"broken"_s, QString()},
    };
    for (const Case& one : cases) {
        const auto found = FindPath(folder.Path(), one.relative);
        EXPECT_EQ(found.has_value(), !one.found.isEmpty()) << one.relative.toStdString();
        EXPECT_EQ(found.value_or(folder.Path(QString())), folder.Path(one.found))
            << one.relative.toStdString();
    }
    EXPECT_EQ(FindPath(folder.Path(), QString()), folder.Path());
    EXPECT_EQ(FindPath(QString(), folder.Path(u"FILE"_s)), folder.Path(u"file"_s));
    EXPECT_EQ(FindPath(QString(), u"/PROC/Self"_s), u"/proc/self"_s);
}

TEST(ResolvePath, TakesWhatExistsAndKeepsTheRest)
{
    const TestFolder folder;
    folder.MakeTree({u"Dos/Util/"_s});
    EXPECT_EQ(
        ResolvePath(folder.Path(), u"DOS\\UTIL\\New\\File"_s), folder.Path(u"Dos/Util/New/File"_s));
    EXPECT_EQ(ResolvePath(folder.Path(), u"New/dos"_s), folder.Path(u"New/dos"_s));
    EXPECT_EQ(ResolvePath(folder.Path(u"none"_s), u"a/b"_s), folder.Path(u"none/a/b"_s));
}

TEST(FilesMatching, PatternByPattern)
{
    const TestFolder folder;
    folder.MakeTree({u"b.CUE"_s, u"A.iso"_s, u"c.Iso"_s, u".iso"_s, u"Store.7z"_s, u"x.iso/"_s});
    const Listing listing = ListFolder(folder.Path());
    EXPECT_EQ(
        FilesMatching(listing, {u"*.cue"_s, u"*.ISO"_s}),
        (QStringList{u"b.CUE"_s, u"A.iso"_s, u"c.Iso"_s}));
    EXPECT_EQ(FilesMatching(listing, {u"store.7Z"_s}), QStringList{u"Store.7z"_s});
    EXPECT_EQ(FilesMatching(listing, {u".iso"_s, u"*.gif"_s}), QStringList());
}

} // namespace
