#include "library/CatalogueScan.h"

#include "LibraryFixture.h"
#include "Pictures.h"
#include "support/DiskTroubles.h"

#include <QDir>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using library::Phase;
using library::ScanResult;
using testing::ElementsAre;

namespace {

class CatalogueScanTest : public testing::Test {
protected:
    ScanResult Scan()
    {
        return library::ScanCatalogue(m_library.places, {m_lang, 2}, m_defaultIcon, m_progress);
    }
    static QStringList Folders(const ScanResult& scan)
    {
        QStringList folders;
        for (const library::GameEntry& entry : scan.catalogue) {
            folders << entry.Folder;
        }
        return folders;
    }
    static QStringList Refused(const ScanResult& scan)
    {
        QStringList reasons;
        for (const platform::Wording& reason : scan.refused) {
            reasons << reason.English();
        }
        return reasons;
    }

    test::LibraryFolder m_library;
    test::TestFolder& m_root = m_library.root;
    shell::LangTable m_lang = test::TestLang();
    library::IconPixels m_defaultIcon = library::PlainIcon(32, 1, 2, 3);
    test::RecordedProgress m_progress;
};

TEST_F(CatalogueScanTest, GamesInOrderWithTheirIcons)
{
    m_root.WriteLines(u"Games/beta/DOSBOX/INFO.TXT"_s, {u"둘\u0003Two"_s});
    m_root.WriteLines(u"Games/beta/DOSBOX/Edit.conf"_s, {u"v"_s, u"12"_s});
    m_root.WriteRaw(
        u"Games/beta/DOSBOX/icon.jpg"_s, test::PictureFile(FIF_JPEG, 32, 32, {8, 8, 8}));
    m_root.MakeAll(u"Games/Gamma/STORE.7z Games/Alpha/ Games/.hidden/ Games/file.txt"_s);
    m_root.MakeLink(u"Games/nowhere"_s, u"missing"_s);
    m_root.MakeLink(u"Games/loop"_s, u"loop"_s);
    m_root.MakeLink(u"Games/self"_s, u"."_s);
    const ScanResult scan = Scan();
    EXPECT_THAT(Folders(scan), ElementsAre(u"Alpha"_s, u"beta"_s, u"Gamma"_s));
    EXPECT_THAT(
        Refused(scan),
        ElementsAre(
            u"self: the link leads to where the games lie."_s,
            u"loop: the link leads nowhere."_s,
            u"nowhere: the link leads nowhere."_s));
    ASSERT_EQ(scan.icons.Count(), 3);
    EXPECT_EQ(scan.icons.Large(0).bgr, m_defaultIcon.bgr);
    EXPECT_NE(scan.icons.Large(1).bgr, m_defaultIcon.bgr);
    EXPECT_EQ(scan.catalogue[1].TitleE, u"Two [편집, Win98]"_s);
    EXPECT_EQ(scan.catalogue[1].ListIndex, 2);
    EXPECT_EQ(scan.catalogue[2].TitleK, u"Gamma [압축]"_s);
    EXPECT_EQ(scan.catalogue[2].DosboxVersion, 2);
    EXPECT_EQ(scan.troubles.count, 0);
    EXPECT_FALSE(m_root.Exists(u"Games/DosBox"_s));
    EXPECT_TRUE(m_root.Exists(u"Games/Alpha/DosBox/GenreK.dat"_s));
}

TEST_F(CatalogueScanTest, ProgressByTheStepRule)
{
    for (int i = 0; i < 26; ++i) { // step (26 - 1) / 10 = 2.5, ties to even: 2
        m_root.MakeFolder(u"Games/%1"_s.arg(i, 2, 10, QChar(u'0')));
    }
    EXPECT_EQ(Scan().catalogue.size(), 26U);
    using Told = test::RecordedProgress::Told;
    EXPECT_THAT(
        m_progress.begun, ElementsAre(Told{Phase::Preparing, 26}, Told{Phase::Reading, 26}));
    ASSERT_EQ(m_progress.steps.size(), 26U);
    EXPECT_EQ(m_progress.steps[0], (Told{Phase::Preparing, 0, 0}));
    EXPECT_EQ(m_progress.steps[1], (Told{Phase::Preparing, 2, 10}));
    EXPECT_EQ(m_progress.steps[12], (Told{Phase::Preparing, 24, 120})) << "passes 100 at the tail";
    EXPECT_EQ(m_progress.steps[25], (Told{Phase::Reading, 24, 120}));
}

TEST_F(CatalogueScanTest, FoldersThatVanishDoNoHarm)
{
    m_root.MakeAll(u"Games/a/ Games/b/ Games/c/"_s);
    m_progress.onStep = [&](const auto& step) {
        if (step.phase == Phase::Preparing && step.value == 0) {
            QDir(m_root.Path(u"Games/b"_s)).removeRecursively();
        }
        if (step.phase == Phase::Reading && step.value == 0) {
            QDir(m_root.Path(u"Games/c"_s)).removeRecursively();
        }
        return true;
    };
    const ScanResult scan = Scan();
    EXPECT_THAT(Folders(scan), ElementsAre(u"a"_s, u"c"_s));
    EXPECT_THAT(Refused(scan), ElementsAre(u"b: the game's folder is gone."_s));
    EXPECT_EQ(scan.troubles.count, 2) << "c is listed by its name, and can't get its genre files";
    EXPECT_EQ(scan.icons.Count(), 2);
    EXPECT_EQ(scan.catalogue[1].ListIndex, 2);
    EXPECT_FALSE(m_root.Exists(u"Games/b"_s));
    EXPECT_FALSE(m_root.Exists(u"Games/c"_s));
}

TEST_F(CatalogueScanTest, MetadataThatCantBeListedIsLeftAlone)
{
    m_root.WriteLines(u"Games/half/DosBox/GenreK.dat"_s, {u"kept"_s});
    test::SetMode(m_root.Path(u"Games/half/DosBox"_s), 0300);
    {
        const test::OrdinaryUser user(m_root);
        EXPECT_EQ(Scan().troubles.count, 1);
    }
    test::SetMode(m_root.Path(u"Games/half/DosBox"_s), 0700);
    EXPECT_EQ(m_root.ReadText(u"Games/half/DosBox/GenreK.dat"_s), u"kept\r\n"_s);
}

TEST_F(CatalogueScanTest, GivesUpWhenToldAndFindsNothingWhereNothingIs)
{
    EXPECT_TRUE(Scan().catalogue.empty());
    m_root.MakeAll(u"Games/a/ Games/b/"_s);
    m_progress.onStep = [](const auto&) { return false; };
    EXPECT_TRUE(Scan().abandoned);
    EXPECT_EQ(m_progress.steps.size(), 1U);
    m_library.places.gamesRoot = m_root.Path(u"missing"_s);
    const ScanResult scan = Scan();
    EXPECT_EQ(scan.icons.Count(), 0);
    EXPECT_FALSE(scan.abandoned);
    EXPECT_FALSE(m_root.Exists(u"missing"_s));
}

TEST_F(CatalogueScanTest, OneMoreGameGoesBehindTheOthers)
{
    m_root.MakeTree({u"Games/a/"_s});
    ScanResult scan = Scan();
    m_root.MakeTree({u"Games/0 new/play.exe"_s});
    library::GameFiles files = library::ListGame(m_library.places, u"0 new"_s);
    library::Catalogue catalogue(scan.catalogue);
    const auto add = [&] {
        return library::AddGame(
            files, {m_lang, 2}, m_defaultIcon, catalogue, scan.icons, scan.troubles);
    };
    ASSERT_TRUE(add());
    EXPECT_EQ(catalogue[1].Folder, u"0 new"_s);
    EXPECT_EQ(catalogue[1].ListIndex, 2);
    EXPECT_EQ(scan.icons.Count(), 2);
    EXPECT_EQ(m_root.ReadText(u"Games/0 new/DosBox/autoexec.conf"_s), u"play.exe\r\n"_s);

    catalogue = library::Catalogue(library::GameEntries(library::kMostGames));
    EXPECT_FALSE(add());
    EXPECT_EQ(catalogue.size(), std::size_t{library::kMostGames});
}

TEST(ProgressSteps, EachTenthIsToldInWords)
{
    const shell::LangTable lang = test::TestLang();
    EXPECT_EQ(library::ProgressText(lang, Phase::Preparing, 0), u"5......0%"_s);
    EXPECT_EQ(library::ProgressText(lang, Phase::LoadingIcons, 110), u"7......110%"_s);
    EXPECT_EQ(library::SavingText(lang, 41), u"299.... ( 0 / 41 )"_s);
    struct Case {
        int count;
        int step;
    };
    for (const Case c : {Case{0, 1}, {1, 1}, {6, 1}, {16, 2}, {26, 2}, {36, 4}, {32767, 3277}}) {
        test::RecordedProgress progress;
        library::ProgressSteps steps(progress, Phase::Reading, c.count);
        for (int i = 0; i < c.count; ++i) {
            steps.At(i);
        }
        EXPECT_EQ(progress.steps.size(), static_cast<std::size_t>((c.count + c.step - 1) / c.step))
            << c.count;
    }
}

} // namespace
