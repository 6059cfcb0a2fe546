#include "library/CatalogueCommands.h"
#include "library/DeleteCommands.h"
#include "library/InfoCommands.h"
#include "library/ShowinfoCommands.h"
#include "running/RunCommands.h"
#include "shell/JobCommands.h"
#include "shell/LifecycleCommands.h"
#include "support/Installation.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using platform::Answer;
using test::Installation;
using Kind = test::ScriptedPrompts::Kind;

namespace {

class DeleteGames : public testing::Test {
public:
    /// Folders a, b, c ... whose titles are alike in pairs.
    void StartWith(int games)
    {
        for (int i = 0; i < games; ++i) {
            const QString folder = QChar(u'a' + i);
            app.AddGame(folder);
            app.folder.WriteText(
                u"Games/%1/DosBox/info.txt"_s.arg(folder), u"게임 %1\u0003Game %1"_s.arg(i / 2));
        }
        launcher = app.Start();
        launcher->screens.frame.panelsEnabled.SetListener(
            [this](std::uint32_t) { panels << launcher->screens.frame.picBack0Enabled; });
    }
    void Select(const QStringList& folders) const
    {
        finding::GameList& list = launcher->screens.list;
        list.selectedRows.clear();
        for (const QString& folder : folders) {
            list.selectedRows.push_back(list.RowOf(folder));
        }
        std::sort(list.selectedRows.begin(), list.selectedRows.end());
        list.selected = list.selectedRows.empty() ? -1 : list.selectedRows.back();
        library::LVGamelist_SelectionMoved(*launcher);
    }
    QString Listed() const
    {
        QString folders;
        for (const finding::GameItem& item : launcher->screens.list.items) {
            folders += item.Folder();
        }
        return folders;
    }
    QString OnDisk() const
    {
        return QDir(app.folder.Path(u"Games"_s))
            .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
            .join(QString());
    }
    void ExpectConsistent() const
    {
        for (std::size_t i = 0; i < launcher->catalogue.size(); ++i) {
            EXPECT_EQ(launcher->catalogue[i].ListIndex, static_cast<int>(i) + 1);
        }
        EXPECT_EQ(launcher->icons.Count(), static_cast<int>(launcher->catalogue.size()));
        EXPECT_FALSE(launcher->flags.JobHeld);
        EXPECT_TRUE(launcher->flags.BusyReady);
        EXPECT_FALSE(launcher->screens.notice.visible);
        const QString current = launcher->current.CurrentFolder;
        EXPECT_EQ(launcher->screens.details.folder, current);
        const int selected = launcher->screens.list.selected;
        EXPECT_EQ(
            selected < 0 ? QString()
                         : launcher->screens.list.items.at(std::size_t(selected)).Folder(),
            current);
    }

