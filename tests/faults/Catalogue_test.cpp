#include "dosboxconf/StartPageCommands.h"
#include "faults/FaultsFixture.h"
#include "library/InfoCommands.h"
#include "library/ShowinfoCommands.h"
#include "platform/TextFile.h"
#include "shell/LifecycleCommands.h"
#include "support/DiskTroubles.h"
#include "support/StandardError.h"

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::test;
using testing::ElementsAre;

namespace {

QStringList Folders(const shell::Launcher& launcher)
{
    QStringList folders;
    for (const library::GameEntry& entry : launcher.catalogue) {
        folders << entry.Folder;
    }
    return folders;
}

QString Stories(const shell::Launcher& launcher)
{
    QString text;
    for (const shell::Note& note : launcher.screens.status.notes) {
        text += note.story + u'\n';
    }
    return text;
}

TEST(CacheFaults, ListDamagedOrForeignSheetCutOrOfAnotherSize)
{
    struct Row {
        const char* name;
        QString file;
        void (*spoil)(QByteArray& bytes);
        QString told;
    };
    const QString list = u"Gamelist.lst"_s;
    const QString sheet = u"IconList.bmp"_s;
    const Row rows[] = {
        {"empty list", list, [](auto& bytes) { bytes.clear(); }, u"record 1 is damaged"_s},
        {"cut list", list, [](auto& bytes) { bytes.truncate(bytes.size() / 2); }, u"cut off"_s},
        {"cut in its last field", list, [](auto& bytes) { bytes.chop(3); }, u"cut off"_s},
        {"a record twice",
         list,
         [](auto& bytes) { bytes = bytes.chopped(2) + '\2' + bytes; },
         u"record 3 repeats a folder"_s},
        {"a way out of the games", list, [](auto& bytes) { bytes.prepend("../"); }, u"record 1"_s},
        {"a list in UTF-8",
         list,
         [](auto& bytes) { bytes = platform::DecodeCp949(bytes).toUtf8(); },
         u"no text in code page 949"_s},
        {"another program's list",
         list,
         [](auto& bytes) { bytes = "[games]\n1=star\n"; },
         u"record 1"_s},
        {"empty sheet", sheet, [](auto& bytes) { bytes.clear(); }, u"not the sheet of 2 icons"_s},
        {"cut sheet", sheet, [](auto& bytes) { bytes.chop(1); }, u"not the sheet of 2 icons"_s},
        {"sheet of one icon more",
         sheet,
         [](auto& bytes) {
             bytes[18] = 96;
             bytes += QByteArray(qsizetype{32} * 96, '\0');
         },
         u"not the sheet of 2 icons"_s},
        {"no bitmap", sheet, [](auto& bytes) { bytes.replace(0, 2, "PK"); }, u"not the sheet"_s},
    };
    Installation app;
    app.AddGame(u"달"_s);
    app.AddGame(u"별"_s);
    ASSERT_TRUE(shell::Form_Unload(*app.Start()));
    const auto good = FilesOf(app.folder);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        QByteArray bytes = good[row.file];
        row.spoil(bytes);
        app.folder.WriteRaw(row.file, bytes);
        StandardError errors;
        const auto launcher = app.Start();
        EXPECT_THAT(Folders(*launcher), ElementsAre(u"달"_s, u"별"_s));
        const QString told = u"pelorin.library: "_s + app.folder.Path(row.file) + u": "_s;
        EXPECT_TRUE(errors.Text().startsWith(told.toUtf8())) << errors.Text().constData();
        EXPECT_TRUE(errors.Text().contains(row.told.toUtf8())) << errors.Text().constData();
        EXPECT_EQ(Notes(*launcher), QString()) << "it heals by itself";
        EXPECT_EQ(app.folder.ReadRaw(row.file), bytes) << "until the exit";
        ASSERT_TRUE(shell::Form_Unload(*launcher));
        EXPECT_EQ(FilesOf(app.folder), good);
    }
    EXPECT_TRUE(app.fakes.prompts.Asked().empty());
}

