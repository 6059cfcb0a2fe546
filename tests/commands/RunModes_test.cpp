#include "dosboxconf/EditorCommands.h"
#include "finding/FilterCommands.h"
#include "library/ShowinfoCommands.h"
#include "platform/TextFile.h"
#include "running/RunCommands.h"
#include "running/RunMenuCommands.h"
#include "support/Installation.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using platform::Answer;
using test::Holds;

namespace {

const QString kConf = u"DOSBox/0.74_SVN/dosbox.conf"_s;

class RunModes : public testing::Test {
protected:
    RunModes() { m_app.AddGame(u"하나"_s); }

    void Start()
    {
        m_launcher = m_app.Start();
        test::Click(*m_launcher, u"하나"_s);
    }
    void GiveBuild(const QString& name)
    {
        QStringList own = m_app.folder.ReadLines(u"Default.conf"_s);
        own[1] = QString::number(m_launcher->options.BuildNames().indexOf(name));
        m_app.folder.WriteLines(u"Games/하나/DosBox/edit.conf"_s, own);
        test::Click(*m_launcher, u"하나"_s);
    }
    QString Conf() const { return QString::fromUtf8(m_app.folder.ReadRaw(kConf)); }
    const std::vector<test::FakeProcesses::Start>& Started() const
    {
        return m_app.fakes.processes.Starts();
    }
    bool IsRecent() const { return m_launcher->recent.RecentFolders[0] == u"하나"_s; }
    QString LastTitle() const { return m_app.fakes.prompts.Asked().back().title; }

    test::Installation m_app;
    std::unique_ptr<shell::Launcher> m_launcher;
};

} // namespace

TEST_F(RunModes, EachEndsItsTextAndShowsItsWindowItsOwnWay)
{
    using platform::ShowState;
    struct Case {
        int entry; // of mnuRun
        QString end;
        ShowState show;
        bool recent;
    };
    const Case cases[] = {
        {2, u"\r\nc:\r\ngame.com\r\n"_s, ShowState::Normal, true},
        {3, u"\r\nc:\r\nM\r\n\r\n"_s, ShowState::Minimized, false},
        {5, u"\r\ngame.com\r\n"_s, ShowState::Minimized, true},
        {6, u"\r\nipxnet connect 10.0.0.7 19900\r\n\r\ngame.com\r\n"_s, ShowState::Minimized, true},
        {8, u"\r\nM\r\n\r\n"_s, ShowState::Minimized, false},
    };
    Start();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.entry);
        QFile::remove(m_app.folder.Path(kConf));
        m_launcher->recent = {};
        if (c.entry == 6) {
            m_app.fakes.prompts.WillType(u"  10.0.0.7 19900 "_s);
        }
        const std::size_t before = Started().size();
        running::mnuRun_Click(*m_launcher, c.entry);
        ASSERT_EQ(Started().size(), before + 1);
        EXPECT_EQ(Started().back().request.show, c.show);
        EXPECT_TRUE(Conf().endsWith(c.end)) << Conf().right(200).toStdString();
        EXPECT_EQ(Conf().contains(u"ipx=true"_s), c.entry == 5 || c.entry == 6);
        EXPECT_EQ(Conf().contains(u"ipxnet startserver"_s), c.entry == 5);
        EXPECT_EQ(IsRecent(), c.recent);
    }
    // All games, whatever the selected one is set to.
    EXPECT_PRED2(Holds, Conf(), u"Mount c \"%1\r\n"_s.arg(m_app.folder.Path(u"Games"_s)));
    EXPECT_EQ(m_app.folder.ReadText(u"IP.cfg"_s), u"10.0.0.7 19900\r\n"_s);
}

TEST_F(RunModes, AnAddressThatCantBeOneIsRefusedAndNotKept)
{
    m_app.folder.WriteText(u"IP.cfg"_s, u"\"10.1.1.1\",rest\r\n"_s);
    Start();
    const QString wrong[] = {
        u"a b c"_s,
        u"a\" b"_s,
        u"host\r\nformat c:"_s,
        QString(300, u'a'),
        u"host > file"_s,
        u"host 123456"_s,
        u"   "_s};
    for (const QString& typed : wrong) {
        m_app.fakes.prompts.WillType(typed);
        running::RunNetClient(*m_launcher);
        EXPECT_EQ(
            m_app.fakes.prompts.Asked()[m_app.fakes.prompts.Asked().size() - 2].preset,
            u"10.1.1.1"_s);
    }
    m_app.fakes.prompts.WillType(QString());
    running::RunNetClient(*m_launcher);
    EXPECT_EQ(m_app.folder.ReadText(u"IP.cfg"_s), u"\"10.1.1.1\",rest\r\n"_s);
    EXPECT_TRUE(Started().empty());
    EXPECT_FALSE(m_app.folder.Exists(kConf));
}

