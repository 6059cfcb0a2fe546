#include "library/CatalogueCommands.h"
#include "library/DeleteCommands.h"
#include "library/InfoCommands.h"
#include "library/RenameCommands.h"
#include "shell/FolderCfgCommands.h"
#include "shell/LifecycleCommands.h"
#include "shell/SiteCommands.h"
#include "support/Installation.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using shell::Root;
using test::Installation;

namespace {

/// frmFolderCFG open over a started program with one game.
class FolderCfg : public testing::Test {
protected:
    FolderCfg()
    {
        m_app.AddGame(u"하나"_s);
        m_launcher = m_app.Start();
        shell::frmFolderCFG_Load(*m_launcher);
    }

    shell::FolderCfg& Boxes() const { return m_launcher->screens.folderCfg; }
    QString Path(const char16_t* relative) const
    {
        return m_app.folder.Path(QString::fromUtf16(relative));
    }

    Installation m_app;
    std::unique_ptr<shell::Launcher> m_launcher;
};

} // namespace

TEST_F(FolderCfg, AChosenFolderGoesIntoItsBoxUnlessItCantBeARoot)
{
    EXPECT_EQ(Boxes().txtGames, Path(u"Games"));
    EXPECT_EQ(Boxes().txtExport, Path(u"Export"));
    test::ScriptedPrompts& prompts = m_app.fakes.prompts;
    Boxes().txtGames = Path(u"Games/not/there");
    prompts.WillChoose({});
    shell::ChooseRoot(*m_launcher, Root::Games);
    ASSERT_EQ(prompts.Asked().size(), 1U);
    EXPECT_EQ(prompts.Asked()[0].title, m_launcher->lang[210]);
    EXPECT_EQ(prompts.Asked()[0].preset, Path(u"Games"));
    EXPECT_EQ(Boxes().txtGames, Path(u"Games/not/there"));

    prompts.Forget();
    prompts.WillChoose(u"/usr"_s);
    shell::ChooseRoot(*m_launcher, Root::Export);
    ASSERT_EQ(prompts.Asked().size(), 2U);
    EXPECT_EQ(prompts.Asked()[0].title, m_launcher->lang[211]);
    EXPECT_EQ(prompts.Asked()[1].text, m_launcher->lang[107]);
    EXPECT_EQ(prompts.Asked()[1].title, m_launcher->lang[108]);
    EXPECT_EQ(Boxes().txtExport, Path(u"Export"));

    prompts.WillChoose(Path(u"Dos"));
    shell::ChooseRoot(*m_launcher, Root::Export);
    EXPECT_EQ(Boxes().txtExport, Path(u"Dos"));
    shell::OpenRoot(*m_launcher, Root::Export);
    EXPECT_EQ(m_app.fakes.shell.opened, QStringList{Path(u"Dos")});
    shell::TakeDefaultRoot(*m_launcher, Root::Export);
    shell::TakeDefaultRoot(*m_launcher, Root::Games);
    EXPECT_EQ(Boxes().txtExport, Path(u"Export"));
    EXPECT_EQ(Boxes().txtGames, Path(u"Games"));
    EXPECT_EQ(m_launcher->places.exportRoot, Path(u"Export"));
}

