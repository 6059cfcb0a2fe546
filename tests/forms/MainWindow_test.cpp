#include "dosboxconf/StartList.h"
#include "forms/Deeds.h"
#include "forms/frmDosGames.h"
#include "library/CatalogueCommands.h"
#include "library/ShowinfoCommands.h"
#include "support/Installation.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QCloseEvent>
#include <QDir>
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
            m_app.AddGame(game);
        }
        m_launcher = m_app.Start();
        m_deeds.LVGamelist_ItemClick = [this] { m_done << u"click"_s; };
        m_deeds.LVGamelist_SelectionMoved = [this] { m_done << u"moved"_s; };
        m_deeds.LVGamelist_DblClick = [this] { m_done << u"run"_s; };
        m_deeds.cmdAddExec_Click = [this] {
            dosboxconf::AddSelectedFile(m_launcher->screens.start);
        };
        m_deeds.cmdDelete_Click = [this] { dosboxconf::DeleteLine(m_launcher->screens.start); };
        m_deeds.chkCD_Click = [this](bool checked) {
            m_done << (checked ? u"cd on"_s : u"cd off"_s);
        };
        m_deeds.picAddGame_Click = [this] { m_done << u"add"_s; };
        m_deeds.cmdFolderCFG_Click = [this] { m_done << u"folders"_s; };
        m_deeds.Form_Unload = [this] { return m_mayClose; };
        m_window = std::make_unique<frmDosGames>(
            forms::Shown{
                m_launcher->screens,
                m_launcher->lang,
                m_launcher->settings,
                m_launcher->icons,
                m_launcher->options,
                m_app.fakes.prompts},
            m_deeds);
        m_launcher->screens.frame.changed.Tell(
            shell::MainFrame::Language | shell::MainFrame::Geometry | shell::MainFrame::Show);
        QCoreApplication::processEvents();
        m_done.clear();
    }

    template <class T>
    T* Find(const QString& name) const
    {
        T* const found = m_window->findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }

    QAbstractItemView* Icons() const { return Find<QAbstractItemView>(u"LVGamelist_icons"_s); }

    Installation m_app;
    std::unique_ptr<shell::Launcher> m_launcher;
    Deeds m_deeds;
    QStringList m_done;
    bool m_mayClose = false;
    std::unique_ptr<frmDosGames> m_window;
};

} // namespace

