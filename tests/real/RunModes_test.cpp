#include "real/RealInstallation.h"

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
        m_pelorin = std::make_unique<RunProgram>(
            m_app.Path(u"Pelorin"_s), QStringList(), PlainEnvironment(m_session));
        const auto window = m_person.WaitForWindow(MainWindow(), kStepMs);
        ASSERT_TRUE(window.has_value()) << m_pelorin->Output().toStdString();
        m_window = *window;
        ASSERT_TRUE(m_person.Activate(m_window, kStepMs));
        ASSERT_TRUE(ShowsTitle(u"별 헤는 밤"_s));
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

} // namespace
