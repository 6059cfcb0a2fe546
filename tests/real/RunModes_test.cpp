#include "real/RealInstallation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace pelorin::test;

namespace {

const QString kConf = u"DOSBox/0.74_SVN/dosbox.conf"_s;
const QString kEmulator = u"DOSBox 0\\.74"_s;

/// The window with the sample games, as large as it opens.
class RealRunModes : public RealTest {
protected:
    void SetUp() override
    {
        RealTest::SetUp();
        Stage(m_app, m_session);
        StartPelorin();
        const auto window = m_person.WaitForWindow(MainWindow(), kStepMs);
        ASSERT_TRUE(window.has_value()) << m_pelorin->Output().toStdString();
        m_window = *window;
        ASSERT_TRUE(m_person.Activate(m_window, kStepMs));
        ASSERT_TRUE(ShowsTitle(u"별 헤는 밤"_s));
    }

    /// As an ordinary user, who may not do all that a machine for tests lets one do.
    void StartPelorin()
    {
        QProcessEnvironment environment = PlainEnvironment(m_session);
        QString program = m_app.Path(u"Pelorin"_s);
        QStringList arguments;
        if (::geteuid() == 0) {
            const QString home = m_app.Path(u"home of nobody"_s);
            QDir().mkpath(home);
            environment.insert(u"HOME"_s, home);
            environment.insert(u"XDG_RUNTIME_DIR"_s, home);
            const auto given =
                RunTool(u"chown"_s, {u"-R"_s, u"65534:65534"_s, m_app.Path()}, environment);
            ASSERT_EQ(given.exitCode, 0) << given.errors.toStdString();
            // What lies above is ours alone, and is to be passed through.
            QFile above(QFileInfo(m_app.Path()).path());
            ASSERT_TRUE(above.setPermissions(above.permissions() | QFile::ExeOther));
            arguments =
                QStringList{u"--reuid=65534"_s, u"--regid=65534"_s, u"--clear-groups"_s, program};
            program = u"setpriv"_s;
        }
        m_pelorin = std::make_unique<RunProgram>(program, arguments, environment);
    }

    /// The entry of the run menu that so many strokes lead down to.
    void ChooseInRunMenu(int strokes) const
    {
        m_person.Click(Place(84, 17));
        QTest::qWait(300);
        for (int i = 0; i < strokes; ++i) {
            m_person.Key(u"Down"_s);
        }
        m_person.Key(u"Return"_s);
    }
    void TypeInto(QPoint box, const QString& text) const
    {
        m_person.Click(box);
        m_person.Key(u"ctrl+a"_s);
        m_person.Type(text);
    }
    /// On the page of settings: where an emulator is to be put after a start.
    void AskForPlacement(const QString& across, const QString& down) const
    {
        m_person.Click(Place(-35, 267));
        QTest::qWait(300);
        TypeInto(Place(-293, 41), across);
        TypeInto(Place(-190, 41), down);
        m_person.Click(Place(-353, 95));
    }
    bool Waits(const std::function<bool()>& condition) const
    {
        return QTest::qWaitFor(condition, kStepMs);
    }

    bool ShowsTitle(const QString& title) const
    {
        return QTest::qWaitFor([&] { return m_person.Title(m_window).startsWith(title); }, kStepMs);
    }
    /// A place of the window, from its left edge, or from its right one when x is negative.
    QPoint Place(int x, int y) const
    {
        const int width = m_person.Geometry(m_window).width();
        return m_person.Corner(m_window) + QPoint(x >= 0 ? x : width + x, y);
    }
    QByteArray Conf() const { return m_app.ReadRaw(kConf); }
    /// Waits for the emulator, and ends it. It opens another window each time that its picture
    /// changes its size, so that a window may be gone as soon as it is found.
    bool SeeEmulatorAndEndIt() const
    {
        if (!m_person.WaitForWindow(kEmulator, kStepMs)) {
            return false;
        }
        const QStringList kill{u"search"_s, u"--name"_s, kEmulator, u"windowkill"_s};
        const bool gone = QTest::qWaitFor(
            [&] {
                RunTool(u"xdotool"_s, kill, m_session.Environment());
                return !m_person.FindWindow(kEmulator);
            },
            kStepMs);
        return gone && m_person.Activate(m_window, kStepMs);
    }