TEST_F(MainWindow, KeysMoveTheSelectionThatBothViewsShare)
{
    QAbstractItemView* const icons = Icons();
    QTest::keyClick(icons, Qt::Key_End);
    EXPECT_EQ(m_launcher->screens.list.selected, 2);
    EXPECT_EQ(m_launcher->screens.list.selectedRows, std::vector<int>{2});
    EXPECT_EQ(m_done, (QStringList{u"click"_s, u"moved"_s}));

    m_launcher->screens.list.view = finding::View::Details;
    m_launcher->screens.list.changed.Tell(finding::GameList::ViewMode);
    auto* const details = Find<QAbstractItemView>(u"LVGamelist_details"_s);
    EXPECT_TRUE(details->isVisibleTo(m_window.get()));
    EXPECT_FALSE(icons->isVisibleTo(m_window.get()));
    EXPECT_EQ(details->currentIndex().row(), 2);
    QTest::keyClick(details, Qt::Key_Home);
    EXPECT_EQ(m_launcher->screens.list.selected, 0);

    m_done.clear();
    QTest::keyClick(details, Qt::Key_Return);
    EXPECT_EQ(m_done, QStringList{u"run"_s});
    QTest::keyClick(details, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(m_launcher->screens.list.selectedRows, (std::vector<int>{0, 1, 2}));
}

TEST_F(MainWindow, TakesNothingFromAListThatIsBeingRebuilt)
{
    const int before = m_launcher->screens.list.selected;
    {
        const platform::RedrawLock lock(m_launcher->screens.gate);
        m_launcher->screens.list.items.clear();
        Icons()->clearSelection();
        Icons()->setCurrentIndex(QModelIndex());
        m_window->grab(); // a repaint of rows that are gone
        EXPECT_EQ(m_launcher->screens.list.selected, before);
    }
    EXPECT_TRUE(m_done.isEmpty());
    m_launcher->screens.list.changed.Tell(finding::GameList::Reset);
    EXPECT_EQ(Icons()->model()->rowCount(), 0);
}

TEST_F(MainWindow, StartPageShowsTheModelsAndHandsOnTheDeeds)
{
    m_launcher->screens.frame.tabInfo = 2;
    m_launcher->screens.frame.changed.Tell(shell::MainFrame::Tab);
    QCoreApplication::processEvents();
    auto* const commands = Find<QAbstractItemView>(u"lstAutoexec"_s);
    EXPECT_EQ(commands->model()->rowCount(), 1);
    Find<QAbstractButton>(u"cmdAddExec"_s)->click();
    ASSERT_EQ(commands->model()->rowCount(), 2);
    EXPECT_EQ(commands->currentIndex().data().toString(), u"GAME.COM"_s);
    Find<QAbstractButton>(u"cmdDelete"_s)->click();
    EXPECT_EQ(commands->model()->rowCount(), 1);

    Find<QCheckBox>(u"chkCD"_s)->click();
    EXPECT_EQ(m_done, QStringList{u"cd on"_s});
    EXPECT_FALSE(Find<QWidget>(u"picCD"_s)->isVisibleTo(m_window.get()));
    m_launcher->screens.cd.picCDVisible = true;
    m_launcher->screens.cd.lstCD = {u"a.iso"_s};
    m_launcher->screens.cd.changed.Tell(dosboxconf::CdPanel::All);
    EXPECT_TRUE(Find<QWidget>(u"picCD"_s)->isVisibleTo(m_window.get()));
    EXPECT_EQ(Find<QAbstractItemView>(u"lstCD"_s)->model()->rowCount(), 1);
    // Without a command yet: shown, and not to be pressed.
    EXPECT_FALSE(Find<QAbstractButton>(u"cmdUp"_s)->isEnabled());
}

TEST_F(MainWindow, NotesAppearInTheFourthPanelAndTellTheirStoryOnAClick)
{
    auto* const notes = Find<QAbstractButton>(u"SBDirectory_4"_s);
    EXPECT_FALSE(notes->isVisibleTo(m_window.get()));
    m_launcher->screens.status.Tell(u"DOSBox ended"_s, u"Command: dosbox"_s);
    EXPECT_TRUE(notes->isVisibleTo(m_window.get()));
    m_app.fakes.prompts.Forget();
    notes->click();
    ASSERT_EQ(m_app.fakes.prompts.Asked().size(), 1U);
    EXPECT_EQ(m_app.fakes.prompts.Asked().front().text, u"DOSBox ended\nCommand: dosbox"_s);
}

TEST_F(MainWindow, ADisabledLibraryStillTakesNewGames)
{
    m_launcher->screens.frame.picBack0Enabled = false;
    m_launcher->screens.frame.picBack1Enabled = false;
    m_launcher->screens.frame.panelsEnabled.Tell(1);
    EXPECT_FALSE(Icons()->isEnabled());
    EXPECT_FALSE(Find<QWidget>(u"tabInfo"_s)->isEnabled());
    auto* const add = Find<QAbstractButton>(u"picAddGame"_s);
    ASSERT_TRUE(add->isEnabled());
    QTest::mouseClick(add, Qt::LeftButton);
    EXPECT_EQ(m_done, QStringList{u"add"_s});
}

TEST_F(MainWindow, BothPanelsRestWhileAScanLetsEventsRun)
{
    QStringList usable;
    int runs = 0;
    m_app.fakes.timers.onPendingEvents = [&] {
        ++runs;
        for (const QString& name :
             {u"picBack_0"_s, u"picBack_1"_s, u"LVGamelist_icons"_s, u"tabInfo"_s}) {
            if (Find<QWidget>(name)->isEnabled()) {
                usable << name;
            }
        }
    };
    library::cmdRefresh_Click(*m_launcher);
    EXPECT_GT(runs, 3);
    EXPECT_EQ(usable, QStringList());
    m_app.fakes.timers.onPendingEvents = nullptr;
    EXPECT_TRUE(Find<QWidget>(u"picBack_0"_s)->isEnabled());
    EXPECT_TRUE(Find<QWidget>(u"picBack_1"_s)->isEnabled());
    EXPECT_EQ(Icons()->model()->rowCount(), 3);
    EXPECT_TRUE(Icons()->hasFocus());
}

TEST_F(MainWindow, AnEmptyLibraryLeadsToTheFolders)
{
    auto* const folders = Find<QAbstractButton>(u"cmdFolderCFG_Empty"_s);
    bool duringScan = false;
    m_app.fakes.timers.onPendingEvents = [&] { duringScan = duringScan || folders->isVisible(); };
    library::cmdRefresh_Click(*m_launcher);
    EXPECT_FALSE(folders->isVisible());
    for (const QString& game : {u"가"_s, u"나"_s, u"다"_s}) {
        QDir(m_app.folder.Path(u"Games/"_s + game)).removeRecursively();
    }
    library::cmdRefresh_Click(*m_launcher);
    ASSERT_TRUE(folders->isVisible());
    EXPECT_TRUE(Find<QWidget>(u"LVGamelist"_s)
                    ->rect()
                    .contains(Find<QWidget>(u"LVGamelist"_s)
                                  ->mapFromGlobal(folders->mapToGlobal(folders->rect().center()))));
    EXPECT_TRUE(folders->hasFocus());
    QTest::keyClick(folders, Qt::Key_Space);
    EXPECT_EQ(m_done, QStringList{u"folders"_s});
    m_app.AddGame(u"가"_s);
    library::cmdRefresh_Click(*m_launcher);
    EXPECT_FALSE(folders->isVisible());
    EXPECT_FALSE(duringScan);
}

TEST_F(MainWindow, GeometryIsKeptInFormUnitsAndTheSmallestSizeHolds)
{
    m_window->resize(1200, 800);
    m_window->move(40, 60);
    QCoreApplication::processEvents();
    const shell::MainFrame& frame = m_launcher->screens.frame;
    EXPECT_DOUBLE_EQ(frame.width, m_window->frameGeometry().width() * 15.0);
    EXPECT_DOUBLE_EQ(frame.height, m_window->frameGeometry().height() * 15.0);
    EXPECT_DOUBLE_EQ(frame.left, m_window->frameGeometry().left() * 15.0);

    const int smallest = m_window->minimumWidth();
    EXPECT_GT(smallest, Find<QWidget>(u"picBack_1"_s)->width());
    m_window->resize(10, 10);
    EXPECT_GE(m_window->width(), smallest);

    m_launcher->screens.frame.minimumSizeHook = false;
    m_launcher->screens.frame.changed.Tell(shell::MainFrame::Geometry);
    EXPECT_LT(m_window->minimumWidth(), smallest);
}

TEST_F(MainWindow, OnlyTheCommandDecidesWhetherItCloses)
{
    EXPECT_FALSE(m_window->close());
    EXPECT_TRUE(m_window->isVisible());
    m_mayClose = true;
    EXPECT_TRUE(m_window->close());
}

TEST_F(MainWindow, EveryControlOfEachPageHasAName)
{
    for (int tab = 1; tab <= 6; ++tab) {
        m_launcher->screens.frame.tabInfo = tab;
        m_launcher->screens.frame.changed.Tell(shell::MainFrame::Tab);
        QCoreApplication::processEvents();
        for (const QAbstractButton* button : m_window->findChildren<QAbstractButton*>()) {
            if (!button->isVisibleTo(m_window.get()) || button->objectName().startsWith(u"qt_"_s)) {
                continue;
            }
            const QString name =
                button->accessibleName().isEmpty() ? button->text() : button->accessibleName();
            EXPECT_FALSE(name.isEmpty())
                << "page " << tab << ": " << button->objectName().toStdString();
        }
    }
}