TEST_F(RunModes, NumLockIsSwitchedOnInTheGuestWhereItIsOnHereAndAskedFor)
{
    Start();
    const auto addkey = [&](void (*run)(shell::Launcher&), bool numLock) {
        m_app.fakes.desktop.numLockOn = numLock;
        run(*m_launcher);
        return Conf().contains(u"\r\naddkey 62\r\n"_s);
    };
    EXPECT_FALSE(addkey(running::RunDosPrompt, true)) << "the option is off";
    QStringList global = m_app.folder.ReadLines(u"Default.conf"_s);
    for (const dosboxconf::Cell cell : {dosboxconf::kDirectXCell, dosboxconf::kWaitonerrorCell}) {
        const int line = 1 + cell.group * dosboxconf::kItems + cell.item;
        global[line] = QString::number(m_launcher->options.Values(cell).indexOf(u"true"_s));
    }
    m_app.folder.WriteLines(u"Default.conf"_s, global);
    EXPECT_TRUE(addkey(running::RunDosPrompt, true));
    EXPECT_FALSE(addkey(running::RunDosPrompt, false));
    EXPECT_TRUE(addkey(running::RunLibraryShell, true));
    EXPECT_FALSE(addkey(running::RunGame, true));
}

TEST_F(RunModes, AFileRunsWithWhatIsTypedBehindItsName)
{
    Start();
    dosboxconf::StartCommands& page = m_launcher->screens.start;
    ASSERT_EQ(page.fileEXE.value(page.fileRow), u"GAME.COM"_s);
    m_app.fakes.prompts.WillType(u"GAME.COM /a \"b c\""_s);
    running::RunFileWithArgs(*m_launcher);
    EXPECT_EQ(m_app.fakes.prompts.Asked().back().preset, u"GAME.COM "_s);
    EXPECT_TRUE(Conf().endsWith(u"\r\nGAME.COM /a \"b c\"\r\n\r\n"_s));
    EXPECT_FALSE(IsRecent());

    m_app.fakes.prompts.WillType(QString());
    running::RunFileWithArgs(*m_launcher);
    EXPECT_EQ(LastTitle(), m_launcher->lang[223]);
    EXPECT_EQ(m_app.fakes.prompts.Asked().back().text, m_launcher->lang[114]);

    // The folder goes while the box stands.
    m_app.fakes.prompts.WillType(
        u"GAME.COM"_s, [&] { QDir(m_app.folder.Path(u"Games/하나"_s)).removeRecursively(); });
    running::RunFileWithArgs(*m_launcher);
    EXPECT_EQ(Started().size(), 1U);

    m_app.AddGame(u"하나"_s);
    GiveBuild(u"Windows"_s); // opened as it is, from its folder
    m_app.folder.WriteScript(u"Games/하나/tool"_s, u"exit 0"_s);
    m_app.folder.MakeTree({u"Games/하나/tool.exe"_s});
    test::Click(*m_launcher, u"하나"_s);
    page.fileRow = static_cast<int>(page.fileEXE.indexOf(u"tool.exe"_s));
    running::RunFileWithArgs(*m_launcher);
    ASSERT_EQ(Started().size(), 2U);
    EXPECT_EQ(Started().back().request.program, m_app.folder.Path(u"Games/하나/tool"_s));
    EXPECT_EQ(Started().back().request.workingFolder, m_app.folder.Path(u"Games/하나"_s));
    page.fileRow = 0;
    GiveBuild(u"Win31KOR"_s);
    running::RunFileWithArgs(*m_launcher);
    EXPECT_EQ(
        m_app.fakes.prompts.Asked().back().text,
        m_launcher->lang[221] + u"\r\n\r\n"_s + m_launcher->lang[222]);
    m_app.folder.MakeTree({u"Games/하나/Store.7z"_s});
    running::RunFileWithArgs(*m_launcher);
    EXPECT_EQ(LastTitle(), m_launcher->lang[259]);
    EXPECT_EQ(Started().size(), 2U);
}

