#include "dosboxconf/CdPanel.h"

#include "support/Values.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using dosboxconf::CdFacts;
using dosboxconf::CdPanel;

namespace {

struct CdPanelTest : testing::Test {
    void Expect(bool chkCD, bool chkMountCD, int mode, const QStringList& list) const
    {
        EXPECT_EQ(panel.chkCD, chkCD);
        EXPECT_EQ(panel.picCDVisible, chkCD);
        EXPECT_EQ(panel.chkMountCD, chkMountCD);
        EXPECT_EQ(panel.CdMountMode, mode);
        EXPECT_EQ(panel.lstCD, list);
        EXPECT_EQ(panel.row, -1);
    }

    CdPanel panel;
    const QString row = u"[Star]"_s;
    const QStringList one{row};
    const QStringList images = test::Words(u"b.ISO c.iso A.cue"_s);
};

TEST_F(CdPanelTest, FillingByWhatTheFolderHolds)
{
    struct Case {
        CdFacts facts;
        bool chkCD = false;
        bool chkMountCD = false;
        int mode = 0;
        QStringList list;
    };
    // The former game had a CD with a drive for each image.
    const Case cases[] = {
        {{false, {}, true, false, 1}, true, true, 1, {}}, // no folder: as it was
        {{true, images, false, false, 0}, false, true, 1, {}},
        {{true, images, true, false, 0}, true, false, 0, one},
        {{true, images, true, true, 1}, true, true, 1, images},
        {{true, {}, true, false, 1}, true, false, 1, {}},
    };
    for (const Case& c : cases) {
        ChkMountCdClicked(panel, true, images, row);
        panel.chkCD = panel.picCDVisible = true;
        panel.row = 0;
        FillCdList(panel, c.facts, row);
        Expect(c.chkCD, c.chkMountCD, c.mode, c.list);
    }
    ResetCdPanel(panel);
    FillCdList(panel, CdFacts(), row);
    Expect(false, false, 0, {});
}

TEST_F(CdPanelTest, ClicksTakeImagesWhereThereAreAny)
{
    panel.chkMountCD = true;
    ChkCdClicked(panel, true, images, row);
    Expect(true, false, 1, images);
    ChkCdClicked(panel, true, {}, row);
    Expect(true, false, 0, one);
    ChkMountCdClicked(panel, true, images, row);
    Expect(true, true, 1, images);
    ChkMountCdClicked(panel, false, {}, row);
    Expect(true, false, 1, images);
    ChooseCdMode(panel, 0, images, row);
    Expect(true, false, 0, one);
    ChooseCdMode(panel, 1, images, row);
    Expect(true, false, 1, images);
    ChkCdClicked(panel, false, {}, row);
    Expect(false, false, 1, images); // only hidden
}

} // namespace
