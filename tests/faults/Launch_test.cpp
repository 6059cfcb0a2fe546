#include "faults/FaultsFixture.h"
#include "running/DosboxLaunch.h"
#include "running/RunCommands.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::test;

namespace {

const QString kConf = u"DOSBox/0.74_SVN/dosbox.conf"_s;

/// Starts the selected game and tells whether DOSBox was started, with dosbox.conf written.
bool Starts(Installation& app, shell::Launcher& launcher)
{
    const std::size_t before = app.fakes.processes.Starts().size();
    running::RunGame(launcher);
    EXPECT_TRUE(app.fakes.prompts.Asked().empty());
    return app.fakes.processes.Starts().size() == before + 1 && app.folder.Exists(kConf);
}

/// The same for a start that must not be: nothing is written, and the last note tells why.
void ExpectNoStart(Installation& app, shell::Launcher& launcher, const QString& told)
{
    const auto before = FilesOf(app.folder);
    EXPECT_FALSE(Starts(app, launcher));
    EXPECT_EQ(FilesOf(app.folder), before);
    ASSERT_FALSE(launcher.screens.status.notes.empty());
    const QString note = launcher.screens.status.notes.back().text;
    EXPECT_PRED2(Holds, note, told);
    EXPECT_TRUE(launcher.recent.RecentFolders[0].isEmpty());
}

TEST(LaunchFaults, MountedPathOf239Bytes)
{
    Installation app;
    const qsizetype above = app.folder.Path(u"Games/"_s).toUtf8().size();
    const auto nameOf = [&](qsizetype bytes) {
        return u"별 "_s + QString(bytes - above - 4, u'x');
    };
    app.AddGame(nameOf(238));
    app.AddGame(nameOf(239));
    const auto launcher = app.Start();
    Click(*launcher, nameOf(239));
    ExpectNoStart(
        app,
        *launcher,
        launcher->lang.Text(388, {app.folder.Path(u"Games/"_s + nameOf(239)), u"239"_s, u"238"_s}));
    Click(*launcher, nameOf(238));
    EXPECT_TRUE(Starts(app, *launcher)) << Notes(*launcher).toStdString();
}

TEST(LaunchFaults, AutoexecTooLong)
{
    Installation app;
    app.AddGame(u"별"_s);
    const auto launcher = app.Start();
    launcher->screens.start.lstAutoexec = QStringList(100, QString(60, u'x'));
    ExpectNoStart(app, *launcher, QString::number(running::kAutoexecBytes));
    // Up to the last byte that the emulator takes.
    launcher->screens.start.lstAutoexec = {u"x"_s};
    ASSERT_TRUE(Starts(app, *launcher));
    QByteArray section = app.folder.ReadRaw(kConf);
    section = section.mid(section.indexOf("[autoexec]\r\n") + 12).replace("\r\n", "\n");
    const qsizetype left = running::kAutoexecBytes - section.size();
    QFile::remove(app.folder.Path(kConf));
    launcher->recent = shell::RecentList();
    launcher->screens.start.lstAutoexec = {QString(left + 2, u'x')};
    ExpectNoStart(app, *launcher, QString::number(running::kAutoexecBytes));
    launcher->screens.start.lstAutoexec = {QString(left + 1, u'x')};
    EXPECT_TRUE(Starts(app, *launcher)) << Notes(*launcher).toStdString();
}

TEST(LaunchFaults, PercentInANameIsDoubledAndStarts)
{
    Installation app;
    app.AddGame(u"100% 별 %PATH%"_s);
    const auto launcher = app.Start();
    ASSERT_TRUE(Starts(app, *launcher));
    EXPECT_EQ(Notes(*launcher), QString());
    const QByteArray conf = app.folder.ReadRaw(kConf);
    const QByteArray games = app.folder.Path(u"Games/"_s).toUtf8();
    EXPECT_TRUE(conf.contains("\r\nMount c \"" + games + u"100%% 별 %%PATH%%\"\r\n"_s.toUtf8()));
    EXPECT_TRUE(conf.contains("\r\ncaptures=" + games + u"100% 별 %PATH%/DosBox\r\n"_s.toUtf8()))
        << "no batch line: the name as it stands";
}

TEST(LaunchFaults, KoreanStartFile)
{
    struct Row {
        QStringList commands;
        QString told; // empty: it starts
    };
    const Row rows[] = {
        {{u"게임.exe"_s}, u"게임.exe"_s},
        {{u"echo 안녕"_s, u"cd 자료"_s, u"play.exe"_s}, u"자료"_s},
        {{u"call 시작.bat"_s}, u"시작.bat"_s},
        {{u"mount d \"/mnt/둘째 판\""_s, u"play.exe"_s}, u"둘째 판"_s},
        {{u"imgmount d 판.iso -t iso"_s}, u"판.iso"_s},
        {{u"echo 안녕하세요, 별입니다."_s, u"rem 게임.exe"_s, u"game.com"_s}, QString()},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.commands.join(u" | "_s).toStdString());
        Installation app;
        app.AddGame(u"별"_s);
        app.folder.MakeTree({u"Games/별/게임.exe"_s, u"Games/별/시작.bat"_s, u"Games/별/자료/"_s});
        const auto launcher = app.Start();
        launcher->screens.start.lstAutoexec = row.commands;
        if (row.told.isEmpty()) {
            EXPECT_TRUE(Starts(app, *launcher));
            EXPECT_EQ(Notes(*launcher), QString());
        } else {
            ExpectNoStart(app, *launcher, row.told + launcher->lang.Text(390, {QString()}));
        }
    }
}

} // namespace
