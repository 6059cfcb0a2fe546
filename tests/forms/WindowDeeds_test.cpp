#include "WindowFixture.h"
#include "forms/FormUnits.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace pelorin::test {

class WindowDeedsTest : public WindowTest {
protected:
    /// The menu as it stands when it opens.
    QMenu* OpenedMenu(const char* name) const
    {
        auto* menu = Find<QMenu>(name);
        Q_EMIT menu->aboutToShow();
        return menu;
    }
    static QAction* Entry(const QMenu& menu, const QString& name)
    {
        auto* action = menu.findChild<QAction*>(name);
        EXPECT_NE(action, nullptr) << name.toStdString();
        return action;
    }
    void Press(const char* name) const
    {
        QTest::mouseClick(Find<QAbstractButton>(name), Qt::LeftButton);
    }
};

TEST_F(WindowDeedsTest, ControlsWithoutACommandAreShownAndDisabled)
{
    deeds.cmdRefresh_Click = Note(u"Refresh"_s);
    Open();
    for (const char* name :
         {"cmdRun_0",
          "cmdRun_1",
          "cmdOpenFolder",
          "Picture2",
          "optViewmode_2",
          "txtFind",
          "cmdFind",
          "picAddGame",
          "cmdVespra",
          "cmdSaveInfo",
          "cmdIcon_1",
          "lblGenreK"}) {
        EXPECT_TRUE(Find(name)->isVisible()) << name;
        EXPECT_FALSE(Find(name)->isEnabled()) << name;
    }
    EXPECT_TRUE(Find("cmdRefresh")->isEnabled());
}

TEST_F(WindowDeedsTest, TheRunMenuIsAskedForEachTimeItOpens)
{
    shell::MenuModel model{
        {0, u"Random"_s}, {1, {}, true, true}, {2, u"[A && B]"_s}, {3, u"Prompt"_s, false}};
    deeds.mnuRun = [&] { return model; };
    deeds.mnuRun_Click = NoteIndex(u"mnuRun"_s);
    Open();
    const QMenu& menu = *OpenedMenu("mnuRunRoot");
    ASSERT_EQ(menu.actions().size(), 4);
    EXPECT_TRUE(menu.actions()[1]->isSeparator());
    EXPECT_EQ(Entry(menu, u"mnuRun_2"_s)->text(), u"[A && B]"_s);
    EXPECT_FALSE(Entry(menu, u"mnuRun_3"_s)->isEnabled());
    model.push_back({24, u"Recent"_s});
    OpenedMenu("mnuRunRoot");
    ASSERT_EQ(menu.actions().size(), 5);
    Entry(menu, u"mnuRun_24"_s)->trigger();
    EXPECT_EQ(did, QStringList{u"mnuRun 24"_s});
}

TEST_F(WindowDeedsTest, TheGameMenuOpensForASelectionOnly)
{
    int asked = 0;
    deeds.mnuGame = [&] {
        ++asked;
        return shell::MenuModel{{20, u"Store"_s}};
    };
    deeds.mnuGame_Click = NoteIndex(u"mnuGame"_s);
    Open();
    auto* list = Find<QAbstractItemView>("LVGamelist_icons");
    QTest::mouseClick(
        list->viewport(),
        Qt::RightButton,
        {},
        list->viewport()->rect().bottomRight() - QPoint(3, 3));
    EXPECT_EQ(asked, 0);
    const QRect row = list->visualRect(list->model()->index(2, 0));
    QTest::mouseClick(list->viewport(), Qt::RightButton, {}, row.center());
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(screens.list.selected, 2);
    did.clear();
    auto* menu = Find<QMenu>("mnuGameRoot");
    Entry(*menu, u"mnuGame_20"_s)->trigger();
    menu->close();
    EXPECT_EQ(did, QStringList{u"mnuGame 20"_s});
}

