#include "dosboxconf/ConfFiles.h"
#include "finding/TreeNodes.h"
#include "library/Catalogue.h"
#include "library/CatalogueCommands.h"
#include "library/ConfigDetailCommands.h"
#include "library/GenreCommands.h"
#include "library/InfoCommands.h"
#include "library/MediaCommands.h"
#include "library/ShowinfoCommands.h"
#include "shell/LifecycleCommands.h"
#include "support/FolderWatch.h"
#include "support/Installation.h"

#include <QDir>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using library::GenreFile;
using platform::Answer;
using test::Click;
using test::Installation;
using testing::ElementsAre;

namespace {

/// A started program with two games, the first of them shown.
class Details : public testing::Test {
protected:
    Details()
    {
        for (const QString& game : {u"하나"_s, u"둘"_s}) {
            m_app.AddGame(game);
            m_app.folder.WriteText(Meta(game, u"info.txt"_s), game + u"\u0003Game\r\nold\r\n"_s);
        }
        m_launcher = m_app.Start();
        Click(*m_launcher, u"하나"_s);
    }

    static QString Meta(const QString& game, const QString& file)
    {
        return u"Games/%1/DosBox/%2"_s.arg(game, file);
    }
    QString Info(const QString& game) const
    {
        return m_app.folder.ReadText(Meta(game, u"info.txt"_s));
    }
    shell::DetailsPanel& Panel() const { return m_launcher->screens.details; }
    void TypeTitle(const QString& text) const
    {
        Panel().txtTitle[0] = text;
        library::Info_Change(*m_launcher);
    }
    QString RowTitle(const QString& game) const
    {
        const finding::GameList& list = m_launcher->screens.list;
        return list.items.at(static_cast<std::size_t>(list.RowOf(game))).text[0];
    }

    Installation m_app;
    std::unique_ptr<shell::Launcher> m_launcher;
};

} // namespace

TEST_F(Details, WhatIsTypedStaysWithItsGameUntilItIsSaved)
{
    TypeTitle(u"하나둘"_s);
    Panel().txtInfo = u"new"_s;
    library::Info_Change(*m_launcher);
    EXPECT_TRUE(Panel().draft);
    Click(*m_launcher, u"둘"_s);
    EXPECT_FALSE(Panel().draft);
    EXPECT_EQ(Panel().txtTitle[0], u"둘"_s);

    // Another program changes what was not typed into.
    m_app.folder.WriteText(Meta(u"하나"_s, u"info.txt"_s), u"하나\u0003Other\r\nold\r\n"_s);
    Click(*m_launcher, u"하나"_s);
    EXPECT_TRUE(Panel().draft);
    EXPECT_EQ(Panel().txtTitle[0], u"하나둘"_s);
    EXPECT_EQ(Panel().txtTitle[1], u"Other"_s);
    EXPECT_EQ(Panel().txtInfo, u"new"_s);

    library::Info_Esc(*m_launcher, 2);
    EXPECT_EQ(Panel().txtInfo, u"old"_s);
    EXPECT_TRUE(Panel().draft) << "the title is typed";
    library::cmdSaveInfo_Click(*m_launcher);
    EXPECT_FALSE(Panel().draft);
    EXPECT_EQ(Info(u"하나"_s), u"하나둘\u0003Other\r\nold\r\n"_s);
    EXPECT_EQ(RowTitle(u"하나"_s), u"하나둘"_s);
    EXPECT_EQ(m_launcher->current.CurrentTitle, u"하나둘"_s);
    EXPECT_TRUE(m_launcher->drafts.empty());
}

