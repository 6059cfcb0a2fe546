#include "library/ShowinfoCommands.h"
#include "running/RunCommands.h"
#include "running/RunMenuCommands.h"
#include "shell/JobCommands.h"
#include "support/Installation.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using test::Click;
using test::Holds;
using test::Installation;
using test::Words;

namespace {

QString LastNote(const shell::Launcher& launcher)
{
    return launcher.screens.status.notes.empty() ? QString()
                                                 : launcher.screens.status.notes.back().text;
}

const shell::MenuEntry* EntryOf(const shell::MenuModel& menu, int index)
{
    for (const shell::MenuEntry& entry : menu) {
        if (entry.index == index) {
            return &entry;
        }
    }
    return nullptr;
}

} // namespace

TEST(Run, StartsTheSelectedGameWithItsConf)
{
    Installation app;
    const QString game = u"별 헤는 밤 (Star) [1]"_s;
    app.AddGame(game, u"DOSBOX"_s);
    const auto launcher = app.Start();
    library::LVGamelist_DblClick(*launcher);

    ASSERT_EQ(app.fakes.processes.Starts().size(), 1U);
    const platform::ProcessRequest& request = app.fakes.processes.Starts().front().request;
    EXPECT_EQ(request.program, app.folder.Path(u"DOSBox/0.74_SVN/dosbox"_s));
    EXPECT_EQ(request.arguments, Words(u"-nolog -disable_numlock_check -noconsole"_s));
    EXPECT_EQ(request.workingFolder, app.folder.Path(u"DOSBox/0.74_SVN"_s));

    const QString conf = QString::fromUtf8(app.folder.ReadRaw(u"DOSBox/0.74_SVN/dosbox.conf"_s));
    const QString gameDir = app.folder.Path(u"Games/"_s + game);
    for (const QString& line :
         {u"\r\nMount c \"%1\"\r\n"_s,
          u"\r\ncaptures=%1/DOSBOX\r\n"_s,
          u"\r\nMount x ../../Dos/Util\r\n"_s,
          u"\r\nc:\r\ngame.com\r\n"_s}) {
        EXPECT_PRED2(Holds, conf, QString(line).replace(u"%1"_s, gameDir));
    }
    EXPECT_TRUE(launcher->screens.status.notes.empty());
    EXPECT_EQ(launcher->recent.RecentFolders[0], game);
}

TEST(Run, UnsavedStartCommandsCountAndTheGamesOwnSettingsRule)
{
    Installation app;
    app.AddGame(u"하나"_s);
    app.folder.WriteScript(u"DOSBox/0.74/dosbox_debug"_s, u"exit 0\n"_s);
    const auto launcher = app.Start();
    // Build 1 is "0.74", and cell (2,0) switches the log on.
    QStringList own = app.folder.ReadLines(u"Default.conf"_s);
    own[1] = u"1"_s;
    own[1 + 2 * 81] = QString::number(launcher->options.Values({2, 0}).indexOf(u"true"_s));
    app.folder.WriteLines(u"Games/하나/DosBox/edit.conf"_s, own);
    Click(*launcher, u"하나"_s);
    launcher->screens.start.lstAutoexec = {u"cd data"_s, u"other.exe"_s};
    running::RunGame(*launcher);

    ASSERT_EQ(app.fakes.processes.Starts().size(), 1U);
    const platform::ProcessRequest& request = app.fakes.processes.Starts().front().request;
    EXPECT_EQ(request.program, app.folder.Path(u"DOSBox/0.74/dosbox_debug"_s));
    EXPECT_FALSE(request.arguments.contains(u"-noconsole"_s));
    const QByteArray conf = app.folder.ReadRaw(u"DOSBox/0.74/dosbox.conf"_s);
    EXPECT_TRUE(conf.endsWith("c:\r\ncd data\r\nother.exe\r\n"));
    EXPECT_TRUE(conf.contains("waitonerror=true"));
}