TEST_F(WindowDeedsTest, ViewButtonsAskAndFollowTheModel)
{
    deeds.optViewmode_Click = [&](finding::View view) {
        did << u"view %1"_s.arg(static_cast<int>(view));
    };
    Open();
    EXPECT_TRUE(Find<QToolButton>("optViewmode_1")->isChecked());
    Press("optViewmode_3");
    EXPECT_EQ(did, QStringList{u"view 3"_s});
    screens.list.view = finding::View::LargeIcons;
    screens.list.changed.Tell(finding::GameList::ViewMode);
    EXPECT_TRUE(Find<QToolButton>("optViewmode_0")->isChecked());
    EXPECT_FALSE(Find<QToolButton>("optViewmode_3")->isChecked());
    // Tab reaches the one that is on, the arrows go on from there.
    Find("optViewmode_0")->setFocus();
    did.clear();
    QTest::keyClick(Find("optViewmode_0"), Qt::Key_Right);
    EXPECT_EQ(did, QStringList{u"view 1"_s});
}

TEST_F(WindowDeedsTest, TheSearchHearsTheReleaseOfItsOwnKeys)
{
    deeds.cmdFind_Click = [&] { did << u"find "_s + screens.search.txtFind; };
    deeds.txtFind_Esc = [&] {
        did << u"esc "_s + screens.search.txtFind;
        screens.search.txtFind.clear();
        screens.search.changed.Tell(finding::SearchBox::Text);
    };
    deeds.cmdFind_Esc = Note(u"button esc"_s);
    Open();
    auto* txtFind = Find<QLineEdit>("txtFind");
    QTest::keyClicks(txtFind, u"star"_s);
    EXPECT_EQ(screens.search.txtFind, u"star"_s);
    QTest::keyPress(txtFind, Qt::Key_Return);
    EXPECT_EQ(did, QStringList());
    QTest::keyRelease(txtFind, Qt::Key_Return);
    QTest::keyClick(txtFind, Qt::Key_Enter);
    QTest::keyClick(txtFind, Qt::Key_Escape);
    QTest::keyClick(Find("cmdFind"), Qt::Key_Return);
    QTest::keyClick(Find("cmdFind"), Qt::Key_Escape);
    Press("cmdFind");
    EXPECT_EQ(
        did,
        (QStringList{u"find star"_s, u"find star"_s, u"esc star"_s, u"button esc"_s, u"find "_s}));
    EXPECT_EQ(txtFind->text(), QString());
    // The press closed a menu of the box.
    QTest::keyRelease(txtFind, Qt::Key_Escape);
    EXPECT_EQ(did.size(), 5);
    Find("tabInfo")->setFocus();
    screens.search.changed.Tell(finding::SearchBox::Focus);
    EXPECT_TRUE(txtFind->hasFocus());
}

TEST_F(WindowDeedsTest, TheTreeTellsItsTwoKindsOfClicks)
{
    screens.tree.roots = {
        {finding::Category::Store, u"Stored"_s, {{u"no"_s, u"No"_s}, {u"yes"_s, u"Yes"_s}}}};
    screens.tree.roots[0].expanded = true;
    const auto place = [](const finding::NodePlace& node) {
        return (node.category == finding::Category::Store ? u"store "_s : u"other "_s) +
               QString::number(node.child);
    };
    deeds.TreeView1_NodeCheck = [&](const finding::NodePlace& node, bool checked) {
        did << u"check "_s + place(node) + (checked ? u" on"_s : u" off"_s);
        screens.tree.roots[0].children[1].checked = checked;
        screens.tree.changed.Tell(finding::FilterTree::Checks);
    };
    deeds.TreeView1_NodeClick = [&](const finding::NodePlace& node) {
        did << u"click "_s + place(node);
    };
    Open();
    auto* tree = Find<QTreeView>("TreeView1");
    const QModelIndex root = tree->model()->index(0, 0);
    const QModelIndex child = tree->model()->index(1, 0, root);
    // The box stands before the text.
    const auto box = [&](const QModelIndex& index) {
        QStyleOptionViewItem option;
        option.initFrom(tree);
        option.rect = tree->visualRect(index);
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        return tree->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, tree);
    };
    const auto click = [&](const QPoint& point) {
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, point);
    };
    const auto label = [&](const QModelIndex& index) {
        return QPoint(box(index).right() + 12, box(index).center().y());
    };
    click(box(child).center());
    EXPECT_EQ(child.data(Qt::CheckStateRole).toInt(), Qt::Checked);
    EXPECT_TRUE(root.data(Qt::FontRole).value<QFont>().bold())
        << "a mark is seen when it is folded";
    click(label(child));
    click(box(root).center());
    click(label(root));
    tree->setCurrentIndex(child);
    QTest::keyClick(tree, Qt::Key_Space);
    click(label(child));
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, label(child));
    EXPECT_EQ(
        did,
        (QStringList{
            u"check store 1 on"_s,
            u"click store 1"_s,
            u"check store -1 on"_s,
            u"click store -1"_s,
            u"check store 1 off"_s,
            u"click store 1"_s}));
    EXPECT_TRUE(tree->isExpanded(root));
}

