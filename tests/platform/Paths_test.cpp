#include "platform/Paths.h"

#include "support/TestFolder.h"

using namespace Qt::StringLiterals;
using namespace pelorin::platform;
using namespace pelorin::test;

namespace {

TEST(Paths, Texts)
{
    struct Case {
        QString (*function)(const QString&);
        QString path;
        QString result;
    };
    const Case cases[] = {
        {LastPathSegment, u"Z:\\games\\star"_s, u"star"_s},
        {LastPathSegment, u"/games\\a/b"_s, u"b"_s},
        {LastPathSegment, u"/games/"_s, QString()},
        {LastPathSegment, u"star"_s, u"star"_s},
        {NativePath, u"DOSBox\\0.74\\"_s, u"DOSBox/0.74"_s},
        {NativePath, u"/a//"_s, u"/a"_s},
        {NativePath, u"\\"_s, u"/"_s},
        {NativePath, QString(), QString()},
        {WindowsPath, u"/opt/게임/x"_s, u"Z:\\opt\\게임\\x"_s},
        {WindowsPath, u"../../Dos"_s, u"..\\..\\Dos"_s},
        {WindowsPath, u"C:\\x"_s, u"C:\\x"_s},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(one.function(one.path), one.result) << one.path;
    }
    for (const QString& name : {u"star"_s, u".hidden"_s, u"..."_s, u"a b"_s, u"C:"_s}) {
        EXPECT_TRUE(IsPlainName(name)) << name;
    }
    const QString zero = u"a"_s + QChar(0);
    for (const QString& name : {QString(), u"."_s, u".."_s, u"a/b"_s, u"a\\b"_s, u"/"_s, zero}) {
        EXPECT_FALSE(IsPlainName(name)) << name;
    }
}

TEST(Listing, SortsAndLeavesOutWhatIsHiddenOrBroken)
{
    const TestFolder folder;
    folder.MakeAll(u"b.txt A.txt 한글 .hidden .git/ Zed/ able/"_s);
    folder.MakeLink(u"toFolder"_s, u"Zed"_s);
    folder.MakeLink(u"toFile"_s, u"b.txt"_s);
    folder.MakeLink(u"broken"_s, u"nowhere"_s);
    const Listing listing = ListFolder(folder.Path());
    EXPECT_TRUE(listing.exists);
    EXPECT_EQ(listing.folders, Words(u"able toFolder Zed"_s));
    EXPECT_EQ(listing.files, Words(u"A.txt b.txt toFile 한글"_s));
    EXPECT_TRUE(listing.HasFile(u".HIDDEN"_s));
    EXPECT_FALSE(listing.HasFile(u".git"_s));
    EXPECT_TRUE(listing.HasFolder(u".Git"_s));
    EXPECT_TRUE(listing.HasFolder(u"TOFOLDER"_s));
    EXPECT_FALSE(listing.HasFile(u"broken"_s));
    EXPECT_FALSE(listing.HasFolder(u"none"_s));
    EXPECT_EQ(listing.Find(QString()), QString());
    EXPECT_FALSE(ListFolder(folder.Path(u"none"_s)).exists);
    EXPECT_FALSE(ListFolder(folder.Path(u"b.txt"_s)).exists);
}

TEST(Listing, ExactNameGoesBeforeOneThatDiffersByCase)
{
    const TestFolder folder;
    folder.MakeAll(u"DosBox/a DOSBOX/b dosbox/c"_s);
    const Listing listing = ListFolder(folder.Path());
    EXPECT_EQ(listing.Find(u"DosBox"_s), u"DosBox"_s);
    EXPECT_EQ(listing.Find(u"dosbox"_s), u"dosbox"_s);
    EXPECT_EQ(listing.Find(u"dOSbOX"_s), u"DOSBOX"_s);
    EXPECT_EQ(FindPath(folder.Path(), u"dosbox/c"_s), folder.Path(u"dosbox/c"_s));
    EXPECT_EQ(FindPath(folder.Path(), u"dosbox/b"_s), std::nullopt);
}

TEST(Paths, AreFoundPartByPart)
{
    const TestFolder folder;
    folder.MakeAll(u"Emulator/NP21/np21nt.INI ÄÖ/É file"_s);
    folder.MakeLink(u"broken"_s, u"nowhere"_s);
    struct Case {
        QString relative;
        QString found;      // empty: none
        QString resolved{}; // where it differs
    };
    const Case cases[] = {
        {u"emulator\\np21/NP21NT.ini"_s, u"Emulator/NP21/np21nt.INI"_s},
        {u"EMULATOR"_s, u"Emulator"_s},
        {u"emulator//np21\\"_s, u"Emulator/NP21"_s},
        {u"emulator/../FILE"_s, u"Emulator/../file"_s},
        {u"./File"_s, u"./file"_s},
        {u"äö/é"_s, u"ÄÖ/É"_s},
        {u"emulator/none"_s, QString(), u"Emulator/none"_s},
        {u"EMULATOR\\np21\\New\\File"_s, QString(), u"Emulator/NP21/New/File"_s},
        {u"New/emulator"_s, QString(), u"New/emulator"_s},
        {u"file/x"_s, QString(), u"file/x"_s},
        {u"broken"_s, QString(), u"broken"_s},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.relative);
        const auto found = FindPath(folder.Path(), one.relative);
        EXPECT_EQ(found.value_or(QString()), one.found.isEmpty() ? u""_s : folder.Path(one.found));
        EXPECT_EQ(
            ResolvePath(folder.Path(), one.relative),
            folder.Path(one.found.isEmpty() ? one.resolved : one.found));
    }
    EXPECT_EQ(FindPath(folder.Path(), QString()), folder.Path());
    EXPECT_EQ(FindPath(QString(), folder.Path(u"FILE"_s)), folder.Path(u"file"_s));
    EXPECT_EQ(FindPath(QString(), u"/PROC/Self"_s), u"/proc/self"_s);
    EXPECT_EQ(ResolvePath(folder.Path(u"none"_s), u"a/b"_s), folder.Path(u"none/a/b"_s));
}

TEST(Listing, FilesByTheirEndingsInWhateverCase)
{
    const TestFolder folder;
    folder.MakeAll(u"b.CUE A.iso c.Iso .iso Store.7z x.iso/"_s);
    const Listing listing = ListFolder(folder.Path());
    EXPECT_EQ(FilesWithEndings(listing, {u".cue", u".ISO"}), Words(u"A.iso b.CUE c.Iso"_s));
    EXPECT_EQ(FilesWithEndings(listing, {u".gif"}), QStringList());
}

} // namespace