TEST(Run, AMovingSelectionStartsWithItsOwnCommandsAndCd)
{
    Installation app;
    app.AddGame(u"하나"_s);
    app.AddGame(u"둘"_s);
    app.folder.MakeTree({u"Games/하나/DosBox/CD/a.iso"_s});
    app.folder.WriteLines(u"Games/하나/DosBox/CD.conf"_s, {u"0"_s, u"1"_s});
    app.folder.WriteLines(u"Games/둘/DosBox/autoexec.conf"_s, {u"two.exe"_s});
    const auto launcher = app.Start();
    Click(*launcher, u"하나"_s);
    launcher->screens.list.Select(launcher->screens.list.RowOf(u"둘"_s));
    library::LVGamelist_DblClick(*launcher);
    QByteArray conf = app.folder.ReadRaw(u"DOSBox/0.74_SVN/dosbox.conf"_s);
    EXPECT_TRUE(conf.endsWith("\r\nc:\r\ntwo.exe\r\n")) << "neither game.com nor a CD";
    EXPECT_EQ(launcher->screens.details.folder, u"둘"_s);

    Click(*launcher, u"하나"_s);
    launcher->screens.start.lstAutoexec = {u"unsaved.exe"_s};
    library::LVGamelist_DblClick(*launcher);
    conf = app.folder.ReadRaw(u"DOSBox/0.74_SVN/dosbox.conf"_s);
    EXPECT_TRUE(conf.endsWith("a.iso\" -t iso\r\n\r\nunsaved.exe\r\n"));
}

TEST(Run, SettingsOfAnOlderLayoutNameTheirBuildAtTheFirstStart)
{
    Installation app;
    app.AddGame(u"하나"_s);
    app.folder.WriteScript(u"DOSBox/0.74/dosbox"_s, u"exit 0\n"_s);
    // 11 groups of 21: the build stands at (1,4), and line 2 is the full screen's.
    QStringList old(1 + 11 * 21, u"0"_s);
    old[0] = u"ver.10.11.21"_s;
    old[1] = u"14"_s;
    old[1 + 21 + 4] = u"1"_s;
    app.folder.WriteLines(u"Games/하나/DosBox/edit.conf"_s, old);
    const auto launcher = app.Start();
    EXPECT_EQ(launcher->catalogue.at(0).DosboxVersion, 1);
    running::RunGame(*launcher);
    ASSERT_EQ(app.fakes.processes.Starts().size(), 1U) << LastNote(*launcher).toStdString();
    EXPECT_EQ(
        app.fakes.processes.Starts().front().request.program,
        app.folder.Path(u"DOSBox/0.74/dosbox"_s));
}

TEST(Run, TellsWhyNothingStarts)
{
    struct Row {
        QString removed; // a file or folder
        QString made;
        QString build;      // the game's own
        QStringList values; // of what is told, the first one below AppDir where it is a path
        int entry;
        bool written; // dosbox.conf is, and the game has entered the recent list
    };
    const QString svn = u"DOSBox/0.74_SVN"_s;
    const QString game = u"Games/하나"_s;
    const Row rows[] = {
        {svn + u"/dosbox"_s, {}, {}, {svn + u"/dosbox.exe"_s, u"dosbox"_s}, 396, true},
        {svn, {}, {}, {svn}, 395, false},
        {game, {}, {}, {u"하나"_s}, 342, false},
        {{}, game + u"/store.7z"_s, {}, {u"하나"_s}, 343, false},
        {{}, {}, u"77"_s, {u"하나"_s}, 344, false}, // off the list
        {{}, {}, u"14"_s, {u"하나"_s, u"SNES9X"_s}, 345, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.entry);
        Installation app;
        app.AddGame(u"하나"_s);
        const auto launcher = app.Start();
        if (!row.removed.isEmpty()) {
            const QString path = app.folder.Path(row.removed);
            EXPECT_TRUE(QFile::remove(path) || QDir(path).removeRecursively());
        }
        if (!row.made.isEmpty()) {
            app.folder.MakeTree({row.made});
        }
        if (!row.build.isEmpty()) {
            app.folder.WriteLines(game + u"/DosBox/edit.conf"_s, {u"ver.15.02.01"_s, row.build});
        }
        running::RunGame(*launcher);
        QStringList values = row.values;
        if (values.first().startsWith(svn)) {
            values.first() = app.folder.Path(values.first());
        }
        EXPECT_EQ(LastNote(*launcher), launcher->lang.Text(row.entry, values));
        EXPECT_TRUE(app.fakes.processes.Starts().empty());
        EXPECT_EQ(app.folder.Exists(svn + u"/dosbox.conf"_s), row.written);
        EXPECT_EQ(launcher->recent.RecentFolders[0], row.written ? u"하나"_s : QString());
        EXPECT_TRUE(app.fakes.prompts.Asked().empty());
    }
    Installation app;
    app.AddGame(u"하나"_s);
    const auto launcher = app.Start();
    app.fakes.processes.RefuseNext(platform::ErrorKind::Refused, u"no memory"_s);
    running::RunGame(*launcher);
    EXPECT_PRED2(Holds, LastNote(*launcher), u"no memory"_s);
    // An image whose name breaks its line is told, and nothing is written.
    QFile::remove(app.folder.Path(svn + u"/dosbox.conf"_s));
    dosboxconf::CdPanel& cd = launcher->screens.cd;
    cd.chkCD = true;
    cd.CdMountMode = 1;
    cd.lstCD = QStringList{u"a \"b\".iso"_s};
    running::RunGame(*launcher);
    EXPECT_PRED2(Holds, LastNote(*launcher), u"a \"b\".iso"_s);
    EXPECT_FALSE(app.folder.Exists(svn + u"/dosbox.conf"_s));
    QDir(app.folder.Path(u"DOSBox"_s)).removeRecursively();
    running::RunLibraryShell(*launcher);
    EXPECT_EQ(LastNote(*launcher), launcher->lang.Text(427, {app.folder.Path(u"DOSBox"_s)}));
    EXPECT_EQ(launcher->recent.RecentFolders[0], u"하나"_s);
}

