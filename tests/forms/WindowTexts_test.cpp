#include "WindowFixture.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace pelorin::test {

class WindowTextsTest : public WindowTest {
protected:
    QString Caption(const char* name) const
    {
        const auto* widget = Find(name);
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            return button->text();
        }
        const auto* label = qobject_cast<const QLabel*>(widget);
        return label != nullptr ? label->text() : QString();
    }
};

TEST_F(WindowTextsTest, EntriesStandWhereTheyBelong)
{
    Open();
    const std::pair<const char*, const char16_t*> toolTips[] = {
        {"cmdRun_0", u"E10"},
        {"cmdRefresh", u"E17"},
        {"optViewmode_0", u"E8"},
        {"optViewmode_1", u"E9"},
        {"optViewmode_2", u"E301"},
        {"optViewmode_3", u"E302"},
        {"Picture2", u"E36"},
        {"picAddGame", u"E34"},
        {"cmdFind", u"E33"},
        {"cmdOpenFolder", u"E11\nE12\nE14\nE15\nE16"},
        {"cmdIcon_0", u"E25"},
        {"cmdIcon_1", u"E62"},
    };
    for (const auto& [name, text] : toolTips) {
        EXPECT_EQ(Find(name)->toolTip(), QString::fromUtf16(text)) << name;
    }
    EXPECT_EQ(Find("cmdOpenFolder")->accessibleName(), u"E11"_s);
    EXPECT_EQ(Caption("lblGenreTitleE"), u"E13"_s);
    EXPECT_EQ(Caption("cmdVespra"), u"mirel55"_s);
    const auto* tabs = Find<QTabBar>("tabInfo");
    QStringList captions;
    for (int i = 0; i < tabs->count(); ++i) {
        captions << tabs->tabText(i);
    }
    EXPECT_EQ(captions, (QStringList{u"E18"_s, u"E19"_s, u"E20"_s, u"E21"_s, u"E22"_s, u"E256"_s}));
}

TEST_F(WindowTextsTest, NumberedControlsTakeTheirEntriesInOrder)
{
    Open();
    ShowTab(5);
    EXPECT_EQ(Caption("lblKeyTitle_0"), u"E86"_s);
    EXPECT_EQ(Caption("lblkey_0"), u"E87"_s);
    EXPECT_EQ(Caption("lblKeyTitle_7"), u"E100"_s);
    EXPECT_EQ(Caption("lblkey_7"), u"E101"_s);
    EXPECT_EQ(Caption("lblKeyTitle_8"), u"E230"_s);
    EXPECT_EQ(Caption("lblkey_8"), u"E248"_s);
    ShowTab(6);
    EXPECT_EQ(Caption("cmdDownloadTools_0"), u"E326"_s);
    EXPECT_EQ(Caption("cmdDownloadTools_13"), u"E339"_s);
}

TEST_F(WindowTextsTest, AnotherLanguageReachesPagesThatAreThereAndThoseToCome)
{
    Open();
    ShowTab(2);
    EXPECT_EQ(Caption("cmdSaveExec"), u"E66"_s);
    // No line of their own in this file: English stands in.
    EXPECT_EQ(Caption("cmdRun_0"), u"Run"_s);
    lang = NumberedLanguage(u"F"_s);
    screens.start.cmdAddEmpty = u"REM"_s;
    screens.frame.changed.Tell(shell::MainFrame::Language);
    EXPECT_EQ(Caption("cmdSaveExec"), u"F66"_s);
    EXPECT_EQ(Caption("cmdAddEmpty"), u"REM"_s);
    ShowTab(5);
    EXPECT_EQ(Caption("cmdCompact"), u"F236"_s);
    EXPECT_EQ(Find<QComboBox>("cmbDosboxMove")->count(), 10);
    EXPECT_EQ(Find<QComboBox>("cmbDosboxMove")->itemText(9), u"F313"_s);
}

TEST_F(WindowTextsTest, TheCaptionIsTheModelsAlone)
{
    screens.frame.caption = u"Title : [[Pelorin Ver.16.10.01.03] by mirel55]"_s;
    screens.frame.applicationTitle = u"Pelorin"_s;
    Open();
    EXPECT_EQ(window->windowTitle(), screens.frame.caption);
    EXPECT_EQ(QCoreApplication::applicationName(), u"Pelorin"_s);
}

TEST_F(WindowTextsTest, TextsFromFilesAreShownAsTheyStand)
{
    screens.notice.visible = true;
    screens.notice.lblMessage = u"<b>x</b> & y"_s;
    screens.details.lblGenreK = u"R&D"_s;
    screens.status.Tell(u"<i>note</i>"_s, {});
    Open();
    EXPECT_EQ(Find<QLabel>("lblMessage")->textFormat(), Qt::PlainText);
    EXPECT_EQ(Caption("lblGenreK"), u"R&&D"_s);
    EXPECT_EQ(Find("SBDirectory_4")->toolTip(), u"<qt>&lt;i&gt;note&lt;/i&gt;</qt>"_s);
}

} // namespace pelorin::test
