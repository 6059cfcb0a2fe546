#include "dosboxconf/AutoexecFile.h"
#include "dosboxconf/ConfDefaults.h"
#include "dosboxconf/ConfFiles.h"
#include "dosboxconf/OptionTable.h"
#include "faults/FaultsFixture.h"
#include "faults/KilledProcess.h"
#include "library/CatalogueCache.h"
#include "library/GameInfo.h"
#include "library/LibraryFixture.h"
#include "platform/TextFile.h"
#include "shell/RecentFile.h"
#include "shell/SettingsFile.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using test::TestFolder;

// The process is killed at every call by which a saving touches a file. Whatever was saved before
// or was to be saved must stand whole afterwards, and be what the reader reads.

namespace {

using Files = QMap<QString, QByteArray>;
using Saving = std::function<void()>;

struct Library {
    library::GameEntries catalogue;
    library::IconSheet icons;
};

/// Games with icons that differ by game and by `kind`.
Library LibraryOf(int count, int kind)
{
    Library made;
    for (int i = 0; i < count; ++i) {
        library::GameEntry entry;
        entry.Folder = u"game %1"_s.arg(kind * 1000 + i);
        entry.TitleK = u"놀이 %1/%2"_s.arg(i).arg(kind);
        entry.TitleE = entry.TitleK;
        entry.ListIndex = static_cast<std::int16_t>(i + 1);
        made.catalogue.push_back(entry);
        made.icons.Append(test::NumberedIcon(kind * 1000 + i));
    }
    return made;
}

dosboxconf::OptionGrid ProjectGrid()
{
    QFile file(QStringLiteral(PELORIN_SOURCE_DIR "/data/ko/option.dat"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return dosboxconf::ParseOptionTable(QString::fromUtf8(file.readAll()), file.fileName()).Take();
}

class CrashTest : public testing::Test {
protected:
    CrashTest() { m_folder.MakeTree({u"Games/Star/DosBox/"_s, u"Export/"_s, u"preset/"_s}); }

    /// Saves in the present state, killed at every place in turn, each time from the same files.
    /// `check` looks at the files that the crash left. Gives the number of places.
    int KillEverywhere(const Saving& save, const std::function<void()>& check = {})
    {
        const Files before = test::FilesOf(m_folder);
        save();
        const Files after = test::FilesOf(m_folder);
        int place = 0;
        for (;; ++place) {
            PutBack(before);
            if (!test::KillAtFileCall(place, save)) {
                break;
            }
            ExpectOldOrNew(before, after, place);
            if (check) {
                check();
            }
        }
        EXPECT_EQ(test::FilesOf(m_folder), after);
        return place;
    }

    /// Names of files that may be gone for a moment, since they can be made anew.
    QStringList m_mayVanish;
    TestFolder m_folder;
    shell::Places m_places{m_folder.Path(), m_folder.Path(u"Games"_s), m_folder.Path(u"Export"_s)};

private:
    void PutBack(const Files& files)
    {
        const Files now = test::FilesOf(m_folder);
        for (auto file = now.begin(); file != now.end(); ++file) {
            if (!files.contains(file.key())) {
                QFile::remove(m_folder.Path(file.key()));
            }
        }
        for (auto file = files.begin(); file != files.end(); ++file) {
            if (!file.key().endsWith(u'/') && now.value(file.key()) != file.value()) {
                m_folder.WriteRaw(file.key(), file.value());
            }
        }
    }

    void ExpectOldOrNew(const Files& before, const Files& after, int place)
    {
        const Files now = test::FilesOf(m_folder);
        Files known = before;
        known.insert(after);
        for (auto file = known.begin(); file != known.end(); ++file) {
            const QString& name = file.key();
            if (!now.contains(name)) {
                EXPECT_TRUE(
                    !before.contains(name) || !after.contains(name) || m_mayVanish.contains(name))
                    << name.toStdString() << " is gone at place " << place;
                continue;
            }
            EXPECT_TRUE(now[name] == before.value(name) || now[name] == after.value(name))
                << name.toStdString() << " is neither old nor new at place " << place;
        }
    }
};

TEST_F(CrashTest, SettingsAndRecentListReadOldOrNew)
{
    shell::LauncherCfg cfg;
    cfg.gamesRoot = m_places.gamesRoot;
    cfg.exportRoot = m_places.exportRoot;
    shell::RecentList recent;
    ASSERT_TRUE(shell::SaveSettingsFiles(m_places, cfg, recent).Ok());
    const auto readable = [&] {
        const auto loaded = shell::LoadSettingsFiles(m_places);
        ASSERT_TRUE(loaded.Ok());
        EXPECT_TRUE(
            !loaded.Value().replacementReason || cfg.state == shell::MainFrame::State::Minimized);
    };
    int places = 0;
    for (int round = 0; round < 20; ++round) {
        cfg.view = round % 4;
        cfg.state = static_cast<shell::MainFrame::State>(round % 2);
        cfg.left = 15 * round;
        shell::AddRecent(recent, u"game %1"_s.arg(round), u"제목 %1"_s.arg(round));
        places += KillEverywhere(
            [&] { (void)shell::SaveSettingsFiles(m_places, cfg, recent).Ok(); }, readable);
    }
    RecordProperty("places", places);
    EXPECT_GE(places, 250);
}

TEST_F(CrashTest, CacheReadsOldOrNewOrNotAtAll)
{
    m_mayVanish = QStringList{u"Gamelist.lst"_s, u"IconList.bmp"_s};
    test::RecordedProgress progress;
    const auto save = [&](const Library& made) {
        return library::SaveCatalogueCache(m_places, made.catalogue, made.icons, progress).Ok();
    };
    Library former = LibraryOf(3, 0);
    ASSERT_TRUE(save(former));
    int places = 0;
    int without = 0;
    const auto killSaving = [&](const Library& next) {
        const auto check = [&] {
            const auto read = library::ReadCatalogueCache(m_places, progress);
            if (!read) {
                ++without; // the folders are read again
                return;
            }
            const auto& cached = read.Value();
            const bool old = cached.catalogue.size() == former.catalogue.size() &&
                             cached.catalogue[0].TitleK == former.catalogue[0].TitleK;
            const Library& expected = old ? former : next;
            ASSERT_EQ(cached.catalogue.size(), expected.catalogue.size());
            for (int i = 0; i < cached.icons.Count(); ++i) {
                EXPECT_EQ(cached.icons.Large(i).bgr, expected.icons.Large(i).bgr);
                const auto at = static_cast<std::size_t>(i);
                EXPECT_EQ(cached.catalogue[at].TitleK, expected.catalogue[at].TitleK);
            }
        };
        places += KillEverywhere([&] { save(next); }, check);
        former = next;
    };
    for (int round = 1; round <= 17; ++round) {
        killSaving(LibraryOf(1 + round * 7 % 40, round % 3 == 0 ? round - 1 : round));
    }
    // Of a large sheet only the row of icons that changed is written.
    former = LibraryOf(4 * 512 + 1, 30);
    ASSERT_TRUE(save(former));
    Library next = former;
    next.icons.Set(5, test::NumberedIcon(9));
    next.catalogue[0].TitleK = u"다른 제목"_s;
    killSaving(next);
    RecordProperty("places", places);
    RecordProperty("without a cache", without);
    EXPECT_GE(places, 250);
    EXPECT_LT(without, places / 3) << "only while the new files take their places";
}

TEST_F(CrashTest, ConfigurationsReadOldOrNew)
{
    dosboxconf::OptionGrid grid = ProjectGrid();
    dosboxconf::SetFactoryDefaults(grid);
    ASSERT_TRUE(dosboxconf::WriteDefaultConf(m_places, grid).Ok());
    const auto readable = [&] {
        dosboxconf::OptionGrid read = grid;
        const auto loaded = dosboxconf::LoadGameConf(m_places, u"Star"_s, read);
        EXPECT_TRUE(!loaded.report.fellBack && !loaded.report.linesMissing);
    };
    int places = 0;
    for (int round = 0; round < 15; ++round) {
        grid.OptionSelection[dosboxconf::OptionGrid::Index(dosboxconf::kVersionCell)] = round;
        grid.OptionSelection[dosboxconf::OptionGrid::Index(dosboxconf::kMenuCell)] = round % 2;
        places += KillEverywhere(
            [&] {
                dosboxconf::OptionGrid own = grid;
                (void)dosboxconf::SaveGameConf(m_places, u"Star"_s, own).Ok();
            },
            readable);
    }
    // An old layout is rewritten by reading it.
    QStringList old{u"ver.10.11.21"_s};
    for (int line = 0; line < 11 * 21; ++line) {
        old << QString::number(line % 5);
    }
    m_folder.WriteLines(u"Default.conf"_s, old);
    m_folder.WriteLines(u"Games/Star/DosBox/edit.conf"_s, old);
    places += KillEverywhere(
        [&] {
            dosboxconf::OptionGrid own = grid;
            dosboxconf::LoadGameConf(m_places, u"Star"_s, own);
        },
        readable);
    RecordProperty("places", places);
    EXPECT_GE(places, 250);
}

TEST_F(CrashTest, TextsOfAGameReadOldOrNew)
{
    library::GameFiles files = library::ListGame(m_places, u"Star"_s);
    int places = 0;
    for (int round = 0; round < 12; ++round) {
        const library::InfoText info{
            {u"별 %1"_s.arg(round), u"Star %1"_s.arg(round)}, u"설명\n"_s.repeated(round)};
        places += KillEverywhere([&] {
            library::GameFiles own = files;
            (void)library::WriteInfo(own, {info}).Ok();
            (void)library::WriteFacts(
                own, {u"Pelorin"_s, QString::number(round), u"한국어"_s, u"한국"_s})
                .Ok();
            (void)library::WriteGenre(own, library::GenreFile::Korean, u"액션"_s).Ok();
            (void)dosboxconf::WriteAutoexecConf(m_places, u"Star"_s, {u"game.exe %1"_s.arg(round)})
                .Ok();
        });
    }
    RecordProperty("places", places);
    EXPECT_GE(places, 250);
}

} // namespace
