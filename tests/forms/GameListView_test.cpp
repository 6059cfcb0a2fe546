#include "WindowFixture.h"
#include "forms/GameListModel.h"
#include "forms/Pictures.h"
#include "forms/ReadablePalette.h"
#include "library/IconImages.h"
#include "platform/Notifier.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QLabel>
#include <QListView>
#include <QSet>
#include <QTreeView>

#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::test {

using finding::GameList;
using finding::View;

/// Stands before the list's model and notes the rows that a view asks about.
class AskedRows : public QIdentityProxyModel {
public:
    QVariant data(const QModelIndex& index, int role) const override
    {
        m_rows.insert(index.row());
        return QIdentityProxyModel::data(index, role);
    }
    void multiData(const QModelIndex& index, QModelRoleDataSpan roles) const override
    {
        m_rows.insert(index.row());
        QIdentityProxyModel::multiData(index, roles);
    }
    int Take() { return static_cast<int>(std::exchange(m_rows, {}).size()); }

private:
    mutable QSet<int> m_rows;
};

class GameListViewTest : public WindowTest {
protected:
    QAbstractItemView* Icons() const { return Find<QAbstractItemView>("LVGamelist_icons"); }
    QAbstractItemView* Details() const { return Find<QAbstractItemView>("LVGamelist_details"); }

    void ShowView(View view)
    {
        screens.list.view = view;
        screens.list.changed.Tell(GameList::ViewMode);
    }
    static QPoint CentreOf(const QAbstractItemView& view, int row)
    {
        return view.visualRect(view.model()->index(row, 0)).center();
    }
    static void Click(QAbstractItemView& view, int row, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, CentreOf(view, row));
    }
    static void SendKey(QWidget& widget, QEvent::Type type, int key, bool repeats)
    {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), repeats);
        QCoreApplication::sendEvent(&widget, &event);
    }
};

TEST_F(GameListViewTest, AClickWritesTheSelectionBeforeItTellsIt)
{
    int selectedThen = -1;
    deeds.LVGamelist_ItemClick = [&] {
        did << u"ItemClick"_s;
        selectedThen = screens.list.selected;
    };
    Open();
    Click(*Icons(), 2);
    EXPECT_EQ(did, (QStringList{u"ItemClick"_s, u"SelectionMoved"_s}));
    EXPECT_EQ(selectedThen, 2);
    EXPECT_EQ(screens.list.selectedRows, std::vector<int>{2});
}

TEST_F(GameListViewTest, TheProgramsSelectionIsShownAndTellsNothing)
{
    Open();
    screens.list.Select(3);
    EXPECT_EQ(Icons()->currentIndex().row(), 3);
    EXPECT_EQ(Details()->selectionModel()->selectedRows().size(), 1);
    screens.list.Select(-1);
    EXPECT_FALSE(Icons()->currentIndex().isValid());
    EXPECT_EQ(did, QStringList());
}

TEST_F(GameListViewTest, BothViewsShareTheSelection)
{
    Open();
    Click(*Icons(), 1);
    Click(*Icons(), 3, Qt::ControlModifier);
    ShowView(View::Details);
    EXPECT_TRUE(Details()->isVisible());
    EXPECT_FALSE(Icons()->isVisible());
    EXPECT_EQ(Details()->selectionModel()->selectedRows().size(), 2);
    EXPECT_EQ(Details()->currentIndex().row(), 3);
    EXPECT_TRUE(Details()->hasFocus());
    Click(*Details(), 4);
    ShowView(View::LargeIcons);
    EXPECT_EQ(Icons()->currentIndex().row(), 4);
    EXPECT_EQ(screens.list.selectedRows, std::vector<int>{4});
}

