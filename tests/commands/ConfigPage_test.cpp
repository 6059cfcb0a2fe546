#include "dosboxconf/EditorCommands.h"
#include "dosboxconf/PresetCommands.h"
#include "library/Catalogue.h"
#include "library/ShowinfoCommands.h"
#include "support/Installation.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using dosboxconf::ConfPreview;
using platform::Answer;

namespace {

const QString kOwn = u"Games/하나/DosBox/edit.conf"_s;
constexpr int kOldValues = 11 * 21;

class ConfigPage : public testing::Test {
protected:
    ConfigPage()
    {
        m_app.AddGame(u"하나"_s);
        m_app.AddGame(u"둘"_s);
        m_launcher = m_app.Start();
        test::Click(*m_launcher, u"하나"_s);
    }

    dosboxconf::ConfigEditor& Editor() const { return m_launcher->screens.config; }
    void ShowTab(int tab) const
    {
        m_launcher->screens.frame.tabInfo = tab;
        library::tabInfo_Click(*m_launcher);
    }
    /// Chooses the group and the option of that key, and another of its values.
    void ChooseValue(const QString& key, int index) const
    {
        const dosboxconf::OptionGrid& grid = m_launcher->options;
        for (int group = 0; group < dosboxconf::kGroups; ++group) {
            for (int item = 0; item < dosboxconf::kItems; ++item) {
                if (grid.Key({group, item}) == key) {
                    dosboxconf::cmbConfigSub_Click(*m_launcher, group);
                    const int row = dosboxconf::RowOfItem(Editor(), item);
                    dosboxconf::lstConfig_Click(*m_launcher, row);
                    dosboxconf::cmbConfig_Click(*m_launcher, index);
                    return;
                }
            }
        }
        ADD_FAILURE() << key.toStdString();
    }
    QString TitleInList() const
    {
        const finding::GameList& list = m_launcher->screens.list;
        return list.items[static_cast<std::size_t>(list.RowOf(u"하나"_s))].text[0];
    }

    test::Installation m_app;
    std::unique_ptr<shell::Launcher> m_launcher;
};

} // namespace

TEST_F(ConfigPage, AGameGetsSettingsOfItsOwnAndLosesThem)
{
    m_app.folder.WriteText(u"Descript/메모리(MB).txt"_s, u"How much"_s);
    ShowTab(dosboxconf::kGameTab);
    EXPECT_FALSE(Editor().page.commands);
    EXPECT_EQ(Editor().preview.state, ConfPreview::State::Saved);
    dosboxconf::chkEditConfig_Click(*m_launcher, true);
    ChooseValue(u"aspect"_s, 0);
    ChooseValue(u"memsize"_s, 0);
    EXPECT_EQ(Editor().preview.state, ConfPreview::State::Differs);
    EXPECT_TRUE(Editor().preview.text.contains(u"\nmemsize=1\r"_s));
    EXPECT_FALSE(m_app.folder.Exists(kOwn)) << "nothing is written before it is saved";
    EXPECT_EQ(Editor().txtDesc, u"How much"_s);

    dosboxconf::cmdSaveConfig_Click(*m_launcher);
    EXPECT_TRUE(m_app.folder.Exists(kOwn));
    EXPECT_TRUE(Editor().page.picEdit);
    EXPECT_FALSE(Editor().chkEditConfig);
    EXPECT_EQ(Editor().preview.state, ConfPreview::State::Saved);
    ASSERT_FALSE(Editor().lstEdit[1].isEmpty());
    EXPECT_TRUE(Editor().lstEdit[2].contains(u"1"_s));
    EXPECT_TRUE(TitleInList().endsWith(m_launcher->lang[164])) << TitleInList().toStdString();
    ShowTab(dosboxconf::kGlobalTab);
    EXPECT_TRUE(Editor().page.message);
    // The grid holds the game's settings there, which are nobody else's.
    const QByteArray global = m_app.folder.ReadRaw(u"Default.conf"_s);
    dosboxconf::cmdSaveConfig_Click(*m_launcher);
    EXPECT_EQ(m_app.folder.ReadRaw(u"Default.conf"_s), global);

    ShowTab(dosboxconf::kGameTab);
    m_app.fakes.prompts.WillAnswer(Answer::Cancel);
    dosboxconf::cmdDeleteConfig_Click(*m_launcher);
    EXPECT_TRUE(m_app.folder.Exists(kOwn));
    const QByteArray old = m_app.folder.ReadRaw(kOwn);
    // Another game is shown while the question stands: it keeps what it has.
    m_app.fakes.prompts.WillAnswer(Answer::Ok, [&] { test::Click(*m_launcher, u"둘"_s); });
    dosboxconf::cmdDeleteConfig_Click(*m_launcher);
    EXPECT_FALSE(m_app.folder.Exists(kOwn));
    EXPECT_EQ(m_app.folder.ReadRaw(kOwn + u".bak"_s), old);
    EXPECT_EQ(TitleInList(), u"하나"_s);
}

