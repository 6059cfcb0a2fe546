#include "dosboxconf/StartCommandsFile.h"
#include "forms/Deeds.h"
#include "forms/frmDosGames.h"
#include "library/ShowinfoCommands.h"
#include "support/Installation.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QCloseEvent>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using namespace pelorin;
using forms::Deeds;
using forms::frmDosGames;
using test::Installation;

namespace {

/// The real window over a started program with three games.
class MainWindow : public testing::Test {
protected:
    MainWindow()
    {
        for (const QString& game : {u"가"_s, u"나"_s, u"다"_s}) {
            app.AddGame(game);
        }
        launcher = app.Start();
        deeds.LVGamelist_ItemClick = [this] { done << u"click"_s; };
        deeds.LVGamelist_SelectionMoved = [this] { done << u"moved"_s; };
        deeds.LVGamelist_DblClick = [this] { done << u"run"_s; };
        deeds.cmdAddExec_Click = [this] { dosboxconf::AddSelectedFile(launcher->screens.start); };
        deeds.cmdDelete_Click = [this] { dosboxconf::DeleteLine(launcher->screens.start); };
        deeds.chkCD_Click = [this](bool checked) { done << (checked ? u"cd on"_s : u"cd off"_s); };
        deeds.picAddGame_Click = [this] { done << u"add"_s; };
        deeds.Form_Unload = [this] { return mayClose; };
        window = std::make_unique<frmDosGames>(
            forms::Shown{
                launcher->screens,
                launcher->lang,
                launcher->settings,
                launcher->icons,
                launcher->options,
                app.fakes.prompts},
            deeds);
        launcher->screens.frame.changed.Tell(
            shell::MainFrame::Language | shell::MainFrame::Geometry | shell::MainFrame::Show);
        QCoreApplication::processEvents();
        done.clear();
    }

    template <class T>
    T* Find(const QString& name) const
    {
        T* const found = window->findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }

    QAbstractItemView* Icons() const { return Find<QAbstractItemView>(u"LVGamelist_icons"_s); }

    Installation app;
    std::unique_ptr<shell::Launcher> launcher;
    Deeds deeds;
    QStringList done;
    bool mayClose = false;
    std::unique_ptr<frmDosGames> window;
};

} // namespace