TEST_F(GameListViewTest, AllCanBeSelectedByKeys)
{
    screens.list.Select(2);
    Open();
    QTest::keyClick(Icons(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(screens.list.selectedRows, (std::vector<int>{0, 1, 2, 3, 4}));
    EXPECT_EQ(screens.list.selected, 2);
}

TEST_F(GameListViewTest, TheSelectionFollowsKeysAtOnceAndSettlesOnTheRelease)
{
    screens.list.view = View::List;
    Open();
    QWidget& view = *Icons();
    SendKey(view, QEvent::KeyPress, Qt::Key_Down, false);
    EXPECT_EQ(screens.list.selected, 1);
    EXPECT_EQ(did, QStringList{u"ItemClick"_s});
    SendKey(view, QEvent::KeyRelease, Qt::Key_Down, false);
    EXPECT_EQ(did, (QStringList{u"ItemClick"_s, u"SelectionMoved"_s}));
    // At the edges nothing moves, and the release shows the game all the same.
    for (const auto& [there, further] :
         {std::pair{Qt::Key_Home, Qt::Key_Up},
          {Qt::Key_PageDown, Qt::Key_Down},
          {Qt::Key_PageUp, Qt::Key_PageUp},
          {Qt::Key_End, Qt::Key_PageDown}}) {
        did.clear();
        for (const int key : {there, further}) {
            SendKey(view, QEvent::KeyPress, key, false);
            SendKey(view, QEvent::KeyRelease, key, false);
        }
        EXPECT_EQ(did, (QStringList{u"ItemClick"_s, u"SelectionMoved"_s, u"SelectionMoved"_s}));
    }
}

TEST_F(GameListViewTest, AHeldKeySettlesNowAndThenAndOnceAGame)
{
    screens.list.view = View::List;
    Open();
    QWidget& view = *Icons();
    for (int i = 0; i < 3; ++i) {
        SendKey(view, QEvent::KeyPress, Qt::Key_Down, i > 0);
        SendKey(view, QEvent::KeyRelease, Qt::Key_Down, true);
    }
    EXPECT_EQ(screens.list.selected, 3);
    EXPECT_EQ(did.count(u"SelectionMoved"_s), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return did.count(u"SelectionMoved"_s) == 1; }));
    SendKey(view, QEvent::KeyRelease, Qt::Key_Down, false);
    EXPECT_EQ(did.count(u"SelectionMoved"_s), 1) << "it has not moved since";
}

TEST_F(GameListViewTest, TheSelectionSettlesWhenTheFocusLeavesBeforeTheRelease)
{
    screens.list.view = View::List;
    Open();
    window->activateWindow();
    Icons()->setFocus();
    SendKey(*Icons(), QEvent::KeyPress, Qt::Key_Down, false);
    Find("tabInfo")->setFocus();
    EXPECT_EQ(did, (QStringList{u"ItemClick"_s, u"SelectionMoved"_s}));
    Icons()->setFocus();
    Find("tabInfo")->setFocus();
    EXPECT_EQ(did.size(), 2) << "nothing has moved since";
}

TEST_F(GameListViewTest, LettersAndTheInputMethodTypeAhead)
{
    screens.list.items[1].text[0] = u"Ｚebra"_s;
    screens.list.items[3].text[0] = u"별 헤는 밤"_s;
    for (const View view : {View::List, View::Details}) {
        SCOPED_TRACE(static_cast<int>(view));
        window.reset();
        screens.list.view = view;
        screens.list.Select(0);
        Open();
        QAbstractItemView* const onTop = view == View::List ? Icons() : Details();
        ASSERT_TRUE(onTop);
        QAbstractItemView& shown = *onTop;
        window->activateWindow();
        shown.setFocus();
        EXPECT_TRUE(shown.testAttribute(Qt::WA_InputMethodEnabled));
        QInputMethodEvent composing(u"벼"_s, {});
        QCoreApplication::sendEvent(&shown, &composing);
        EXPECT_EQ(screens.list.selected, 3);
        EXPECT_TRUE(shown.testAttribute(Qt::WA_InputMethodEnabled)) << "of the new row as well";
        // No release of a key follows, and the game is shown all the same.
        EXPECT_TRUE(QTest::qWaitFor([&] { return did.contains(u"SelectionMoved"_s); }));
        QInputMethodEvent done;
        done.setCommitString(u"별"_s);
        QCoreApplication::sendEvent(&shown, &done);
        QTest::keyClick(&shown, Qt::Key_Space);
        EXPECT_EQ(screens.list.selected, 3);
    }
    window.reset();
    screens.list.Select(3);
    Open();
    QTest::keyClick(Details(), Qt::Key_Z);
    EXPECT_EQ(screens.list.selected, 1);
}