TEST_F(RunModes, WithoutStartCommandsThePromptIsOffered)
{
    Start();
    m_launcher->screens.start.lstAutoexec.clear();
    m_app.fakes.prompts.WillAnswer(Answer::No);
    running::RunNetHost(*m_launcher);
    EXPECT_EQ(LastTitle(), m_launcher->lang[171]);
    EXPECT_TRUE(Started().empty());
    m_app.fakes.prompts.WillAnswer(Answer::Yes);
    running::RunGame(*m_launcher);
    EXPECT_EQ(LastTitle(), m_launcher->lang[149]);
    EXPECT_EQ(m_launcher->screens.frame.tabInfo, 2);
    ASSERT_EQ(Started().size(), 1U);
    EXPECT_TRUE(Conf().endsWith(u"\r\nM\r\n\r\n"_s));
    // Guests are not asked for any.
    GiveBuild(u"Win31KOR"_s);
    m_launcher->screens.start.lstAutoexec.clear();
    running::RunGame(*m_launcher);
    EXPECT_EQ(Started().size(), 2U);
    EXPECT_TRUE(Conf().contains(u"\r\nMount W ../../DOSBox/Win31KOR\r\n\r\nCALL VESPRA.BAT\r\n"_s));
}

TEST_F(RunModes, ThePageOfOptionsShowsWhatAStartWrites)
{
    Start();
    const dosboxconf::ConfigEditor& editor = m_launcher->screens.config;
    m_launcher->screens.frame.tabInfo = dosboxconf::kGameTab;
    const auto written = [&](const QString& conf, bool windows = false) {
        library::tabInfo_Click(*m_launcher);
        const QString shown = editor.preview.text;
        running::RunGame(*m_launcher);
        EXPECT_FALSE(shown.isEmpty());
        const QByteArray bytes = m_app.folder.ReadRaw(conf);
        EXPECT_EQ(shown, windows ? platform::DecodeCp949(bytes) : QString::fromUtf8(bytes));
    };
    written(kConf);
    for (const QString& build : {u"Win31ENG"_s, u"Win98"_s}) {
        GiveBuild(build);
        written(kConf);
    }
    m_app.folder.MakeTree({u"DOSBox/0.73/dosbox.exe"_s}); // its paths are Windows'
    GiveBuild(u"0.73"_s);
    written(u"DOSBox/0.73/dosbox.conf"_s, true);
    // Without start commands the prompt is what a start offers.
    m_app.folder.WriteText(u"Games/하나/DosBox/autoexec.conf"_s, QString());
    GiveBuild(u"0.74_SVN"_s);
    m_app.fakes.prompts.WillAnswer(Answer::Yes);
    written(kConf);
    GiveBuild(u"ANEX86"_s);
    m_launcher->screens.frame.tabInfo = dosboxconf::kGameTab;
    library::tabInfo_Click(*m_launcher);
    EXPECT_EQ(editor.preview.text, QString());
}

TEST_F(RunModes, ThePageShowsWhatAStartWritesOnceTheEditsAreSaved)
{
    Start();
    QStringList global = m_app.folder.ReadLines(u"Default.conf"_s);
    const int log = 1 + dosboxconf::kLogCell.group * dosboxconf::kItems;
    global[log] = u"1"_s; // its file bears the title, and that is marked once a game has settings
    m_app.folder.WriteLines(u"Default.conf"_s, global);
    m_launcher->screens.frame.tabInfo = dosboxconf::kGameTab;
    library::tabInfo_Click(*m_launcher);
    dosboxconf::chkEditConfig_Click(*m_launcher, true);
    dosboxconf::cmbConfigSub_Click(*m_launcher, dosboxconf::kFullscreenCell.group);
    const dosboxconf::ConfigEditor& editor = m_launcher->screens.config;
    const bool full = m_launcher->options.Selected(dosboxconf::kFullscreenCell) == 0;
    dosboxconf::lstConfig_Click(
        *m_launcher, dosboxconf::RowOfItem(editor, dosboxconf::kFullscreenCell.item));
    dosboxconf::cmbConfig_Click(*m_launcher, full ? 1 : 0);
    ASSERT_EQ(editor.preview.state, dosboxconf::ConfPreview::State::Differs);
    const QString shown = editor.preview.text;
    ASSERT_TRUE(shown.contains(u"logfile="_s));
    dosboxconf::cmdSaveConfig_Click(*m_launcher);
    running::RunGame(*m_launcher);
    EXPECT_EQ(shown, Conf());
}