TEST_F(ConfigPage, GlobalSettingsAreSavedAndRestored)
{
    ShowTab(dosboxconf::kGlobalTab);
    const dosboxconf::Selection factory = m_launcher->options.OptionSelection;
    ChooseValue(u"memsize"_s, 0);
    test::Click(*m_launcher, u"둘"_s);
    EXPECT_EQ(m_launcher->options.OptionSelection, factory) << "an edit that was not saved";
    ChooseValue(u"memsize"_s, 0);
    dosboxconf::cmdSaveConfig_Click(*m_launcher);
    EXPECT_EQ(Editor().preview.state, ConfPreview::State::Saved);
    const QByteArray edited = m_app.folder.ReadRaw(u"Default.conf"_s);
    test::Click(*m_launcher, u"하나"_s);
    EXPECT_NE(m_launcher->options.OptionSelection, factory);

    m_app.fakes.prompts.WillAnswer(Answer::Ok);
    dosboxconf::cmdDeleteConfig_Click(*m_launcher);
    EXPECT_EQ(m_launcher->options.OptionSelection, factory);
    EXPECT_EQ(m_app.folder.ReadRaw(u"Default.conf.bak"_s), edited);
    EXPECT_NE(m_app.folder.ReadRaw(u"Default.conf"_s), edited);
}

TEST_F(ConfigPage, ANumberIsForTheOptionThatWasAskedFor)
{
    ShowTab(dosboxconf::kGlobalTab);
    const auto ask = [&](const QString& reply, std::function<void()> meanwhile = nullptr) {
        m_app.fakes.prompts.WillType(reply, std::move(meanwhile));
        ChooseValue(u"cycles"_s, -1);
    };
    ask(u"12345"_s);
    EXPECT_TRUE(Editor().lstConfig.contains(u"12345"_s));
    EXPECT_TRUE(Editor().preview.text.contains(u"cycles=12345"_s)) << "as a start writes it";
    ask(u""_s);
    EXPECT_TRUE(Editor().lstConfig.contains(u"12345"_s));
    // Without a value the option has no row, and is edited from its title.
    const int item = Editor().titleRow;
    m_launcher->options
        .OptionSelection[dosboxconf::OptionGrid::Index({Editor().cmbConfigSub, item})] = 0;
    dosboxconf::cmbConfigSub_Click(*m_launcher, Editor().cmbConfigSub);
    EXPECT_LT(dosboxconf::RowOfItem(Editor(), item), 0);
    m_app.fakes.prompts.WillType(u"max"_s);
    dosboxconf::lstConfigTitle_DblClick(*m_launcher, item);
    EXPECT_EQ(Editor().lstConfig.value(dosboxconf::RowOfItem(Editor(), item)), u"max"_s);
    const auto before = [&] { return m_launcher->options.OptionSelection; };
    ask(u"777"_s, [&] { test::Click(*m_launcher, u"둘"_s); });
    EXPECT_FALSE(Editor().lstConfig.contains(u"777"_s)) << "other settings are loaded by now";
    EXPECT_EQ(before(), Editor().saved);
}