TEST_F(GameListViewTest, EnterRunsOnceHoweverLongItIsHeld)
{
    Open();
    SendKey(*Icons(), QEvent::KeyPress, Qt::Key_Return, false);
    SendKey(*Icons(), QEvent::KeyPress, Qt::Key_Return, true);
    EXPECT_EQ(did, QStringList{u"DblClick"_s});
    screens.list.items.clear();
    screens.list.Select(-1);
    screens.list.changed.Tell(GameList::Reset);
    SendKey(*Icons(), QEvent::KeyPress, Qt::Key_Return, false);
    EXPECT_EQ(did, QStringList{u"DblClick"_s});
}

TEST_F(GameListViewTest, ADoubleClickRuns)
{
    Open();
    const QPoint place = CentreOf(*Icons(), 0);
    QTest::mouseClick(Icons()->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(Icons()->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(did.count(u"DblClick"_s), 1);
}

TEST_F(GameListViewTest, DeleteNeedsItsOwnPress)
{
    Open();
    SendKey(*Icons(), QEvent::KeyRelease, Qt::Key_Delete, false);
    EXPECT_EQ(did, QStringList());
    SendKey(*Icons(), QEvent::KeyPress, Qt::Key_Delete, false);
    for (int i = 0; i < 3; ++i) {
        SendKey(*Icons(), QEvent::KeyPress, Qt::Key_Delete, true);
        SendKey(*Icons(), QEvent::KeyRelease, Qt::Key_Delete, true);
    }
    SendKey(*Icons(), QEvent::KeyRelease, Qt::Key_Delete, false);
    EXPECT_EQ(did, QStringList{u"Delete"_s});
}

TEST_F(GameListViewTest, ARebuildIsOneResetAndKeepsAwayFromLostRows)
{
    Open();
    screens.list.Select(4);
    int resets = 0;
    QObject::connect(Icons()->model(), &QAbstractItemModel::modelReset, Icons(), [&] { ++resets; });
    {
        const platform::RedrawLock lock(screens.gate);
        const finding::GameItem kept = screens.list.items[0];
        screens.list.items.clear();
        screens.list.items.push_back(kept);
        screens.list.items.push_back(kept);
        screens.list.changed.Tell(GameList::Reset);
        // The views are asked to paint while they still believe in five rows.
        EXPECT_EQ(Icons()->model()->data(Icons()->model()->index(4, 0)), QVariant());
        window->grab();
        screens.list.changed.Tell(GameList::Reset);
        screens.list.Select(1);
    }
    EXPECT_EQ(resets, 1);
    EXPECT_EQ(Icons()->currentIndex().row(), 1);
    EXPECT_EQ(did, QStringList());
}

TEST_F(GameListViewTest, AnEmptyListTellsWhyOnceItWasBuilt)
{
    screens.list.items.clear();
    screens.list.Select(-1);
    Open();
    const QImage before = Icons()->viewport()->grab().toImage();
    EXPECT_EQ(Icons()->accessibleDescription(), QString());
    screens.list.outcome = finding::ListOutcome::NoGames;
    screens.list.changed.Tell(GameList::Reset);
    EXPECT_TRUE(Icons()->accessibleDescription().startsWith(u"No games to show"_s));
    EXPECT_NE(Icons()->viewport()->grab().toImage(), before);
}

TEST_F(GameListViewTest, OnlyRowsInSightAreAskedFor)
{
    constexpr int kBeyondSight = 20;
    finding::GameItem item = screens.list.items[0];
    for (int i = 0; i < 5000; ++i) {
        item.text[0] = u"Title of a game %1"_s.arg(i);
        screens.list.items.push_back(item);
    }
    Open();
    for (const View view : {View::LargeIcons, View::SmallIcons, View::List, View::Details}) {
        SCOPED_TRACE(static_cast<int>(view));
        ShowView(view);
        QAbstractItemView& shown = view == View::Details ? *Details() : *Icons();
        AskedRows asked;
        asked.setSourceModel(shown.model());
        QAbstractItemModel* const model = shown.model();
        QItemSelectionModel* const selection = shown.selectionModel();
        shown.setModel(&asked);
        const auto expectFew = [&] {
            QCoreApplication::processEvents(); // lays out
            shown.viewport()->grab();
            int visible = 0;
            for (int row = 0; row < asked.rowCount(); ++row) {
                const QRect place = shown.visualRect(asked.index(row, 0));
                visible += place.intersects(shown.viewport()->rect()) ? 1 : 0;
            }
            const int rows = asked.Take();
            EXPECT_GT(visible, 5);
            EXPECT_GE(rows, visible);
            EXPECT_LE(rows, visible + kBeyondSight);
        };
        expectFew();
        screens.list.changed.Tell(GameList::Reset);
        expectFew();
        shown.scrollToBottom();
        expectFew();
        shown.setModel(model);
        shown.setSelectionModel(selection);
    }
}

TEST_F(GameListViewTest, ColumnsAreFifteenUnitsAPixel)
{
    screens.list.view = View::Details;
    screens.list.columnWidths = {4500, 1200, 1620, 1200, 735, 570, 930, 915};
    screens.list.columnCaptions[4] = u"Maker"_s;
    deeds.LVGamelist_ColumnClick = NoteIndex(u"Column"_s);
    Open();
    QHeaderView& header = *Find<QTreeView>("LVGamelist_details")->header();
    EXPECT_EQ(header.sectionSize(0), 300);
    EXPECT_EQ(header.sectionSize(5), 38);
    EXPECT_EQ(header.model()->headerData(4, Qt::Horizontal, Qt::DisplayRole), u"Maker"_s);
    // Untouched widths stay as they were stored, whatever their pixels are.
    EXPECT_DOUBLE_EQ(screens.list.columnWidths[4], 735);
    header.resizeSection(1, 100);
    EXPECT_DOUBLE_EQ(screens.list.columnWidths[1], 1500);
    QTest::mouseClick(
        header.viewport(),
        Qt::LeftButton,
        {},
        QPoint(header.sectionViewportPosition(2) + 20, header.height() / 2));
    QTest::keyClick(Details(), Qt::Key_8, Qt::ControlModifier);
    QTest::keyClick(Details(), Qt::Key_9, Qt::ControlModifier);
    EXPECT_EQ(did, (QStringList{u"Column 2"_s, u"Column 7"_s}));
}

TEST_F(GameListViewTest, TheListSaysWhetherItIsShown)
{
    Open();
    EXPECT_TRUE(screens.list.visible);
    window->hide();
    EXPECT_FALSE(screens.list.visible);
}

TEST(GameListModelTest, IconsComeFromTheSheetInTheSizeOfTheView)
{
    library::IconSheet icons;
    icons.Append(library::PlainIcon(32, 200, 100, 50));
    icons.Append(library::PlainIcon(32, 10, 20, 30));
    GameList list;
    for (const int listIndex : {2, 3, 0}) { // 3 is none of the sheet's
        finding::GameItem item;
        item.listIndex = static_cast<std::int16_t>(listIndex);
        list.items.push_back(item);
    }
    forms::GameListModel model(list, icons);
    const auto icon = [&](int row) {
        return model.data(model.index(row, 0), Qt::DecorationRole).value<QIcon>();
    };
    model.SetIconSize(32, 2.0);
    const QPixmap pixmap = icon(0).pixmap(QSize(32, 32), 2.0);
    EXPECT_EQ(pixmap.size(), QSize(64, 64));
    EXPECT_EQ(pixmap.toImage().pixelColor(5, 5), QColor(30, 20, 10));
    EXPECT_TRUE(icon(1).isNull());
    EXPECT_TRUE(icon(2).isNull());
    EXPECT_EQ(model.data(model.index(0, 1), Qt::DecorationRole), QVariant());

    icons.Set(1, library::PlainIcon(32, 0, 0, 255));
    EXPECT_EQ(icon(0).pixmap(32).toImage().pixelColor(5, 5), QColor(30, 20, 10));
    model.Follow(GameList::Icons);
    EXPECT_EQ(icon(0).pixmap(32).toImage().pixelColor(5, 5), QColor(255, 0, 0));
}

TEST(GameListModelTest, ToolTipsShowTitlesAsTheyStand)
{
    library::IconSheet icons;
    GameList list;
    finding::GameItem item;
    item.text[0] = u"<b>A & B</b>"_s;
    list.items.push_back(item);
    const forms::GameListModel model(list, icons);
    EXPECT_EQ(
        model.data(model.index(0, 0), Qt::ToolTipRole), u"<qt>&lt;b&gt;A &amp; B&lt;/b&gt;</qt>"_s);
    list.items[0].text[0] = u"A & \"B\""_s;
    EXPECT_EQ(model.data(model.index(0, 0), Qt::ToolTipRole), u"A & \"B\""_s);
    EXPECT_EQ(model.data(model.index(0, 1), Qt::ToolTipRole), QVariant());
}

TEST(PicturesTest, TheDefaultGameIconIsDrawnOnWhite)
{
    const library::IconPixels icon = forms::DefaultGameIcon();
    ASSERT_EQ(icon.side, 32);
    ASSERT_EQ(icon.bgr.size(), 32 * 32 * 3);
    EXPECT_EQ(icon.bgr.left(3), QByteArray("\xff\xff\xff"));
    EXPECT_NE(icon.bgr, QByteArray(icon.bgr.size(), '\xff'));
    EXPECT_FALSE(forms::ApplicationIcon().pixmap(64).toImage().pixelColor(32, 10).alpha() == 0);
}

TEST(PicturesTest, LinePicturesFollowThePalette)
{
    const QPalette before = QApplication::palette();
    const auto lightest = [] {
        int value = 0;
        const QImage image = forms::PictureIcon(u"up"_s).pixmap(24).toImage();
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, image.height() / 2);
            value = colour.alpha() > 200 ? qMax(value, colour.lightness()) : value;
        }
        return value;
    };
    QPalette palette = before;
    palette.setColor(QPalette::ButtonText, Qt::black);
    QApplication::setPalette(palette);
    EXPECT_EQ(lightest(), 0);
    palette.setColor(QPalette::ButtonText, Qt::white);
    QApplication::setPalette(palette);
    EXPECT_EQ(lightest(), 255);
    QApplication::setPalette(before);
}

TEST(PicturesTest, LinesStandOutFromTheirGround)
{
    using forms::Contrasting;
    const QColor blue(20, 90, 140);
    EXPECT_EQ(Contrasting(blue, Qt::black, Qt::white, forms::kLineContrast), blue);
    const QColor lighter = Contrasting(blue, Qt::white, QColor(60, 60, 60), forms::kLineContrast);
    EXPECT_GT(lighter.lightness(), blue.lightness() + 20);
    EXPECT_GT(lighter.saturation(), 20) << "it is still a blue";
    EXPECT_EQ(Contrasting(Qt::gray, Qt::white, Qt::white, 3), QColor(Qt::white)) << "no way";
}

} // namespace pelorin::test
