#include "dosboxconf/StartPageCommands.h"
#include "faults/FaultsFixture.h"
#include "library/CatalogueCommands.h"
#include "running/RunCommands.h"
#include "shell/LifecycleCommands.h"
#include "support/DiskTroubles.h"

#include <QFile>

#include <memory>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::test;

namespace {

/// An installation with a game, on a disk of its own.
class DiskFaults : public testing::Test {
protected:
    void SetUp() override
    {
        if (!m_disk.IsMounted()) {
            GTEST_SKIP() << "mounting needs root";
        }
        const ScopedEnvironment scope(TemporaryFilesIn(m_place.Path()));
        m_app = std::make_unique<Installation>();
        m_app->AddGame(u"별"_s);
    }
    const TestFolder& Folder() const { return m_app->folder; }
    ScriptedPrompts& Prompts() const { return m_app->fakes.prompts; }

    /// The files but for the one that fills the disk.
    QMap<QString, QByteArray> Files() const { return FilesOf(m_app->folder); }

    /// Closing asks, names the files, and the window stays until the user says yes.
    void ExpectBoxAtExit(shell::Launcher& launcher, const QStringList& named)
    {
        Prompts().Forget();
        Prompts().WillAnswer(platform::Answer::No);
        EXPECT_FALSE(shell::Form_Unload(launcher));
        ASSERT_EQ(Prompts().Asked().size(), 1U);
        for (const QString& file : named) {
            EXPECT_PRED2(Holds, Prompts().Asked().front().text, Folder().Path(file));
        }
        EXPECT_FALSE(launcher.flags.Ending);
        EXPECT_TRUE(launcher.flags.BusyReady);
    }