TEST_F(ConfigPage, PresetsGoOutAndComeIn)
{
    const QString preset = m_app.folder.Path(u"preset/빠름.conf"_s);
    ShowTab(dosboxconf::kGlobalTab);
    ChooseValue(u"memsize"_s, 0);
    dosboxconf::cmdSaveConfig_Click(*m_launcher);
    m_app.fakes.prompts.WillSave(preset);
    dosboxconf::cmdSavePreset_Click(*m_launcher);
    EXPECT_EQ(m_app.folder.ReadRaw(u"preset/빠름.conf"_s), m_app.folder.ReadRaw(u"Default.conf"_s));

    ShowTab(dosboxconf::kGameTab);
    m_app.fakes.prompts.WillOpen(preset);
    dosboxconf::cmdOpenPreset_Click(*m_launcher);
    EXPECT_EQ(m_app.folder.ReadRaw(kOwn), m_app.folder.ReadRaw(u"Default.conf"_s));
    EXPECT_TRUE(Editor().page.picEdit);

    // A game's own go out from either page, and over another preset, which is kept.
    const QByteArray former = m_app.folder.ReadRaw(u"preset/빠름.conf"_s);
    dosboxconf::chkEditConfig_Click(*m_launcher, true);
    ChooseValue(u"memsize"_s, 3);
    dosboxconf::cmdSaveConfig_Click(*m_launcher);
    ShowTab(dosboxconf::kGlobalTab);
    m_app.fakes.prompts.WillSave(preset);
    dosboxconf::cmdSavePreset_Click(*m_launcher);
    EXPECT_EQ(m_app.folder.ReadRaw(u"preset/빠름.conf"_s), m_app.folder.ReadRaw(kOwn));
    EXPECT_EQ(m_app.folder.ReadRaw(u"preset/빠름.conf.bak"_s), former);
    // What is opened on the page of all games is for all games, beside a game's own.
    const QByteArray global = m_app.folder.ReadRaw(u"Default.conf"_s);
    m_app.fakes.prompts.WillOpen(preset);
    dosboxconf::cmdOpenPreset_Click(*m_launcher);
    EXPECT_EQ(m_app.folder.ReadRaw(u"Default.conf"_s), m_app.folder.ReadRaw(kOwn));
    EXPECT_EQ(m_app.folder.ReadRaw(u"Default.conf.bak"_s), global);
    EXPECT_TRUE(Editor().page.message);
    ShowTab(dosboxconf::kGameTab);
    dosboxconf::chkEditConfig_Click(*m_launcher, true);
    ChooseValue(u"memsize"_s, 0);
    const dosboxconf::Selection edited = m_launcher->options.OptionSelection;

    // A picture, an empty file and a cancelled dialog change nothing, and what is edited stays.
    m_app.folder.WriteRaw(u"preset/그림.conf"_s, "\x89PNG\r\n\x1a\n");
    m_app.folder.WriteRaw(u"preset/빈.conf"_s, m_app.folder.ReadRaw(kOwn).left(500)); // cut off
    const QByteArray own = m_app.folder.ReadRaw(kOwn);
    const std::size_t notes = m_launcher->screens.status.notes.size();
    for (const QString& name : {u"preset/그림.conf"_s, u"preset/빈.conf"_s}) {
        m_app.fakes.prompts.WillOpen(m_app.folder.Path(name));
        dosboxconf::cmdOpenPreset_Click(*m_launcher);
    }
    EXPECT_EQ(m_launcher->screens.status.notes.size(), notes + 2);
    m_app.fakes.prompts.WillOpen(QString());
    dosboxconf::cmdOpenPreset_Click(*m_launcher);
    EXPECT_EQ(m_app.folder.ReadRaw(kOwn), own);
    EXPECT_EQ(m_launcher->options.OptionSelection, edited);
    EXPECT_TRUE(Editor().chkEditConfig);

    // An old layout is upgraded when it is loaded; what it replaces is kept.
    QStringList old(kOldValues, u"0"_s);
    old.prepend(u"ver.10.11.21"_s);
    m_app.folder.WriteLines(u"preset/옛.conf"_s, old);
    m_app.fakes.prompts.WillOpen(m_app.folder.Path(u"preset/옛.conf"_s));
    dosboxconf::cmdOpenPreset_Click(*m_launcher);
    EXPECT_EQ(m_app.folder.ReadRaw(kOwn + u".bak"_s), own);
    EXPECT_TRUE(m_app.folder.ReadRaw(kOwn).startsWith("ver.15.02.01"));
    // The oldest layout is kept once more as it is upgraded, behind what it replaced.
    const QByteArray mine = m_app.folder.ReadRaw(kOwn);
    m_app.folder.WriteLines(u"preset/맨옛.conf"_s, QStringList(11 * 11, u"0"_s));
    m_app.fakes.prompts.WillOpen(m_app.folder.Path(u"preset/맨옛.conf"_s));
    dosboxconf::cmdOpenPreset_Click(*m_launcher);
    EXPECT_EQ(m_app.folder.ReadRaw(kOwn + u".bak2"_s), mine);
}

