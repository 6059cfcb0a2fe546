#include "Walk.h"
#include "WindowFixture.h"
#include "dosboxconf/OptionTable.h"
#include "finding/TreeNodes.h"
#include "forms/Metrics.h"
#include "forms/TextListModel.h"
#include "forms/frmConfigDetail.h"
#include "forms/frmFolderCFG.h"
#include "forms/frmOutput.h"
#include "platform/TextFile.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace pelorin::test {

namespace {

QPalette DarkPalette()
{
    QPalette dark(QColor(53, 53, 53), QColor(42, 42, 42));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

void SetPalette(bool dark)
{
    QApplication::setPalette(dark ? DarkPalette() : QPalette());
    QTest::qWait(0); // the widgets are told
}

std::string Lines(const QStringList& lines)
{
    return lines.join(u'\n').toStdString();
}

QStringList FaultsOfTheLook(QWidget& window)
{
    const Walk walk(window);
    return walk.Room() + walk.Overlaps() + walk.Contrast();
}

QStringList AllFaults(QWidget& window)
{
    return Walk(window).Names() + FaultsOfTheLook(window) + Walk(window).TabOrder();
}

/// The first part that the control lies in; the toolbar for one that lies in none.
QString PartOf(const QWidget& control, const QStringList& parts)
{
    for (const QWidget* widget = &control; widget != nullptr; widget = widget->parentWidget()) {
        for (const QString& part : parts) {
            if (widget->objectName().startsWith(part)) {
                return part;
            }
        }
    }
    return parts.front();
}

} // namespace

/// The window with the shipped texts of a language, each control usable and something in it.
class EveryControl : public WindowTest {
protected:
    explicit EveryControl(const char* language)
        : m_language(QString::fromLatin1(language))
    {
        lang = shell::LangTable::FromLines(platform::SplitLines(Shipped(u"Language.dat"_s))).Take();
        options = dosboxconf::ParseOptionTable(Shipped(u"option.dat"_s), u"option.dat"_s).Take();
        finding::BuildTreeSkeleton(screens.tree, lang, options.BuildNames());
        SetDeeds();
        FillModels();
    }
    void TearDown() override { QApplication::setPalette(QPalette()); }