    TestFolder m_app{u"내 펠로린 100% [1]"_s};
    std::unique_ptr<RunProgram> m_pelorin;
    Xdotool::WindowId m_window;
};

TEST_F(RealRunModes, TheShellOverAllGamesKnowsTheKeyboardsNumLock)
{
    QStringList global = m_app.ReadLines(u"Default.conf"_s);
    constexpr int kWaitOnErrorLine = 1 + 1 * 81 + 7;
    ASSERT_GT(global.size(), kWaitOnErrorLine);
    global[kWaitOnErrorLine] = u"0"_s; // true
    m_app.WriteLines(u"Default.conf"_s, global);
    const auto run = [&] {
        m_person.Click(Place(84, 17)); // cmdRun_1 opens the run menu
        QTest::qWait(300);
        m_person.Key(u"Up"_s); // its last entry, since no game was started yet
        m_person.Key(u"Return"_s);
        return SeeEmulatorAndEndIt();
    };
    ASSERT_TRUE(run()) << m_pelorin->Output().toStdString();
    EXPECT_FALSE(Conf().contains("addkey"));
    EXPECT_TRUE(Conf().endsWith("c:\r\nM\r\n\r\n"));
    m_person.Key(u"Num_Lock"_s);
    ASSERT_TRUE(run());
    EXPECT_TRUE(Conf().contains("c:\r\naddkey 62\r\nM\r\n"));
}

TEST_F(RealRunModes, TheShellOverAllGamesWalksIntoAGameAndStartsItsProgram)
{
    // By a name that DOSBox can take, and alone.
    const QDir games(m_app.Path(u"Games"_s));
    ASSERT_TRUE(
        QDir().rename(games.filePath(u"주는 대로 적기 (Tell) [4]"_s), m_app.Path(u"TELL"_s)));
    for (const QString& game : games.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QDir(games.filePath(game)).removeRecursively();
    }
    ASSERT_TRUE(QDir().rename(m_app.Path(u"TELL"_s), games.filePath(u"TELL"_s)));
    ChooseInRunMenu(6);
    ASSERT_TRUE(m_person.WaitForWindow(kEmulator, kStepMs).has_value())
        << m_pelorin->Output().toStdString();
    const QString told = u"Games/TELL/TELL.TXT"_s;
    ASSERT_TRUE(Waits([&] {
        // Into the only folder, from wherever the former keys have led.
        m_person.Key(u"BackSpace"_s);
        m_person.Key(u"Return"_s);
        m_person.Key(u"t"_s);
        m_person.Key(u"Return"_s);
        return m_app.Exists(told);
    }));
    // It was started in the game's folder, below the root of all games.
    EXPECT_TRUE(Waits([&] { return m_app.ReadRaw(told).startsWith("C:\\TELL\r\n"); }))
        << m_app.ReadRaw(told).toStdString();
}

TEST_F(RealRunModes, TheMenuStartsTheGameAndThePromptWhoseFileManagerStartsAProgram)
{
    ChooseInRunMenu(2);
    ASSERT_TRUE(Waits([&] { return m_app.Exists(u"Games/별 헤는 밤 (Star) [1]/READY.TXT"_s); }))
        << m_pelorin->Output().toStdString();
    ASSERT_TRUE(SeeEmulatorAndEndIt());
    m_person.Click(Place(300, 300)); // the list, below its rows
    m_person.Key(u"End"_s);
    ASSERT_TRUE(ShowsTitle(u"주는 대로 적기"_s));
    ChooseInRunMenu(3);
    const auto emulator = m_person.WaitForWindow(kEmulator, kStepMs);
    ASSERT_TRUE(emulator.has_value());
    EXPECT_TRUE(Conf().endsWith("c:\r\nM\r\n\r\n"));
    const QString told = u"Games/주는 대로 적기 (Tell) [4]/TELL.TXT"_s;
    ASSERT_TRUE(Waits([&] {
        m_person.Key(u"t"_s); // as soon as the list of files stands there
        m_person.Key(u"Return"_s);
        return m_app.Exists(told);
    })) << m_pelorin->Output().toStdString();
}

TEST_F(RealRunModes, TheEmulatorIsPutWhereTheBoxesSayAfterAStartAndByEnter)
{
    AskForPlacement(u"210"_s, u"140"_s); // in five seconds
    m_person.Click(Place(300, 300));     // the list, below its rows
    m_person.Key(u"Home"_s);
    m_person.Key(u"Return"_s);
    ASSERT_TRUE(Waits([&] { return m_app.Exists(u"Games/별 헤는 밤 (Star) [1]/READY.TXT"_s); }))
        << m_pelorin->Output().toStdString();
    const auto emulator = m_person.WaitForWindow(kEmulator, kStepMs);
    ASSERT_TRUE(emulator.has_value());
    EXPECT_TRUE(Waits([&] { return m_person.Corner(*emulator) == QPoint(210, 140); }));
    ASSERT_TRUE(m_person.Activate(m_window, kStepMs));
    TypeInto(Place(-293, 41), u"-20"_s);
    m_person.Key(u"Return"_s);
    EXPECT_TRUE(Waits([&] { return m_person.Corner(*emulator) == QPoint(-20, 140); }));
    EXPECT_TRUE(SeeEmulatorAndEndIt());
}

TEST_F(RealRunModes, AWindowThatOpensBehindTheDelayIsMissed)
{
    const QString build = u"DOSBox/0.74_SVN/dosbox"_s;
    ASSERT_TRUE(QFile::remove(m_app.Path(build)));
    m_app.WriteScript(build, u"sleep 3\nexec /usr/bin/dosbox \"$@\"\n"_s);
    QFile script(m_app.Path(build));
    ASSERT_TRUE(script.setPermissions(script.permissions() | QFile::ReadOther | QFile::ExeOther));
    AskForPlacement(u"210"_s, u"140"_s);
    m_person.Key(u"Tab"_s);
    m_person.Key(u"Home"_s); // in one second
    m_person.Click(Place(300, 300));
    m_person.Key(u"Home"_s);
    m_person.Key(u"Return"_s);
    const auto emulator = m_person.WaitForWindow(kEmulator, kStepMs);
    ASSERT_TRUE(emulator.has_value()) << m_pelorin->Output().toStdString();
    ASSERT_TRUE(Waits([&] { return m_app.Exists(u"Games/별 헤는 밤 (Star) [1]/READY.TXT"_s); }));
    EXPECT_NE(m_person.Corner(*emulator), QPoint(210, 140));
    EXPECT_TRUE(SeeEmulatorAndEndIt());
}

TEST_F(RealRunModes, WhatIsChosenOnThePagesIsSavedAndStarted)
{
    const QString meta = u"Games/별 헤는 밤 (Star) [1]/DOSBOX/"_s;
    m_person.Click(Place(-35, 96)); // the page of start commands
    QTest::qWait(300);
    m_person.Click(Place(-236, 263)); // cmdAddEmpty
    m_person.Click(Place(-135, 263)); // cmdUp
    m_person.Click(Place(-111, 23));  // cmdSaveExec
    EXPECT_TRUE(Waits([&] {
        return m_app.ReadRaw(meta + u"autoexec.conf"_s) == "REM\r\ngame.com\r\n";
    })) << m_app.ReadRaw(meta + u"autoexec.conf"_s).toStdString();
    m_person.Click(Place(-35, 217)); // the page of the game's options
    QTest::qWait(300);
    m_person.Click(Place(-352, 22)); // chkEditConfig
    // The third group from here, its third option, and the value above its own.
    for (const auto& stroke : Words(u"ctrl+Tab ctrl+Tab ctrl+Tab Down Down Return Up Return"_s)) {
        m_person.Key(stroke);
    }
    EXPECT_FALSE(m_app.Exists(meta + u"edit.conf"_s)) << "nothing is written before it is saved";
    m_person.Click(Place(-288, 627)); // cmdSaveConfig
    ASSERT_TRUE(Waits([&] { return m_app.Exists(meta + u"edit.conf"_s); }));
    ASSERT_TRUE(ShowsTitle(u"별 헤는 밤 [편집]"_s));
    m_person.Click(Place(300, 300)); // the list, below its rows
    m_person.Key(u"Home"_s);
    m_person.Key(u"Return"_s);
    ASSERT_TRUE(Waits([&] { return m_app.Exists(u"Games/별 헤는 밤 (Star) [1]/READY.TXT"_s); }))
        << m_pelorin->Output().toStdString();
    EXPECT_TRUE(Conf().contains("\r\nmemsize=8\r\n"));
    EXPECT_TRUE(Conf().contains("\r\nREM\r\ngame.com\r\n"));
    EXPECT_TRUE(SeeEmulatorAndEndIt());
}

TEST_F(RealRunModes, AFileGetsWhatIsTypedWithBlanksAndQuotes)
{
    m_person.Key(u"End"_s);
    ASSERT_TRUE(ShowsTitle(u"주는 대로 적기"_s));
    m_person.Click(Place(-35, 96)); // the page of start commands
    QTest::qWait(300);
    m_person.Click(Place(-320, 313), 2); // the first program
    const QString box = u"^인자를 붙여 실행$"_s;
    ASSERT_TRUE(m_person.WaitForWindow(box, kStepMs).has_value());
    m_person.Key(u"End"_s);
    m_person.Type(u" two  \"in quotes\" /x=1"_s);
    m_person.Key(u"Return"_s);
    const QString told = u"Games/주는 대로 적기 (Tell) [4]/TELL.TXT"_s;
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_app.Exists(told); }, kStepMs))
        << m_pelorin->Output().toStdString();
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_app.ReadRaw(told).endsWith("1\r\n"); }, kStepMs));
    EXPECT_EQ(m_app.ReadRaw(told), "C:\\\r\n  two  \"in quotes\" /x=1\r\n");
}

