#include "running/DosboxLaunch.h"

#include "dosboxconf/ConfCompose.h"
#include "running/RunPlan.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::running;
using dosboxconf::RunFacts;
using platform::HostText;
using platform::PathForm;

namespace {

/// A path of so many bytes in UTF-8, most of them in Hangul.
QString PathOfBytes(qsizetype bytes)
{
    QString path = u"/"_s + QString(bytes % 3 == 0 ? 2 : bytes % 3 == 1 ? 3 : 1, u'x');
    while (path.toUtf8().size() < bytes) {
        path += u'가';
    }
    EXPECT_EQ(path.toUtf8().size(), bytes);
    return path;
}

HostText Autoexec(const QString& sections, qsizetype bytes)
{
    HostText text;
    text.Text(sections + u"[autoexec]\r\n"_s + QString(bytes - 2, u'x') + u"\r\n\r\n"_s);
    return text;
}

TEST(DosboxLaunchTest, AMountedPathCountsInBytesOfTheFileSystem)
{
    RunFacts facts;
    facts.gamesRoot.native = u"/g"_s;
    facts.gameDir.native = PathOfBytes(238);
    EXPECT_TRUE(CheckLaunch(facts, HostText(), PathForm::Posix));
    facts.gameDir.native = PathOfBytes(239);
    const auto refused = CheckLaunch(facts, HostText(), PathForm::Posix);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.Failure().kind, platform::ErrorKind::Refused);
    EXPECT_TRUE(refused.Failure().text.contains(facts.gameDir.native));
    EXPECT_TRUE(CheckLaunch(facts, HostText(), PathForm::Windows));
    facts.request.mountRoot = true; // the game's own folder is not mounted
    EXPECT_TRUE(CheckLaunch(facts, HostText(), PathForm::Posix));
    facts.gamesRoot.native = PathOfBytes(300);
    EXPECT_FALSE(CheckLaunch(facts, HostText(), PathForm::Posix));
}

TEST(DosboxLaunchTest, AnImagesPathMayBeLongerButNotWithoutEnd)
{
    RunFacts facts;
    facts.cdFolder.native = PathOfBytes(505);
    facts.request.cd = {true, false, {u"a.iso"_s}, 1};
    EXPECT_TRUE(CheckLaunch(facts, HostText(), PathForm::Posix)); // 511
    facts.request.cd.lstCD = QStringList{u"a.iso"_s, u"ab.iso"_s};
    EXPECT_FALSE(CheckLaunch(facts, HostText(), PathForm::Posix));
    facts.request.cd.CdMountMode = 0;
    EXPECT_TRUE(CheckLaunch(facts, HostText(), PathForm::Posix));
}

TEST(DosboxLaunchTest, TheAutoexecSectionIsCountedWithoutCarriageReturns)
{
    const QString gus = u"[gus]\r\ngus=true\r\n\r\n"_s;
    const QString none = u"[gus]\r\ngus=false\r\n\r\n"_s;
    EXPECT_TRUE(CheckLaunch({}, Autoexec(none, kAutoexecBytes), PathForm::Posix));
    EXPECT_FALSE(CheckLaunch({}, Autoexec(none, kAutoexecBytes + 1), PathForm::Posix));
    EXPECT_TRUE(CheckLaunch({}, Autoexec(gus, kAutoexecBytesWithGravis), PathForm::Posix));
    EXPECT_FALSE(CheckLaunch({}, Autoexec(gus, kAutoexecBytesWithGravis + 1), PathForm::Posix));
    EXPECT_TRUE(CheckLaunch({}, Autoexec(none, 9000), PathForm::Windows));
}

TEST(DosboxLaunchTest, RefusesWhatCantBeNamedInTheText)
{
    RunRequest request;
    request.folder = u"Star's 7 [1]%"_s;
    EXPECT_TRUE(CheckRequest(request, u"0.74"_s));
    EXPECT_FALSE(CheckRequest(request, QString()));
    for (const QString& name : {u"a\"b"_s, u"a\nb"_s, u"a\rb"_s}) {
        request.folder = name;
        EXPECT_FALSE(CheckRequest(request, u"0.74"_s));
    }
    RunFacts facts;
    facts.gameDir.native = u"/the \"games\"/Star"_s;
    EXPECT_FALSE(CheckLaunch(facts, HostText(), PathForm::Windows));
    request.folder.clear();
    request.mode = RunMode::LibraryShell;
    EXPECT_TRUE(CheckRequest(request, QString())) << "it has a build of its own";
}

TEST(DosboxLaunchTest, ACommandThatANativeDosboxCantFindIsRefused)
{
    RunRequest request;
    request.startCommands = QStringList{u"cd data"_s, u"call 게임.bat"_s};
    request.typedLine = u"시작.bat"_s;
    const auto refused = CheckCommands(request, PathForm::Posix);
    ASSERT_FALSE(refused);
    EXPECT_TRUE(refused.Failure().text.startsWith(u"게임.bat: "_s));
    EXPECT_TRUE(CheckCommands(request, PathForm::Windows));
    request.mode = RunMode::DosPrompt;
    EXPECT_TRUE(CheckCommands(request, PathForm::Posix));
    request.mode = RunMode::FileWithArgs;
    EXPECT_TRUE(CheckCommands(request, PathForm::Posix).Failure().text.startsWith(u"시작.bat: "_s));
}

TEST(DosboxLaunchTest, NotesTellWhatDoesNotHoldBackTheStart)
{
    RunRequest request;
    request.startCommands = QStringList{u"echo 안녕"_s, u"play.exe 지도.dat"_s};
    request.typedLine = u"play.exe 둘.dat"_s;
    const HostText plain = HostText().Text(u"가"_s);
    ASSERT_EQ(LaunchNotes(request, plain, PathForm::Posix).size(), 1);
    EXPECT_TRUE(
        LaunchNotes(request, plain, PathForm::Posix).first().English().contains(u"지도.dat"_s));
    EXPECT_TRUE(LaunchNotes(request, plain, PathForm::Windows).isEmpty());
    request.mode = RunMode::DosPrompt;
    EXPECT_TRUE(LaunchNotes(request, plain, PathForm::Posix).isEmpty());
    request.mode = RunMode::FileWithArgs;
    EXPECT_TRUE(
        LaunchNotes(request, plain, PathForm::Posix).first().English().contains(u"둘.dat"_s));

    request.mode = RunMode::NetHost;
    request.startCommands.clear();
    request.serverPort = dosboxconf::kIpxFallbackPort;
    const QList<platform::Wording> notes =
        LaunchNotes(request, HostText().Text(u"żółw"_s), PathForm::Posix);
    ASSERT_EQ(notes.size(), 2);
    EXPECT_TRUE(notes[0].English().contains(u"żó"_s));
    EXPECT_TRUE(notes[1].English().contains(u"19900"_s));
}

} // namespace