    TestFolder m_place;
    PrivateDisk m_disk{m_place.Path(), "4m"};
    std::unique_ptr<Installation> m_app;
};

TEST_F(DiskFaults, ReadOnlyAtExit)
{
    const auto launcher = m_app->Start();
    ASSERT_TRUE(shell::Form_Unload(*launcher));
    launcher->flags.Ending = false;
    launcher->screens.list.view = finding::View::Details;
    launcher->catalogue.Edit(0, [](auto& entry) { entry.TitleK = u"새 이름"_s; });
    launcher->icons.Set(0, launcher->icons.Small(0));
    const auto before = Files();
    m_disk.MakeReadOnly();
    ExpectBoxAtExit(*launcher, {u"Launcher.cfg"_s, u"Gamelist.lst"_s});
    EXPECT_EQ(Files(), before);
    Prompts().WillAnswer(platform::Answer::Yes);
    EXPECT_TRUE(shell::Form_Unload(*launcher));
    EXPECT_EQ(Files(), before);
    m_disk.MakeReadOnly(false);
    ASSERT_TRUE(shell::Form_Unload(*launcher)) << "and once it can be written, all is saved";
    EXPECT_NE(Files()[u"Gamelist.lst"_s], before[u"Gamelist.lst"_s]);
}

TEST_F(DiskFaults, ReadOnlyAtTheFirstStart)
{
    const auto before = Files();
    m_disk.MakeReadOnly();
    const auto launcher = m_app->Start();
    EXPECT_EQ(Files(), before);
    EXPECT_EQ(launcher->screens.list.items.size(), 1U) << "in the list by its name";
    for (const QString& file : {u"Launcher.cfg"_s, u"recent.sav"_s, u"Default.conf"_s}) {
        EXPECT_PRED2(Holds, Notes(*launcher), Folder().Path(file));
    }
    EXPECT_TRUE(Prompts().Asked().empty());
    // The same for a game that is told to start: dosbox.conf can't be written.
    launcher->screens.start.lstAutoexec = {u"game.com"_s};
    running::RunGame(*launcher);
    EXPECT_PRED2(Holds, Notes(*launcher), u"dosbox.conf"_s);
    EXPECT_TRUE(m_app->fakes.processes.Starts().empty());
    ExpectBoxAtExit(*launcher, {u"Launcher.cfg"_s});
    m_disk.MakeReadOnly(false);
}

TEST_F(DiskFaults, FullAtExit)
{
    const auto launcher = m_app->Start();
    ASSERT_TRUE(shell::Form_Unload(*launcher));
    launcher->flags.Ending = false;
    m_app->AddGame(u"달"_s);
    library::cmdRefresh_Click(*launcher);
    ASSERT_EQ(launcher->catalogue.size(), 2U);
    m_disk.Fill();
    const auto before = Files();
    ExpectBoxAtExit(*launcher, {u"Launcher.cfg"_s, u"Gamelist.lst"_s});
    EXPECT_EQ(Files(), before);
    m_disk.Free();
    EXPECT_TRUE(shell::Form_Unload(*launcher));
    EXPECT_NE(Files()[u"Gamelist.lst"_s], before[u"Gamelist.lst"_s]);
}

TEST_F(DiskFaults, FullWhenOnlyTheSheetStillFits)
{
    const auto launcher = m_app->Start();
    ASSERT_TRUE(shell::Form_Unload(*launcher));
    launcher->flags.Ending = false;
    for (int i = 0; i < 40; ++i) {
        m_app->AddGame(u"게임 %1 "_s.arg(i) + QString(70, u'가'));
    }
    library::cmdRefresh_Click(*launcher);
    ASSERT_EQ(launcher->catalogue.size(), 41U);
    m_disk.Fill();
    constexpr qint64 kSheetBytes = 54 + 41 * 32 * 32 * 3;
    constexpr qint64 kBlock = 4096;
    m_disk.FreeBytes((kSheetBytes / kBlock + 2) * kBlock);
    const auto before = Files();
    ExpectBoxAtExit(*launcher, {});
    for (const QString& file : {u"Gamelist.lst"_s, u"IconList.bmp"_s}) {
        EXPECT_EQ(Files()[file], before[file]) << file.toStdString();
    }
}

TEST_F(DiskFaults, FullWhilePreparing)
{
    const auto launcher = m_app->Start();
    m_app->AddGame(u"달"_s);
    m_app->AddGame(u"해"_s);
    m_disk.Fill();
    library::cmdRefresh_Click(*launcher);
    EXPECT_EQ(launcher->screens.list.items.size(), 3U);
    EXPECT_PRED2(Holds, Notes(*launcher), launcher->lang.Text(351, {u"6"_s}));
    EXPECT_TRUE(Prompts().Asked().empty());
    const auto files = Files();
    for (const QString& name : {u"autoexec.conf"_s, u"GenreK.dat"_s, u"GenreE.dat"_s}) {
        EXPECT_FALSE(files.contains(u"Games/달/DosBox/"_s + name)) << "no half file";
    }
    // With room again the next scan makes up for it.
    m_disk.Free();
    library::cmdRefresh_Click(*launcher);
    EXPECT_EQ(Folder().ReadText(u"Games/달/DosBox/autoexec.conf"_s), u"game.com\r\n"_s);
}

TEST_F(DiskFaults, FullWhileStartingAndSavingStartCommands)
{
    const auto launcher = m_app->Start();
    running::RunGame(*launcher);
    ASSERT_EQ(m_app->fakes.processes.Starts().size(), 1U);
    launcher->screens.start.lstAutoexec = {u"other.exe"_s};
    m_disk.Fill();
    const auto before = Files();
    running::RunGame(*launcher);
    EXPECT_EQ(m_app->fakes.processes.Starts().size(), 1U);
    EXPECT_PRED2(Holds, Notes(*launcher), Folder().Path(u"DOSBox/0.74_SVN/dosbox.conf"_s));
    dosboxconf::WriteAutoexecConf(*launcher);
    EXPECT_PRED2(Holds, Notes(*launcher), Folder().Path(u"Games/별/DosBox/autoexec.conf"_s));
    EXPECT_EQ(Files(), before);
    EXPECT_TRUE(Prompts().Asked().empty());
}

TEST_F(DiskFaults, FullWhenDamagedSettingsAreToBeReplaced)
{
    m_app->Start();
    Folder().WriteLines(u"Launcher.cfg"_s, {u"1"_s, u"damaged"_s});
    const QByteArray damaged = Folder().ReadRaw(u"Launcher.cfg"_s);
    m_disk.Fill();
    const auto launcher = m_app->Start();
    EXPECT_EQ(launcher->screens.list.items.size(), 1U);
    EXPECT_EQ(Folder().ReadRaw(u"Launcher.cfg"_s), damaged);
    EXPECT_FALSE(Folder().Exists(u"Launcher.cfg.bak"_s));
    EXPECT_PRED2(Holds, Notes(*launcher), u"Launcher.cfg.bak"_s);
    ExpectBoxAtExit(*launcher, {u"Launcher.cfg.bak"_s});
    EXPECT_EQ(Folder().ReadRaw(u"Launcher.cfg"_s), damaged);
    // What could not be kept at the start is kept before it is written over.
    m_disk.Free();
    ASSERT_TRUE(shell::Form_Unload(*launcher));
    EXPECT_EQ(Folder().ReadRaw(u"Launcher.cfg.bak"_s), damaged);
    EXPECT_EQ(Folder().ReadLines(u"Launcher.cfg"_s).size(), 14);
}

} // namespace