TEST_F(RealRunModes, AHostAndAClientOfOneScreenFindEachOther)
{
    const QString tell = u"Games/주는 대로 적기 (Tell) [4]"_s;
    const QString answer = tell + u"/PING.TXT"_s;
    m_app.WriteLines(
        tell + u"/DosBox/autoexec.conf"_s,
        {u"ipxnet ping > PING.TXT"_s, u"ipxnet status >> PING.TXT"_s, u"echo done > DONE.TXT"_s});
    ChooseInRunMenu(4); // the host
    ASSERT_TRUE(m_person.WaitForWindow(kEmulator, kStepMs).has_value())
        << m_pelorin->Output().toStdString();
    ASSERT_TRUE(Waits([&] { return m_app.Exists(u"Games/별 헤는 밤 (Star) [1]/READY.TXT"_s); }));
    EXPECT_TRUE(Conf().contains("ipx=true"));
    const bool own = Conf().contains("ipxnet startserver 19900\r\n");
    EXPECT_TRUE(own || Conf().contains("ipxnet startserver\r\n"));

    ASSERT_TRUE(m_person.Activate(m_window, kStepMs));
    m_person.Click(Place(300, 300)); // the list, below its rows
    m_person.Key(u"End"_s);
    ASSERT_TRUE(ShowsTitle(u"주는 대로 적기"_s));
    ChooseInRunMenu(5); // the client
    const QString box = u"^네트워크 게임 접속$"_s;
    ASSERT_TRUE(m_person.WaitForWindow(box, kStepMs).has_value());
    const QString address = own ? u"127.0.0.1 19900"_s : u"127.0.0.1"_s;
    m_person.Type(address);
    m_person.Key(u"Return"_s);
    ASSERT_TRUE(Waits([&] { return m_app.Exists(tell + u"/DONE.TXT"_s); }))
        << m_pelorin->Output().toStdString();
    EXPECT_EQ(m_app.ReadText(u"IP.cfg"_s), address + u"\r\n"_s);
    EXPECT_TRUE(Conf().contains("\r\nipxnet connect " + address.toLatin1() + "\r\n"));
    EXPECT_TRUE(m_app.ReadRaw(answer).contains("Response from"))
        << m_app.ReadRaw(answer).toStdString();
}

