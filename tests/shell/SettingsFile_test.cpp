#include "shell/SettingsFile.h"

#include "support/TestFolder.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::shell;
using namespace pelorin::test;

namespace {

/// 14 lines of a normal window with this root for games and exports.
QStringList FileWith(const QString& root)
{
    LauncherCfg cfg;
    cfg.view = 2;
    cfg.left = 450;
    cfg.width = 15000;
    cfg.height = 9000;
    cfg.gamesRoot = root;
    cfg.exportRoot = root;
    cfg.titleLanguageKorean = false;
    return LauncherCfgLines(cfg);
}

struct SettingsFileTest : testing::Test {
    explicit SettingsFileTest(const QString& appDir = QString())
        : folder(appDir)
    {}

    QStringList Cfg() const { return folder.ReadLines(u"Launcher.cfg"_s); }
    QStringList Backup() const { return folder.ReadLines(u"Launcher.cfg.bak"_s); }
    QStringList Defaults() const
    {
        return DefaultCfgLines(folder.Path(u"Games"_s), folder.Path(u"Export"_s));
    }
    LoadedSettings Loaded() const
    {
        auto loaded = LoadSettingsFiles(places);
        EXPECT_TRUE(loaded.Ok()) << ErrorOf(loaded);
        return loaded.ValueOr(LoadedSettings());
    }
    platform::Done Save(const LoadedSettings& settings) const
    {
        return SaveSettingsFiles(places, settings.cfg, settings.recent);
    }

    const TestFolder folder;
    const Places places{folder.Path(), QString(), QString()};
};

TEST_F(SettingsFileTest, AFirstStartMakesFilesAndFolders)
{
    const LoadedSettings loaded = Loaded();
    EXPECT_EQ(folder.TreeText(), u"Export/ Games/ Launcher.cfg preset/ recent.sav"_s);
    EXPECT_EQ(Cfg(), Defaults());
    EXPECT_EQ(loaded.cfg.gamesRoot, folder.Path(u"Games"_s));
    EXPECT_EQ(loaded.cfg.exportRoot, folder.Path(u"Export"_s));
    EXPECT_TRUE(loaded.lostRoots.isEmpty());
    EXPECT_FALSE(loaded.replacementReason);
}

TEST_F(SettingsFileTest, ReusesWhatDiffersByCaseOnly)
{
    folder.MakeAll(u"GAMES/ export/ Preset/"_s);
    folder.WriteLines(u"launcher.CFG"_s, FileWith(u"Games"_s));
    const LoadedSettings loaded = Loaded();
    EXPECT_EQ(loaded.cfg.gamesRoot, folder.Path(u"GAMES"_s));
    ASSERT_TRUE(Save(loaded).Ok());
    EXPECT_EQ(folder.TreeText(), u"GAMES/ Preset/ export/ launcher.CFG recent.sav"_s);
}

TEST_F(SettingsFileTest, RepairsRoots)
{
    struct Case {
        QString written;
        QString read; // below AppDir
        bool lost;
    };
    folder.MakeTree({u"My Games/sub/"_s, u"file"_s});
    const QString mine = folder.Path(u"My Games"_s);
    const Case cases[] = {
        {mine, u"My Games"_s, false},
        {folder.Path(u"my games"_s) + u'/', u"My Games"_s, false},
        {QString(mine + u"/sub"_s).replace(u'/', u'\\'), u"My Games/sub"_s, false},
        {u"My Games\\sub"_s, u"My Games/sub"_s, false},
        {mine + u"/sub/.."_s, u"My Games"_s, false},
        {QString(), u"Games"_s, false},
        {u"   "_s, u"Games"_s, false},
        {u"GAMES"_s, u"Games"_s, false},
        {folder.Path(u"Games"_s), u"Games"_s, false},
        {folder.Path(u"gone"_s), u"Games"_s, true},
        {folder.Path(u"file"_s), u"Games"_s, true},
        {u"C:\\Games"_s, u"Games"_s, true},
        {u"/"_s, u"Games"_s, true},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.written);
        QFile::remove(folder.Path(u"Launcher.cfg.bak"_s));
        QStringList lines = FileWith(one.written);
        lines[6] = QString();
        folder.WriteLines(u"Launcher.cfg"_s, lines);
        const LoadedSettings loaded = Loaded();
        EXPECT_EQ(loaded.cfg.gamesRoot, folder.Path(one.read));
        EXPECT_EQ(loaded.lostRoots, one.lost ? QStringList{one.written} : QStringList());
        ASSERT_EQ(folder.Exists(u"Launcher.cfg.bak"_s), one.lost);
        if (one.lost) {
            EXPECT_EQ(Backup(), lines);
        }
    }
}

