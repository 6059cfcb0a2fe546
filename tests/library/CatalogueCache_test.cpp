#include "library/CatalogueCache.h"

#include "LibraryFixture.h"
#include "library/IconSheetFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <FreeImage.h>
#include <gmock/gmock.h>

#include <cstring>

using namespace Qt::StringLiterals;
using namespace pelorin;
using library::CachedCatalogue;
using library::CacheReport;
using library::Catalogue;
using library::GameEntry;
using library::IconSheet;
using platform::ErrorKind;
using platform::Outcome;
using testing::ElementsAre;

namespace {

GameEntry Game(int number)
{
    GameEntry entry;
    entry.Folder = u"게임%1"_s.arg(number);
    entry.TitleK = u"제목%1 [CD]"_s.arg(number);
    entry.TitleE = u"Title %1 [CD]"_s.arg(number);
    entry.ListIndex = static_cast<std::int16_t>(number + 1);
    entry.GenreK = u"기타"_s;
    entry.GenreE = u"ETC"_s;
    entry.DosboxVersion = static_cast<std::int16_t>(number % 20);
    entry.Maker = u"M"_s;
    entry.Release = u"R"_s;
    entry.GameLanguage = u"L"_s;
    entry.Country = u"C"_s;
    return entry;
}

struct Library {
    Catalogue catalogue;
    IconSheet icons;

    explicit Library(int count)
    {
        for (int i = 0; i < count; ++i) {
            catalogue.push_back(Game(i));
            icons.Append(test::NumberedIcon(i));
        }
    }
};

/// The sheet as FreeImage draws and writes it.
QByteArray SheetByFreeImage(const IconSheet& icons, int width, int height)
{
    constexpr std::size_t kRowBytes = 96;
    FIBITMAP* bitmap = FreeImage_Allocate(width, height, 24);
    for (int n = 0; n < icons.Count(); ++n) {
        for (int y = 0; y < 32; ++y) {
            const int row = height - 1 - (n / 512 * 32 + y);
            std::memcpy(
                FreeImage_GetScanLine(bitmap, row) + static_cast<std::size_t>(n % 512) * kRowBytes,
                icons.Large(n).bgr.constData() + static_cast<std::size_t>(y) * kRowBytes,
                kRowBytes);
        }
    }
    FIMEMORY* memory = FreeImage_OpenMemory(nullptr, 0);
    FreeImage_SaveToMemory(FIF_BMP, bitmap, memory, 0);
    BYTE* data = nullptr;
    DWORD size = 0;
    FreeImage_AcquireMemory(memory, &data, &size);
    QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    FreeImage_CloseMemory(memory);
    FreeImage_Unload(bitmap);
    return bytes;
}

class CatalogueCacheTest : public testing::Test {
protected:
    Outcome<CacheReport> Save(const Library& library)
    {
        return library::SaveCatalogueCache(
            m_library.places, library.catalogue, library.icons, m_progress);
    }
    Outcome<CachedCatalogue> Read()
    {
        return library::ReadCatalogueCache(m_library.places, m_progress);
    }
    QByteArray List() { return m_root.ReadRaw(u"Gamelist.lst"_s); }