TEST_F(RealRunModes, TheDebugBuildWritesTheLogOfThisRun)
{
    QStringList global = m_app.ReadLines(u"Default.conf"_s);
    constexpr int kLogLine = 1 + 2 * 81;
    ASSERT_GT(global.size(), kLogLine);
    global[kLogLine] = u"1"_s; // true
    m_app.WriteLines(u"Default.conf"_s, global);
    m_person.Key(u"Return"_s);
    const QString log = u"Export/별 헤는 밤.txt"_s;
    // Commands stand in it as DOS reads them, and this folder only this run has.
    const QByteArray line =
        QString(
            u"Parsing command line: SET GAMEROOT="_s + m_app.Path(u"Games/별 헤는 밤 (Star) [1]"_s))
            .toUtf8();
    EXPECT_TRUE(Waits([&] { return m_app.Exists(log) && m_app.ReadRaw(log).contains(line); }))
        << m_pelorin->Output().toStdString();
    EXPECT_TRUE(Conf().contains("waitonerror=true"));
}

/// An image that holds the file MARK.TXT with its own name in it.
void MakeImage(const TestFolder& app, const QString& path, const QString& mark)
{
    const TestFolder content;
    content.WriteText(u"MARK.TXT"_s, mark);
    const auto made = RunTool(
        u"genisoimage"_s,
        {u"-quiet"_s, u"-o"_s, app.Path(path), content.Path()},
        QProcessEnvironment::systemEnvironment());
    ASSERT_EQ(made.exitCode, 0) << made.errors.toStdString();
}

