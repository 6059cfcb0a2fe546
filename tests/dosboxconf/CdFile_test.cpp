#include "dosboxconf/CdFile.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using dosboxconf::CdFacts;
using dosboxconf::CdPanel;
using dosboxconf::ReadCdFacts;

namespace {

struct CdFileTest : testing::Test {
    test::TestFolder folder;
    shell::Places places{folder.Path(), folder.Path(), folder.Path()};
    CdPanel panel;
    const QString row = u"[Star]"_s;
    const QString conf = u"Star/DosBox/CD.conf"_s;
    const QStringList images{u"b.ISO"_s, u"c.iso"_s, u"A.cue"_s};
};

TEST_F(CdFileTest, ImagesAreIsoThenCueEachByName)
{
    folder.MakeTree(
        {u"Star/dosbox/cd/c.iso"_s,
         u"Star/dosbox/cd/b.ISO"_s,
         u"Star/dosbox/cd/A.cue"_s,
         u"Star/dosbox/cd/A.bin"_s,
         u"Star/dosbox/cd/.hidden.iso"_s,
         u"Star/dosbox/cd/folder.iso/"_s});
    folder.WriteLines(u"Star/dosbox/cd.CONF"_s, {u"1"_s, u"-1"_s});
    const CdFacts facts = ReadCdFacts(places, u"Star"_s);
    EXPECT_TRUE(facts.hasFolder);
    EXPECT_EQ(facts.images, images);
    EXPECT_TRUE(facts.hasConf && facts.chkMountCD);
    EXPECT_EQ(facts.CdMountMode, 1) << "any number but 0";
}

TEST_F(CdFileTest, FillingByWhatTheFolderHolds)
{
    struct Case {
        CdFacts facts;
        bool chkCD = false;
        bool visible = false;
        bool chkMountCD = false;
        QStringList list;
    };
    // The former game had a CD with a drive for each image.
    const Case cases[] = {
        {{false, {}, true, false, 1}, true, true, true, {}}, // no folder: as it was
        {{true, images, false, false, 0}, false, false, true, {}},
        {{true, images, true, false, 0}, true, true, false, {row}},
        {{true, images, true, true, 1}, true, true, true, images},
        {{true, {}, true, false, 1}, true, true, false, {}},
    };
    for (const Case& c : cases) {
        panel.chkCD = panel.picCDVisible = panel.chkMountCD = true;
        panel.lstCD = QStringList{u"old.iso"_s};
        panel.row = 0;
        FillCdList(panel, c.facts, row);
        EXPECT_EQ(panel.chkCD, c.chkCD);
        EXPECT_EQ(panel.picCDVisible, c.visible);
        EXPECT_EQ(panel.chkMountCD, c.chkMountCD);
        EXPECT_EQ(panel.lstCD, c.list);
        EXPECT_EQ(panel.row, -1);
    }
}

TEST_F(CdFileTest, AResetKeepsTheFormerGamesCdFromTheNextOne)
{
    panel.chkCD = panel.picCDVisible = panel.chkMountCD = true;
    panel.CdMountMode = 1;
    panel.lstCD = images;
    ResetCdPanel(panel);
    FillCdList(panel, ReadCdFacts(places, u"Bare"_s), row);
    EXPECT_FALSE(panel.chkCD || panel.picCDVisible || panel.chkMountCD);
    EXPECT_EQ(panel.CdMountMode, 0);
    EXPECT_TRUE(panel.lstCD.isEmpty());
}

TEST_F(CdFileTest, CheckingTakesImagesWhereThereAreAny)
{
    panel.chkMountCD = true;
    ChkCdClicked(panel, true, images, row);
    EXPECT_TRUE(panel.chkCD && panel.picCDVisible);
    EXPECT_FALSE(panel.chkMountCD);
    EXPECT_EQ(panel.CdMountMode, 1);
    EXPECT_EQ(panel.lstCD, images);
    ChkCdClicked(panel, true, {}, row);
    EXPECT_EQ(panel.CdMountMode, 0);
    EXPECT_EQ(panel.lstCD, QStringList{row});
    ChkCdClicked(panel, false, images, row);
    EXPECT_FALSE(panel.chkCD || panel.picCDVisible);
    EXPECT_EQ(panel.lstCD, QStringList{row}) << "only hidden";
}

TEST_F(CdFileTest, ADriveForEachImageImpliesImages)
{
    ChooseCdMode(panel, 0, images, row);
    EXPECT_EQ(panel.lstCD, QStringList{row});
    ChkMountCdClicked(panel, true, images, row);
    EXPECT_EQ(panel.CdMountMode, 1);
    EXPECT_EQ(panel.lstCD, images);
    ChkMountCdClicked(panel, false, {}, row);
    EXPECT_EQ(panel.CdMountMode, 1);
    EXPECT_EQ(panel.lstCD, images);
    EXPECT_FALSE(panel.chkMountCD);
}

TEST_F(CdFileTest, SavingWritesDeletesOrLeavesAlone)
{
    folder.MakeTree({u"Star/DosBox/CD/"_s});
    panel.chkCD = true;
    ASSERT_TRUE(SaveCdConf(places, u"Star"_s, panel));
    EXPECT_FALSE(folder.Exists(conf)) << "no row";
    ChkMountCdClicked(panel, true, images, row);
    ASSERT_TRUE(SaveCdConf(places, u"Star"_s, panel));
    EXPECT_EQ(folder.ReadRaw(conf), "1\r\n1\r\n");
    panel.lstCD.clear();
    ASSERT_TRUE(SaveCdConf(places, u"Star"_s, panel));
    EXPECT_EQ(folder.ReadRaw(conf), "1\r\n1\r\n");
    panel.chkCD = false;
    ASSERT_TRUE(SaveCdConf(places, u"Star"_s, panel));
    EXPECT_FALSE(folder.Exists(conf));
    EXPECT_TRUE(SaveCdConf(places, u"Star"_s, panel)) << "nothing to delete";
    ChkCdClicked(panel, true, {}, row);
    EXPECT_FALSE(SaveCdConf(places, u"Gone"_s, panel));
    EXPECT_FALSE(folder.Exists(u"Gone"_s));
    folder.MakeTree({u"Bare/GO.EXE"_s});
    ASSERT_TRUE(SaveCdConf(places, u"Bare"_s, panel));
    EXPECT_EQ(folder.ReadRaw(u"Bare/DosBox/CD.conf"_s), "0\r\n0\r\n");
}

} // namespace