TEST_F(RunModes, EditsThatAreNotSavedOutliveAStart)
{
    Start();
    m_launcher->screens.frame.tabInfo = dosboxconf::kGlobalTab;
    library::tabInfo_Click(*m_launcher);
    const std::int32_t saved = m_launcher->options.Selected(dosboxconf::kFullscreenCell);
    dosboxconf::Selection edited = m_launcher->options.OptionSelection;
    edited[dosboxconf::OptionGrid::Index(dosboxconf::kFullscreenCell)] = 1 - saved;
    m_launcher->options.OptionSelection = edited;
    running::RunLibraryShell(*m_launcher);
    EXPECT_EQ(m_launcher->options.OptionSelection, edited);
    EXPECT_EQ(
        Conf().contains(u"fullscreen=true"_s),
        m_launcher->options.ValueText(dosboxconf::kFullscreenCell, saved) == u"true"_s)
        << "the start itself takes what is saved";
}

TEST_F(RunModes, AWrapperGetsItsIniOnceItIsThere)
{
    Start();
    QStringList global = m_app.folder.ReadLines(u"Default.conf"_s);
    const dosboxconf::Cell glide{19, 0};
    const int line = 1 + glide.group * dosboxconf::kItems + glide.item;
    global[line] = QString::number(m_launcher->options.Values(glide).indexOf(u"true"_s));
    m_app.folder.WriteLines(u"Default.conf"_s, global);
    const QString ini = u"DOSBox/0.74_SVN/glide.ini"_s;
    running::RunGame(*m_launcher);
    EXPECT_FALSE(m_app.folder.Exists(ini));
    m_app.folder.WriteRaw(ini, "the owner's");
    running::RunGame(*m_launcher);
    const QByteArray text = m_app.folder.ReadRaw(ini);
    EXPECT_TRUE(text.startsWith("Configuration File for OpenGLide\r\n\r\nInfo:\r\n"));
    EXPECT_TRUE(text.endsWith("\r\nNoSplash=0\r\n\r\n"));
    EXPECT_EQ(text.count("\r\n"), 27);
}

TEST_F(RunModes, ThePageOfOptionsKeepsWhatItEdits)
{
    Start();
    GiveBuild(u"0.74_SVN"_s);
    m_launcher->screens.frame.tabInfo = dosboxconf::kGameTab;
    library::tabInfo_Click(*m_launcher);
    QStringList own = m_app.folder.ReadLines(u"Games/하나/DosBox/edit.conf"_s);
    const dosboxconf::Selection before = m_launcher->options.OptionSelection;
    running::RunLibraryShell(*m_launcher);
    EXPECT_EQ(m_launcher->options.OptionSelection, before);
    dosboxconf::chkEditConfig_Click(*m_launcher, true);
    dosboxconf::cmdSaveConfig_Click(*m_launcher);
    EXPECT_EQ(m_app.folder.ReadLines(u"Games/하나/DosBox/edit.conf"_s), own);
}

TEST_F(RunModes, ARandomGameIsSelectedAndStarted)
{
    m_app.AddGame(u"둘"_s);
    Start();
    QStringList seen;
    for (int i = 0; i < 64 && seen.size() < 2; ++i) {
        running::RunRandomGame(*m_launcher);
        const QString folder = m_launcher->current.CurrentFolder;
        EXPECT_EQ(m_launcher->recent.RecentFolders[0], folder);
        EXPECT_EQ(m_launcher->screens.list.selected, m_launcher->screens.list.RowOf(folder));
        if (!seen.contains(folder)) {
            seen << folder;
        }
    }
    EXPECT_EQ(seen.size(), 2) << "64 draws of two";
}

TEST_F(RunModes, ARandomGameWithoutATitleThatTheListHidesBearsItsFoldersName)
{
    m_app.folder.WriteRaw(u"Games/하나/DosBox/info.txt"_s, "\x03Star\r\n");
    Start();
    m_launcher->screens.search.txtFind = u"없음"_s;
    finding::cmdFind_Click(*m_launcher);
    ASSERT_EQ(m_launcher->screens.list.RowOf(u"하나"_s), -1);
    running::RunRandomGame(*m_launcher);
    EXPECT_EQ(m_launcher->recent.RecentTitles[0], u"하나"_s);
}