    test::LibraryFolder m_library;
    test::TestFolder& m_root = m_library.root;
    test::RecordedProgress m_progress;
};

TEST_F(CatalogueCacheTest, ByteForByte)
{
    struct Case {
        int count;
        int width;
        int height;
    };
    for (const Case c : {Case{1, 32, 32}, {3, 96, 32}, {512, 16384, 32}, {513, 16384, 64}}) {
        const Library library(c.count);
        ASSERT_TRUE(Save(library));
        EXPECT_EQ(
            m_root.ReadRaw(u"IconList.bmp"_s), SheetByFreeImage(library.icons, c.width, c.height))
            << c.count;
        QStringList records;
        for (int i = 0; i < c.count; ++i) {
            records << u"게임%1|제목%1 [CD]^Title %1 [CD]|기타|ETC|%2|M|R|L|C"_s.arg(i).arg(i % 20);
        }
        QString line = records.join(u'\u0002') + u"\r\n"_s;
        line.replace(u'|', u'\u0001').replace(u'^', u'\u0003');
        EXPECT_EQ(m_root.ReadText(u"Gamelist.lst"_s), line) << c.count;

        const auto back = Read();
        ASSERT_TRUE(back) << back.Failure().text.toStdString();
        ASSERT_EQ(back.Value().catalogue.size(), library.catalogue.size());
        const GameEntry& last = back.Value().catalogue.back();
        EXPECT_EQ(last.ListIndex, c.count);
        EXPECT_EQ(last.TitleE, library.catalogue.back().TitleE);
        EXPECT_EQ(last.DosboxVersion, library.catalogue.back().DosboxVersion);
        EXPECT_EQ(last.GameLanguage, u"L"_s);
        EXPECT_EQ(last.Release, u"R"_s);
        for (int i = 0; i < c.count; ++i) {
            ASSERT_EQ(back.Value().icons.Large(i).bgr, library.icons.Large(i).bgr) << i;
        }
    }
    EXPECT_EQ(
        List().left(14),
        QByteArray(
            "\xb0\xd4\xc0\xd3"
            "0\1\xc1\xa6\xb8\xf1"
            "0 [C",
            14))
        << "code page 949";
}

TEST_F(CatalogueCacheTest, AnEmptyLibraryLeavesNoList)
{
    ASSERT_TRUE(Save(Library(2)));
    ASSERT_TRUE(Save(Library(0)));
    EXPECT_FALSE(m_root.Exists(u"Gamelist.lst"_s));
    EXPECT_TRUE(m_root.Exists(u"IconList.bmp"_s));
    EXPECT_FALSE(library::HasCatalogueCache(m_library.places));
    ASSERT_TRUE(library::DeleteCatalogueCache(m_library.places));
    EXPECT_FALSE(m_root.Exists(u"IconList.bmp"_s));
    EXPECT_TRUE(library::DeleteCatalogueCache(m_library.places)) << "nothing to delete";
}

TEST_F(CatalogueCacheTest, FormerSheetsGoAndSpellingsStay)
{
    m_root.MakeTree({u"GAMELIST.LST"_s, u"iconlist.jpg"_s, u"SmallIconList.jpg"_s});
    ASSERT_TRUE(Save(Library(1)));
    EXPECT_EQ(m_root.Tree(), (QStringList{u"GAMELIST.LST"_s, u"Games/"_s, u"IconList.bmp"_s}));
    // One that can't go holds back nothing that the next start reads.
    m_root.MakeTree({u"IconList.jpg/x"_s, u"SmallIconList.jpg"_s});
    const auto saved = Save(Library(2));
    ASSERT_TRUE(saved);
    ASSERT_EQ(saved.Value().formerSheets.size(), 1);
    EXPECT_TRUE(saved.Value().formerSheets.front().startsWith(m_root.Path(u"IconList.jpg"_s)));
    EXPECT_FALSE(m_root.Exists(u"SmallIconList.jpg"_s));
    EXPECT_EQ(m_root.ReadRaw(u"GAMELIST.LST"_s).count('\x02'), 1);
}

TEST_F(CatalogueCacheTest, WhatTheListCantHoldIsLeftOutOfBothFiles)
{
    Library library(7);
    library.catalogue[1].Folder = u"Café"_s;
    library.catalogue[2].TitleE = u"Naïve"_s;
    library.catalogue[3].Folder = u"two\nlines"_s;
    library.catalogue[4].Maker = u"\uFFFD"_s;
    library.catalogue[5].TitleE = u"Ж\u0001\r\n!"_s;
    const auto leftOut = ElementsAre(u"Café"_s, u"게임2"_s, u"two\nlines"_s, u"게임4"_s);
    EXPECT_THAT(library::GamesWithoutCache(library.catalogue), leftOut);
    const auto report = Save(library);
    ASSERT_TRUE(report);
    EXPECT_THAT(report.Value().leftOut, leftOut);
    const auto back = Read();
    ASSERT_TRUE(back);
    ASSERT_EQ(back.Value().catalogue.size(), 3U);
    EXPECT_EQ(back.Value().catalogue[1].TitleE, u"Ж!"_s);
    EXPECT_EQ(back.Value().icons.Large(1).bgr, library.icons.Large(5).bgr);
}

TEST_F(CatalogueCacheTest, WhatWasLeftOutIsFoundAgainByNameOrText)
{
    m_root.MakeTree(
        {u"Games/Café/"_s, u"Games/Café 2/"_s, u"Games/게임0/"_s, u"Games/new/"_s, u"Games/é"_s});
    m_root.WriteRaw(u"Games/title/dosbox/Info.txt"_s, "\xb0 \x03Title\r\n");
    m_root.WriteRaw(u"Games/maker/DosBox/ExtraInfo.txt"_s, "Maker\r\n\r\n\xb0 \r\n");
    m_root.WriteRaw(u"Games/genre/DosBox/GenreE.dat"_s, "\xb0 ");
    m_root.WriteRaw(u"Games/fine/DosBox/info.txt"_s, "Fine\r\nonly the description: \xb0 ");
    m_root.WriteRaw(u"Games/게임1/DosBox/info.txt"_s, "\xb0 ");
    Library library(2);
    const QStringList before = m_root.Tree();
    EXPECT_THAT(
        library::FoldersWithoutCache(m_library.places, library.catalogue),
        ElementsAre(u"Café"_s, u"Café 2"_s, u"genre"_s, u"maker"_s, u"title"_s));
    EXPECT_EQ(m_root.Tree(), before);
    library.catalogue[0].Folder = u"Café"_s;
    EXPECT_FALSE(
        library::FoldersWithoutCache(m_library.places, library.catalogue).contains(u"Café"_s));
    library.catalogue.resize(library::kMostGames);
    EXPECT_THAT(
        library::FoldersWithoutCache(m_library.places, library.catalogue), ElementsAre(u"Café 2"_s))
        << "a full library takes no more";
}

TEST_F(CatalogueCacheTest, DamagedListsAreRefused)
{
    ASSERT_TRUE(Save(Library(2)));
    const QByteArray good = List();
    const QByteArray sheet = m_root.ReadRaw(u"IconList.bmp"_s);
    const auto replaced = [&](const char* from, const char* to) {
        return QByteArray(good).replace(from, to);
    };
    const std::vector<std::pair<const char*, QByteArray>> lists{
        {"empty", QByteArray()},
        {"an empty line", QByteArray("\r\n")},
        {"cut off", good.left(good.size() / 3)},
        {"one record less", good.left(good.indexOf('\2'))},
        {"one record more", good.chopped(2) + '\2' + good.left(good.indexOf('\2'))},
        {"a record twice", good.left(good.indexOf('\2') + 1) + good.left(good.indexOf('\2'))},
        {"no second title", replaced("\3", "")},
        {"a field more", replaced("ETC", "E\1TC")},
        {"a field less", replaced("ETC\1", "ETC")},
        {"a path as folder", QByteArray("../") + good},
        {"no folder", good.mid(good.indexOf('\1'))},
        {"broken characters", replaced("ETC", "\xb0 ")},
    };
    for (const auto& [what, bytes] : lists) {
        m_root.WriteRaw(u"Gamelist.lst"_s, bytes);
        EXPECT_FALSE(Read()) << what;
    }
    m_root.WriteRaw(u"Gamelist.lst"_s, good.chopped(2));
    EXPECT_TRUE(Read()) << "a missing line end does no harm";

    auto header = [&](int at, char value) { return QByteArray(sheet).replace(at, 1, &value, 1); };
    const std::vector<std::pair<const char*, QByteArray>> sheets{
        {"empty", QByteArray()},
        {"cut off", sheet.chopped(1)},
        {"no bitmap", header(0, 'X')},
        {"32 bits a pixel", header(28, 32)},
        {"compressed", header(30, 1)},
        {"another width", header(18, 32)},
        {"another height", header(22, 64)},
        {"from the top", header(25, '\xff')},
    };
    for (const auto& [what, bytes] : sheets) {
        m_root.WriteRaw(u"IconList.bmp"_s, bytes);
        const auto read = Read();
        ASSERT_FALSE(read) << what;
        EXPECT_EQ(read.Failure().kind, ErrorKind::Malformed) << what;
    }
    QFile::remove(m_root.Path(u"IconList.bmp"_s));
    EXPECT_EQ(Read().Failure().kind, ErrorKind::NotFound);
}

TEST_F(CatalogueCacheTest, NoListEverStandsBesideAnotherOnesIcons)
{
    ASSERT_TRUE(Save(Library(2)));
    Library changed(2);
    std::swap(changed.catalogue[0].Folder, changed.catalogue[1].Folder);
    changed.icons.Set(0, test::NumberedIcon(500));

    // The list's place is taken by something that no write can replace: as if the program had
    // ended between the two files.
    QFile::remove(m_root.Path(u"Gamelist.lst"_s));
    m_root.MakeTree({u"Gamelist.lst/x"_s});
    EXPECT_FALSE(Save(changed));
    const std::vector<int> all{0, 1};
    EXPECT_TRUE(library::IconSheetIsCurrent(m_root.Path(u"IconList.bmp"_s), Library(2).icons, all))
        << "the old sheet stays as long as the old list can't go";

    QDir(m_root.Path(u"Gamelist.lst"_s)).removeRecursively();
    ASSERT_TRUE(library::WriteIconSheet(
        m_root.Path(u"IconList.bmp"_s), changed.icons, all, [&]() -> platform::Done {
            EXPECT_TRUE(
                library::IconSheetIsCurrent(m_root.Path(u"IconList.bmp"_s), Library(2).icons, all));
            return platform::Success();
        }));
    EXPECT_TRUE(library::IconSheetIsCurrent(m_root.Path(u"IconList.bmp"_s), changed.icons, all));
}

TEST_F(CatalogueCacheTest, AnUnchangedSheetIsNotWrittenAgain)
{
    Library library(3);
    ASSERT_TRUE(Save(library));
    const QString path = m_root.Path(u"IconList.bmp"_s);
    QFile sheet(path);
    ASSERT_TRUE(sheet.open(QIODevice::ReadWrite));
    const QDateTime old = QDateTime::currentDateTime().addDays(-1);
    sheet.setFileTime(old, QFileDevice::FileModificationTime);
    sheet.close();
    ASSERT_TRUE(Save(library));
    EXPECT_EQ(QFileInfo(path).lastModified().toSecsSinceEpoch(), old.toSecsSinceEpoch());
    library.icons.Set(2, test::NumberedIcon(9));
    ASSERT_TRUE(Save(library));
    EXPECT_GT(QFileInfo(path).lastModified(), old.addSecs(3600));
}

TEST_F(CatalogueCacheTest, TellsProgress)
{
    using library::Phase;
    using Told = test::RecordedProgress::Told;
    ASSERT_TRUE(Save(Library(26)));
    EXPECT_THAT(m_progress.begun, ElementsAre(Told{Phase::SavingList, 25}));
    EXPECT_EQ(m_progress.steps.back(), (Told{Phase::SavingList, 24, 120}));
    m_progress.begun.clear();
    m_progress.steps.clear();
    ASSERT_TRUE(Read());
    EXPECT_THAT(m_progress.begun, ElementsAre(Told{Phase::LoadingIcons, 26}));
    EXPECT_EQ(m_progress.steps.size(), 13U);

    m_progress.onStep = [](const auto&) { return false; };
    EXPECT_EQ(Read().Failure().kind, ErrorKind::Abandoned);
    EXPECT_TRUE(Save(Library(2))) << "the last thing a program does is not given up";
}

} // namespace