TEST_F(FolderCfg, RefusedRootsChangeNothing)
{
    m_app.folder.WriteRaw(u"file"_s, "x");
    m_app.folder.MakeLink(u"link"_s, Path(u"Games"));
    const std::pair<QString, QString> refused[] = {
        {u""_s, Path(u"Export")},
        {Path(u"New"), u" "_s},
        {u"/"_s, Path(u"Export")},
        {u"/proc"_s, Path(u"Export")}, // a mount point
        {Path(u"Games"), Path(u"Games/Export")},
        {Path(u"Games"), Path(u"link")},
        {m_app.folder.TemporaryFolder(), Path(u"Export")},
        {Path(u"New"), Path(u"file/under")},
        {Path(u"漢\u00e9"), Path(u"Export")},
        {Path(u"a\\b"), Path(u"../😀")},
    };
    for (const auto& [games, exported] : refused) {
        m_app.fakes.prompts.Forget();
        Boxes().txtGames = games;
        Boxes().txtExport = exported;
        EXPECT_FALSE(shell::AcceptRoots(*m_launcher)) << games.toStdString();
        EXPECT_EQ(m_app.fakes.prompts.Asked().size(), 1U) << games.toStdString();
    }
    EXPECT_EQ(m_launcher->places.gamesRoot, Path(u"Games"));
    EXPECT_EQ(m_launcher->places.exportRoot, Path(u"Export"));
    EXPECT_FALSE(m_launcher->settings.rootsChanged);
    EXPECT_FALSE(m_app.folder.Exists(u"Games/Export"_s));
}

TEST_F(FolderCfg, ChangedRootsAreMadeAndScannedAtTheNextStart)
{
    ASSERT_TRUE(shell::Form_Unload(*m_launcher));
    ASSERT_TRUE(m_app.folder.Exists(u"Gamelist.lst"_s));
    m_launcher = m_app.Start();
    shell::frmFolderCFG_Load(*m_launcher);
    Boxes().txtExport = Path(u"Out/of/it");
    ASSERT_TRUE(shell::AcceptRoots(*m_launcher));
    EXPECT_TRUE(m_app.folder.Exists(u"Out/of/it"_s));
    EXPECT_FALSE(m_launcher->settings.rootsChanged);
    EXPECT_TRUE(m_launcher->screens.status.notes.empty());

    m_app.folder.MakeTree({u"Other/셋/GO.EXE"_s});
    Boxes().txtGames = u"OTHER\\"_s;
    ASSERT_TRUE(shell::AcceptRoots(*m_launcher));
    EXPECT_EQ(m_launcher->places.gamesRoot, Path(u"Other"));
    EXPECT_EQ(m_launcher->catalogue[0].Folder, u"하나"_s);
    EXPECT_EQ(m_launcher->screens.status.notes.size(), 1U);
    // Back again: the list is this folder's.
    Boxes().txtGames = Path(u"Games");
    ASSERT_TRUE(shell::AcceptRoots(*m_launcher));
    EXPECT_FALSE(m_launcher->settings.rootsChanged);
    EXPECT_EQ(m_launcher->screens.status.notes.size(), 1U);
    Boxes().txtGames = Path(u"Other");
    ASSERT_TRUE(shell::AcceptRoots(*m_launcher));
    ASSERT_TRUE(shell::Form_Unload(*m_launcher));
    EXPECT_FALSE(m_app.folder.Exists(u"Gamelist.lst"_s));
    EXPECT_FALSE(m_app.folder.Exists(u"IconList.bmp"_s));

    const auto next = m_app.Start();
    EXPECT_EQ(next->places.exportRoot, Path(u"Out/of/it"));
    ASSERT_EQ(next->catalogue.size(), 1U);
    EXPECT_EQ(next->catalogue[0].Folder, u"셋"_s);
    // A scan in the same session saves the new list at its end.
    shell::frmFolderCFG_Load(*next);
    next->screens.folderCfg.txtGames = Path(u"Games");
    ASSERT_TRUE(shell::AcceptRoots(*next));
    library::cmdRefresh_Click(*next);
    EXPECT_EQ(next->catalogue[0].Folder, u"하나"_s);
    ASSERT_TRUE(shell::Form_Unload(*next));
    EXPECT_TRUE(m_app.folder.Exists(u"Gamelist.lst"_s));
}

