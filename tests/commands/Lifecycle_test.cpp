#include "finding/FilterCommands.h"
#include "finding/TreeNodes.h"
#include "library/CatalogueCommands.h"
#include "shell/JobCommands.h"
#include "shell/LifecycleCommands.h"
#include "support/Installation.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using test::Holds;
using test::Installation;

TEST(Lifecycle, FirstStartMakesWhatIsMissingAndShowsTheFirstGame)
{
    Installation app;
    app.AddGame(u"별 헤는 밤 (Star) [1]"_s, u"DOSBOX"_s);
    app.AddGame(u"가나다"_s);
    const auto launcher = app.Start();

    EXPECT_EQ(launcher->WindowTitle, u"[펠로린 Ver.16.10.01.03] by 베스프라"_s);
    ASSERT_EQ(launcher->screens.list.items.size(), 2U);
    EXPECT_EQ(launcher->current.CurrentFolder, u"가나다"_s);
    EXPECT_EQ(launcher->screens.frame.caption, u"가나다 : ["_s + launcher->WindowTitle + u']');
    EXPECT_TRUE(launcher->screens.status.count.endsWith(u"2 / 2"_s));
    EXPECT_EQ(launcher->screens.start.lstAutoexec, QStringList{u"game.com"_s});
    EXPECT_TRUE(launcher->flags.BusyReady);
    EXPECT_TRUE(launcher->screens.frame.picBack0Enabled);
    EXPECT_FALSE(launcher->screens.progress.visible);
    for (const QString& made : test::Words(u"Launcher.cfg Default.conf Export preset"_s)) {
        EXPECT_TRUE(app.folder.Exists(made)) << made;
    }
    EXPECT_TRUE(app.folder.Exists(u"Games/별 헤는 밤 (Star) [1]/DOSBOX/autoexec.conf"_s));
    EXPECT_FALSE(app.folder.Exists(u"Games/별 헤는 밤 (Star) [1]/DosBox"_s));
    EXPECT_TRUE(launcher->screens.status.notes.empty());
}

TEST(Lifecycle, TheLanguageFileDecidesWordsMarksAndOrder)
{
    struct Row {
        QString language;
        QString title;
        QString first;
        QString marked;
        QString count;
    };
    const QString korean = u"[펠로린 Ver.16.10.01.03] by 베스프라"_s;
    const QString english = u"[Pelorin Ver.16.10.01.03] by mirel55"_s;
    const Row rows[] = {
        {u"ko"_s, korean, u"가나다"_s, u"가나다 [편집]"_s, u"전체 게임 수 : 2 / 2"_s},
        {u"en"_s, english, u"Zebra"_s, u"가나다 [Ed]"_s, u"Games: 2 / 2"_s},
    };
    for (const Row& row : rows) {
        Installation app(row.language);
        app.AddGame(u"가나다"_s);
        app.AddGame(u"Zebra"_s);
        app.folder.WriteRaw(u"Games/가나다/DosBox/edit.conf"_s, QByteArray());
        const auto launcher = app.Start();
        EXPECT_EQ(launcher->WindowTitle, row.title);
        EXPECT_EQ(launcher->current.CurrentFolder, row.first);
        EXPECT_EQ(launcher->screens.status.count, row.count);
        const finding::GameList& list = launcher->screens.list;
        const auto marked = static_cast<std::size_t>(list.RowOf(u"가나다"_s));
        EXPECT_EQ(list.items.at(marked).text[0], row.marked);
    }
}

TEST(Lifecycle, WhatOneRunSavesTheNextOneReadsWithoutOpeningAGame)
{
    Installation app;
    app.AddGame(u"하나"_s);
    app.AddGame(u"둘"_s);
    {
        const auto first = app.Start();
        first->screens.list.view = finding::View::Details;
        ASSERT_TRUE(shell::Form_Unload(*first));
    }
    const QByteArray list = app.folder.ReadRaw(u"Gamelist.lst"_s);
    const QByteArray sheet = app.folder.ReadRaw(u"IconList.bmp"_s);
    // A title that only the cache can know.
    QByteArray changed = list;
    ASSERT_TRUE(changed.contains("\x01\xb5\xd1\x03"));
    changed.replace("\x01\xb5\xd1\x03", "\x01\xb6\xd1\x03");
    app.folder.WriteRaw(u"Gamelist.lst"_s, changed);

    const auto second = app.Start();
    EXPECT_EQ(second->screens.list.view, finding::View::Details);
    EXPECT_NE(second->catalogue.at(0).TitleK, second->catalogue.at(0).TitleE);
    ASSERT_TRUE(shell::Form_Unload(*second));
    EXPECT_EQ(app.folder.ReadRaw(u"Gamelist.lst"_s), changed);
    EXPECT_EQ(app.folder.ReadRaw(u"IconList.bmp"_s), sheet);
}

