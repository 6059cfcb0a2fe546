#include "dosboxconf/StartList.h"
#include "dosboxconf/StartPageCommands.h"
#include "library/CatalogueCommands.h"
#include "library/InfoCommands.h"
#include "library/ShowinfoCommands.h"
#include "support/Installation.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using test::Click;
using test::Installation;

TEST(StartPage, EditsAndSavesTheCommandsOfTheGameOnHand)
{
    Installation app;
    app.AddGame(u"하나"_s);
    app.AddGame(u"둘"_s);
    const auto launcher = app.Start();
    Click(*launcher, u"하나"_s);
    app.fakes.prompts.WillType(u"  game.com /x "_s);
    dosboxconf::lstAutoexec_DblClick(*launcher, 0);
    EXPECT_EQ(app.fakes.prompts.Asked().front().preset, u"game.com"_s);
    dosboxconf::AddSelectedFile(launcher->screens.start);
    dosboxconf::WriteAutoexecConf(*launcher);
    EXPECT_EQ(
        app.folder.ReadRaw(u"Games/하나/DosBox/autoexec.conf"_s), "game.com /x\r\nGAME.COM\r\n");

    Click(*launcher, u"둘"_s);
    EXPECT_EQ(launcher->screens.start.lstAutoexec, QStringList{u"game.com"_s});
}

TEST(StartPage, SavesToTheGameThatItShowsWhileTheSelectionIsAlreadyElsewhere)
{
    Installation app;
    app.AddGame(u"하나"_s);
    app.AddGame(u"둘"_s);
    app.folder.MakeTree({u"Games/하나/DosBox/CD/a.iso"_s, u"Games/둘/DosBox/CD/b.iso"_s});
    const auto launcher = app.Start();
    Click(*launcher, u"하나"_s);
    launcher->screens.start.lstAutoexec = {u"one.exe"_s};
    launcher->screens.list.Select(launcher->screens.list.RowOf(u"둘"_s));
    library::LVGamelist_ItemClick(*launcher);
    ASSERT_EQ(launcher->current.CurrentFolder, u"둘"_s);
    dosboxconf::WriteAutoexecConf(*launcher);
    EXPECT_EQ(app.folder.ReadRaw(u"Games/하나/DosBox/autoexec.conf"_s), "one.exe\r\n");
    EXPECT_EQ(app.folder.ReadRaw(u"Games/둘/DosBox/autoexec.conf"_s), "game.com\r\n");

    app.folder.WriteRaw(u"Games/둘/DosBox/info.txt"_s, "its own");
    launcher->screens.details.txtTitle = {u"첫째"_s, u"First"_s};
    library::WriteGameInfo(*launcher);
    EXPECT_EQ(app.folder.ReadText(u"Games/하나/DosBox/info.txt"_s), u"첫째\u0003First\r\n"_s);
    EXPECT_EQ(app.folder.ReadRaw(u"Games/둘/DosBox/info.txt"_s), "its own");

    dosboxconf::chkCD_Click(*launcher, true);
    EXPECT_EQ(launcher->screens.cd.lstCD, QStringList{u"a.iso"_s});
    dosboxconf::mnuCD_Click(*launcher, 0);
    EXPECT_EQ(launcher->screens.cd.lstCD, QStringList{launcher->lang.Text(172, {u"하나"_s})});
    dosboxconf::cmdSaveCD_Click(*launcher);
    EXPECT_TRUE(app.folder.Exists(u"Games/하나/DosBox/CD.conf"_s));
    EXPECT_FALSE(app.folder.Exists(u"Games/둘/DosBox/CD.conf"_s));
}

TEST(StartPage, AReplyForALineThatIsGoneChangesNothing)
{
    Installation app;
    app.AddGame(u"하나"_s);
    app.AddGame(u"둘"_s);
    const auto launcher = app.Start();
    Click(*launcher, u"하나"_s);
    // Both games have the same line there.
    app.fakes.prompts.WillType(u"one.exe"_s, [&] { Click(*launcher, u"둘"_s); });
    dosboxconf::lstAutoexec_DblClick(*launcher, 0);
    EXPECT_EQ(launcher->screens.start.lstAutoexec, QStringList{u"game.com"_s});

    app.fakes.prompts.WillType(
        u"two.exe"_s, [&] { launcher->screens.start.lstAutoexec.prepend(u"rem"_s); });
    dosboxconf::lstAutoexec_DblClick(*launcher, 0);
    EXPECT_EQ(launcher->screens.start.lstAutoexec, (QStringList{u"rem"_s, u"game.com"_s}));
}