    Installation app;
    std::unique_ptr<shell::Launcher> launcher;
    QList<bool> panels;
};

TEST_F(DeleteGames, OneGameGoesAfterAYesAndItsNeighbourIsShown)
{
    StartWith(4);
    Select({u"b"_s});
    app.fakes.prompts.WillAnswer(Answer::No);
    library::DeleteSelectedGames(*launcher);
    EXPECT_EQ(OnDisk(), u"abcd"_s);
    ASSERT_EQ(app.fakes.prompts.Asked().size(), 1U);
    const auto& question = app.fakes.prompts.Asked().front();
    EXPECT_TRUE(question.noByDefault);
    EXPECT_EQ(question.buttons, platform::Buttons::YesNo);
    EXPECT_TRUE(question.text.contains(u"게임 0  —  b"_s)) << question.text.toStdString();
    EXPECT_TRUE(question.text.contains(u"파일: "_s));

    app.fakes.prompts.WillAnswer(Answer::Yes);
    library::DeleteSelectedGames(*launcher);
    EXPECT_EQ(OnDisk(), u"acd"_s);
    EXPECT_EQ(Listed(), u"acd"_s);
    EXPECT_EQ(app.fakes.bin.Moved(), QStringList{app.folder.Path(u"Games/b"_s)});
    EXPECT_EQ(launcher->current.CurrentFolder, u"c"_s);
    ExpectConsistent();

    // The last row: the one above takes over.
    Select({u"d"_s});
    app.fakes.prompts.WillAnswer(Answer::Yes);
    library::DeleteSelectedGames(*launcher);
    EXPECT_EQ(launcher->current.CurrentFolder, u"c"_s);
    EXPECT_EQ(app.fakes.prompts.Asked().size(), 3U);
    ExpectConsistent();

    launcher->screens.list.Select(-1);
    library::DeleteSelectedGames(*launcher);
    EXPECT_EQ(OnDisk(), u"ac"_s);
}

TEST_F(DeleteGames, OneQuestionForSeveralAndARefusalIsReported)
{
    StartWith(5);
    Select({u"a"_s, u"b"_s, u"d"_s});
    app.fakes.bin.refused << app.folder.Path(u"Games/b"_s);
    app.fakes.prompts.WillAnswer(Answer::Yes);
    library::DeleteSelectedGames(*launcher);
    EXPECT_EQ(OnDisk(), u"bce"_s);
    EXPECT_EQ(Listed(), u"bce"_s);
    ASSERT_EQ(app.fakes.prompts.Asked().size(), 2U);
    EXPECT_TRUE(app.fakes.prompts.Asked()[0].text.contains(u"3개"_s));
    const auto& report = app.fakes.prompts.Asked()[1];
    EXPECT_EQ(report.kind, Kind::Report);
    EXPECT_EQ(report.title, u"게임 삭제 결과"_s);
    EXPECT_EQ(report.text, u"삭제하지 못함 : 게임 0 ==> "_s + app.folder.Path(u"Games/b"_s));
    EXPECT_EQ(launcher->current.CurrentFolder, u"b"_s) << "what stayed keeps the selection";
    ExpectConsistent();
}

TEST_F(DeleteGames, TheWindowLivesMeanwhileAndTheUserMayGiveUp)
{
    StartWith(6);
    Select({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    QStringList seen;
    app.fakes.timers.onPendingEvents = [&] {
        const shell::BatchProgress& batch = launcher->screens.notice.batch;
        if (!batch.visible) {
            return;
        }
        seen << batch.Label3 + u' ' + batch.Label4;
        EXPECT_FALSE(launcher->screens.frame.picBack0Enabled);
        library::DeleteSelectedGames(*launcher); // a second Delete asks nothing
        if (seen.size() == 3) {
            shell::Command1_Click(*launcher);
            EXPECT_EQ(launcher->screens.notice.lblMessage, u"작업을 중단하는 중입니다"_s);
        }
    };
    app.fakes.prompts.WillAnswer(Answer::Yes);
    library::DeleteSelectedGames(*launcher);
    app.fakes.timers.onPendingEvents = nullptr;
    EXPECT_EQ(seen, (QStringList{u"1 / 4 게임 0"_s, u"2 / 4 게임 0"_s, u"3 / 4 게임 1"_s}));
    EXPECT_EQ(OnDisk(), u"cdef"_s);
    EXPECT_EQ(launcher->screens.list.selectedRows, (std::vector<int>{0, 1}));
    EXPECT_FALSE(launcher->screens.notice.batch.visible);
    ExpectConsistent();

    // The next job starts afresh. To close the window is to give up too.
    app.fakes.timers.onPendingEvents = [&] {
        if (launcher->screens.notice.batch.value == 1) {
            EXPECT_FALSE(shell::Form_Unload(*launcher));
        }
    };
    app.fakes.prompts.WillAnswer(Answer::Yes);
    library::DeleteSelectedGames(*launcher);
    app.fakes.timers.onPendingEvents = nullptr;
    EXPECT_EQ(OnDisk(), u"def"_s);
    app.fakes.prompts.WillAnswer(Answer::Yes);
    library::DeleteSelectedGames(*launcher);
    EXPECT_EQ(OnDisk(), u"ef"_s);
    EXPECT_EQ(launcher->current.CurrentFolder, u"e"_s);
}

TEST_F(DeleteGames, TheLastGamesLeaveAnEmptyLibrary)
{
    StartWith(2);
    Select({u"a"_s, u"b"_s});
    app.fakes.prompts.WillAnswer(Answer::Yes);
    library::DeleteSelectedGames(*launcher);
    EXPECT_EQ(OnDisk(), QString());
    EXPECT_FALSE(launcher->screens.frame.picBack0Enabled);
    EXPECT_FALSE(launcher->screens.frame.picBack1Enabled);
    EXPECT_EQ(
        app.fakes.prompts.Asked().back().text,
        launcher->lang[135] + u"\r\n\r\n"_s + launcher->lang[134]);
    EXPECT_EQ(launcher->screens.frame.caption, launcher->WindowTitle);
    EXPECT_EQ(launcher->screens.details.txtTitle[0], QString());
    EXPECT_TRUE(launcher->screens.start.lstAutoexec.isEmpty());
    EXPECT_EQ(launcher->screens.status.folder, QString());
    ExpectConsistent();
    // Nothing is left to save to.
    library::WriteGameInfo(*launcher);
    EXPECT_EQ(OnDisk(), QString());
}

TEST_F(DeleteGames, ASearchThatHitsNothingElseLeavesNoGameShown)
{
    StartWith(4);
    launcher->screens.search.txtFind = u"게임 1"_s;
    finding::GameRows& rows = launcher->screens.list.items;
    const finding::GameItem c = rows[2];
    const finding::GameItem d = rows[3];
    rows.clear();
    rows.push_back(c);
    rows.push_back(d);
    Select({u"c"_s, u"d"_s});
    app.fakes.prompts.WillAnswer(Answer::Yes);
    library::DeleteSelectedGames(*launcher);
    EXPECT_EQ(Listed(), QString());
    EXPECT_EQ(launcher->catalogue.size(), 2U);
    EXPECT_EQ(launcher->current.CurrentFolder, QString());
    ExpectConsistent();
}

TEST_F(DeleteGames, ARunningGameStaysAndAVanishedOneOnlyLeavesTheList)
{
    StartWith(4);
    Select({u"a"_s});
    running::RunGame(*launcher);
    ASSERT_EQ(app.fakes.processes.Starts().size(), 1U);
    Select({u"a"_s, u"b"_s});
    // Another program takes it away while the question stands.
    app.fakes.prompts.WillAnswer(
        Answer::Yes, [&] { QDir(app.folder.Path(u"Games/b"_s)).removeRecursively(); });
    library::DeleteSelectedGames(*launcher);
    EXPECT_EQ(OnDisk(), u"acd"_s);
    EXPECT_EQ(Listed(), u"acd"_s);
    EXPECT_EQ(
        app.fakes.prompts.Asked().back().text, u"삭제하지 못함 : 게임 0 ==> 실행 중입니다."_s);
    ExpectConsistent();

    app.fakes.processes.End(0, 60'000);
    app.fakes.prompts.WillAnswer(Answer::Yes);
    library::DeleteSelectedGames(*launcher);
    EXPECT_EQ(OnDisk(), u"cd"_s);

    // An unplugged disk takes no game out of the list.
    ASSERT_TRUE(QDir(app.folder.Path()).rename(u"Games"_s, u"Unplugged"_s));
    Select({u"c"_s});
    app.fakes.prompts.WillAnswer(Answer::Yes);
    library::DeleteSelectedGames(*launcher);
    EXPECT_EQ(Listed(), u"cd"_s);
    EXPECT_EQ(app.fakes.prompts.Asked().back().kind, Kind::Report);
    ExpectConsistent();
}

} // namespace
