#include "dosboxconf/CdFile.h"

#include "support/TestFolder.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::test;
using dosboxconf::CdFacts;
using dosboxconf::CdPanel;
using dosboxconf::ReadCdFacts;

namespace {

struct CdFileTest : testing::Test {
    TestFolder folder;
    shell::Places places{folder.Path(), folder.Path(), folder.Path()};
    CdPanel panel;
    const QString row = u"[Star]"_s;
    const QStringList images = Words(u"b.ISO c.iso A.cue"_s);
};

TEST_F(CdFileTest, ImagesAreIsoThenCueEachByName)
{
    folder.MakeAll(u"Star/dosbox/cd/c.iso Star/dosbox/cd/b.ISO Star/dosbox/cd/A.cue"_s);
    folder.MakeAll(u"Star/dosbox/cd/A.bin Star/dosbox/cd/.h.iso Star/dosbox/cd/folder.iso/"_s);
    folder.WriteLines(u"Star/dosbox/cd.CONF"_s, {u"1"_s, u"-1"_s});
    const CdFacts facts = ReadCdFacts(places, u"Star"_s);
    EXPECT_TRUE(facts.hasFolder);
    EXPECT_EQ(facts.images, images);
    EXPECT_TRUE(facts.hasConf && facts.chkMountCD);
    EXPECT_EQ(facts.CdMountMode, 1) << "any number but 0";
    EXPECT_FALSE(ReadCdFacts(places, u"Bare"_s).hasFolder);
}

TEST_F(CdFileTest, SavingWritesDeletesOrLeavesAlone)
{
    const QString conf = u"Star/DosBox/CD.conf"_s;
    folder.MakeAll(u"Star/DosBox/CD/ Bare/GO.EXE"_s);
    panel.chkCD = true;
    ASSERT_TRUE(SaveCdConf(places, u"Star"_s, panel));
    EXPECT_FALSE(folder.Exists(conf)) << "no row";
    ChkMountCdClicked(panel, true, images, row);
    ASSERT_TRUE(SaveCdConf(places, u"Star"_s, panel));
    EXPECT_EQ(folder.ReadRaw(conf), "1\r\n1\r\n");
    panel.lstCD.clear();
    ASSERT_TRUE(SaveCdConf(places, u"Star"_s, panel));
    EXPECT_TRUE(folder.Exists(conf));
    panel.chkCD = false;
    ASSERT_TRUE(SaveCdConf(places, u"Star"_s, panel));
    EXPECT_FALSE(folder.Exists(conf));
    EXPECT_TRUE(SaveCdConf(places, u"Star"_s, panel)) << "nothing to delete";
    ChkCdClicked(panel, true, {}, row);
    EXPECT_FALSE(SaveCdConf(places, u"Gone"_s, panel));
    EXPECT_FALSE(folder.Exists(u"Gone"_s));
    ASSERT_TRUE(SaveCdConf(places, u"Bare"_s, panel));
    EXPECT_EQ(folder.ReadRaw(u"Bare/DosBox/CD.conf"_s), "0\r\n0\r\n");
}

} // namespace