TEST_F(WindowDeedsTest, TheListsKeysReachTheirCommands)
{
    struct Row {
        int key = 0;
        Qt::KeyboardModifiers modifiers;
        const char16_t* does = nullptr;
        const char16_t* withoutSelection = nullptr;
        const char16_t* withoutItems = nullptr;
    };
    const Row rows[] = {
        {Qt::Key_Return, Qt::NoModifier, u"DblClick", u"DblClick", u""},
        {Qt::Key_Enter, Qt::KeypadModifier, u"DblClick", u"DblClick", u""},
        {Qt::Key_Return, Qt::ControlModifier, u"", u"", u""},
        {Qt::Key_F2, Qt::NoModifier, u"title", u"", u""},
        {Qt::Key_F2, Qt::ControlModifier, u"", u"", u""},
        {Qt::Key_F4, Qt::NoModifier, u"rename", u"", u""},
        {Qt::Key_F4, Qt::ShiftModifier, u"", u"", u""},
        {Qt::Key_F4, Qt::ControlModifier, u"", u"", u""},
        {Qt::Key_F5, Qt::NoModifier, u"refresh", u"refresh", u"refresh"},
        {Qt::Key_F6, Qt::NoModifier, u"details", u"", u""},
        {Qt::Key_Delete, Qt::NoModifier, u"Delete", u"Delete", u"Delete"},
        {Qt::Key_F10, Qt::ShiftModifier, u"SelectionMoved menu", u"", u""},
        {Qt::Key_F10, Qt::ControlModifier, u"", u"", u""},
    };
    deeds.cmdRefresh_Click = Note(u"refresh"_s);
    deeds.FocusTitle = Note(u"title"_s);
    deeds.RenameGameFolder = Note(u"rename"_s);
    deeds.OpenDetails = Note(u"details"_s);
    deeds.mnuGame = [&] {
        did << u"menu"_s;
        return shell::MenuModel();
    };
    Open();
    window->activateWindow();
    const finding::GameRows games = screens.list.items;
    for (const finding::View view : {finding::View::SmallIcons, finding::View::Details}) {
        const bool details = view == finding::View::Details;
        SCOPED_TRACE(details);
        screens.list.view = view;
        screens.list.items = games;
        screens.list.changed.Tell(finding::GameList::Reset | finding::GameList::ViewMode);
        screens.list.Select(0);
        auto* list = Find(details ? "LVGamelist_details" : "LVGamelist_icons");
        const auto expect = [&](const char16_t* Row::*does) {
            for (const Row& row : rows) {
                did.clear();
                QTest::keyClick(list, static_cast<Qt::Key>(row.key), row.modifiers);
                EXPECT_EQ(did.join(u' '), QString::fromUtf16(row.*does))
                    << row.key << row.modifiers;
            }
        };
        expect(&Row::does);
        screens.list.Select(-1);
        expect(&Row::withoutSelection);
        screens.list.items.clear();
        screens.list.changed.Tell(finding::GameList::Reset);
        expect(&Row::withoutItems);
        list->setFocus();
        QTest::keyClick(list, Qt::Key_F3);
        EXPECT_TRUE(list->hasFocus()) << "there is nothing to search";
    }
}

TEST_F(WindowDeedsTest, TheMenuKeyOpensTheMenuAtTheSelectedGame)
{
    deeds.mnuGame = [] { return shell::MenuModel{{0, u"Run"_s}}; };
    deeds.mnuGame_Click = NoteIndex(u"mnuGame"_s);
    Open();
    auto* list = Find<QAbstractItemView>("LVGamelist_icons");
    screens.list.Select(3);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    QCoreApplication::sendEvent(list->viewport(), &event);
    auto* menu = Find<QMenu>("mnuGameRoot");
    EXPECT_TRUE(menu->isVisible());
    const QRect row = list->visualRect(list->model()->index(3, 0));
    EXPECT_TRUE(row.contains(list->viewport()->mapFromGlobal(menu->pos())));
    menu->close();
}