TEST_F(SettingsFileTest, NothingIsMadeInThePlaceOfAnUnpluggedDisk)
{
    folder.MakeLink(u"Games"_s, u"/nowhere/disk"_s);
    const LoadedSettings loaded = Loaded();
    EXPECT_EQ(loaded.cfg.gamesRoot, folder.Path(u"Games"_s));
    EXPECT_TRUE(loaded.unwritten.isEmpty());
    EXPECT_EQ(QFile::symLinkTarget(folder.Path(u"Games"_s)), u"/nowhere/disk"_s);
}

TEST_F(SettingsFileTest, AMinimizedCloseResetsTheNextStartButLosesNothing)
{
    folder.MakeFolder(u"roms"_s);
    const QStringList whole = FileWith(folder.Path(u"roms"_s));
    folder.WriteLines(u"Launcher.cfg"_s, whole);
    LoadedSettings loaded = Loaded();
    loaded.cfg.state = MainFrame::State::Minimized;
    ASSERT_TRUE(Save(loaded).Ok());
    EXPECT_EQ(Cfg().size(), 11);
    EXPECT_EQ(Backup(), whole);

    const LoadedSettings next = Loaded();
    EXPECT_EQ(next.cfg.state, MainFrame::State::Normal);
    EXPECT_EQ(next.cfg.gamesRoot, folder.Path(u"Games"_s));
    EXPECT_EQ(Cfg(), Defaults());
    EXPECT_EQ(Backup(), whole) << "the short file adds nothing to the whole one beside it";
}

TEST_F(SettingsFileTest, AnUnreadableFileIsMovedAside)
{
    folder.WriteRaw(u"Launcher.cfg.bak"_s, "kept before");
    folder.MakeAll(u"Launcher.cfg/inside"_s);
    EXPECT_TRUE(Loaded().replacementReason);
    EXPECT_EQ(Cfg(), Defaults());
    EXPECT_TRUE(folder.Exists(u"Launcher.cfg.bak/inside"_s));
    EXPECT_EQ(folder.ReadRaw(u"Launcher.cfg.bak2"_s), "kept before");
}

TEST_F(SettingsFileTest, SavesTheSettingsAlsoWhenTheRecentFileCantBeWritten)
{
    LoadedSettings loaded = Loaded();
    QFile::remove(folder.Path(u"recent.sav"_s));
    folder.MakeAll(u"recent.sav/inside"_s);
    loaded.cfg.view = 0;
    EXPECT_TRUE(ErrorOf(Save(loaded)).contains(folder.Path(u"recent.sav"_s)));
    EXPECT_EQ(Cfg()[0], u"0"_s);
}

struct OddAppDirTest : SettingsFileTest {
    OddAppDirTest()
        : SettingsFileTest(u"José 😀"_s)
    {}
};

TEST_F(OddAppDirTest, RootsThatTheCodePageLacksAreWrittenFromThereOnOrNotAtAll)
{
    LoadedSettings loaded = Loaded();
    EXPECT_EQ(Cfg()[5], u"Games"_s);
    EXPECT_EQ(loaded.cfg.gamesRoot, folder.Path(u"Games"_s));
    folder.MakeFolder(u"게임"_s);
    loaded.cfg.gamesRoot = folder.Path(u"게임"_s);
    loaded.cfg.txtDosboxPos[0] = u"1é\n2"_s;
    ASSERT_TRUE(Save(loaded).Ok());
    EXPECT_EQ(Cfg()[8], u"1?2"_s);
    EXPECT_EQ(Loaded().cfg.gamesRoot, folder.Path(u"게임"_s));

    // Elsewhere nothing is written, rather than a path to another folder.
    const QStringList before = Cfg();
    loaded.cfg.gamesRoot = folder.Path(u"é"_s);
    const auto saved = Save(loaded);
    EXPECT_EQ(KindOf(saved), platform::ErrorKind::Unencodable);
    EXPECT_TRUE(ErrorOf(saved).contains(folder.Path(u"é"_s)));
    EXPECT_EQ(Cfg(), before);
}

} // namespace