TEST(Lifecycle, NoCacheIsReadUnderAnotherRootThanItsOwn)
{
    Installation app;
    app.AddGame(u"집"_s);
    app.folder.MakeTree({u"Disk/셋/GO.EXE"_s});
    const auto away = app.Start();
    away->places.gamesRoot = app.folder.Path(u"Disk"_s);
    library::cmdRefresh_Click(*away);
    ASSERT_TRUE(shell::Form_Unload(*away));
    const QByteArray list = app.folder.ReadRaw(u"Gamelist.lst"_s);
    ASSERT_TRUE(list.startsWith("\xbc\xc2\x01"));
    const QByteArray settings = app.folder.ReadRaw(u"Launcher.cfg"_s);

    const auto startsAtHome = [&](const char* why) {
        const auto launcher = app.Start();
        ASSERT_EQ(launcher->catalogue.size(), 1U) << why;
        EXPECT_EQ(launcher->catalogue[0].Folder, u"집"_s) << why;
        EXPECT_FALSE(launcher->screens.status.notes.empty()) << why;
        ASSERT_TRUE(shell::Form_Unload(*launcher));
        EXPECT_TRUE(app.folder.ReadRaw(u"Gamelist.lst"_s).startsWith("\xc1\xfd\x01")) << why;
    };
    QFile::rename(app.folder.Path(u"Disk"_s), app.folder.Path(u"Unplugged"_s));
    startsAtHome("the root is gone");
    QFile::rename(app.folder.Path(u"Unplugged"_s), app.folder.Path(u"Disk"_s));
    app.folder.WriteRaw(u"Gamelist.lst"_s, list);
    app.folder.WriteRaw(u"Launcher.cfg"_s, "damaged");
    startsAtHome("the settings were replaced");
    // The former settings are put back: the list that stands there is the other root's.
    app.folder.WriteRaw(u"Launcher.cfg"_s, settings);
    const auto back = app.Start();
    ASSERT_EQ(back->catalogue.size(), 1U);
    EXPECT_EQ(back->catalogue[0].Folder, u"셋"_s);
}

TEST(Lifecycle, ProgressIsOverWhenTheListIsFilledAndTheTreeFollowsItInAScan)
{
    Installation app;
    app.AddGame(u"하나"_s);
    app.folder.WriteText(u"Games/하나/DosBox/GenreK.dat"_s, u"퍼즐"_s);
    struct Sight {
        bool progress = true;
        bool newGenre = false;
    } atCount;
    shell::Launcher* seen = nullptr;
    const auto look = [&] {
        const QStringList genres =
            finding::ChildTexts(seen->screens.tree, finding::Category::GenreK);
        atCount = {seen->screens.progress.visible, genres.contains(u"퍼즐"_s)};
    };
    const auto launcher = app.NewLauncher();
    seen = launcher.get();
    app.fakes.timers.onPendingEvents = look; // the last time for the count of the list
    ASSERT_TRUE(shell::Form_Load(*launcher));
    EXPECT_FALSE(atCount.progress);
    EXPECT_FALSE(atCount.newGenre);
    ASSERT_TRUE(shell::Form_Unload(*launcher));

    const auto cached = app.NewLauncher();
    seen = cached.get();
    ASSERT_TRUE(shell::Form_Load(*cached));
    EXPECT_FALSE(atCount.progress);
    EXPECT_TRUE(atCount.newGenre);
}