TEST(Run, AnEmulatorThatEndsAtOnceTellsItsWholeStory)
{
    Installation app;
    app.AddGame(u"하나"_s);
    const auto launcher = app.Start();
    running::RunGame(*launcher);
    app.fakes.processes.End(0, 3000, "played");
    EXPECT_TRUE(launcher->screens.status.notes.empty());

    running::RunGame(*launcher);
    app.fakes.processes.End(1, 2999, "Can't open display");
    ASSERT_EQ(launcher->screens.status.notes.size(), 1U);
    const QString& story = launcher->screens.status.notes.front().story;
    for (const QString& part :
         Words(u"-disable_numlock_check DOSBox/0.74_SVN display [autoexec]"_s)) {
        EXPECT_PRED2(Holds, story, part);
    }
}

TEST(Run, OffersThePromptForAGameWithoutStartCommands)
{
    Installation app;
    app.folder.MakeTree({u"Games/빈 것/README"_s});
    const auto launcher = app.Start();
    app.fakes.prompts.WillAnswer(platform::Answer::No);
    running::RunGame(*launcher);
    EXPECT_EQ(launcher->screens.frame.tabInfo, 2);
    ASSERT_EQ(app.fakes.prompts.Asked().size(), 1U);
    EXPECT_EQ(app.fakes.prompts.Asked().front().title, launcher->lang[149]);
    EXPECT_EQ(
        app.fakes.prompts.Asked().front().text,
        launcher->lang[177] + u"\r\n\r\n"_s + launcher->lang[178] + u"\r\n\r\n"_s +
            launcher->lang[179]);
    EXPECT_TRUE(app.fakes.processes.Starts().empty());
}

TEST(Run, RecentGamesStandInTheMenuAndStartFromIt)
{
    Installation app;
    app.AddGame(u"A & B"_s);
    app.AddGame(u"하나"_s);
    const auto launcher = app.Start();
    EXPECT_EQ(EntryOf(running::RunMenu(*launcher), 10), nullptr);
    Click(*launcher, u"A & B"_s);
    running::RunGame(*launcher);
    Click(*launcher, u"하나"_s);
    running::RunGame(*launcher);

    const shell::MenuModel menu = running::RunMenu(*launcher);
    ASSERT_NE(EntryOf(menu, 11), nullptr);
    EXPECT_EQ(EntryOf(menu, 10)->text, u"하나"_s);
    EXPECT_EQ(EntryOf(menu, 11)->text, u"A && B"_s);
    EXPECT_TRUE(EntryOf(menu, 4)->separator);
    EXPECT_TRUE(EntryOf(menu, 2)->text.contains(u"하나"_s));

    {
        const shell::Job job(*launcher);
        running::mnuRun_Click(*launcher, 11);
        EXPECT_EQ(launcher->current.CurrentFolder, u"하나"_s);
        EXPECT_EQ(launcher->screens.details.folder, u"하나"_s);
    }
    running::mnuRun_Click(*launcher, 11);
    EXPECT_EQ(launcher->current.CurrentFolder, u"A & B"_s);
    EXPECT_EQ(app.fakes.processes.Starts().size(), 3U);
    EXPECT_EQ(launcher->recent.RecentFolders[0], u"A & B"_s);
    EXPECT_EQ(launcher->recent.RecentFolders[1], u"하나"_s);

    QDir(app.folder.Path(u"Games/하나"_s)).removeRecursively();
    running::mnuRun_Click(*launcher, 11);
    EXPECT_EQ(launcher->current.CurrentFolder, u"A & B"_s);
    EXPECT_EQ(app.fakes.processes.Starts().size(), 3U);
}
