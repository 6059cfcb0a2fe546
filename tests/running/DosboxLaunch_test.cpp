#include "running/DosboxLaunch.h"

#include "dosboxconf/ConfCompose.h"
#include "running/RunPlan.h"
#include "support/Values.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::running;
using namespace pelorin::test;
using dosboxconf::RunFacts;
using platform::HostText;
using platform::PathForm;

namespace {

/// A path of so many bytes in UTF-8, most of them in Hangul.
QString PathOfBytes(qsizetype bytes)
{
    return u'/' + QString((bytes - 1) % 3, u'x') + QString((bytes - 1) / 3, u'가');
}

TEST(DosboxLaunchTest, PathsCountInBytesOfTheFileSystem)
{
    struct Case {
        qsizetype root;
        qsizetype game;
        qsizetype cdFolder;
        bool mountRoot;
        bool starts;
    };
    const Case cases[] = {
        {300, 238, 3, false, true},
        {3, 239, 3, false, false},
        {3, 300, 3, true, true}, // the game's own folder is not mounted, unless it is the CD
        {300, 3, 3, true, false},
        {3, 3, 505, false, true}, // an image's path may be longer: 511
        {3, 3, 506, false, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.root << ' ' << c.game << ' ' << c.cdFolder);
        RunFacts facts;
        facts.gamesRoot.native = PathOfBytes(c.root);
        facts.gameDir.native = PathOfBytes(c.game);
        facts.cdFolder.native = PathOfBytes(c.cdFolder);
        facts.request.cd = {true, false, {u"b.iso"_s, u"a.iso"_s}, 1};
        facts.request.mountRoot = c.mountRoot;
        EXPECT_EQ(CheckLaunch(facts, HostText(), PathForm::Posix).Ok(), c.starts);
        EXPECT_TRUE(CheckLaunch(facts, HostText(), PathForm::Windows));
        facts.request.cd.CdMountMode = 0;
        EXPECT_EQ(
            CheckLaunch(facts, HostText(), PathForm::Posix).Ok(),
            (c.starts || c.cdFolder > 505) && c.game < 239);
        facts.request.build = u"Win98"_s; // has no folder as its CD
        EXPECT_EQ(
            CheckLaunch(facts, HostText(), PathForm::Posix).Ok(), c.starts || c.cdFolder > 505);
    }
}

TEST(DosboxLaunchTest, TheAutoexecSectionIsCountedWithoutCarriageReturns)
{
    const auto starts = [](const char16_t* gus, qsizetype bytes, PathForm form) {
        const QString gravis = u"[gus]\r\ngus="_s + QString::fromUtf16(gus) + u"\r\n\r\n"_s;
        HostText text;
        text.Text(gravis + u"[autoexec]\r\n"_s + QString(bytes - 2, u'x') + u"\r\n\r\n"_s);
        return CheckLaunch({}, text, form).Ok();
    };
    EXPECT_TRUE(starts(u"false", kAutoexecBytes, PathForm::Posix));
    EXPECT_FALSE(starts(u"false", kAutoexecBytes + 1, PathForm::Posix));
    EXPECT_TRUE(starts(u"true", kAutoexecBytesWithGravis, PathForm::Posix));
    EXPECT_FALSE(starts(u"true", kAutoexecBytesWithGravis + 1, PathForm::Posix));
    EXPECT_TRUE(starts(u"false", 9000, PathForm::Windows));
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

TEST(DosboxLaunchTest, NamesThatANativeDosboxCantFindAreRefusedOrNoted)
{
    struct Case {
        RunMode mode;
        PathForm form;
        QString refused;
        QString noted;
        QString build = u"0.74_SVN"_s;
    };
    const Case cases[] = {
        {RunMode::Game, PathForm::Posix, QString(), QString(), u"Win31KOR"_s},
        {RunMode::Game, PathForm::Posix, u"게임.bat"_s, u"지도.dat"_s},
        {RunMode::Game, PathForm::Windows, QString(), QString()},
        {RunMode::DosPrompt, PathForm::Posix, QString(), QString()},
        {RunMode::FileWithArgs, PathForm::Posix, u"시작.bat"_s, u"둘.dat"_s},
    };
    RunRequest request;
    request.startCommands = QStringList{u"cd data"_s, u"call 게임.bat 지도.dat"_s};
    request.typedLine = u"시작.bat 둘.dat"_s;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.refused);
        request.mode = c.mode;
        EXPECT_EQ(ErrorOf(CheckCommands(request, c.build, c.form)).section(u':', 0, 0), c.refused);
        const auto notes = LaunchNotes(request, c.build, HostText().Text(u"가"_s), c.form);
        ASSERT_EQ(notes.size(), c.noted.isEmpty() ? 0 : 1);
        EXPECT_TRUE(notes.isEmpty() || notes.first().English().startsWith(c.noted + u':'));
    }
    request = RunRequest();
    request.mode = RunMode::NetHost;
    request.serverPort = dosboxconf::kIpxFallbackPort;
    const auto notes = LaunchNotes(request, QString(), HostText().Text(u"żółw"_s), PathForm::Posix);
    ASSERT_EQ(notes.size(), 2);
    EXPECT_TRUE(notes[0].English().contains(u"żó"_s));
    EXPECT_TRUE(notes[1].English().contains(u"19900"_s));
    request = RunRequest();
    request.startCommands = QStringList{u"hdd\\game \"1\".img"_s, u"512,63,64,520"_s};
    EXPECT_FALSE(CheckCommands(request, u"Win98"_s, PathForm::Windows)) << "it names a disk there";
    EXPECT_TRUE(CheckCommands(request, u"0.74"_s, PathForm::Windows));
}

} // namespace