TEST_F(WindowDeedsTest, TheTitleInUseTakesTheKeyboardAndAllOfItIsSelected)
{
    Open();
    window->activateWindow();
    screens.details.txtTitle = {u"별"_s, u"Star"_s};
    screens.details.changed.Tell(shell::DetailsPanel::Texts);
    for (const bool korean : {true, false}) {
        settings.TitleLanguageKorean = korean;
        Find("LVGamelist_icons")->setFocus();
        screens.details.changed.Tell(shell::DetailsPanel::FocusTitle);
        auto* title = Find<QLineEdit>(korean ? "txtTitle_0" : "txtTitle_1");
        EXPECT_TRUE(title->hasFocus());
        EXPECT_EQ(title->selectedText(), korean ? u"별"_s : u"Star"_s);
    }
}

TEST_F(WindowDeedsTest, AJobOnSeveralGamesCanBeGivenUpByMouseAndKey)
{
    deeds.Command1_Click = Note(u"give up"_s);
    Open();
    window->activateWindow();
    EXPECT_FALSE(Find("Command1")->isVisible());
    screens.frame.picBack0Enabled = false;
    screens.frame.panelsEnabled.Tell(1);
    screens.notice.visible = true;
    screens.notice.batch = {true, 5, 2, u"3 / 5"_s, QString(300, u'W') + u"<b>&amp;</b>"_s};
    screens.notice.changed.Tell(shell::BusyNotice::All);
    EXPECT_EQ(Find<QProgressBar>("ProgressBar1")->value(), 2);
    EXPECT_TRUE(Find<QLabel>("Label4")->text().endsWith(u"</b>"_s));
    EXPECT_LT(Find("picMessage")->width(), Find("LVGamelist")->width());
    Press("Command1");
    QTest::keyClick(Find("Command1"), Qt::Key_Space);
    EXPECT_EQ(did, (QStringList{u"give up"_s, u"give up"_s}));
    screens.notice.batch.visible = false;
    screens.notice.changed.Tell(shell::BusyNotice::All);
    EXPECT_FALSE(Find("Command1")->isVisible());
}

TEST_F(WindowDeedsTest, TheKeyToSearchSelectsWhatStandsInTheBox)
{
    deeds.cmdFind_Click = Note(u"find"_s);
    Open();
    auto* list = Find("LVGamelist_icons");
    window->activateWindow();
    screens.search.txtFind = u"abc"_s;
    screens.search.changed.Tell(1);
    QTest::keyClick(list, Qt::Key_F3);
    EXPECT_TRUE(Find("txtFind")->hasFocus());
    EXPECT_EQ(Find<QLineEdit>("txtFind")->selectedText(), u"abc"_s);
}

TEST_F(WindowDeedsTest, StatusPanelsHandOnTheirClicks)
{
    deeds.SBDirectory_PanelClick = NoteIndex(u"panel"_s);
    deeds.RenameGameFolder = Note(u"rename"_s);
    Open();
    EXPECT_FALSE(Find("SBDirectory_4")->isVisible());
    screens.status.Tell(u"first"_s, u"first story"_s);
    screens.status.Tell(u"second\nmore"_s, {});
    EXPECT_TRUE(Find("SBDirectory_4")->isVisible());
    EXPECT_EQ(Find<QAbstractButton>("SBDirectory_4")->text(), u"second"_s);
    for (const char* name : {"SBDirectory_1", "SBDirectory_2", "SBDirectory_3", "SBDirectory_4"}) {
        Press(name);
    }
    EXPECT_EQ(did, (QStringList{u"rename"_s, u"panel 3"_s}));
    EXPECT_EQ(prompts.Texts(), QStringList{u"second\nmore\n\nfirst\nfirst story"_s});
}

