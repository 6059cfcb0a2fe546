#include "shell/RootFolders.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin::shell;
using pelorin::test::TestFolder;

TEST(RootFolders, WhatMayBeARoot)
{
    struct Case {
        const char16_t* path;
        RootFault games;
        RootFault exported;
    };
    // The other root is /data/other, the program lies in /opt/pelorin, /mnt/disk is a mount point.
    constexpr RootFault kNone = RootFault::None;
    const Case cases[] = {
        {u"", RootFault::Unnamed, RootFault::Unnamed},
        {u"/", RootFault::DriveRoot, RootFault::DriveRoot},
        {u"/opt", RootFault::DriveRoot, RootFault::DriveRoot},
        {u"/opt5", kNone, kNone},
        {u"/mnt/disk", RootFault::DriveRoot, RootFault::DriveRoot},
        {u"/mnt/disk/games", kNone, kNone},
        {u"/mnt/disk2", kNone, kNone},
        {u"/mnt/", kNone, kNone},
        {u"/data/other", RootFault::InOneAnother, RootFault::InOneAnother},
        {u"/data/other/in", RootFault::InOneAnother, RootFault::InOneAnother},
        {u"/data", RootFault::InOneAnother, RootFault::InOneAnother},
        {u"/data/other2", kNone, kNone},
        {u"/opt/pelorin", RootFault::HoldsProgram, kNone},
        {u"/opt/pelorin/Games", kNone, kNone},
        {u"/opt/pelo", kNone, kNone},
    };
    for (const Case& c : cases) {
        RootFacts facts;
        facts.text = QString::fromUtf16(c.path);
        facts.path = facts.text;
        facts.other = u"/data/other"_s;
        facts.appDir = u"/opt/pelorin"_s;
        facts.mountPoints = QStringList{u"/"_s, u"/mnt/disk"_s};
        EXPECT_EQ(FaultOf(facts), c.games) << facts.text.toStdString();
        facts.root = Root::Export;
        EXPECT_EQ(FaultOf(facts), c.exported) << facts.text.toStdString();
        facts.fitsLauncherCfg = false;
        EXPECT_NE(FaultOf(facts), kNone) << facts.text.toStdString();
        // While it is chosen the other one is not looked at.
        facts.other.clear();
        EXPECT_NE(FaultOf(facts), RootFault::InOneAnother) << facts.text.toStdString();
    }
}

TEST(RootFolders, WhatATextMeans)
{
    const TestFolder folder(u"앱 [1]"_s);
    folder.MakeTree({u"Games/"_s, u"a\\b/"_s});
    Places places;
    places.appDir = folder.Path();
    const std::pair<QString, QString> cases[] = {
        {u""_s, u""_s},
        {u"  "_s, u""_s},
        {u"/"_s, u"/"_s},
        {u"//"_s, u"/"_s},
        {u"games"_s, folder.Path(u"Games"_s)},
        {u"New\\Sub\\"_s, folder.Path(u"New/Sub"_s)},
        {u"Games/../New"_s, folder.Path(u"New"_s)},
        {folder.Path(u"GAMES/"_s), folder.Path(u"Games"_s)},
        {folder.Path(u"a\\b"_s), folder.Path(u"a\\b"_s)},
    };
    for (const auto& [text, path] : cases) {
        EXPECT_EQ(RootPath(places, text), path) << text.toStdString();
    }
}

TEST(RootFolders, LinksAreFollowedAsFarAsTheyLead)
{
    const TestFolder folder;
    folder.MakeTree({u"real/in/"_s});
    folder.MakeLink(u"link"_s, folder.Path(u"real"_s));
    const QString real = WithoutLinks(folder.Path(u"real"_s));
    EXPECT_EQ(WithoutLinks(folder.Path(u"link"_s)), real);
    EXPECT_EQ(WithoutLinks(folder.Path(u"link/in/to/come"_s)), real + u"/in/to/come"_s);
    EXPECT_EQ(WithoutLinks(u"/not there/at all"_s), u"/not there/at all"_s);
}