TEST(StartPage, WhatIsNotSavedStaysUntilAnotherGameIsShown)
{
    Installation app;
    app.AddGame(u"하나"_s);
    app.AddGame(u"둘"_s);
    const auto launcher = app.Start();
    Click(*launcher, u"하나"_s);
    const QDir cd(app.folder.Path(u"Games/하나/DosBox/CD"_s));
    QDir(cd).removeRecursively();
    dosboxconf::AddEmptyLine(launcher->screens.start);
    const QStringList typed = launcher->screens.start.lstAutoexec;
    ASSERT_EQ(typed.size(), 2);
    dosboxconf::chkCD_Click(*launcher, true);
    library::cmdSaveInfo_Click(*launcher);
    EXPECT_EQ(launcher->screens.start.lstAutoexec, typed);
    EXPECT_TRUE(launcher->screens.cd.chkCD);
    dosboxconf::cmdSaveCD_Click(*launcher);
    EXPECT_EQ(launcher->screens.start.lstAutoexec, typed);
    EXPECT_TRUE(launcher->screens.cd.chkCD) << "saved, its folder made, and shown again";
    EXPECT_EQ(launcher->screens.cd.lstCD.size(), 1);

    dosboxconf::WriteAutoexecConf(*launcher);
    app.folder.WriteRaw(u"Games/하나/DosBox/autoexec.conf"_s, "another program's\r\n");
    QDir().rename(cd.path(), cd.path() + u" off"_s);
    library::cmdSaveInfo_Click(*launcher);
    EXPECT_EQ(launcher->screens.start.lstAutoexec, QStringList{u"another program's"_s});
    dosboxconf::AddEmptyLine(launcher->screens.start);
    dosboxconf::chkCD_Click(*launcher, true);
    Click(*launcher, u"둘"_s);
    Click(*launcher, u"하나"_s);
    EXPECT_EQ(launcher->screens.start.lstAutoexec, QStringList{u"another program's"_s});
    EXPECT_FALSE(launcher->screens.cd.chkCD);
}

TEST(StartPage, TheNextGameDoesNotInheritTheCd)
{
    Installation app;
    app.AddGame(u"하나"_s);
    app.AddGame(u"둘"_s);
    app.folder.MakeTree({u"Games/하나/DosBox/CD/b.cue"_s, u"Games/하나/DosBox/CD/a.ISO"_s});
    const auto launcher = app.Start();
    Click(*launcher, u"하나"_s);
    dosboxconf::chkCD_Click(*launcher, true);
    EXPECT_EQ(launcher->screens.cd.lstCD, (QStringList{u"a.ISO"_s, u"b.cue"_s}));
    dosboxconf::cmdSaveCD_Click(*launcher);
    EXPECT_EQ(app.folder.ReadRaw(u"Games/하나/DosBox/CD.conf"_s), "0\r\n1\r\n");
    EXPECT_EQ(launcher->current.CurrentTitle, u"하나 [CD]"_s);
    const int row = launcher->screens.list.RowOf(u"하나"_s);
    EXPECT_EQ(
        launcher->screens.list.items.at(static_cast<std::size_t>(row)).text[0], u"하나 [CD]"_s);

    QDir(app.folder.Path(u"Games/둘/DosBox/CD"_s)).removeRecursively();
    Click(*launcher, u"둘"_s);
    EXPECT_FALSE(launcher->screens.cd.chkCD);
    dosboxconf::cmdSaveCD_Click(*launcher);
    EXPECT_FALSE(app.folder.Exists(u"Games/둘/DosBox/CD.conf"_s));
    // A file in the place of the folder holds no images, and stays.
    app.folder.WriteText(u"Games/둘/DosBox/CD"_s, u"mine"_s);
    Click(*launcher, u"하나"_s);
    Click(*launcher, u"둘"_s);
    dosboxconf::chkCD_Click(*launcher, true);
    EXPECT_EQ(launcher->screens.cd.lstCD, QStringList{launcher->lang.Text(172, {u"둘"_s})});
    dosboxconf::cmdSaveCD_Click(*launcher);
    EXPECT_EQ(app.folder.ReadRaw(u"Games/둘/DosBox/CD.conf"_s), "0\r\n0\r\n");
    EXPECT_EQ(app.folder.ReadRaw(u"Games/둘/DosBox/CD"_s), "mine");
}

TEST(Catalogue, AGameLeavesOnlyWhenTheBinTookIt)
{
    Installation app;
    app.AddGame(u"하나"_s);
    app.AddGame(u"둘"_s);
    const auto launcher = app.Start();
    app.fakes.bin.refuseAll = true;
    EXPECT_FALSE(library::MoveGameToBin(*launcher, u"둘"_s));
    app.fakes.bin.refuseAll = false;
    for (const QString& name : {u""_s, u".."_s, u"../Games"_s}) {
        EXPECT_FALSE(library::MoveGameToBin(*launcher, name)) << name.toStdString();
    }
    EXPECT_TRUE(library::MoveGameToBin(*launcher, u"둘"_s));
    library::RemoveGameEntries(*launcher, {u"둘"_s});
    ASSERT_EQ(launcher->catalogue.size(), 1U);
    EXPECT_EQ(launcher->catalogue[0].ListIndex, 1);
    EXPECT_EQ(launcher->icons.Count(), 1);

    library::RemoveGameEntries(*launcher, {u"하나"_s});
    EXPECT_TRUE(launcher->catalogue.empty());
    EXPECT_FALSE(launcher->screens.frame.picBack1Enabled);
}