TEST(ScanFaults, MoreThan32767Folders)
{
    // In memory where that can be had: so many entries take long on a disk.
    const TestFolder place;
    const PrivateDisk disk(place.Path(), "64m");
    const ScopedEnvironment scope(TemporaryFilesIn(place.Path()));
    Installation app;
    app.folder.MakeTree({u"Elsewhere/DosBox/CD/"_s, u"Elsewhere/DosBox/Manual/"_s});
    for (const char* file : {"autoexec.conf", "GenreK.dat", "GenreE.dat"}) {
        app.folder.WriteLines(u"Elsewhere/DosBox/"_s + QString::fromLatin1(file), {u"x"_s});
    }
    // Links, so that the disk holds one game; the last ones by name are made first.
    constexpr int kFolders = 32'767 + 3;
    const QByteArray games = QFile::encodeName(app.folder.Path(u"Games/"_s));
    for (int i = kFolders; i > 0; --i) {
        const QByteArray link = games + QByteArray::number(100'000 + i);
        ASSERT_EQ(symlink("../Elsewhere", link.constData()), 0);
    }
    const QStringList before = app.folder.Tree(u"Elsewhere"_s);
    const auto launcher = app.Start();
    ASSERT_EQ(launcher->catalogue.size(), 32'767U);
    EXPECT_EQ(launcher->catalogue[0].Folder, u"100001"_s);
    EXPECT_EQ(launcher->catalogue[32'766].Folder, u"132767"_s);
    EXPECT_EQ(launcher->catalogue[32'766].ListIndex, 32'767);
    EXPECT_EQ(Notes(*launcher), launcher->lang.Text(352, {u"3"_s}) + u'\n');
    EXPECT_TRUE(app.fakes.prompts.Asked().empty());
    EXPECT_EQ(app.folder.Tree(u"Elsewhere"_s), before);
}

TEST(ScanFaults, FolderUnreadableOrVanishingOrALinkThatLoopsOrLeadsNowhere)
{
    Installation app;
    app.AddGame(u"가"_s);
    app.AddGame(u"locked"_s);
    app.AddGame(u"vanishing"_s);
    app.folder.MakeLink(u"Games/loop"_s, u"loop"_s);
    app.folder.MakeLink(u"Games/nowhere"_s, u"../missing"_s);
    app.folder.MakeLink(u"Games/self"_s, u"."_s);
    SetMode(app.folder.Path(u"Games/locked"_s), 0);
    const QStringList before = app.folder.Tree(u"Games"_s);
    {
        const OrdinaryUser user(app.folder);
        const auto launcher = app.NewLauncher();
        // The first game is prepared, and the last folder goes.
        app.fakes.timers.onPendingEvents = [&] {
            if (launcher->screens.progress.visible) {
                QDir(app.folder.Path(u"Games/vanishing"_s)).removeRecursively();
            }
        };
        ASSERT_TRUE(shell::Form_Load(*launcher));
        EXPECT_THAT(Folders(*launcher), ElementsAre(u"locked"_s, u"가"_s));
        EXPECT_EQ(launcher->catalogue[0].TitleK, u"locked"_s);
        EXPECT_PRED2(
            Holds, Notes(*launcher), app.folder.Path(u"Games/locked : 폴더를 읽을 수 없습니다."_s));
        EXPECT_PRED2(Holds, Notes(*launcher), launcher->lang.Text(353, {u"4"_s}));
        for (const QString& name : {u"loop"_s, u"nowhere"_s, u"self"_s, u"vanishing"_s}) {
            EXPECT_TRUE(Stories(*launcher).contains(u'\n' + name + u" : "_s)) << name.toStdString();
        }
        app.fakes.timers.onPendingEvents = nullptr;
        EXPECT_TRUE(shell::Form_Unload(*launcher));
    }
    SetMode(app.folder.Path(u"Games/locked"_s), 0700);
    QStringList after = app.folder.Tree(u"Games"_s);
    for (const QString& entry : before) {
        EXPECT_EQ(after.removeAll(entry), entry.startsWith(u"vanishing"_s) ? 0 : 1)
            << entry.toStdString();
    }
    for (const QString& made : after) {
        EXPECT_TRUE(made.startsWith(u"가/DosBox/"_s)) << made.toStdString();
    }
}

TEST(CodePageFaults, TitleOrFolderNameOutsideIt)
{
    Installation app;
    app.AddGame(u"Café"_s);
    app.AddGame(u"별"_s);
    app.AddGame(u"utf-8"_s);
    const QByteArray utf8 = u"카페 ☕\u0003Café\r\n"_s.toUtf8();
    app.folder.WriteRaw(u"Games/utf-8/DosBox/info.txt"_s, utf8);
    for (const char* start : {"scan", "cache", "cache again"}) {
        SCOPED_TRACE(start);
        const bool scanned = !app.folder.Exists(u"Gamelist.lst"_s);
        const auto launcher = app.Start();
        if (scanned) {
            EXPECT_THAT(Folders(*launcher), ElementsAre(u"Café"_s, u"utf-8"_s, u"별"_s));
        } else {
            EXPECT_THAT(Folders(*launcher), ElementsAre(u"별"_s, u"Café"_s, u"utf-8"_s));
        }
        EXPECT_EQ(launcher->catalogue[2].ListIndex, 3);
        EXPECT_EQ(launcher->icons.Count(), 3);
        EXPECT_EQ(Notes(*launcher), launcher->lang.Text(354, {u"2"_s}) + u'\n');
        EXPECT_EQ(Stories(*launcher), u"Café\nutf-8\n"_s);
        ASSERT_TRUE(shell::Form_Unload(*launcher));
        EXPECT_EQ(app.folder.ReadText(u"Gamelist.lst"_s).section(u'\u0001', 0, 0), u"별"_s);
        EXPECT_FALSE(app.folder.ReadText(u"Gamelist.lst"_s).contains(u'\u0002'));
        EXPECT_EQ(app.folder.ReadRaw(u"IconList.bmp"_s).size(), 54 + 32 * 32 * 3);
        EXPECT_EQ(app.folder.ReadRaw(u"Games/utf-8/DosBox/info.txt"_s), utf8);
    }
}

TEST(CodePageFaults, SavingNamesTheCharactersInABox)
{
    struct Row {
        QString file;
        void (*type)(shell::Launcher& launcher);
        void (*save)(shell::Launcher& launcher);
        QString saved;
    };
    const Row rows[] = {
        {u"info.txt"_s,
         [](auto& launcher) {
             launcher.screens.details.txtTitle = {u"카페 ☕😀"_s, u"Café"_s};
             launcher.screens.details.txtInfo = u"☕ 한 잔"_s;
         },
         library::WriteGameInfo,
         u"카페 ??\u0003Caf?\r\n? 한 잔\r\n"_s},
        {u"autoexec.conf"_s,
         [](auto& launcher) {
             launcher.screens.start.lstAutoexec = {u"echo ☕"_s, u"café 😀"_s};
         },
         dosboxconf::WriteAutoexecConf,
         u"echo ?\r\ncaf? ?\r\n"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.file.toStdString());
        Installation app;
        app.AddGame(u"별"_s);
        const QString path = u"Games/별/DosBox/"_s + row.file;
        app.folder.WriteRaw(path, "old");
        const auto launcher = app.Start();
        row.type(*launcher);
        app.fakes.prompts.WillAnswer(platform::Answer::No);
        row.save(*launcher);
        ASSERT_EQ(app.fakes.prompts.Asked().size(), 1U);
        for (const QString& lost : {u"☕"_s, u"😀"_s, u"é"_s}) {
            EXPECT_EQ(app.fakes.prompts.Asked().front().text.count(lost), 1);
        }
        EXPECT_EQ(app.folder.ReadRaw(path), "old");
        app.fakes.prompts.WillAnswer(platform::Answer::Yes);
        row.save(*launcher);
        EXPECT_EQ(app.folder.ReadText(path), row.saved);
        EXPECT_EQ(Notes(*launcher), QString());
    }
}

} // namespace