TEST_F(WindowDeedsTest, TabsAreCountedFromOneAndTwoShareAPage)
{
    deeds.tabInfo_Click = NoteIndex(u"tab"_s);
    Open();
    EXPECT_EQ(window->findChild<QWidget*>(u"picInfo_2"_s), nullptr);
    auto* tabs = Find<QTabBar>("tabInfo");
    tabs->setCurrentIndex(2);
    EXPECT_TRUE(Find("picInfo_2")->isVisible());
    EXPECT_EQ(screens.frame.tabInfo, 3);
    tabs->setCurrentIndex(3);
    EXPECT_TRUE(Find("picInfo_2")->isVisible());
    EXPECT_EQ(did, (QStringList{u"tab 3"_s, u"tab 4"_s}));
    // The program's choice is shown and not reported as the user's.
    ShowTab(1);
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_EQ(did.size(), 2);
}

TEST_F(WindowDeedsTest, TheStartPageWritesRowsAndHandsOnWhatToDo)
{
    screens.start.lstAutoexec = {u"CD GAME"_s, u"PLAY"_s};
    screens.start.commandRow = 1;
    deeds.lstAutoexec_DblClick = NoteIndex(u"edit"_s);
    deeds.mnuCD = [] { return shell::MenuModel{{0, u"Folder"_s}, {1, u"Images"_s}}; };
    deeds.mnuCD_Click = NoteIndex(u"cd"_s);
    deeds.cmdSaveCD_Click = Note(u"save cd"_s);
    Open();
    ShowTab(2);
    auto* commands = Find<QAbstractItemView>("lstAutoexec");
    EXPECT_EQ(commands->currentIndex().row(), 1);
    EXPECT_EQ(screens.start.commandRow, 1);
    const QPoint first = commands->visualRect(commands->model()->index(0, 0)).center();
    QTest::mouseClick(commands->viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ(screens.start.commandRow, 0);
    QTest::mouseDClick(commands->viewport(), Qt::LeftButton, {}, first);
    const QMenu& menu = *OpenedMenu("mnuCDRoot");
    EXPECT_EQ(Entry(menu, u"mnuCD_0"_s)->text(), u"Folder"_s);
    Entry(menu, u"mnuCD_1"_s)->trigger();
    // Without a CD the panel is hidden; to save that there is none must still be possible.
    EXPECT_FALSE(Find("picCD")->isVisible());
    Press("cmdSaveCD");
    EXPECT_EQ(did, (QStringList{u"edit 0"_s, u"cd 1"_s, u"save cd"_s}));
}

TEST_F(WindowDeedsTest, EachButtonOfThePagesDoesWhatItIsNamedFor)
{
    struct Button {
        int tab;
        const char* name;
        forms::Deeds::Deed* deed;
    };
    const Button buttons[] = {
        {2, "cmdAddExec", &deeds.cmdAddExec_Click},
        {2, "cmdAddEmpty", &deeds.cmdAddEmpty_Click},
        {2, "cmdUp", &deeds.cmdUp_Click},
        {2, "cmdDown", &deeds.cmdDown_Click},
        {2, "cmdDelete", &deeds.cmdDelete_Click},
        {2, "cmdSaveExec", &deeds.cmdSaveExec_Click},
        {3, "cmdSaveConfig", &deeds.cmdSaveConfig_Click},
        {3, "cmdDeleteConfig", &deeds.cmdDeleteConfig_Click},
        {3, "cmdOpenPreset", &deeds.cmdOpenPreset_Click},
        {3, "cmdSavePreset", &deeds.cmdSavePreset_Click}};
    QStringList names;
    for (const Button& button : buttons) {
        *button.deed = Note(QString::fromLatin1(button.name));
        names << QString::fromLatin1(button.name);
    }
    screens.config.page.commands = true;
    Open();
    for (const Button& button : buttons) {
        ShowTab(button.tab);
        Press(button.name);
    }
    EXPECT_EQ(did, names);
}

TEST_F(WindowDeedsTest, TitlesAndDescriptionAreWrittenByTheUserOnly)
{
    shell::DetailsPanel& details = screens.details;
    details.folder = u"A"_s;
    details.txtTitle = {u"가"_s, u"nul \0 end"_s};
    details.txtInfo = u"one\r\ntwo"_s;
    deeds.Info_Change = Note(u"change"_s);
    deeds.Info_Esc = [&](int box) {
        did << u"esc %1"_s.arg(box);
        details.txtInfo = u"one\r\ntwo"_s;
        details.changed.Tell(shell::DetailsPanel::Texts);
    };
    deeds.cmdSaveInfo_Click = Note(u"save"_s);
    Open();
    EXPECT_EQ(did, QStringList());
    EXPECT_FALSE(Find("lblDraft")->isVisible());
    auto* title = Find<QLineEdit>("txtTitle_0");
    auto* info = Find<QPlainTextEdit>("txtInfo");
    QTest::keyClicks(title, u"1"_s);
    EXPECT_EQ(details.txtTitle[0], u"1가"_s);
    QTest::keyClick(info, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(info, Qt::Key_Return);
    QTest::keyClicks(info, u"3"_s);
    EXPECT_EQ(details.txtInfo, u"one\r\ntwo\r\n3"_s);
    details.draft = true;
    details.changed.Tell(shell::DetailsPanel::Draft);
    EXPECT_TRUE(Find("lblDraft")->isVisible());
    did.clear();
    info->setFocus();
    QTest::keyClick(info, Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(info, Qt::Key_Escape);
    QTest::keyClick(title, Qt::Key_Escape);
    EXPECT_EQ(did, (QStringList{u"save"_s, u"esc 2"_s, u"esc 0"_s}));
    EXPECT_EQ(info->toPlainText(), u"one\ntwo"_s);
    info->undo();
    EXPECT_EQ(details.txtInfo, u"one\r\ntwo\r\n3"_s) << "what Esc took can be had back";

    // A long title from elsewhere is not cut by being shown.
    details.txtTitle[0] = QString(1500, u'x');
    details.changed.Tell(shell::DetailsPanel::Texts);
    EXPECT_EQ(title->text(), details.txtTitle[0]);

    details.savedInfo.state = library::InfoState::Cut;
    details.changed.Tell(shell::DetailsPanel::Texts);
    QTest::keyClicks(info, u"4"_s);
    EXPECT_EQ(details.txtInfo, u"one\r\ntwo\r\n3"_s);
    EXPECT_TRUE(Find("lblInfoNote")->isVisible());
    EXPECT_FALSE(Find("cmdSaveInfo")->isEnabled());
}

TEST_F(WindowDeedsTest, AGenreMenuOpensByEitherButtonAndTheMenuKey)
{
    int asked = 0;
    deeds.mnuGenreK = [&] {
        ++asked;
        shell::MenuModel model{{0, u"New"_s}, {1, {}, true, true}};
        for (int i = 2; i < 2002; ++i) {
            model.push_back({i, u"Genre %1"_s.arg(i), true, false, i == 1900});
        }
        return model;
    };
    deeds.mnuGenreK_Click = NoteIndex(u"genre"_s);
    Open();
    auto* label = Find<QToolButton>("lblGenreK");
    // The menu stands in a loop of its own until it closes.
    const auto open = [&](const std::function<void()>& act) {
        QTimer::singleShot(0, label, [&] {
            QMenu* menu = label->menu();
            ASSERT_TRUE(menu->isVisible());
            EXPECT_LE(menu->width(), menu->screen()->geometry().width() / 2) << "one column";
            EXPECT_TRUE(menu->rect().contains(
                menu->actionGeometry(menu->findChild<QAction*>(u"mnuGenreK_1900"_s)).center()))
                << "the genre that the game has is in sight";
            QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Return);
        });
        act();
    };
    open([&] { QTest::mouseClick(label, Qt::LeftButton); });
    open([&] {
        const QPoint place(3, 3);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, label->mapToGlobal(place));
        QCoreApplication::sendEvent(label, &event);
    });
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(did, (QStringList{u"genre 1901"_s, u"genre 1901"_s}));
}

TEST_F(WindowDeedsTest, ThePlacementIsWrittenByTheUserOnly)
{
    deeds.cmdMoveDosbox_Click = NoteIndex(u"nudge"_s);
    deeds.txtDosboxPos_Step = [&](int box, int step) { did << u"%1 by %2"_s.arg(box).arg(step); };
    deeds.cmdSetPos_Click = Note(u"place"_s);
    Open();
    ShowTab(5);
    screens.placement.txtDosboxPos = {u"12"_s, u"x7"_s};
    screens.placement.cmbDosboxMove = -1;
    screens.placement.changed.Tell(shell::PlacementPanel::All);
    auto* y = Find<QLineEdit>("txtDosboxPos_1");
    EXPECT_EQ(y->text(), u"x7"_s);
    EXPECT_EQ(screens.placement.cmbDosboxMove, -1);
    QTest::keyClicks(y, u"0"_s);
    EXPECT_EQ(screens.placement.txtDosboxPos[1], u"x70"_s);
    Find<QCheckBox>("chkDosboxMove")->click();
    EXPECT_TRUE(screens.placement.chkDosboxMove);
    Press("cmdMoveDosbox_3");
    QTest::keyClick(Find("txtDosboxPos_0"), Qt::Key_Up);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return}) {
        QTest::keyClick(y, key);
    }
    EXPECT_EQ(did, (QStringList{u"nudge 3"_s, u"0 by 1"_s, u"1 by -1"_s, u"place"_s}));
}