TEST(Lifecycle, EmptyLibraryIsToldOnceAndDisablesThePanels)
{
    Installation app;
    app.folder.WriteRaw(u"IconList.bmp"_s, "stale");
    const auto launcher = app.Start();
    ASSERT_EQ(app.fakes.prompts.Asked().size(), 1U);
    EXPECT_EQ(
        app.fakes.prompts.Asked().front().text,
        launcher->lang[135] + u"\r\n\r\n"_s + launcher->lang[134]);
    EXPECT_FALSE(launcher->screens.frame.picBack0Enabled);
    EXPECT_FALSE(launcher->screens.frame.picBack1Enabled);
    EXPECT_FALSE(app.folder.Exists(u"IconList.bmp"_s));
    EXPECT_TRUE(launcher->flags.BusyReady);

    // A game appears: the scan enables them again.
    app.AddGame(u"하나"_s);
    library::cmdRefresh_Click(*launcher);
    EXPECT_TRUE(launcher->screens.frame.picBack1Enabled);
    EXPECT_EQ(launcher->current.CurrentFolder, u"하나"_s);
    EXPECT_TRUE(shell::Form_Unload(*launcher));
}

TEST(Lifecycle, ClosingIsRefusedDuringAJobAndAsksWhenSavingFails)
{
    Installation app;
    app.AddGame(u"하나"_s);
    const auto launcher = app.Start();
    {
        const shell::Job job(*launcher);
        EXPECT_FALSE(shell::Form_Unload(*launcher));
        EXPECT_FALSE(shell::Job(*launcher).Held());
        EXPECT_FALSE(launcher->flags.BusyReady);
    }
    EXPECT_TRUE(app.fakes.prompts.Asked().empty());

    // A folder in the file's place can't be replaced by a file.
    QFile::remove(app.folder.Path(u"Launcher.cfg"_s));
    app.folder.MakeTree({u"Launcher.cfg/x"_s});
    app.fakes.prompts.WillAnswer(platform::Answer::No);
    EXPECT_FALSE(shell::Form_Unload(*launcher));
    ASSERT_EQ(app.fakes.prompts.Asked().size(), 1U);
    EXPECT_PRED2(Holds, app.fakes.prompts.Asked().front().text, u"Launcher.cfg"_s);
    EXPECT_FALSE(launcher->flags.Ending);
    app.fakes.prompts.WillAnswer(platform::Answer::Yes);
    EXPECT_TRUE(shell::Form_Unload(*launcher));
}

TEST(Lifecycle, NothingElseStartsWhileItSavesToClose)
{
    Installation app;
    for (int i = 0; i < 30; ++i) {
        app.AddGame(u"Game%1"_s.arg(i));
    }
    const auto launcher = app.Start();
    for (int i = 1; i < 30; ++i) {
        QDir(app.folder.Path(u"Games/Game%1"_s.arg(i))).removeRecursively();
    }
    int runs = 0;
    app.fakes.timers.onPendingEvents = [&] {
        ++runs;
        EXPECT_FALSE(launcher->screens.frame.picBack0Enabled);
        library::cmdRefresh_Click(*launcher);
        EXPECT_FALSE(shell::Form_Unload(*launcher));
    };
    EXPECT_TRUE(shell::Form_Unload(*launcher));
    EXPECT_GT(runs, 5);
    app.fakes.timers.onPendingEvents = nullptr;
    EXPECT_EQ(launcher->catalogue.size(), 30U);
    EXPECT_EQ(app.folder.ReadRaw(u"Gamelist.lst"_s).count('\x02'), 29);
}

TEST(Lifecycle, ObsoleteEmulatorFolderGoesToTheBin)
{
    Installation app;
    app.AddGame(u"하나"_s);
    app.folder.MakeTree({u"Emulator/np21/saved.bin"_s});
    app.Start();
    EXPECT_FALSE(app.folder.Exists(u"Emulator/np21"_s));
    EXPECT_EQ(app.fakes.bin.Moved().size(), 1);

    // A link that leads nowhere now is something, too; nothing at all needs no bin.
    app.folder.MakeFolder(u"Emulator/NP21"_s);
    app.folder.MakeLink(u"Emulator/NP21/disk"_s, u"/unplugged"_s);
    app.Start();
    EXPECT_EQ(app.fakes.bin.Moved().size(), 2);
    app.folder.MakeFolder(u"Emulator/NP21"_s);
    app.Start();
    EXPECT_FALSE(app.folder.Exists(u"Emulator/NP21"_s));
    EXPECT_EQ(app.fakes.bin.Moved().size(), 2);

    app.folder.MakeTree({u"Elsewhere/precious"_s});
    app.folder.MakeLink(u"Emulator/NP21"_s, app.folder.Path(u"Elsewhere"_s));
    app.Start();
    EXPECT_TRUE(app.folder.Exists(u"Elsewhere/precious"_s));
    EXPECT_TRUE(app.folder.Exists(u"Emulator/NP21"_s));
}