TEST_F(ConfigPage, ThePreviewTellsWhyAStartWouldWriteNothing)
{
    ShowTab(dosboxconf::kGlobalTab);
    ChooseValue(
        u"version"_s, static_cast<int>(m_launcher->options.BuildNames().indexOf(u"SNES9X"_s)));
    EXPECT_EQ(Editor().preview.state, ConfPreview::State::WillBeNone);
    m_launcher->screens.start.lstAutoexec = QStringList(300, u"echo a line of some length"_s);
    // Visited again, with other start commands.
    ShowTab(dosboxconf::kGlobalTab);
    EXPECT_EQ(Editor().preview.text, QString());
    EXPECT_PRED2(test::Holds, Editor().preview.refusal, u"DOSBox"_s);
    m_launcher->screens.start.lstAutoexec.clear();
    ShowTab(dosboxconf::kGlobalTab);
    EXPECT_EQ(Editor().preview.refusal, QString());
    EXPECT_FALSE(Editor().preview.text.isEmpty());
    ChooseValue(
        u"version"_s, static_cast<int>(m_launcher->options.BuildNames().indexOf(u"0.73"_s)));
    EXPECT_PRED2(test::Holds, Editor().preview.refusal, u"0.73"_s); // no folder to write into
}

TEST_F(ConfigPage, RowsAreMappedToTheirOptionsAndTheirDescriptions)
{
    m_app.folder.WriteText(u"Descript/메모리(MB).txt"_s, u"How much"_s);
    ShowTab(dosboxconf::kGlobalTab);
    // Cycles of no number have no row: what stands behind them moves up.
    m_app.fakes.prompts.WillType(u"12345"_s);
    ChooseValue(u"cycles"_s, -1);
    const dosboxconf::Cell behind{Editor().cmbConfigSub, Editor().titleRow + 1};
    const int before = dosboxconf::RowOfItem(Editor(), behind.item);
    ASSERT_GT(before, 0);
    m_launcher->options
        .OptionSelection[dosboxconf::OptionGrid::Index({behind.group, behind.item - 1})] = 0;
    dosboxconf::cmbConfigSub_Click(*m_launcher, behind.group);
    ASSERT_EQ(dosboxconf::RowOfItem(Editor(), behind.item), before - 1);
    dosboxconf::lstConfig_Row(*m_launcher, before - 1);
    EXPECT_EQ(Editor().titleRow, behind.item);
    ChooseValue(u"memsize"_s, 0);
    EXPECT_EQ(Editor().txtDesc, u"How much"_s);

    // Ctrl+Tab walks all groups and comes back.
    dosboxconf::cmbConfigSub_Click(*m_launcher, 0);
    QList<int> groups;
    do {
        groups << Editor().cmbConfigSub;
        dosboxconf::lstConfigTitle_CtrlTab(*m_launcher, dosboxconf::GroupStep::Next);
    } while (Editor().cmbConfigSub > groups.last());
    EXPECT_EQ(groups.size(), m_launcher->options.GroupCaption.size());

    ShowTab(dosboxconf::kGameTab);
    dosboxconf::chkEditConfig_Click(*m_launcher, true);
    ChooseValue(u"aspect"_s, 0);
    ChooseValue(u"memsize"_s, 0);
    dosboxconf::cmdSaveConfig_Click(*m_launcher);
    const auto row = static_cast<int>(Editor().lstEdit[1].indexOf(u"메모리(MB)"_s));
    ASSERT_GE(row, 0);
    dosboxconf::lstEdit_Click(*m_launcher, row == 0 ? 1 : 0);
    EXPECT_EQ(Editor().txtDesc, QString());
    dosboxconf::lstEdit_Click(*m_launcher, row);
    EXPECT_EQ(Editor().txtDesc, u"How much"_s);
}

TEST_F(ConfigPage, AGameThatTheFilterHidesIsNamedByItsNewMarks)
{
    finding::GameList& list = m_launcher->screens.list;
    list.items = {};
    list.Select(-1);
    ASSERT_EQ(m_launcher->current.CurrentFolder, u"하나"_s);
    ShowTab(dosboxconf::kGameTab);
    dosboxconf::chkEditConfig_Click(*m_launcher, true);
    dosboxconf::cmdSaveConfig_Click(*m_launcher);
    EXPECT_TRUE(m_launcher->current.CurrentTitle.endsWith(m_launcher->lang[164]));
    EXPECT_TRUE(m_launcher->screens.frame.caption.startsWith(m_launcher->current.CurrentTitle));
}

TEST_F(ConfigPage, WithoutAGameItHoldsNoneOfTheFormerOnes)
{
    ShowTab(dosboxconf::kGameTab);
    dosboxconf::chkEditConfig_Click(*m_launcher, true);
    ChooseValue(u"memsize"_s, 0);
    dosboxconf::cmdSaveConfig_Click(*m_launcher);
    ShowTab(dosboxconf::kGlobalTab);
    ASSERT_TRUE(Editor().page.message);
    library::ShowNoGame(*m_launcher);
    EXPECT_FALSE(Editor().page.message);
    EXPECT_FALSE(Editor().hasConf);
}
