#include "shell/SettingsFile.h"

#include "support/TestFolder.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::shell;
using test::TestFolder;

namespace {

const QString kMark = QString(QChar(1));

Places PlacesIn(const TestFolder& folder)
{
    return Places{folder.Path(), QString(), QString()};
}

/// 14 lines of a normal window with these roots.
QStringList FileWith(const QString& gamesRoot, const QString& exportRoot)
{
    LauncherCfg cfg;
    cfg.view = 2;
    cfg.left = 450;
    cfg.width = 15000;
    cfg.height = 9000;
    cfg.gamesRoot = gamesRoot;
    cfg.exportRoot = exportRoot;
    cfg.titleLanguageKorean = false;
    return LauncherCfgLines(cfg);
}

QStringList Defaults(const TestFolder& folder)
{
    return DefaultCfgLines(folder.Path(u"Games"_s), folder.Path(u"Export"_s));
}

LoadedSettings Loaded(const TestFolder& folder)
{
    auto loaded = LoadSettingsFiles(PlacesIn(folder));
    EXPECT_TRUE(loaded.Ok()) << loaded.Failure().text.toStdString();
    return loaded.ValueOr(LoadedSettings());
}

TEST(SettingsFile, FirstStartMakesFilesAndFolders)
{
    const TestFolder folder;
    const LoadedSettings loaded = Loaded(folder);
    EXPECT_EQ(
        folder.Tree(),
        (QStringList{u"Export/"_s, u"Games/"_s, u"Launcher.cfg"_s, u"preset/"_s, u"recent.sav"_s}));
    EXPECT_EQ(folder.ReadLines(u"Launcher.cfg"_s), Defaults(folder));
    EXPECT_EQ(loaded.cfg.gamesRoot, folder.Path(u"Games"_s));
    EXPECT_EQ(loaded.cfg.exportRoot, folder.Path(u"Export"_s));
    EXPECT_TRUE(loaded.lostRoots.isEmpty());
    EXPECT_TRUE(loaded.replacementReason.isEmpty());
}

TEST(SettingsFile, ReusesWhatDiffersByCaseOnly)
{
    const TestFolder folder;
    folder.MakeTree({u"GAMES/"_s, u"export/"_s, u"Preset/"_s});
    folder.WriteLines(u"launcher.CFG"_s, FileWith(u"Games"_s, u"EXPORT"_s));
    const LoadedSettings loaded = Loaded(folder);
    EXPECT_EQ(loaded.cfg.gamesRoot, folder.Path(u"GAMES"_s));
    EXPECT_EQ(loaded.cfg.exportRoot, folder.Path(u"export"_s));
    ASSERT_TRUE(SaveSettingsFiles(PlacesIn(folder), loaded.cfg, loaded.recent).Ok());
    EXPECT_EQ(
        folder.Tree(),
        (QStringList{u"GAMES/"_s, u"Preset/"_s, u"export/"_s, u"launcher.CFG"_s, u"recent.sav"_s}));
}

TEST(SettingsFile, RepairsRoots)
{
    struct Case {
        QString written;
        QString read; // below AppDir
        bool lost;
    };
    const TestFolder folder;
    folder.MakeTree({u"My Games/sub/"_s, u"file"_s});
    const Case cases[] = {
        {folder.Path(u"My Games"_s), u"My Games"_s, false},
        {folder.Path(u"my games"_s) + u'/', u"My Games"_s, false},
        {folder.Path(u"My Games/sub"_s).replace(u'/', u'\\'), u"My Games/sub"_s, false},
        {u"My Games\\sub"_s, u"My Games/sub"_s, false},
        {folder.Path(u"My Games/sub/.."_s), u"My Games"_s, false},
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
        QFile::remove(folder.Path(u"Launcher.cfg.bak"_s));
        const QStringList lines = FileWith(one.written, QString());
        folder.WriteLines(u"Launcher.cfg"_s, lines);
        const LoadedSettings loaded = Loaded(folder);
        EXPECT_EQ(loaded.cfg.gamesRoot, folder.Path(one.read)) << one.written.toStdString();
        EXPECT_EQ(loaded.lostRoots, one.lost ? QStringList{one.written} : QStringList());
        ASSERT_EQ(folder.Exists(u"Launcher.cfg.bak"_s), one.lost) << one.written.toStdString();
        if (one.lost) {
            EXPECT_EQ(folder.ReadLines(u"Launcher.cfg.bak"_s), lines);
        }
    }
}

TEST(SettingsFile, NothingIsMadeInThePlaceOfAnUnpluggedDisk)
{
    const TestFolder folder;
    folder.MakeLink(u"Games"_s, u"/nowhere/disk"_s);
    const LoadedSettings loaded = Loaded(folder);
    EXPECT_EQ(loaded.cfg.gamesRoot, folder.Path(u"Games"_s));
    EXPECT_EQ(QFile::symLinkTarget(folder.Path(u"Games"_s)), u"/nowhere/disk"_s);
}

TEST(SettingsFile, DamagedFileIsKeptAndReplacedOnce)
{
    struct Case {
        QString what;
        QStringList lines;
    };
    const TestFolder folder;
    folder.MakeFolder(u"roms"_s);
    const QStringList whole = FileWith(folder.Path(u"roms"_s), folder.Path(u"roms"_s));
    QStringList sevenWidths = whole;
    sevenWidths[12] = QStringList(whole[12].split(kMark).mid(1)).join(kMark);
    QStringList noSuchView = whole;
    noSuchView[0] = u"7"_s;
    const Case cases[] = {
        {u"empty"_s, {}},
        {u"cut off in the roots"_s, whole.mid(0, 6)},
        {u"cut off behind the sixth line"_s, whole.mid(0, 6)},
        {u"cut off behind the ninth line"_s, whole.mid(0, 9)},
        {u"no delay"_s, whole.mid(0, 11)},
        {u"seven widths"_s, sevenWidths},
        {u"no such view"_s, noSuchView},
    };
    for (const Case& one : cases) {
        folder.WriteLines(u"Launcher.cfg"_s, one.lines);
        const LoadedSettings loaded = Loaded(folder);
        EXPECT_TRUE(
            loaded.replacementReason.startsWith(folder.Path(u"Launcher.cfg"_s) + u": line "_s))
            << one.what.toStdString();
        EXPECT_EQ(loaded.cfg.gamesRoot, folder.Path(u"Games"_s)) << one.what.toStdString();
        EXPECT_EQ(loaded.cfg.view, 1);
        EXPECT_EQ(folder.ReadLines(u"Launcher.cfg"_s), Defaults(folder));
        EXPECT_EQ(folder.ReadLines(u"Launcher.cfg.bak"_s), one.lines) << one.what.toStdString();
    }
}

TEST(SettingsFile, MinimizedCloseResetsTheNextStartButLosesNothing)
{
    const TestFolder folder;
    folder.MakeFolder(u"roms"_s);
    const QStringList whole = FileWith(folder.Path(u"roms"_s), folder.Path(u"roms"_s));
    folder.WriteLines(u"Launcher.cfg"_s, whole);
    LoadedSettings loaded = Loaded(folder);
    loaded.cfg.state = MainFrame::State::Minimized;
    ASSERT_TRUE(SaveSettingsFiles(PlacesIn(folder), loaded.cfg, loaded.recent).Ok());
    EXPECT_EQ(folder.ReadLines(u"Launcher.cfg"_s).size(), 11);
    EXPECT_EQ(folder.ReadLines(u"Launcher.cfg.bak"_s), whole);

    const LoadedSettings next = Loaded(folder);
    EXPECT_EQ(next.cfg.state, MainFrame::State::Normal);
    EXPECT_EQ(next.cfg.gamesRoot, folder.Path(u"Games"_s));
    EXPECT_EQ(folder.ReadLines(u"Launcher.cfg"_s), Defaults(folder));
    // The short file adds nothing to the whole one that stands beside it.
    EXPECT_EQ(folder.ReadLines(u"Launcher.cfg.bak"_s), whole);
}

TEST(SettingsFile, SecondErrorStopsWithTheFilesName)
{
    const TestFolder folder;
    folder.MakeFolder(u"recent.sav"_s);
    const auto loaded = LoadSettingsFiles(PlacesIn(folder));
    ASSERT_FALSE(loaded.Ok());
    EXPECT_TRUE(loaded.Failure().text.startsWith(folder.Path(u"recent.sav"_s)));

    const TestFolder other;
    other.WriteRaw(u"Games"_s, "a file where the folder should be");
    const auto blocked = LoadSettingsFiles(PlacesIn(other));
    ASSERT_FALSE(blocked.Ok());
    EXPECT_TRUE(blocked.Failure().text.startsWith(other.Path(u"Games"_s)));
    EXPECT_EQ(other.ReadRaw(u"Games"_s), "a file where the folder should be");
}

TEST(SettingsFile, UnreadableFileIsMovedAside)
{
    const TestFolder folder;
    folder.MakeTree({u"Launcher.cfg/inside"_s});
    const LoadedSettings loaded = Loaded(folder);
    EXPECT_FALSE(loaded.replacementReason.isEmpty());
    EXPECT_EQ(folder.ReadLines(u"Launcher.cfg"_s), Defaults(folder));
    EXPECT_TRUE(folder.Exists(u"Launcher.cfg.bak/inside"_s));
}

TEST(SettingsFile, RootsOutsideTheCodePage)
{
    // Below such a folder the roots are written from there on.
    const TestFolder folder(u"José 😀"_s);
    LoadedSettings loaded = Loaded(folder);
    EXPECT_EQ(folder.ReadLines(u"Launcher.cfg"_s)[5], u"Games"_s);
    EXPECT_EQ(loaded.cfg.gamesRoot, folder.Path(u"Games"_s));
    folder.MakeFolder(u"게임"_s);
    loaded.cfg.gamesRoot = folder.Path(u"게임"_s);
    loaded.cfg.txtDosboxPos[0] = u"1é\n2"_s;
    ASSERT_TRUE(SaveSettingsFiles(PlacesIn(folder), loaded.cfg, loaded.recent).Ok());
    EXPECT_EQ(folder.ReadLines(u"Launcher.cfg"_s)[8], u"1?2"_s);
    EXPECT_EQ(Loaded(folder).cfg.gamesRoot, folder.Path(u"게임"_s));

    // Elsewhere nothing is written, rather than a path to another folder.
    const QByteArray before = folder.ReadRaw(u"Launcher.cfg"_s);
    loaded.cfg.gamesRoot = folder.Path(u"é"_s);
    const auto saved = SaveSettingsFiles(PlacesIn(folder), loaded.cfg, loaded.recent);
    ASSERT_FALSE(saved.Ok());
    EXPECT_EQ(saved.Failure().kind, platform::ErrorKind::Unencodable);
    EXPECT_TRUE(saved.Failure().text.contains(folder.Path(u"é"_s)));
    EXPECT_EQ(folder.ReadRaw(u"Launcher.cfg"_s), before);
}

TEST(SettingsFile, SavesTheSettingsAlsoWhenTheRecentFileCantBeWritten)
{
    const TestFolder folder;
    LoadedSettings loaded = Loaded(folder);
    QFile::remove(folder.Path(u"recent.sav"_s));
    folder.MakeTree({u"recent.sav/inside"_s});
    loaded.cfg.view = 0;
    const auto saved = SaveSettingsFiles(PlacesIn(folder), loaded.cfg, loaded.recent);
    ASSERT_FALSE(saved.Ok());
    EXPECT_TRUE(saved.Failure().text.contains(folder.Path(u"recent.sav"_s)));
    EXPECT_EQ(folder.ReadLines(u"Launcher.cfg"_s)[0], u"0"_s);
}

} // namespace