    QString Shipped(const QString& name) const
    {
        QFile file(QStringLiteral(PELORIN_SOURCE_DIR) + u"/data/%1/%2"_s.arg(m_language, name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        return QString::fromUtf8(file.readAll());
    }

    void SetDeeds()
    {
        const auto nothing = [] {};
        const auto menu = [] { return shell::MenuModel{{0, u"menu"_s}}; };
        for (forms::Deeds::Deed* deed :
             {&deeds.FocusTitle,          &deeds.RenameGameFolder,      &deeds.OpenDetails,
              &deeds.cmdRun_Click,        &deeds.cmdRefresh_Click,      &deeds.Picture2_Click,
              &deeds.cmdFind_Click,       &deeds.txtFind_Esc,           &deeds.cmdFind_Esc,
              &deeds.picAddGame_Click,    &deeds.cmdVespra_Click,       &deeds.cmdSaveInfo_Click,
              &deeds.cmdAddExec_Click,    &deeds.cmdAddEmpty_Click,     &deeds.cmdDelete_Click,
              &deeds.cmdUp_Click,         &deeds.cmdDown_Click,         &deeds.cmdSaveExec_Click,
              &deeds.cmdSaveCD_Click,     &deeds.cmdSetPos_Click,       &deeds.cmdRememberPos_Click,
              &deeds.cmdCompact_Click,    &deeds.cmdFolderCFG_Click,    &deeds.cmdUpdate_Click,
              &deeds.Info_Change,         &deeds.SaveDetails,           &deeds.DeleteDetails,
              &deeds.cmdSaveConfig_Click, &deeds.cmdDeleteConfig_Click, &deeds.cmdOpenPreset_Click,
              &deeds.cmdSavePreset_Click}) {
            *deed = nothing;
        }
        for (forms::Deeds::IndexDeed* deed :
             {&deeds.cmdIcon_Click,
              &deeds.cmdMoveDosbox_Click,
              &deeds.cmdDownloadTools_Click,
              &deeds.SBDirectory_PanelClick,
              &deeds.mnuCD_Click,
              &deeds.lstAutoexec_DblClick,
              &deeds.fileEXE_DblClick}) {
            *deed = [](int) {};
        }
        for (forms::Deeds::Menu* deed :
             {&deeds.mnuGame,
              &deeds.mnuRun,
              &deeds.mnuFolder,
              &deeds.mnuGenreK,
              &deeds.mnuGenreE,
              &deeds.mnuCD}) {
            *deed = menu;
        }
        deeds.chkCD_Click = [](bool) {};
        deeds.chkMountCD_Click = [](bool) {};
        deeds.optViewmode_Click = [](finding::View) {};
        deeds.TreeView1_NodeCheck = [](const finding::NodePlace&, bool) {};
    }

    void FillModels()
    {
        screens.start.cmdAddEmpty = lang[60];
        screens.start.lstAutoexec = {u"GAME.EXE"_s};
        screens.start.fileEXE = {u"GAME.EXE"_s};
        screens.cd.picCDVisible = true;
        screens.cd.lstCD = {u"a.iso"_s};
        screens.frame.hasSite = true;
        screens.details.txtTitle = {u"제목"_s, u"Title"_s};
        screens.details.txtInfo = u"About"_s;
        screens.details.draft = true;
        screens.details.savedInfo.state = library::InfoState::Cut;
        screens.details.lblGenreK = u"RPG"_s;
        screens.details.lblGenreE = u"RPG"_s;
        FillConfig();
        screens.status.game = u"Title 0"_s;
        screens.status.folder = lang[106] + u" /games/GAME0"_s;
        screens.status.count = lang[3] + u"5 / 5"_s;
        screens.status.Tell(u"A note"_s, {});
    }

    void FillConfig()
    {
        dosboxconf::ConfigEditor& config = screens.config;
        dosboxconf::ShowGroup(config, options, 1);
        const QString title = config.lstConfigTitle[0];
        dosboxconf::ShowDifferences(config, {{{1, 0}, options.GroupCaption[1], title, u"true"_s}});
        config.txtDesc = title;
        config.preview = {dosboxconf::ConfPreview::State::Differs, u"[sdl]"_s, QString()};
    }

    /// The page of options as it is for all games, and for a game with settings of its own.
    void ShowTab(int tab)
    {
        using dosboxconf::ConfigTab;
        screens.config.page = dosboxconf::StateOf(
            tab == dosboxconf::kGameTab ? ConfigTab::Game : ConfigTab::Global,
            true,
            tab == dosboxconf::kGameTab,
            dosboxconf::EditCheck::Arranged);
        screens.config.changed.Tell(dosboxconf::ConfigEditor::State);
        WindowTest::ShowTab(tab);
    }

    void Activate(int tab)
    {
        Open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        ShowTab(tab);
        QTest::qWait(0); // the page takes its size
    }

private:
    QString m_language;
};

class WindowWalkTest : public EveryControl, public testing::WithParamInterface<const char*> {
protected:
    WindowWalkTest()
        : EveryControl(GetParam())
    {}

    /// The window with each page on top, in both palettes, as designed and as small as it goes.
    void ExpectAGoodLook()
    {
        Open();
        const QSize designed = window->size();
        for (const bool dark : {false, true}) {
            SetPalette(dark);
            for (const QSize size : {designed, window->minimumSize()}) {
                window->resize(size);
                for (int tab = 1; tab <= Find<QTabBar>("tabInfo")->count(); ++tab) {
                    ShowTab(tab);
                    screens.list.view = static_cast<finding::View>(tab % 4);
                    screens.list.changed.Tell(finding::GameList::ViewMode);
                    QTest::qWait(0);
                    EXPECT_EQ(Lines(FaultsOfTheLook(*window)), std::string())
                        << tab << (dark ? " dark " : " light ") << size.width();
                }
            }
        }
    }

    static void ExpectNoFault(QWidget& dialog)
    {
        dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        EXPECT_EQ(Lines(AllFaults(dialog)), std::string());
    }
};

TEST_P(WindowWalkTest, EveryPageHasRoomAndContrast)
{
    ExpectAGoodLook();
}

TEST_P(WindowWalkTest, WhatCantBeUsedYetCanBeRead)
{
    deeds = {};
    screens.frame.hasSite = false;
    screens.progress.visible = true;
    screens.progress.text = lang[5] + u"...... 100"_s + lang[24];
    ExpectAGoodLook();
}

TEST_P(WindowWalkTest, WhatAPageShowsByTurns)
{
    using dosboxconf::ConfigTab;
    using dosboxconf::EditCheck;
    library::MediaPanel& media = screens.media;
    media.fileImages = {u"/games/A/DosBox"_s, {u"a.png"_s, u"b.jpg"_s}, 0};
    media.fileAV = {u"/games/A/DosBox"_s, {u"c.avi"_s}, 0};
    media.fileManual = {u"/games/A/DosBox/Manual"_s, {u"d.txt"_s}, 0};
    Activate(1);
    const auto expectGood = [&](const QString& what) {
        for (const bool dark : {false, true}) {
            SetPalette(dark);
            QTest::qWait(0);
            EXPECT_EQ(Lines(FaultsOfTheLook(*window) + Walk(*window).Names()), std::string())
                << what.toStdString() << dark;
        }
    };
    for (int list = 1; list <= 3; ++list) {
        media.TabStrip1 = list;
        media.changed.Tell(~0U);
        expectGood(u"media %1"_s.arg(list));
    }
    const dosboxconf::ConfigPageState states[] = {
        dosboxconf::StateOf(ConfigTab::Global, true, true, EditCheck::Arranged),
        dosboxconf::StateOf(ConfigTab::Game, true, false, EditCheck::Arranged),
        dosboxconf::StateOf(ConfigTab::Game, true, false, EditCheck::Checked),
        dosboxconf::StateOf(ConfigTab::Game, true, true, EditCheck::Checked),
    };
    ShowTab(dosboxconf::kGameTab);
    for (const dosboxconf::ConfigPageState& state : states) {
        screens.config.page = state;
        screens.config.changed.Tell(dosboxconf::ConfigEditor::State);
        expectGood(state.message ? u"message"_s : state.lists ? u"lists"_s : u"nothing"_s);
    }
    screens.config.page = states[2];
    screens.config.changed.Tell(dosboxconf::ConfigEditor::State);
    screens.config.cmbConfig = {true, {1, 0}, 0, {u"true"_s, u"false"_s}, 0};
    screens.config.changed.Tell(dosboxconf::ConfigEditor::Combo);
    expectGood(u"combo"_s);
    screens.list.items.clear();
    screens.list.Select(-1);
    screens.list.outcome = finding::ListOutcome::NoGames;
    screens.list.changed.Tell(finding::GameList::Reset);
    screens.frame.picBack0Enabled = false;
    screens.frame.picBack1Enabled = false;
    screens.frame.isEmptyLibrary = true;
    screens.frame.panelsEnabled.Tell(1);
    expectGood(u"empty library"_s);
}

TEST_P(WindowWalkTest, EveryControlHasANameAndIsReachedByTheTabKey)
{
    Activate(1);
    for (const bool dark : {false, true}) {
        SetPalette(dark);
        for (int tab = 1; tab <= Find<QTabBar>("tabInfo")->count(); ++tab) {
            ShowTab(tab);
            QTest::qWait(0);
            const Walk walk(*window);
            EXPECT_EQ(Lines(walk.Names() + walk.TabOrder()), std::string()) << tab;
        }
    }
}

TEST_P(WindowWalkTest, TheTabKeyGoesFromPartToPart)
{
    const QStringList parts{
        u"Toolbar"_s,
        u"TreeView1"_s,
        u"LVGamelist"_s,
        u"tabInfo"_s,
        u"picInfo"_s,
        u"SBDirectory"_s};
    Activate(1);
    for (int tab = 1; tab <= Find<QTabBar>("tabInfo")->count(); ++tab) {
        ShowTab(tab);
        QTest::qWait(0);
        Find("cmdRun_0")->setFocus();
        QStringList passed{parts.front()};
        QStringList faults;
        for (const QWidget* stop : Walk(*window).TabStops(faults)) {
            const QString part = PartOf(*stop, parts);
            if (part != passed.back()) {
                passed << part;
            }
        }
        EXPECT_EQ(passed, parts + parts.mid(0, 1)) << tab;
    }
}

TEST_P(WindowWalkTest, TheNoticeInEachColourOverAnyList)
{
    screens.notice.visible = true;
    screens.notice.lblMessage = lang[4];
    screens.notice.batch = {true, 4, 1, u"2 / 4"_s, u"제목"_s};
    Open();
    for (const bool dark : {false, true}) {
        SetPalette(dark);
        for (const std::uint32_t colour : {0U, 255U, 16711680U}) {
            screens.notice.colour = colour;
            screens.notice.changed.Tell(shell::BusyNotice::All);
            EXPECT_EQ(Lines(FaultsOfTheLook(*window)), std::string()) << colour;
        }
    }
}

TEST_P(WindowWalkTest, EveryDialogServesEverybody)
{
    screens.folderCfg.txtGames = u"/games"_s;
    screens.folderCfg.txtExport = u"/games/export"_s;
    for (const bool dark : {false, true}) {
        SetPalette(dark);
        forms::frmFolderCFG folders(screens.folderCfg, lang, {});
        ExpectNoFault(folders);
        forms::frmConfigDetail details(
            {screens, lang, settings, icons, options, prompts}, deeds, nullptr);
        screens.configDetail.changed.Tell(
            library::ConfigDetail::Open | library::ConfigDetail::Texts);
        // The walk goes on from where the keyboard is: from the last control to the first.
        details.findChild<QWidget*>(u"Command3"_s)->setFocus();
        ExpectNoFault(details);
        forms::frmOutput output({u"Title"_s, u"Text\nof lines"_s, lang[296]});
        ExpectNoFault(output);
    }
}

TEST_P(WindowWalkTest, TitlesOfAllOptionsHaveRoom)
{
    Open();
    ShowTab(3);
    QTest::qWait(0);
    auto* groups = Find<QComboBox>("cmbConfigSub");
    const auto* titles = Find<forms::RowList>("lstConfigTitle");
    ASSERT_EQ(groups->count(), options.GroupCaption.size());
    for (int group = 0; group < groups->count(); ++group) {
        dosboxconf::ShowGroup(screens.config, options, group);
        screens.config.changed.Tell(dosboxconf::ConfigEditor::Rows);
        for (int row = 0; row < titles->model()->rowCount(); ++row) {
            const QModelIndex index = titles->model()->index(row, 0);
            EXPECT_LE(titles->sizeHintForIndex(index).width(), titles->viewport()->width())
                << index.data().toString().toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    EveryLanguage, WindowWalkTest, testing::Values("ko", "en"), [](const auto& language) {
        return std::string(language.param);
    });

/// One control of each kind is spoilt on purpose, for each of the looks.
class SpoiltControl : public EveryControl {
protected:
    SpoiltControl()
        : EveryControl("ko")
    {}
};

TEST_F(SpoiltControl, IsNoticed)
{
    using Spoil = std::function<void(QWidget&)>;
    const auto fade = [](QWidget& widget) {
        QPalette faded = widget.palette();
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            faded.setColor(role, faded.color(QPalette::Mid));
        }
        widget.setPalette(faded);
    };
    const auto nameless = [](QWidget& widget) { widget.setAccessibleName(widget.objectName()); };
    const auto likeTree = [](QWidget& widget) {
        widget.setAccessibleName(
            widget.window()->findChild<QWidget*>(u"TreeView1"_s)->accessibleName());
    };
    const auto narrow = [](QWidget& widget) {
        widget.setFixedWidth(widget.sizeHint().width() / 3);
    };
    const auto flat = [](QWidget& widget) { widget.setFixedHeight(4); };
    const auto unreachable = [](QWidget& widget) { widget.setFocusPolicy(Qt::ClickFocus); };
    const auto first = [](QWidget& widget) {
        QWidget::setTabOrder(widget.window()->findChild<QWidget*>(u"txtDosboxPos_1"_s), &widget);
    };
    const auto over = [](QWidget& widget) {
        widget.parentWidget()->layout()->setEnabled(false);
        widget.move(widget.pos() - QPoint(0, widget.height()));
    };
    struct Case {
        int tab;
        const char* control;
        QStringList (Walk::*look)() const;
        const char* what; // is noticed
        Spoil spoil;
    };
    const Case cases[] = {
        {1, "cmdSaveInfo", &Walk::Names, "no accessible name", nameless},
        {1, "txtInfo", &Walk::Names, "no accessible name", nameless},
        {1, "TabStrip1", &Walk::Names, "is called", likeTree},
        {1,
         "cmdIcon_1",
         &Walk::Names,
         "no accessible name",
         [](QWidget& w) { w.setAccessibleName({}); }},
        {1, "pbProgress", &Walk::Names, "no accessible name", nameless},
        {1, "pic1", &Walk::Names, "no accessible name", nameless},
        {2, "chkCD", &Walk::Names, "is called", likeTree},
        {2, "lstAutoexec", &Walk::Names, "no accessible name", nameless},
        {3,
         "cmbConfigSub",
         &Walk::Names,
         "no accessible name",
         [](QWidget& w) {
             w.parentWidget()->findChild<QLabel*>(u"lblConfigSub"_s)->setBuddy(nullptr);
         }},
        {5, "txtDosboxPos_0", &Walk::Names, "is called", likeTree},
        {5, "cmdSetPos", &Walk::Room, "needs", narrow},
        {5, "lblkey_3", &Walk::Room, "needs", narrow},
        {5, "chkDosboxMove", &Walk::Room, "needs", narrow},
        {5, "cmbDosboxMove", &Walk::Room, "no room", narrow},
        {5, "txtDosboxPos_0", &Walk::Room, "is ", flat},
        {1, "TabStrip1", &Walk::Room, "no room", [](QWidget& w) { w.setFixedWidth(30); }},
        {5, "lblKeys", &Walk::Contrast, "contrast", fade},
        {5, "cmdCompact", &Walk::Contrast, "contrast", fade},
        {5, "chkDosboxMove", &Walk::Contrast, "contrast", fade},
        {5, "cmbDosboxMove", &Walk::Contrast, "contrast", fade},
        {2, "fileEXE", &Walk::Contrast, "contrast", fade},
        {1, "txtInfo", &Walk::Contrast, "contrast", fade},
        {1, "txtTitle_0", &Walk::Contrast, "contrast", fade},
        {1, "TabStrip1", &Walk::Contrast, "contrast", fade},
        {1, "tabInfo", &Walk::Contrast, "contrast", fade},
        {1, "TreeView1", &Walk::Contrast, "contrast", fade},
        {1, "LVGamelist_icons", &Walk::Contrast, "contrast", fade},
        {1, "cmdRefresh", &Walk::TabOrder, "reach of the Tab", unreachable},
        {2, "lstAutoexec", &Walk::TabOrder, "reach of the Tab", unreachable},
        {5, "cmbDosboxMove", &Walk::TabOrder, "reach of the Tab", unreachable},
        {5, "txtDosboxPos_0", &Walk::TabOrder, "stands before it", first},
        {6, "cmdDownloadTools_3", &Walk::Overlaps, "overlaps", over},
    };
    screens.progress.visible = true;
    screens.progress.text = lang[5];
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.control) + ", " + c.what);
        Activate(c.tab);
        const QString control = QString::fromLatin1(c.control);
        const auto notices = [&] {
            const QStringList faults = (Walk(*window).*c.look)();
            return !faults.filter(control).filter(QString::fromLatin1(c.what)).isEmpty();
        };
        EXPECT_FALSE(notices());
        c.spoil(*Find(c.control));
        QTest::qWait(0);
        EXPECT_TRUE(notices());
        window.reset();
    }
}

TEST_F(SpoiltControl, IsNoticedInADialogToo)
{
    forms::frmFolderCFG folders(screens.folderCfg, lang, {});
    folders.show();
    EXPECT_EQ(Lines(Walk(folders).Names()), std::string());
    auto* const frame = folders.findChild<QGroupBox*>();
    ASSERT_NE(frame, nullptr);
    frame->setTitle(QString());
    EXPECT_EQ(Walk(folders).Names(), QStringList{frame->objectName() + u": no accessible name"_s});
}

} // namespace pelorin::test