TEST_F(MainWindow, KeysMoveTheSelectionThatBothViewsShare)
{
    QAbstractItemView* const icons = Icons();
    QTest::keyClick(icons, Qt::Key_End);
    EXPECT_EQ(launcher->screens.list.selected, 2);
    EXPECT_EQ(launcher->screens.list.selectedRows, std::vector<int>{2});
    EXPECT_EQ(done, (QStringList{u"click"_s, u"moved"_s}));

    launcher->screens.list.view = finding::View::Details;
    launcher->screens.list.changed.Tell(finding::GameList::ViewMode);
    auto* const details = Find<QAbstractItemView>(u"LVGamelist_details"_s);
    EXPECT_TRUE(details->isVisibleTo(window.get()));
    EXPECT_FALSE(icons->isVisibleTo(window.get()));
    EXPECT_EQ(details->currentIndex().row(), 2);
    QTest::keyClick(details, Qt::Key_Home);
    EXPECT_EQ(launcher->screens.list.selected, 0);

    done.clear();
    QTest::keyClick(details, Qt::Key_Return);
    EXPECT_EQ(done, QStringList{u"run"_s});
    QTest::keyClick(details, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(launcher->screens.list.selectedRows, (std::vector<int>{0, 1, 2}));
}

TEST_F(MainWindow, TakesNothingFromAListThatIsBeingRebuilt)
{
    const int before = launcher->screens.list.selected;
    {
        const platform::RedrawLock lock(launcher->screens.gate);
        launcher->screens.list.items.clear();
        Icons()->clearSelection();
        Icons()->setCurrentIndex(QModelIndex());
        window->grab(); // a repaint of rows that are gone
        EXPECT_EQ(launcher->screens.list.selected, before);
    }
    EXPECT_TRUE(done.isEmpty());
    launcher->screens.list.changed.Tell(finding::GameList::Reset);
    EXPECT_EQ(Icons()->model()->rowCount(), 0);
}

TEST_F(MainWindow, StartPageShowsTheModelsAndHandsOnTheDeeds)
{
    launcher->screens.frame.tabInfo = 2;
    launcher->screens.frame.changed.Tell(shell::MainFrame::Tab);
    QCoreApplication::processEvents();
    auto* const commands = Find<QAbstractItemView>(u"lstAutoexec"_s);
    EXPECT_EQ(commands->model()->rowCount(), 1);
    Find<QAbstractButton>(u"cmdAddExec"_s)->click();
    ASSERT_EQ(commands->model()->rowCount(), 2);
    EXPECT_EQ(commands->currentIndex().data().toString(), u"GAME.COM"_s);
    Find<QAbstractButton>(u"cmdDelete"_s)->click();
    EXPECT_EQ(commands->model()->rowCount(), 1);

    Find<QCheckBox>(u"chkCD"_s)->click();
    EXPECT_EQ(done, QStringList{u"cd on"_s});
    EXPECT_FALSE(Find<QWidget>(u"picCD"_s)->isVisibleTo(window.get()));
    launcher->screens.cd.picCDVisible = true;
    launcher->screens.cd.lstCD = {u"a.iso"_s};
    launcher->screens.cd.changed.Tell(dosboxconf::CdPanel::All);
    EXPECT_TRUE(Find<QWidget>(u"picCD"_s)->isVisibleTo(window.get()));
    EXPECT_EQ(Find<QAbstractItemView>(u"lstCD"_s)->model()->rowCount(), 1);
    // Without a command yet: shown, and not to be pressed.
    EXPECT_FALSE(Find<QAbstractButton>(u"cmdUp"_s)->isEnabled());
}

TEST_F(MainWindow, NotesAppearInTheFourthPanelAndTellTheirStoryOnAClick)
{
    auto* const notes = Find<QAbstractButton>(u"SBDirectory_4"_s);
    EXPECT_FALSE(notes->isVisibleTo(window.get()));
    launcher->screens.status.Tell(u"DOSBox ended"_s, u"Command: dosbox"_s);
    EXPECT_TRUE(notes->isVisibleTo(window.get()));
    app.fakes.prompts.Forget();
    notes->click();
    ASSERT_EQ(app.fakes.prompts.Asked().size(), 1U);
    EXPECT_EQ(app.fakes.prompts.Asked().front().text, u"DOSBox ended\nCommand: dosbox"_s);
}

TEST_F(MainWindow, ADisabledLibraryStillTakesNewGames)
{
    launcher->screens.frame.picBack0Enabled = false;
    launcher->screens.frame.picBack1Enabled = false;
    launcher->screens.frame.changed.Tell(shell::MainFrame::Panels);
    EXPECT_FALSE(Icons()->isEnabled());
    EXPECT_FALSE(Find<QWidget>(u"tabInfo"_s)->isEnabled());
    auto* const add = Find<QAbstractButton>(u"picAddGame"_s);
    ASSERT_TRUE(add->isEnabled());
    QTest::mouseClick(add, Qt::LeftButton);
    EXPECT_EQ(done, QStringList{u"add"_s});
}

TEST_F(MainWindow, GeometryIsKeptInFormUnitsAndTheSmallestSizeHolds)
{
    window->resize(1200, 800);
    window->move(40, 60);
    QCoreApplication::processEvents();
    const shell::MainFrame& frame = launcher->screens.frame;
    EXPECT_DOUBLE_EQ(frame.width, window->frameGeometry().width() * 15.0);
    EXPECT_DOUBLE_EQ(frame.height, window->frameGeometry().height() * 15.0);
    EXPECT_DOUBLE_EQ(frame.left, window->frameGeometry().left() * 15.0);

    const int smallest = window->minimumWidth();
    EXPECT_GT(smallest, Find<QWidget>(u"picBack_1"_s)->width());
    window->resize(10, 10);
    EXPECT_GE(window->width(), smallest);

    launcher->screens.frame.minimumSizeHook = false;
    launcher->screens.frame.changed.Tell(shell::MainFrame::Geometry);
    EXPECT_LT(window->minimumWidth(), smallest);
}

TEST_F(MainWindow, OnlyTheCommandDecidesWhetherItCloses)
{
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    mayClose = true;
    EXPECT_TRUE(window->close());
}

TEST_F(MainWindow, EveryControlOfEachPageHasAName)
{
    for (int tab = 1; tab <= 6; ++tab) {
        launcher->screens.frame.tabInfo = tab;
        launcher->screens.frame.changed.Tell(shell::MainFrame::Tab);
        QCoreApplication::processEvents();
        for (const QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
            if (!button->isVisibleTo(window.get()) || button->objectName().startsWith(u"qt_"_s)) {
                continue;
            }
            const QString name =
                button->accessibleName().isEmpty() ? button->text() : button->accessibleName();
            EXPECT_FALSE(name.isEmpty())
                << "page " << tab << ": " << button->objectName().toStdString();
        }
    }
}