TEST_F(Details, ADraftOutlivesAFailureToSaveIt)
{
    TypeTitle(u"카페 ☕"_s);
    m_app.fakes.prompts.WillAnswer(Answer::No);
    library::cmdSaveInfo_Click(*m_launcher);
    EXPECT_TRUE(Panel().draft);
    EXPECT_EQ(Panel().txtTitle[0], u"카페 ☕"_s);
    EXPECT_EQ(Info(u"하나"_s), u"하나\u0003Game\r\nold\r\n"_s);

    QDir(m_app.folder.Path(u"Games/하나"_s)).removeRecursively();
    m_app.fakes.prompts.WillAnswer(Answer::Yes);
    library::cmdSaveInfo_Click(*m_launcher);
    EXPECT_EQ(m_launcher->drafts.size(), 1U);
    EXPECT_FALSE(m_launcher->screens.status.notes.empty());
    EXPECT_FALSE(m_app.folder.Exists(u"Games/하나"_s));
    // The game goes to the bin: nobody asks for its title any more.
    m_app.folder.MakeFolder(u"Games/하나"_s);
    library::RemoveGameEntries(*m_launcher, {u"하나"_s});
    EXPECT_TRUE(m_launcher->drafts.empty());
}

TEST_F(Details, DraftsAreAskedAboutOnceAtTheEnd)
{
    TypeTitle(u"첫째"_s);
    Click(*m_launcher, u"둘"_s);
    TypeTitle(u"둘째"_s);

    m_app.fakes.prompts.WillAnswer(Answer::Cancel);
    EXPECT_FALSE(shell::Form_Unload(*m_launcher));
    EXPECT_EQ(Info(u"하나"_s), u"하나\u0003Game\r\nold\r\n"_s);
    EXPECT_EQ(m_launcher->drafts.size(), 2U);

    m_app.fakes.prompts.Forget();
    m_app.fakes.prompts.WillAnswer(Answer::Save);
    EXPECT_TRUE(shell::Form_Unload(*m_launcher));
    ASSERT_EQ(m_app.fakes.prompts.Asked().size(), 1U);
    EXPECT_TRUE(m_app.fakes.prompts.Texts().front().contains(u"하나"_s));
    EXPECT_EQ(Info(u"하나"_s), u"첫째\u0003Game\r\nold\r\n"_s);
    EXPECT_EQ(Info(u"둘"_s), u"둘째\u0003Game\r\nold\r\n"_s);
    EXPECT_TRUE(m_app.folder.ReadText(u"Gamelist.lst"_s).contains(u"첫째"_s)) << "the cache too";
}

TEST_F(Details, DiscardedDraftsEndWithTheProgramOnly)
{
    TypeTitle(u"첫째"_s);
    QDir().mkpath(m_app.folder.Path(u"Gamelist.lst/x"_s)); // the list can't be saved
    m_app.fakes.prompts.WillAnswer(Answer::Discard);
    m_app.fakes.prompts.WillAnswer(Answer::No);
    EXPECT_FALSE(shell::Form_Unload(*m_launcher));
    EXPECT_EQ(m_launcher->drafts.size(), 1U) << "the window stays, and so does the draft";
    m_app.fakes.prompts.WillAnswer(Answer::Discard);
    m_app.fakes.prompts.WillAnswer(Answer::Yes);
    EXPECT_TRUE(shell::Form_Unload(*m_launcher));
    EXPECT_EQ(Info(u"하나"_s), u"하나\u0003Game\r\nold\r\n"_s);
}

TEST_F(Details, WhatCantBeReadNowIsNotForgotten)
{
    m_app.folder.WriteText(Meta(u"둘"_s, u"GenreK.dat"_s), u"퍼즐"_s);
    library::cmdRefresh_Click(*m_launcher);
    const auto entry = [&]() -> const library::GameEntry& {
        return m_launcher->catalogue[static_cast<std::size_t>(
            library::PositionOf(m_launcher->catalogue, u"둘"_s))];
    };
    ASSERT_EQ(entry().GenreK, u"퍼즐"_s);
    // The disk is unplugged.
    ASSERT_TRUE(QDir().rename(m_app.folder.Path(u"Games"_s), m_app.folder.Path(u"away"_s)));
    Click(*m_launcher, u"둘"_s);
    library::cmdSaveInfo_Click(*m_launcher);
    EXPECT_EQ(entry().GenreK, u"퍼즐"_s);
    EXPECT_EQ(entry().TitleE, u"Game"_s);
    EXPECT_EQ(Panel().lblGenreK, u"퍼즐"_s);
}

