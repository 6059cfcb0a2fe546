#include "library/CatalogueCommands.h"
#include "library/DeleteCommands.h"
#include "library/InfoCommands.h"
#include "library/RenameCommands.h"
#include "library/ShowinfoCommands.h"
#include "running/RunCommands.h"
#include "support/DiskTroubles.h"
#include "support/Installation.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using test::Click;
using test::Installation;

namespace {

QStringList OnDisk(const Installation& app)
{
    return QDir(app.folder.Path(u"Games"_s))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

void Rename(Installation& app, shell::Launcher& launcher, const QString& typed)
{
    app.fakes.prompts.WillType(typed);
    library::RenameGameFolder(launcher);
}

TEST(RenameFolder, AllThatKnowsTheGameFollows)
{
    Installation app;
    app.AddGame(u"Star"_s);
    app.AddGame(u"Zebra"_s);
    app.folder.WriteText(u"Games/Star/DosBox/info.txt"_s, u"별\u0003Star\r\n밤하늘"_s);
    const auto launcher = app.Start();
    Click(*launcher, u"Star"_s);
    running::RunGame(*launcher);
    app.fakes.processes.End(0, 60'000);
    launcher->screens.details.txtTitle[1] = u"typed"_s;
    library::Info_Change(*launcher);

    Rename(app, *launcher, u" R&D: <\"x\">"_s);
    const QString name = u" R&D (x)"_s;
    EXPECT_EQ(OnDisk(app), (QStringList{name, u"Zebra"_s}));
    EXPECT_TRUE(app.folder.Exists(u"Games/ R&D (x)/DosBox/info.txt"_s));
    EXPECT_EQ(launcher->catalogue.at(0).Folder, name);
    EXPECT_EQ(launcher->current.CurrentFolder, name);
    EXPECT_EQ(launcher->screens.details.folder, name);
    EXPECT_EQ(launcher->screens.details.txtInfo, u"밤하늘"_s);
    // What is not saved yet goes along, and outlives another game and a scan.
    Click(*launcher, u"Zebra"_s);
    library::cmdRefresh_Click(*launcher);
    Click(*launcher, name);
    EXPECT_EQ(launcher->screens.details.txtTitle[1], u"typed"_s);
    EXPECT_TRUE(launcher->screens.details.draft);
    const int row = launcher->screens.list.RowOf(name);
    ASSERT_GE(row, 0);
    EXPECT_EQ(launcher->screens.list.items.at(std::size_t(row)).text[0], u"별"_s);
    EXPECT_EQ(launcher->screens.list.items.at(std::size_t(row)).text[2], name);
    EXPECT_EQ(launcher->screens.status.folderPath, app.folder.Path(u"Games/"_s + name));
    EXPECT_EQ(launcher->screens.status.folder, u"폴더 : "_s + app.folder.Path(u"Games/"_s + name));
    EXPECT_EQ(launcher->recent.RecentFolders[0], u"Star"_s);
    const auto& asked = app.fakes.prompts.Asked().back();
    EXPECT_EQ(asked.text, u"현재 폴더 이름 : Star\r\n\r\n새 폴더 이름을 입력해 주세요."_s);
    EXPECT_EQ(asked.title, u"게임 폴더 이름 바꾸기"_s);
    EXPECT_EQ(asked.preset, u"Star"_s);

    // A game without titles is called by its folder.
    Click(*launcher, u"Zebra"_s);
    Rename(app, *launcher, u"얼룩말"_s);
    EXPECT_EQ(launcher->current.CurrentTitle, u"얼룩말"_s);
    EXPECT_TRUE(launcher->screens.frame.caption.startsWith(u"얼룩말 : ["_s));
}

TEST(RenameFolder, WhatCantBeDoneIsToldAndChangesNothing)
{
    Installation app;
    app.AddGame(u"Star"_s);
    app.AddGame(u"Other"_s);
    app.AddGame(u"long Star"_s);
    app.folder.WriteRaw(u"Games/file"_s, "in the way");
    const auto launcher = app.Start();
    Click(*launcher, u"Star"_s);
    const QStringList before = OnDisk(app);
    struct Row {
        QString typed;
        const char16_t* told; // a part of the box; empty: none
    };
    const Row rows[] = {
        {QString(), u""},
        {u"?*"_s, u""},
        {u"Star"_s, u""},
        {u"St*ar"_s, u""},
        {u"Other"_s, u"Other : 같은 이름의 폴더가 이미 있습니다."},
        {u"oTHER"_s, u"oTHER : 같은 이름의 폴더가 이미 있습니다."},
        {u".."_s, u".. : 게임 폴더 이름은"},
        {u"../Elsewhere"_s, u"..Elsewhere : 게임 폴더 이름은"},
        {u"a."_s, u"게임 폴더 이름은"},
        {u"a "_s, u"게임 폴더 이름은"},
        {u"file"_s, u"Star 폴더의 이름을 바꾸지 못했습니다: "},
        {QString(300, u'x'), u"Star 폴더의 이름을 바꾸지 못했습니다: "},
    };
    for (const Row& row : rows) {
        app.fakes.prompts.Forget();
        Rename(app, *launcher, row.typed);
        const QString told = QString::fromUtf16(row.told);
        const QStringList texts = app.fakes.prompts.Texts();
        ASSERT_EQ(texts.size(), told.isEmpty() ? 1 : 2) << row.typed.toStdString();
        EXPECT_TRUE(texts.back().contains(told)) << texts.back().toStdString();
        EXPECT_EQ(OnDisk(app), before);
        EXPECT_EQ(launcher->current.CurrentFolder, u"Star"_s);
        EXPECT_GE(launcher->screens.list.RowOf(u"Star"_s), 0);
    }
}

TEST(RenameFolder, TheCaseAloneCanBeChanged)
{
    Installation app;
    app.AddGame(u"Star"_s);
    app.AddGame(u"STAR 2"_s);
    const auto launcher = app.Start();
    Click(*launcher, u"Star"_s);
    Rename(app, *launcher, u"STAR"_s);
    EXPECT_EQ(OnDisk(app), (QStringList{u"STAR"_s, u"STAR 2"_s}));
    EXPECT_EQ(launcher->current.CurrentFolder, u"STAR"_s);
    EXPECT_EQ(app.fakes.prompts.Asked().size(), 1U);
}

TEST(RenameFolder, AGameIsNotTakenForItsTwinInAnotherCase)
{
    Installation app;
    app.AddGame(u"Star"_s);
    app.AddGame(u"STAR"_s);
    const auto launcher = app.Start();
    Click(*launcher, u"Star"_s);
    ASSERT_TRUE(QDir(app.folder.Path(u"Games/Star"_s)).removeRecursively());
    library::RenameGameFolder(*launcher);
    EXPECT_TRUE(app.fakes.prompts.Asked().empty());
    app.fakes.prompts.WillAnswer(platform::Answer::Yes);
    library::DeleteSelectedGames(*launcher);
    EXPECT_EQ(OnDisk(app), QStringList{u"STAR"_s});
    ASSERT_EQ(launcher->catalogue.size(), 1U) << "what has vanished leaves the list";
    EXPECT_EQ(launcher->catalogue.at(0).Folder, u"STAR"_s);
}

TEST(RenameFolder, AFolderThatGoesMeanwhileOrRunsIsLeftAlone)
{
    Installation app;
    app.AddGame(u"Star"_s);
    app.AddGame(u"Other"_s);
    const auto launcher = app.Start();
    Click(*launcher, u"Star"_s);
    const QDir games(app.folder.Path(u"Games"_s));
    app.fakes.prompts.WillType(
        u"New"_s, [&] { ASSERT_TRUE(QDir(games).rename(u"Star"_s, u"Theirs"_s)); });
    library::RenameGameFolder(*launcher);
    EXPECT_EQ(OnDisk(app), (QStringList{u"Other"_s, u"Theirs"_s}));
    EXPECT_EQ(app.fakes.prompts.Asked().size(), 2U);
    EXPECT_EQ(launcher->current.CurrentFolder, u"Star"_s);
    // Now it is known to be gone, and no name is asked for.
    library::RenameGameFolder(*launcher);
    EXPECT_EQ(launcher->screens.status.notes.back().text, u"Star : 게임 폴더가 없어졌습니다."_s);

    Click(*launcher, u"Other"_s);
    running::RunGame(*launcher);
    Rename(app, *launcher, u"New"_s);
    EXPECT_TRUE(app.fakes.prompts.Texts().back().startsWith(u"Other : 실행 중인 게임입니다."_s));
    EXPECT_TRUE(app.folder.Exists(u"Games/Other"_s));
}

TEST(RenameFolder, AReadOnlyRootIsTold)
{
    Installation app;
    app.AddGame(u"Star"_s);
    const auto launcher = app.Start();
    {
        const test::OrdinaryUser user(app.folder);
        test::SetMode(app.folder.Path(u"Games"_s), 0555);
        Rename(app, *launcher, u"New"_s);
        test::SetMode(app.folder.Path(u"Games"_s), 0755);
    }
    EXPECT_EQ(OnDisk(app), QStringList{u"Star"_s});
    EXPECT_TRUE(app.fakes.prompts.Texts().back().startsWith(u"Star 폴더의 이름을"_s));
    EXPECT_EQ(launcher->current.CurrentFolder, u"Star"_s);
}

} // namespace