TEST_F(RealRunModes, DiscsStandWhereTheRulesPutThem)
{
    const QString game = u"Games/주는 대로 적기 (Tell) [4]"_s;
    const QString cd = game + u"/DosBox/CD"_s;
    const QString copied = game + u"/COPIED.TXT"_s;
    struct Case {
        QStringList images; // of CD
        QString conf;       // one drive each, images
        QString drive;
        QByteArray mark;
    };
    const Case cases[] = {
        {{u"a.iso"_s}, u"0 1"_s, u"D"_s, "a"},
        {{u"a.iso"_s, u"B \"2.ISO"_s}, u"0 0"_s, u"D"_s, "folder"},
        {{u"a.iso"_s, u"B 2%.ISO"_s}, u"0 1"_s, u"D"_s, "a"},
        {{u"a.iso"_s, u"B 2%.ISO"_s}, u"1 1"_s, u"E"_s, "B 2%"},
        {{u"c.bin"_s}, u"0 1"_s, u"D"_s, "c"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.images.join(u' ').toStdString() + ", " + c.conf.toStdString());
        QDir(m_app.Path(cd)).removeRecursively();
        QDir().mkpath(m_app.Path(cd));
        QFile::remove(m_app.Path(copied));
        for (const QString& image : c.images) {
            MakeImage(m_app, cd + u'/' + image, image.section(u'.', 0, 0));
            if (image.endsWith(u".bin"_s)) {
                m_app.WriteLines(
                    cd + u"/c.cue"_s,
                    {u"FILE \"c.bin\" BINARY"_s,
                     u"  TRACK 01 MODE1/2048"_s,
                     u"    INDEX 01 00:00:00"_s});
            }
        }
        m_app.WriteText(game + u"/MARK.TXT"_s, u"folder"_s);
        m_app.WriteLines(game + u"/DosBox/CD.conf"_s, c.conf.split(u' '));
        m_app.WriteLines(
            game + u"/DosBox/autoexec.conf"_s,
            {u"tell.com /COPY "_s + c.drive + u":\\MARK.TXT"_s, u"exit"_s});
        m_person.Key(u"Home"_s);
        ASSERT_TRUE(ShowsTitle(u"별 헤는 밤"_s));
        m_person.Key(u"End"_s); // the game is read anew
        ASSERT_TRUE(ShowsTitle(u"주는 대로 적기"_s));
        m_person.Key(u"Return"_s);
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return m_app.Exists(copied) && m_app.ReadRaw(copied) == c.mark; }, kStepMs))
            << m_pelorin->Output().toStdString();
        ASSERT_TRUE(m_person.WaitUntilGone(kEmulator, kStepMs));
        ASSERT_TRUE(m_person.Activate(m_window, kStepMs));
    }
}

} // namespace
