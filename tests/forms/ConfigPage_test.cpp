#include "WindowFixture.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QListView>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace pelorin::test {

/// The page of options over a group of two values; the last one has no row.
class ConfigPageWindow : public WindowTest {
protected:
    ConfigPageWindow()
    {
        deeds.lstConfigTitle_Click = NoteIndex(u"title"_s);
        deeds.lstConfigTitle_DblClick = NoteIndex(u"open"_s);
        deeds.lstConfig_Row = NoteIndex(u"row"_s);
        deeds.lstConfig_Click = NoteIndex(u"edit"_s);
        deeds.lstConfigTitle_CtrlTab = NoteIndex(u"group"_s);
        deeds.cmbConfig_Click = NoteIndex(u"value"_s);
        deeds.cmbConfig_Leave = [this] {
            did << u"left"_s;
            screens.config.cmbConfig = {};
            screens.config.changed.Tell(dosboxconf::ConfigEditor::Combo);
        };
        options.GroupCaption = {u"cpu"_s};
        screens.config.page.lists = true;
        screens.config.lstConfigTitle = {u"Core"_s, u"Cycles"_s, u"Up"_s};
        screens.config.lstConfig = {u"auto"_s, u"10"_s};
        screens.config.configItems = {0, 2};
        screens.config.titleRow = 0;
        screens.config.configRow = 0;
    }

    void OpenPage()
    {
        Open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        ShowTab(3);
        did.clear();
    }
};

TEST_F(ConfigPageWindow, KeysWalkAndEditAndChangeTheGroup)
{
    OpenPage();
    auto* titles = Find<QListView>("lstConfigTitle");
    titles->setFocus();
    QTest::keyClick(titles, Qt::Key_Down);
    QTest::keyClick(titles, Qt::Key_Return); // this one has no row among the values
    QTest::keyClick(titles, Qt::Key_Down);
    QTest::keyClick(titles, Qt::Key_Return);
    QTest::keyClick(titles, Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyClick(titles, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(
        did,
        (QStringList{
            u"title 1"_s, u"open 1"_s, u"title 2"_s, u"open 2"_s, u"group 1"_s, u"group -1"_s}));
    did.clear();
    auto* values = Find<QListView>("lstConfig");
    const QRect second = values->visualRect(values->model()->index(1, 0));
    QTest::mouseClick(values->viewport(), Qt::LeftButton, {}, second.center());
    EXPECT_EQ(did, (QStringList{u"row 1"_s, u"edit 1"_s}));
}

TEST_F(ConfigPageWindow, AComboLiesOverTheRowUntilAValueIsChosenOrItIsLeft)
{
    OpenPage();
    auto* combo = Find<QComboBox>("cmbConfig");
    EXPECT_FALSE(combo->isVisible());
    const auto show = [&] {
        screens.config.cmbConfig = {true, {0, 0}, 0, {u"auto"_s, u"normal"_s}, 1};
        screens.config.changed.Tell(dosboxconf::ConfigEditor::Combo);
    };
    show();
    EXPECT_TRUE(combo->isVisible());
    EXPECT_EQ(combo->currentText(), u"normal"_s);
    EXPECT_TRUE(combo->view()->isVisible());
    QTest::keyClick(combo->view(), Qt::Key_Up);
    QTest::keyClick(combo->view(), Qt::Key_Return);
    EXPECT_EQ(did, QStringList{u"value 0"_s});
    did.clear();
    show();
    QTest::keyClick(combo->view(), Qt::Key_Escape);
    QTRY_COMPARE(did, QStringList{u"left"_s});
    EXPECT_FALSE(combo->isVisible());
}

TEST_F(ConfigPageWindow, ListsSideBySideScrollTogetherAsFarAsBothHaveRows)
{
    for (int i = 0; i < 200; ++i) {
        screens.config.lstConfigTitle << u"Title %1"_s.arg(i);
        screens.config.lstConfig << u"Value %1"_s.arg(i);
    }
    screens.config.lstConfig.removeLast();
    OpenPage();
    QScrollBar& titles = *Find<QListView>("lstConfigTitle")->verticalScrollBar();
    auto* const values = Find<QListView>("lstConfig");
    titles.setValue(titles.maximum());
    EXPECT_EQ(titles.value(), titles.maximum()) << "the shorter list pulls nothing back";
    EXPECT_LT(values->verticalScrollBar()->value(), titles.maximum());
    EXPECT_EQ(values->verticalScrollBar()->value(), values->verticalScrollBar()->maximum());
    EXPECT_FALSE(
        values->visualRect(values->model()->index(0, 0)).intersects(values->viewport()->rect()))
        << "it has moved, not its bar alone";
    values->verticalScrollBar()->setValue(7);
    EXPECT_EQ(titles.value(), 7);
}

TEST_F(ConfigPageWindow, TheTextOfAStartIsShownWithWhatBecameOfIt)
{
    using dosboxconf::ConfPreview;
    OpenPage();
    auto* text = Find<QPlainTextEdit>("txtPreview");
    QString lines;
    for (int line = 0; line < 200; ++line) {
        lines += u"line %1\r\n"_s.arg(line);
    }
    screens.config.preview = {ConfPreview::State::Saved, lines, QString()};
    screens.config.changed.Tell(dosboxconf::ConfigEditor::Preview);
    screens.config.preview = {
        ConfPreview::State::Differs,
        QString(lines).replace(u"line 150"_s, u"changed"_s),
        QString()};
    screens.config.changed.Tell(dosboxconf::ConfigEditor::Preview);
    EXPECT_EQ(text->textCursor().block().text(), u"changed"_s) << "what changes is in view";
    EXPECT_TRUE(text->viewport()->rect().contains(text->cursorRect()));
    EXPECT_TRUE(text->isReadOnly());
}

} // namespace pelorin::test
