#include "real/RealInstallation.h"

using namespace Qt::StringLiterals;
using namespace pelorin::test;

namespace {

using StartGame = RealTest;

TEST_F(StartGame, ByKeysAloneUpToTheFileThatTheGameWrites)
{
    const QString game = u"Games/별 헤는 밤 (Star) [1]"_s;
    const TestFolder app(u"내 펠로린 100% [1]"_s);
    Stage(app, m_session);
    ASSERT_FALSE(app.Exists(game + u"/READY.TXT"_s));

    RunProgram pelorin(app.Path(u"Pelorin"_s), {}, PlainEnvironment(m_session));
    const auto window = m_person.WaitForWindow(MainWindow(), kStepMs);
    ASSERT_TRUE(window.has_value()) << pelorin.Output().toStdString();
    ASSERT_TRUE(m_person.Activate(*window, kStepMs));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return m_person.Title(*window).startsWith(u"별 헤는 밤"_s); }, kStepMs))
        << m_person.Title(*window);

    m_person.Key(u"Return"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return app.Exists(game + u"/READY.TXT"_s); }, kStepMs))
        << pelorin.Output().toStdString();
    const auto emulator = m_person.WaitForWindow(u"DOSBox 0\\.74"_s, kStepMs);
    ASSERT_TRUE(emulator.has_value());
    constexpr int kColoursBesidesBlack = 8;
    EXPECT_TRUE(ShowsColours(*emulator, kColoursBesidesBlack));
    EXPECT_TRUE(app.Exists(game + u"/DOSBOX/autoexec.conf"_s));
    EXPECT_FALSE(app.Exists(game + u"/DosBox"_s));
    EXPECT_FALSE(app.Exists(game + u"/dosbox"_s));

    // The window stays usable while the game runs, and what it did is saved when it closes.
    m_person.Close(*window);
    ASSERT_TRUE(pelorin.WaitForEnd(kStepMs));
    EXPECT_EQ(pelorin.ExitCode(), 0) << pelorin.Output().toStdString();
    EXPECT_TRUE(app.ReadText(u"recent.sav"_s).startsWith(u"별 헤는 밤 (Star) [1]\u0001"_s));
    EXPECT_EQ(app.ReadRaw(u"Gamelist.lst"_s).count('\n'), 1);
    EXPECT_EQ(app.ReadLines(u"Launcher.cfg"_s).size(), 14);
    EXPECT_TRUE(m_person.FindWindow(u"DOSBox 0\\.74"_s).has_value());
}

TEST(CommandLine, AnUnknownOneOpensNothing)
{
    const IsolatedHome home;
    RunProgram pelorin(
        QStringLiteral(PELORIN_BUILD_DIR "/src/Pelorin"), {u"--help"_s}, home.Environment());
    ASSERT_TRUE(pelorin.WaitForEnd(10'000));
    EXPECT_EQ(pelorin.ExitCode(), 0);
    EXPECT_TRUE(pelorin.Output().isEmpty());
}

} // namespace