TEST(GameList, AHeaderClickSortsAndASecondOneReverses)
{
    Installation app;
    for (const QString& game : {u"가"_s, u"나"_s, u"다"_s}) {
        app.AddGame(game);
    }
    for (const auto& [game, maker] : {std::pair(u"가"_s, u"N"_s), std::pair(u"나"_s, u"A"_s)}) {
        app.folder.WriteText(u"Games/%1/DosBox/ExtraInfo.txt"_s.arg(game), maker);
    }
    const auto launcher = app.Start();
    finding::GameList& list = launcher->screens.list;
    test::Click(*launcher, u"나"_s);
    const auto clicked = [&](int column) {
        finding::LVGamelist_ColumnClick(*launcher, column);
        QString order;
        for (const finding::GameItem& item : list.items) {
            order += item.Folder();
        }
        EXPECT_EQ(list.items.at(static_cast<std::size_t>(list.selected)).Folder(), u"나"_s);
        return order;
    };
    constexpr int kMaker = 4;
    EXPECT_EQ(clicked(kMaker), u"다나가"_s); // empty, A, N
    EXPECT_EQ(clicked(kMaker), u"가나다"_s);
    EXPECT_EQ(clicked(0), u"가나다"_s);
    EXPECT_EQ(clicked(0), u"다나가"_s);
    EXPECT_EQ(clicked(finding::kColumns), u"다나가"_s);
    EXPECT_EQ(launcher->current.CurrentFolder, u"나"_s);
    // All that is selected stays so; a term that was only typed is no search; edits stay.
    list.selectedRows = {1, 2};
    launcher->screens.search.txtFind = u"가"_s;
    launcher->screens.start.lstAutoexec = QStringList{u"mine.exe"_s};
    EXPECT_EQ(clicked(0), u"가나다"_s);
    EXPECT_EQ(list.selectedRows, (std::vector<int>{0, 1}));
    EXPECT_EQ(launcher->screens.start.lstAutoexec, QStringList{u"mine.exe"_s});
    list.Select(-1);
    finding::LVGamelist_ColumnClick(*launcher, 0);
    EXPECT_EQ(list.selected, -1);
    EXPECT_EQ(launcher->current.CurrentFolder, u"나"_s);
}

TEST(GameList, RowsMakeThePanelsUsableAtOnceOrAtTheEndOfTheJob)
{
    Installation app;
    const auto launcher = app.Start();
    const shell::MainFrame& frame = launcher->screens.frame;
    finding::RefreshGameList(*launcher);
    EXPECT_FALSE(frame.picBack0Enabled);
    library::GameEntry entry;
    entry.Folder = u"새"_s;
    launcher->catalogue.Append(entry);
    {
        const shell::Job job(*launcher);
        finding::RefreshGameList(*launcher);
        EXPECT_FALSE(frame.picBack0Enabled);
    }
    EXPECT_TRUE(frame.picBack0Enabled && frame.picBack1Enabled);
    shell::SetPanelsEnabled(*launcher, false);
    {
        const shell::Job job(*launcher); // nothing of the former one's is left
    }
    EXPECT_FALSE(frame.picBack0Enabled);
    finding::RefreshGameList(*launcher);
    EXPECT_TRUE(frame.picBack0Enabled && frame.picBack1Enabled);
}

TEST(Notice, BlinksBlackRedBlueWhileItStands)
{
    Installation app;
    const auto launcher = app.NewLauncher();
    shell::BusyNotice& notice = launcher->screens.notice;
    shell::ShowBusyMessage(*launcher, u"일"_s);
    QList<std::uint32_t> colours;
    for (int tick = 0; tick < 4; ++tick) {
        app.fakes.timers.Advance(500);
        colours << notice.colour;
    }
    EXPECT_EQ(colours, (QList<std::uint32_t>{255, 16711680, 0, 255}));
    shell::HideBusyMessage(*launcher);
    EXPECT_FALSE(notice.visible);
    EXPECT_EQ(app.fakes.timers.Running(), 0);
    // The next one begins in black, and goes on in its colour when its words change.
    shell::ShowBusyMessage(*launcher, u"이"_s);
    EXPECT_EQ(notice.colour, 0U);
    app.fakes.timers.Advance(500);
    shell::ShowBusyMessage(*launcher, u"삼"_s);
    EXPECT_EQ(notice.colour, 255U);
}
