#include "library/ListCommands.h"

#include "library/CatalogueCommands.h"
#include "library/ShowinfoCommands.h"
#include "support/Installation.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using platform::Answer;
using test::Click;
using test::Installation;

namespace {

const shell::MenuEntry* EntryOf(const shell::MenuModel& menu, int index)
{
    for (const shell::MenuEntry& entry : menu) {
        if (entry.index == index) {
            return &entry;
        }
    }
    return nullptr;
}

void SelectAll(shell::Launcher& launcher)
{
    finding::GameList& list = launcher.screens.list;
    list.selectedRows.clear();
    for (int row = 0; row < static_cast<int>(list.items.size()); ++row) {
        list.selectedRows.push_back(row);
    }
}

TEST(ListCommands, FoldersOpenFromBothMenus)
{
    Installation app;
    app.AddGame(u" R&D \"1\" 100%"_s, u"DOSBOX"_s);
    const auto launcher = app.Start();
    const QString game = app.folder.Path(u"Games/ R&D \"1\" 100%"_s);
    for (const int index : {6, 7, 8}) {
        library::mnuGame_Click(*launcher, index);
    }
    for (const int index : {0, 1, 2, 4}) {
        library::mnuFolder_Click(*launcher, index);
    }
    EXPECT_EQ(
        app.fakes.shell.opened,
        (QStringList{
            game,
            game,
            game + u"/DOSBOX"_s,
            game,
            game,
            game + u"/DOSBOX"_s,
            app.folder.Path(u"Games"_s)}));

    app.fakes.shell.opened.clear();
    ASSERT_TRUE(QDir(app.folder.Path(u"Export"_s)).removeRecursively());
    library::mnuFolder_Click(*launcher, 8);
    EXPECT_TRUE(app.folder.Exists(u"Export"_s));
    EXPECT_EQ(app.fakes.shell.opened, QStringList{app.folder.Path(u"Export"_s)});
    EXPECT_TRUE(launcher->screens.status.notes.empty());

    ASSERT_TRUE(QDir(app.folder.Path(u"Export"_s)).removeRecursively());
    app.folder.WriteRaw(u"Export"_s, "in the way");
    library::mnuFolder_Click(*launcher, 8);
    EXPECT_EQ(app.fakes.shell.opened.size(), 1);
    EXPECT_EQ(launcher->screens.status.notes.size(), 1U);
}

TEST(ListCommands, AFolderThatIsGoneIsToldAndNothingOpens)
{
    Installation app;
    app.AddGame(u"하나"_s);
    app.AddGame(u"둘"_s);
    const auto launcher = app.Start();
    Click(*launcher, u"하나"_s);
    ASSERT_TRUE(QDir(app.folder.Path(u"Games/하나/DosBox"_s)).removeRecursively());
    library::mnuGame_Click(*launcher, 8);
    EXPECT_EQ(launcher->screens.status.notes.back().text, u"하나 : 아직 설정 폴더가 없습니다."_s);
    // Another program renames it while it is selected.
    ASSERT_TRUE(QDir(app.folder.Path(u"Games"_s)).rename(u"하나"_s, u"셋"_s));
    for (const int index : {6, 7, 8}) {
        library::mnuGame_Click(*launcher, index);
        EXPECT_EQ(
            launcher->screens.status.notes.back().text, u"하나 : 게임 폴더가 없어졌습니다."_s);
    }
    EXPECT_TRUE(app.fakes.shell.opened.isEmpty());
    EXPECT_EQ(launcher->screens.list.items.size(), 2U);
}

TEST(ListCommands, TheMenusStartDeleteOpenDetailsAndReadAnew)
{
    Installation app;
    app.AddGame(u"하나"_s);
    const auto launcher = app.Start();
    Click(*launcher, u"하나"_s);
    for (const int index : {10, 18}) {
        app.fakes.prompts.WillAnswer(Answer::No);
        library::mnuGame_Click(*launcher, index);
        EXPECT_EQ(app.fakes.prompts.Asked().back().title, u"게임 삭제"_s) << index;
    }
    app.fakes.prompts.WillType(u"192.168.0.2"_s); // of the host, which the client asks for
    const std::pair<int, QString> starts[] = {
        {0, u"game.com"_s},
        {1, u"MDIR"_s},
        {3, u"ipxnet startserver"_s},
        {4, u"ipxnet connect 192.168.0.2"_s}};
    std::size_t started = 0;
    for (const auto& [index, text] : starts) {
        library::mnuGame_Click(*launcher, index);
        ASSERT_EQ(app.fakes.processes.Starts().size(), ++started) << index;
        EXPECT_PRED2(test::Holds, app.folder.ReadText(u"DOSBox/0.74_SVN/dosbox.conf"_s), text);
    }
    library::mnuGame_Click(*launcher, 25);
    EXPECT_EQ(launcher->screens.configDetail.folder, u"하나"_s);
    app.AddGame(u"둘"_s);
    library::mnuFolder_Click(*launcher, 6);
    EXPECT_EQ(launcher->catalogue.size(), 2U);
}

TEST(ListCommands, F2LeadsToTheTitleUnlessAJobStands)
{
    Installation app;
    app.AddGame(u"하나"_s);
    const auto launcher = app.Start();
    bool focused = false;
    launcher->screens.details.changed.SetListener([&](std::uint32_t changed) {
        focused = focused || (changed & shell::DetailsPanel::FocusTitle) != 0;
    });
    launcher->screens.frame.tabInfo = 3;
    launcher->flags.JobHeld = true;
    library::FocusTitle(*launcher);
    EXPECT_EQ(launcher->screens.frame.tabInfo, 3);
    launcher->flags.JobHeld = false;
    library::FocusTitle(*launcher);
    EXPECT_EQ(launcher->screens.frame.tabInfo, 1);
    EXPECT_TRUE(focused);
}

TEST(ListCommands, TheGameMenuTakesOverTheSelectionAndTheBatch)
{
    Installation app;
    app.AddGame(u"하나"_s);
    app.AddGame(u"둘"_s);
    app.folder.WriteText(u"Games/둘/DosBox/info.txt"_s, u"같은 제목\u0003Same"_s);
    app.folder.WriteText(u"Games/하나/DosBox/info.txt"_s, u"같은 제목\u0003Same"_s);
    const auto launcher = app.Start();
    launcher->current.CurrentFolder = u"elsewhere"_s; // started from the recent list
    const int row = launcher->screens.list.RowOf(u"둘"_s);
    launcher->screens.list.Select(row);
    const shell::MenuModel one = library::mnuGame_Popup(*launcher);
    EXPECT_EQ(launcher->current.CurrentFolder, u"둘"_s);
    ASSERT_NE(EntryOf(one, 0), nullptr);
    EXPECT_EQ(EntryOf(one, 0)->text, u"[같은 제목] 실행"_s);
    EXPECT_TRUE(launcher->current.BatchSelection.isEmpty());

    SelectAll(*launcher);
    const shell::MenuModel several = library::mnuGame_Popup(*launcher);
    EXPECT_EQ(EntryOf(several, 20), nullptr);
    EXPECT_TRUE(EntryOf(several, 25)->enabled);
    QStringList batch = launcher->current.BatchSelection;
    batch.sort();
    EXPECT_EQ(batch, (QStringList{u"둘"_s, u"하나"_s}));

    launcher->screens.list.selectedRows.clear();
    launcher->screens.list.selected = -1;
    EXPECT_TRUE(library::mnuGame_Popup(*launcher).empty());
}

TEST(ListCommands, TitlesChangeTheirLanguageOnAYes)
{
    struct Row {
        const char16_t* language;
        const char16_t* toEnglish;
        const char16_t* toKorean;
    };
    const Row rows[] = {
        {u"ko", u"게임 제목을 영문으로 봅니다", u"게임 제목을 한글로 봅니다"},
        {u"en", u"Show Game Title in English", u"Show Game Title in Korean"},
    };
    for (const Row& row : rows) {
        Installation app(QString::fromUtf16(row.language));
        app.AddGame(u"a"_s);
        app.folder.WriteText(u"Games/a/DosBox/info.txt"_s, u"별\u0003Star"_s);
        const auto launcher = app.Start();
        ASSERT_EQ(launcher->screens.list.items.at(0).text[0], u"별"_s);
        bool told = false;
        launcher->screens.frame.changed.SetListener([&](std::uint32_t changed) {
            told = told || (changed & shell::MainFrame::TitlePicture) != 0;
        });
        app.fakes.prompts.WillAnswer(Answer::No);
        library::Picture2_Click(*launcher);
        EXPECT_FALSE(told);
        EXPECT_EQ(launcher->current.CurrentTitle, u"별"_s);

        app.fakes.prompts.WillAnswer(Answer::Yes);
        library::Picture2_Click(*launcher);
        EXPECT_TRUE(told);
        EXPECT_EQ(launcher->screens.list.items.at(0).text[0], u"Star"_s);
        EXPECT_TRUE(launcher->screens.frame.caption.startsWith(u"Star : ["_s));

        app.fakes.prompts.WillAnswer(Answer::Yes);
        library::Picture2_Click(*launcher);
        EXPECT_EQ(launcher->current.CurrentTitle, u"별"_s);
        EXPECT_EQ(
            app.fakes.prompts.Texts(),
            (QStringList{
                QString::fromUtf16(row.toEnglish),
                QString::fromUtf16(row.toEnglish),
                QString::fromUtf16(row.toKorean)}));
    }
}

} // namespace
