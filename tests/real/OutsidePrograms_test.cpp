#include "platform/DesktopShellVerbs.h"
#include "platform/DetachedProcesses.h"
#include "platform/ProgramHost.h"
#include "real/RecordingOpener.h"
#include "support/TestFolder.h"
#include "support/XSession.h"
#include "support/Xdotool.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::test;

namespace {

constexpr int kPatienceMs = 20'000;

TEST(OutsideProgramsTest, EmulatorStartsInItsFolderAndItsEndIsTold)
{
    const XSession session;
    ASSERT_TRUE(session.IsUp());
    const ScopedEnvironment scope(session.Environment());
    const TestFolder folder(u"내 게임 [1]"_s);
    folder.MakeFolder(u"DOSBox/0.74"_s);
    folder.MakeLink(u"DOSBox/0.74/dosbox"_s, u"/usr/bin/dosbox"_s);
    // Read from the working folder, with nothing on the command line that names it.
    folder.WriteText(
        u"DOSBox/0.74/dosbox.conf"_s, u"[sdl]\r\noutput=surface\r\n[autoexec]\r\necho Star\r\n"_s);

    platform::DetachedProcesses processes;
    const platform::ProgramHost host(folder.Path(), platform::SearchPath());
    const auto emulator = host.Find(u"DOSBox\\0.74\\dosbox.exe"_s);
    ASSERT_TRUE(emulator);
    bool hasEnded = false;
    platform::ProcessEnd end;
    ASSERT_TRUE(processes.StartDetached(
        emulator.Value().Request({u"-noconsole"_s}, folder.Path(u"DOSBox/0.74"_s)),
        [&](const platform::ProcessEnd& told) {
            hasEnded = true;
            end = told;
        }));

    const Xdotool person(session);
    const auto window = person.WaitForWindow(u"DOSBox 0.74"_s, kPatienceMs);
    ASSERT_TRUE(window.has_value());
    const QRect place = person.Geometry(*window);
    EXPECT_GE(place.width(), 640);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return ColourCount(session.Screenshot(), place) > 2; }, kPatienceMs))
        << "nothing is drawn in its window";

    ASSERT_TRUE(person.Activate(*window, kPatienceMs));
    person.Type(u"exit"_s);
    person.Key(u"Return"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return hasEnded; }, kPatienceMs));
    EXPECT_EQ(end.exitStatus, 0);
    EXPECT_TRUE(end.output.contains("CONFIG:Loading primary settings from config file dosbox.conf"))
        << end.output.toStdString();
    EXPECT_TRUE(person.WaitUntilGone(u"DOSBox 0.74"_s, kPatienceMs));
}

TEST(OutsideProgramsTest, DebuggerRunsWithoutATerminal)
{
    const XSession session;
    ASSERT_TRUE(session.IsUp());
    const ScopedEnvironment scope(session.Environment());
    const TestFolder folder;
    folder.MakeFolder(u"DOSBox/0.74"_s);
    folder.MakeLink(u"DOSBox/0.74/dosbox_debug"_s, u"/usr/bin/dosbox-debug"_s);
    platform::DetachedProcesses processes;
    const auto emulator =
        platform::ProgramHost(folder.Path(), {}).Find(u"DOSBox\\0.74\\dosbox_debug.exe"_s);
    ASSERT_TRUE(emulator);
    bool hasEnded = false;
    ASSERT_TRUE(processes.StartDetached(
        emulator.Value().Request({}, folder.Path(u"DOSBox/0.74"_s)),
        [&](const platform::ProcessEnd&) { hasEnded = true; }));
    const auto window = Xdotool(session).WaitForWindow(u"DOSBox 0.74"_s, kPatienceMs);
    EXPECT_TRUE(window.has_value());
    EXPECT_FALSE(hasEnded);
}

TEST(OutsideProgramsTest, DesktopOpensPathsThatAreHardOnShellsAndAddresses)
{
    const XSession session;
    ASSERT_TRUE(session.IsUp());
    const ScopedEnvironment scope(session.Environment());
    const TestFolder& home = session.Home().Folder();
    const RecordingOpener opener(session.Home(), session.Environment());

    platform::DetachedProcesses processes;
    platform::DesktopShellVerbs shell(processes, platform::SearchPath());
    const auto opened = [&](const platform::Done& done) {
        EXPECT_TRUE(done);
        return opener.Take();
    };
    for (const QString& name :
         {u"Read me.txt"_s,
          u"읽어 보기.txt"_s,
          u"50%41 #1?.txt"_s,
          u"$HOME `id` & 'a' \"b\".txt"_s}) {
        home.WriteRaw(u"게임 %20/"_s + name, "Some plain text.\n");
        const QString path = home.Path(u"게임 %20/"_s + name);
        EXPECT_EQ(opened(shell.Open(path)), path);
    }
    EXPECT_EQ(opened(shell.Open(home.Path(u"게임 %20"_s))), home.Path(u"게임 %20"_s));
    EXPECT_EQ(
        opened(shell.OpenUrl(u"https://example.org/a%20b?c=$HOME&d=1#e"_s)),
        u"https://example.org/a%20b?c=$HOME&d=1#e"_s);
}

} // namespace
