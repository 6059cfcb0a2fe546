#include "platform/DesktopShellVerbs.h"
#include "platform/DetachedProcesses.h"
#include "platform/ProgramHost.h"
#include "real/RealInstallation.h"
#include "real/RecordingOpener.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::test;

namespace {

class OutsideProgramsTest : public RealTest {
protected:
    void StartEmulator(const QString& name, const QStringList& arguments)
    {
        const platform::ProgramHost host(m_folder.Path(), platform::SearchPath());
        const auto emulator = host.Find(u"DOSBox\\0.74\\"_s + name);
        ASSERT_TRUE(emulator);
        ASSERT_TRUE(m_processes.StartDetached(
            emulator.Value().Request(arguments, m_folder.Path(u"DOSBox/0.74"_s)),
            [this](const platform::ProcessEnd& told) { m_end = told; }));
        m_window = m_person.WaitForWindow(u"DOSBox 0.74"_s, 2 * kStepMs);
        ASSERT_TRUE(m_window.has_value());
    }

    const ScopedEnvironment m_scope{m_session.Environment()};
    const TestFolder m_folder{u"내 게임 [1]"_s};
    platform::DetachedProcesses m_processes;
    std::optional<platform::ProcessEnd> m_end;
    std::optional<Xdotool::WindowId> m_window;
};

TEST_F(OutsideProgramsTest, EmulatorStartsInItsFolderAndItsEndIsTold)
{
    m_folder.MakeFolder(u"DOSBox/0.74"_s);
    m_folder.MakeLink(u"DOSBox/0.74/dosbox"_s, u"/usr/bin/dosbox"_s);
    // Read from the working folder, with nothing on the command line that names it.
    m_folder.WriteText(
        u"DOSBox/0.74/dosbox.conf"_s, u"[sdl]\r\noutput=surface\r\n[autoexec]\r\necho Star\r\n"_s);
    ASSERT_NO_FATAL_FAILURE(StartEmulator(u"dosbox.exe"_s, {u"-noconsole"_s}));
    EXPECT_GE(m_person.Geometry(*m_window).width(), 640);
    EXPECT_TRUE(ShowsColours(*m_window, 2)) << "nothing is drawn in its window";

    ASSERT_TRUE(m_person.Activate(*m_window, 2 * kStepMs));
    m_person.Type(u"exit"_s);
    m_person.Key(u"Return"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_end.has_value(); }, 2 * kStepMs));
    EXPECT_EQ(m_end->exitStatus, 0);
    EXPECT_TRUE(
        m_end->output.contains("CONFIG:Loading primary settings from config file dosbox.conf"))
        << m_end->output.toStdString();
    EXPECT_TRUE(m_person.WaitUntilGone(u"DOSBox 0.74"_s, 2 * kStepMs));
}

TEST_F(OutsideProgramsTest, DebuggerRunsWithoutATerminal)
{
    m_folder.MakeFolder(u"DOSBox/0.74"_s);
    m_folder.MakeLink(u"DOSBox/0.74/dosbox_debug"_s, u"/usr/bin/dosbox-debug"_s);
    StartEmulator(u"dosbox_debug.exe"_s, {});
    EXPECT_FALSE(m_end.has_value());
}

TEST_F(OutsideProgramsTest, DesktopOpensPathsThatAreHardOnShellsAndAddresses)
{
    const TestFolder& home = m_session.Home().Folder();
    const RecordingOpener opener(m_session.Home(), m_session.Environment());
    platform::DesktopShellVerbs shell(m_processes, platform::SearchPath());
    const auto opened = [&](const platform::Done& done) {
        EXPECT_TRUE(done);
        return opener.Take();
    };
    QStringList paths{home.Path(u"게임 %20"_s)};
    for (const QString& name :
         {u"읽어 보기.txt"_s, u"50%41 #1?.txt"_s, u"$HOME `id` & 'a' \"b\".txt"_s}) {
        home.WriteRaw(u"게임 %20/"_s + name, "Some plain text.\n");
        paths << home.Path(u"게임 %20/"_s + name);
    }
    for (const QString& path : paths) {
        EXPECT_EQ(opened(shell.Open(path)), path);
    }
    const QString address = u"https://example.org/a%20b?c=$HOME&d=1#e"_s;
    EXPECT_EQ(opened(shell.OpenUrl(address)), address);
}

} // namespace