TEST_F(Details, SavingTakesWhatAnotherProgramChangedMeanwhile)
{
    TypeTitle(u"새 제목"_s);
    m_app.folder.WriteText(Meta(u"하나"_s, u"info.txt"_s), u"하나\u0003Changed\r\nnew\r\n"_s);
    library::cmdSaveInfo_Click(*m_launcher);
    EXPECT_EQ(Info(u"하나"_s), u"새 제목\u0003Changed\r\nnew\r\n"_s);
    // What could not be edited again is not written.
    Panel().txtInfo = QString(300'000, u'a');
    library::Info_Change(*m_launcher);
    library::cmdSaveInfo_Click(*m_launcher);
    EXPECT_EQ(Info(u"하나"_s), u"새 제목\u0003Changed\r\nnew\r\n"_s);
    EXPECT_TRUE(Panel().draft);
}

TEST_F(Details, TheGenreMenuHoldsEveryValueOfTheTree)
{
    library::Catalogue& catalogue = m_launcher->catalogue;
    for (int i = 0; i < 100; ++i) {
        library::GameEntry entry;
        entry.Folder = u"more%1"_s.arg(i);
        entry.GenreK = u"R&B %1"_s.arg(i, 3);
        catalogue.Append(entry);
    }
    finding::RefillValueNodes(m_launcher->screens.tree, catalogue);
    const shell::MenuModel menu = library::GenreMenu(*m_launcher, GenreFile::Korean);
    ASSERT_EQ(menu.size(), 2U + 101U);
    EXPECT_EQ(menu[0].text, m_launcher->lang[67]);
    EXPECT_TRUE(menu[1].separator);
    EXPECT_EQ(menu[101].text, u"R&&B  99"_s);
    EXPECT_EQ(menu[101].index, 101);
    EXPECT_EQ(menu[102].text, u"기타"_s);
    EXPECT_TRUE(menu[102].checked) << "the game's own";
    EXPECT_FALSE(menu[101].checked);

    // The tree changes and another game is shown before the menu is answered.
    QSet<QString> gone;
    for (int i = 0; i < 48; ++i) {
        gone << u"more%1"_s.arg(i);
    }
    catalogue.Remove(gone);
    finding::RefillValueNodes(m_launcher->screens.tree, catalogue);
    Click(*m_launcher, u"둘"_s);
    library::mnuGenre_Click(*m_launcher, GenreFile::Korean, 101);
    EXPECT_EQ(m_app.folder.ReadRaw(Meta(u"하나"_s, u"GenreK.dat"_s)), "R&B  99\r\n");
    EXPECT_EQ(Panel().lblGenreK, u"기타"_s);
    Click(*m_launcher, u"하나"_s);
    EXPECT_EQ(Panel().lblGenreK, u"R&B  99"_s);
}

TEST_F(Details, ANewGenreReachesFileEntryTreeAndList)
{
    const auto list = [&] { return m_launcher->screens.list.items; };
    const auto row = static_cast<std::size_t>(m_launcher->screens.list.RowOf(u"하나"_s));
    library::GenreMenu(*m_launcher, GenreFile::Korean);
    m_app.fakes.prompts.WillType(u"   "_s);
    library::mnuGenre_Click(*m_launcher, GenreFile::Korean, 0);
    EXPECT_EQ(
        m_app.folder.ReadRaw(Meta(u"하나"_s, u"GenreK.dat"_s)),
        m_app.folder.ReadRaw(Meta(u"둘"_s, u"GenreK.dat"_s)));

    m_app.fakes.prompts.WillType(u"퍼즐☕"_s, [&] { Click(*m_launcher, u"둘"_s); });
    m_app.fakes.prompts.WillAnswer(Answer::Yes);
    library::mnuGenre_Click(*m_launcher, GenreFile::Korean, 0);
    EXPECT_EQ(m_app.folder.ReadText(Meta(u"하나"_s, u"GenreK.dat"_s)), u"퍼즐?\r\n"_s);
    EXPECT_EQ(list().at(row).text[1], u"퍼즐?"_s);
    EXPECT_EQ(list().at(row).Tag(), u"퍼즐?"_s);
    EXPECT_EQ(Panel().lblGenreK, u"기타"_s) << "another game is shown by now";
    EXPECT_THAT(
        finding::ChildTexts(m_launcher->screens.tree, finding::Category::GenreK),
        ElementsAre(u"기타"_s, u"퍼즐?"_s));

    // English genres don't show in a list of Korean titles; a file that can't be written stays.
    library::GenreMenu(*m_launcher, GenreFile::English);
    m_app.fakes.prompts.WillType(u"Puzzle"_s);
    library::mnuGenre_Click(*m_launcher, GenreFile::English, 0);
    EXPECT_EQ(m_app.folder.ReadRaw(Meta(u"둘"_s, u"GenreE.dat"_s)), "Puzzle\r\n");
    EXPECT_EQ(Panel().lblGenreE, u"Puzzle"_s);
    QDir(m_app.folder.Path(u"Games/둘"_s)).removeRecursively();
    library::mnuGenre_Click(*m_launcher, GenreFile::English, 2);
    EXPECT_EQ(Panel().lblGenreE, u"Puzzle"_s);
    EXPECT_FALSE(m_launcher->screens.status.notes.empty());
}

TEST_F(Details, ThePanelConvertsAnOldGenreIntoTheFirstGameWhoseNameEndsAlike)
{
    m_app.AddGame(u"너 하나"_s);
    library::cmdRefresh_Click(*m_launcher);
    ASSERT_EQ(library::PositionBySuffix(m_launcher->catalogue, u"하나"_s), 0) << "너 하나";
    m_app.folder.WriteText(Meta(u"하나"_s, u"Extra.dat"_s), u"@SHT"_s);
    Click(*m_launcher, u"하나"_s);
    EXPECT_EQ(Panel().lblGenreK, u"슈팅"_s);
    EXPECT_EQ(Panel().lblGenreE, u"Shooting"_s);
    EXPECT_EQ(m_launcher->catalogue[0].GenreE, u"Shooting"_s);
    EXPECT_EQ(m_app.folder.ReadRaw(Meta(u"하나"_s, u"GenreE.dat"_s)), "Shooting\r\n");
    EXPECT_EQ(m_app.folder.ReadRaw(Meta(u"너 하나"_s, u"GenreE.dat"_s)), "ETC\r\n");
    EXPECT_FALSE(m_app.folder.Exists(Meta(u"하나"_s, u"Extra.dat"_s)));
    library::cmdRefresh_Click(*m_launcher);
    EXPECT_EQ(m_launcher->catalogue[0].GenreE, u"ETC"_s) << "a refresh heals it";
}

TEST_F(Details, ASelectionListsEachFolderOnceAndReadsEachFileOnce)
{
    const QString game = u"Games/하나"_s;
    m_app.folder.MakeTree(
        {Meta(u"하나"_s, u"CD/a.iso"_s),
         Meta(u"하나"_s, u"Manual/m.txt"_s),
         Meta(u"하나"_s, u"shot.png"_s)});
    m_app.folder.WriteText(Meta(u"하나"_s, u"ExtraInfo.txt"_s), u"M\r\n"_s);
    m_app.folder.WriteText(Meta(u"하나"_s, u"CD.conf"_s), u"1\r\n1\r\n"_s);
    Click(*m_launcher, u"하나"_s);
    ASSERT_TRUE(dosboxconf::WriteGameConf(
        m_launcher->places, u"하나"_s, m_launcher->options, m_launcher->options.OptionSelection));
    // Its spelling on disk is another one than the one that is asked for.
    QDir().rename(m_app.folder.Path(game + u"/DosBox"_s), m_app.folder.Path(game + u"/DOSBOX"_s));
    Click(*m_launcher, u"둘"_s);

    const test::FolderWatch watch(
        {m_app.folder.Path(game),
         m_app.folder.Path(game + u"/DOSBOX"_s),
         m_app.folder.Path(game + u"/DOSBOX/CD"_s),
         m_app.folder.Path(game + u"/DOSBOX/Manual"_s)});
    Click(*m_launcher, u"하나"_s);
    EXPECT_THAT(
        watch.Opened(),
        testing::UnorderedElementsAre(
            m_app.folder.Path(game) + u'/',
            m_app.folder.Path(game + u"/DOSBOX/"_s),
            m_app.folder.Path(game + u"/DOSBOX/CD/"_s),
            m_app.folder.Path(game + u"/DOSBOX/Manual/"_s),
            m_app.folder.Path(game + u"/DOSBOX/info.txt"_s),
            m_app.folder.Path(game + u"/DOSBOX/GenreK.dat"_s),
            m_app.folder.Path(game + u"/DOSBOX/GenreE.dat"_s),
            m_app.folder.Path(game + u"/DOSBOX/autoexec.conf"_s),
            m_app.folder.Path(game + u"/DOSBOX/CD.conf"_s),
            m_app.folder.Path(game + u"/DOSBOX/edit.conf"_s)));
}

TEST_F(Details, MediaOpenByTheShellAndGoToTheBin)
{
    m_app.folder.MakeTree(
        {Meta(u"하나"_s, u"b.PNG"_s),
         Meta(u"하나"_s, u"a.gif"_s),
         Meta(u"하나"_s, u"Icon.jpg"_s),
         Meta(u"하나"_s, u"song.vgm"_s),
         Meta(u"하나"_s, u"Manual/read.txt"_s)});
    Click(*m_launcher, u"하나"_s);
    library::MediaPanel& media = m_launcher->screens.media;
    const auto path = [&](const QString& file) { return m_app.folder.Path(Meta(u"하나"_s, file)); };
    EXPECT_EQ(media.TabStrip1, 3);
    EXPECT_EQ(media.fileImages.files, (QStringList{u"a.gif"_s, u"b.PNG"_s, u"Icon.jpg"_s}));
    EXPECT_EQ(media.fileImages.row, 0);
    EXPECT_EQ(media.fileAV.files, QStringList{u"song.vgm"_s});
    EXPECT_EQ(Panel().iconFile, path(u"Icon.jpg"_s));

    for (const QString& next : {u"b.PNG"_s, u"Icon.jpg"_s, u"a.gif"_s}) {
        library::pic1_Click(*m_launcher);
        EXPECT_EQ(media.fileImages.SelectedPath(), path(next)) << "round and round";
    }
    using library::Media;
    EXPECT_FALSE(library::MediaMenu(*m_launcher, Media::Recordings).front().enabled)
        << "none is selected";
    media.fileAV.row = 0;
    media.fileManual.row = 0;
    library::mnuMedia_Click(*m_launcher, Media::Pictures, 0);
    library::mnuMedia_Click(*m_launcher, Media::Pictures, 1);
    library::mnuMedia_Click(*m_launcher, Media::Recordings, 0);
    library::mnuMedia_Click(*m_launcher, Media::Recordings, 1); // there is no codec to install
    library::mnuMedia_Click(*m_launcher, Media::Manuals, 0);
    EXPECT_EQ(
        m_app.fakes.shell.opened,
        (QStringList{
            path(u"a.gif"_s), path(u"a.gif"_s), path(u"song.vgm"_s), path(u"Manual/read.txt"_s)}));

    m_app.fakes.bin.refused = {path(u"a.gif"_s)};
    library::mnuMedia_Click(*m_launcher, Media::Pictures, 2);
    EXPECT_EQ(media.fileImages.files.size(), 3) << "the bin refused it";
    media.fileImages.row = 2;
    library::mnuMedia_Click(*m_launcher, Media::Pictures, 2);
    EXPECT_EQ(media.fileImages.files, (QStringList{u"a.gif"_s, u"b.PNG"_s}));
    EXPECT_EQ(media.fileImages.row, 0);
    EXPECT_EQ(Panel().iconFile, QString());
    library::mnuMedia_Click(*m_launcher, Media::Manuals, 1);
    EXPECT_EQ(media.TabStrip1, 1) << "no manual is left";
    EXPECT_EQ(
        m_app.fakes.bin.Moved(), (QStringList{path(u"Icon.jpg"_s), path(u"Manual/read.txt"_s)}));
    EXPECT_TRUE(library::MediaMenu(*m_launcher, Media::Manuals).empty());

    Click(*m_launcher, u"둘"_s);
    EXPECT_EQ(media.fileImages.row, -1);
    EXPECT_TRUE(media.fileImages.files.isEmpty());
}

TEST_F(Details, FactsGoIntoFileEntryTreeAndListByFolder)
{
    // Another game bears the same title.
    m_app.folder.WriteText(Meta(u"둘"_s, u"info.txt"_s), u"하나\u0003Game\r\n"_s);
    m_app.folder.WriteText(
        Meta(u"둘"_s, u"ExtraInfo.txt"_s), u"Beta\r\n1999\r\nkorean\r\nKR\r\n"_s);
    library::cmdRefresh_Click(*m_launcher);
    Click(*m_launcher, u"하나"_s);
    library::ConfigDetail& dialog = m_launcher->screens.configDetail;
    library::OpenDetails(*m_launcher);
    EXPECT_EQ(dialog.folder, u"하나"_s);
    EXPECT_EQ(dialog.values[0], QStringList{u"Beta"_s});
    EXPECT_EQ(dialog.values[1], QStringList{u"1999"_s});
    EXPECT_EQ(dialog.values[2], QStringList{u"korean"_s});

    dialog.Combo1 = {u"Alpha\u0003"_s, u"1988"_s, u"한국어"_s, u"☕"_s};
    m_app.fakes.prompts.WillAnswer(Answer::Yes, [&] { Click(*m_launcher, u"둘"_s); });
    library::SaveDetails(*m_launcher);
    EXPECT_EQ(
        m_app.folder.ReadText(Meta(u"하나"_s, u"ExtraInfo.txt"_s)),
        u"Alpha\r\n1988\r\n한국어\r\n?\r\n"_s);
    EXPECT_EQ(dialog.folder, QString()) << "closed";
    const auto row = [&](const QString& game) {
        const finding::GameList& list = m_launcher->screens.list;
        const auto& text = list.items.at(static_cast<std::size_t>(list.RowOf(game))).text;
        return QStringList(text.begin() + 4, text.end());
    };
    EXPECT_EQ(row(u"하나"_s), (QStringList{u"Alpha"_s, u"1988"_s, u"한국어"_s, u"?"_s}));
    EXPECT_EQ(row(u"둘"_s), (QStringList{u"Beta"_s, u"1999"_s, u"korean"_s, u"KR"_s}));
    EXPECT_THAT(
        finding::ChildTexts(m_launcher->screens.tree, finding::Category::Maker),
        ElementsAre(u"Alpha"_s, u"Beta"_s));

    library::OpenDetails(*m_launcher);
    EXPECT_EQ(dialog.folder, u"둘"_s);
    m_app.fakes.prompts.WillAnswer(Answer::No);
    library::DeleteDetails(*m_launcher);
    EXPECT_TRUE(m_app.folder.Exists(Meta(u"둘"_s, u"ExtraInfo.txt"_s)));
    m_app.fakes.prompts.WillAnswer(Answer::Yes);
    library::DeleteDetails(*m_launcher);
    EXPECT_FALSE(m_app.folder.Exists(Meta(u"둘"_s, u"ExtraInfo.txt"_s)));
    EXPECT_EQ(row(u"둘"_s), (QStringList{QString(), QString(), QString(), QString()}));
    EXPECT_EQ(dialog.Combo1[0], QString());
    EXPECT_EQ(dialog.folder, u"둘"_s) << "it stays open";

    QDir(m_app.folder.Path(u"Games/둘"_s)).removeRecursively();
    dialog.Combo1[0] = u"Gamma"_s;
    library::SaveDetails(*m_launcher);
    EXPECT_EQ(dialog.folder, u"둘"_s) << "what was typed is not lost";
    EXPECT_FALSE(m_app.folder.Exists(u"Games/둘"_s));
}