TEST_F(FolderCfg, FormerGamesAreNotTakenForThoseOfTheNewRoot)
{
    const QString info = u"Other/하나/DosBox/info.txt"_s;
    m_app.folder.WriteText(info, u"다른 게임\u0003Another"_s);
    const auto type = [&](const QString& title) {
        m_launcher->screens.details.txtTitle[0] = title;
        library::Info_Change(*m_launcher);
    };
    type(u"새 제목"_s);
    Boxes().txtGames = Path(u"Other");
    m_app.fakes.prompts.WillAnswer(platform::Answer::Cancel);
    Boxes().txtExport = Path(u"New/export");
    EXPECT_FALSE(shell::AcceptRoots(*m_launcher)) << "the draft is asked about first";
    EXPECT_FALSE(m_app.folder.Exists(u"New"_s)) << "and nothing was made";
    Boxes().txtExport = m_launcher->places.exportRoot;
    m_app.fakes.prompts.WillAnswer(platform::Answer::Save);
    ASSERT_TRUE(shell::AcceptRoots(*m_launcher));
    EXPECT_TRUE(m_app.folder.ReadText(u"Games/하나/DosBox/info.txt"_s).startsWith(u"새 제목"));

    // None of these asks anything, and none touches the namesake.
    library::DeleteSelectedGames(*m_launcher);
    library::RenameGameFolder(*m_launcher);
    type(u"또"_s);
    EXPECT_TRUE(m_launcher->drafts.empty()) << "it could not be saved";
    library::cmdSaveInfo_Click(*m_launcher);
    EXPECT_EQ(m_app.folder.ReadText(info), u"다른 게임\u0003Another"_s);
    EXPECT_FALSE(m_launcher->screens.status.notes.empty());

    library::cmdRefresh_Click(*m_launcher);
    m_app.fakes.prompts.WillAnswer(platform::Answer::Yes);
    library::DeleteSelectedGames(*m_launcher);
    EXPECT_FALSE(m_app.folder.Exists(u"Other/하나"_s));
    EXPECT_TRUE(m_app.folder.Exists(u"Games/하나"_s));
}

TEST_F(FolderCfg, ADiscardedDraftIsNotANamesakesBelowTheNewRoot)
{
    m_app.folder.WriteText(u"Other/하나/DosBox/info.txt"_s, u"다른 게임\u0003Another"_s);
    m_launcher->screens.details.txtTitle[0] = u"새 제목"_s;
    library::Info_Change(*m_launcher);
    Boxes().txtGames = Path(u"Other");
    m_app.fakes.prompts.WillAnswer(platform::Answer::Discard);
    ASSERT_TRUE(shell::AcceptRoots(*m_launcher));
    library::cmdRefresh_Click(*m_launcher);
    EXPECT_EQ(m_launcher->screens.details.txtTitle[0], u"다른 게임"_s);
    EXPECT_TRUE(shell::Form_Unload(*m_launcher)) << "and nothing is left to ask about";
}

TEST(Site, OpensTheAddressThatTheFileNames)
{
    Installation app;
    app.AddGame(u"하나"_s);
    const auto without = app.Start();
    EXPECT_FALSE(without->screens.frame.hasSite);
    shell::cmdVespra_Click(*without);
    EXPECT_TRUE(app.fakes.shell.openedUrls.isEmpty());

    app.folder.WriteRaw(u"Endpoints.cfg"_s, "site=http://127.0.0.1:8080/blog\r\n");
    const auto with = app.Start();
    EXPECT_TRUE(with->screens.frame.hasSite);
    app.fakes.shell.refuse = platform::Error{platform::ErrorKind::NotFound, u"no browser"_s};
    shell::cmdVespra_Click(*with);
    EXPECT_EQ(app.fakes.shell.openedUrls, QStringList{u"http://127.0.0.1:8080/blog/"_s});
    ASSERT_EQ(with->screens.status.notes.size(), 1U);

    app.folder.WriteRaw(u"Endpoints.cfg"_s, "site=ftp://x/\r\n");
    const auto broken = app.Start();
    EXPECT_FALSE(broken->screens.frame.hasSite);
    EXPECT_EQ(broken->screens.status.notes.size(), 1U);
}