TEST_F(WindowDeedsTest, NoticeAndProgressStayReadableOverDisabledPanels)
{
    Open();
    screens.frame.picBack0Enabled = false;
    screens.frame.panelsEnabled.Tell(1);
    screens.notice.visible = true;
    screens.notice.lblMessage = u"Packing"_s;
    screens.notice.colour = 16711680;
    screens.notice.changed.Tell(shell::BusyNotice::All);
    screens.progress.visible = true;
    screens.progress.maximum = 9;
    screens.progress.value = 4;
    screens.progress.changed.Tell(shell::ProgressPanel::All);
    auto* message = Find<QLabel>("lblMessage");
    EXPECT_TRUE(message->isVisible());
    EXPECT_TRUE(message->isEnabled());
    EXPECT_EQ(message->palette().color(QPalette::WindowText), QColor(0, 0, 255));
    EXPECT_EQ(Find<QProgressBar>("pbProgress")->value(), 4);
    // In the middle of the list, also after the window has grown.
    window->resize(window->size() + QSize(200, 100));
    QCoreApplication::processEvents();
    const auto centre = [&](const char* name) {
        return Find(name)->mapTo(window.get(), Find(name)->rect().center());
    };
    for (const char* name : {"picMessage", "picProgress"}) {
        EXPECT_LE((centre(name) - centre("LVGamelist")).manhattanLength(), 2) << name;
    }
    EXPECT_FALSE(Find("LVGamelist_icons")->isEnabled());
    // Steps faster than the screen are not painted each, but the last one is.
    for (const int value : {5, 6, 7}) {
        screens.progress.value = value;
        screens.progress.changed.Tell(shell::ProgressPanel::All);
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return Find<QProgressBar>("pbProgress")->value() == 7; }));
}

TEST_F(WindowDeedsTest, TheSmallestSizeIsMadeOfWhatIsShown)
{
    Open();
    window->resize(1, 1);
    QCoreApplication::processEvents();
    const QWidget& vespra = *Find("cmdVespra");
    const int left = vespra.mapTo(Find("picBack_0"), QPoint(0, 0)).x();
    const QWidget& picBack1 = *Find("picBack_1");
    const int pageLeft = Find("picInfo_0")->mapTo(&picBack1, QPoint(0, 0)).x();
    EXPECT_EQ(window->width(), left + vespra.width() + picBack1.width() + pageLeft);
    EXPECT_EQ(window->height(), Find("tabInfo")->height() + 9 + Find("SBDirectory")->height());
    // Growing gives the left panel all of it.
    const int panel = picBack1.width();
    window->resize(window->size() + QSize(300, 0));
    QCoreApplication::processEvents();
    EXPECT_EQ(picBack1.width(), panel);
    EXPECT_EQ(vespra.mapTo(Find("picBack_0"), QPoint(0, 0)).x(), left);
}

TEST_F(WindowDeedsTest, StoredGeometryComesBackAndADesignedSizeStays)
{
    screens.frame.left = 450;
    screens.frame.top = 300;
    screens.frame.width = 18000;
    screens.frame.height = 10500;
    Open();
    EXPECT_EQ(window->frameGeometry(), QRect(30, 20, 1200, 700));
    EXPECT_DOUBLE_EQ(screens.frame.width, 18000);
    EXPECT_DOUBLE_EQ(screens.frame.left, 450);
    const double widthBefore = screens.frame.width;
    window->showMaximized();
    EXPECT_EQ(screens.frame.state, shell::MainFrame::State::Maximized);
    EXPECT_DOUBLE_EQ(screens.frame.width, widthBefore);
}

} // namespace pelorin::test
