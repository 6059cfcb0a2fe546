#include "library/CatalogueCache.h"

#include "LibraryFixture.h"
#include "Pictures.h"
#include "library/IconSheetFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <cstring>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::test;
using library::GameEntry;
using library::IconSheet;
using platform::ErrorKind;
using testing::ElementsAre;

namespace {

constexpr char16_t kRecord[] = u"게임%1|제목%1 [CD]^Title %1 [CD]|기타|ETC|%2|M|R|L|C";

struct Library {
    library::GameEntries catalogue;
    IconSheet icons;

    explicit Library(int count)
    {
        for (int i = 0; i < count; ++i) {
            GameEntry entry;
            entry.Folder = u"게임%1"_s.arg(i);
            entry.TitleK = u"제목%1 [CD]"_s.arg(i);
            entry.TitleE = u"Title %1 [CD]"_s.arg(i);
            entry.GenreK = u"기타"_s;
            entry.GenreE = u"ETC"_s;
            entry.DosboxVersion = static_cast<std::int16_t>(i % 20);
            entry.Maker = u"M"_s;
            entry.Release = u"R"_s;
            entry.GameLanguage = u"L"_s;
            entry.Country = u"C"_s;
            catalogue.push_back(entry);
            icons.Append(NumberedIcon(i));
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
    return FileOf(bitmap, FIF_BMP);
}

class CatalogueCacheTest : public testing::Test {
protected:
    auto Save(const Library& library)
    {
        return library::SaveCatalogueCache(
            m_library.places, library.catalogue, library.icons, m_progress);
    }
    auto Read() { return library::ReadCatalogueCache(m_library.places, m_progress); }
    bool SheetIsOf(const Library& library)
    {
        const QString path = m_root.Path(u"IconList.bmp"_s);
        return library::StaleBands(path, library.icons, {0, 1}) == std::vector<int>();
    }

    LibraryFolder m_library;
    TestFolder& m_root = m_library.root;
    RecordedProgress m_progress;
};

TEST_F(CatalogueCacheTest, ByteForByte)
{
    struct Case {
        int count;
        int width;
        int height;
    };
    for (const Case c : {Case{1, 32, 32}, {3, 96, 32}, {512, 16384, 32}, {513, 16384, 64}}) {
        SCOPED_TRACE(c.count);
        const Library library(c.count);
        ASSERT_TRUE(Save(library));
        EXPECT_EQ(
            m_root.ReadRaw(u"IconList.bmp"_s), SheetByFreeImage(library.icons, c.width, c.height));
        QStringList records;
        for (int i = 0; i < c.count; ++i) {
            records << QString::fromUtf16(kRecord).arg(i).arg(i % 20);
        }
        QString line = records.join(u'\u0002') + u"\r\n"_s;
        line.replace(u'|', u'\u0001').replace(u'^', u'\u0003');
        EXPECT_EQ(m_root.ReadText(u"Gamelist.lst"_s), line);
        EXPECT_TRUE(m_root.ReadRaw(u"Gamelist.lst"_s).startsWith("\xb0\xd4\xc0\xd3")) << "cp 949";

        const auto back = Read();
        ASSERT_TRUE(back) << ErrorOf(back);
        ASSERT_EQ(back.Value().catalogue.size(), library.catalogue.size());
        EXPECT_EQ(back.Value().catalogue.back().ListIndex, c.count);
        for (int i = 0; i < c.count; ++i) {
            ASSERT_EQ(back.Value().icons.Large(i).bgr, library.icons.Large(i).bgr) << i;
        }
        ASSERT_TRUE(Save(Library(0)));
        Library again(0);
        again.catalogue = back.Value().catalogue;
        again.icons = back.Value().icons;
        ASSERT_TRUE(Save(again));
        EXPECT_EQ(m_root.ReadText(u"Gamelist.lst"_s), line) << "what was read is all there is";
    }
}

TEST_F(CatalogueCacheTest, AnEmptyLibraryLeavesNoList)
{
    ASSERT_TRUE(Save(Library(2)));
    ASSERT_TRUE(Save(Library(0)));
    EXPECT_EQ(m_root.TreeText(), u"Games/ IconList.bmp"_s);
    EXPECT_FALSE(library::HasCatalogueCache(m_library.places));
    ASSERT_TRUE(library::DeleteCatalogueCache(m_library.places));
    EXPECT_FALSE(m_root.Exists(u"IconList.bmp"_s));
    EXPECT_TRUE(library::DeleteCatalogueCache(m_library.places)) << "nothing to delete";
}

TEST_F(CatalogueCacheTest, FormerSheetsGoAndSpellingsStay)
{
    m_root.MakeAll(u"GAMELIST.LST iconlist.jpg SmallIconList.jpg"_s);
    ASSERT_TRUE(Save(Library(1)));
    EXPECT_EQ(m_root.TreeText(), u"GAMELIST.LST Games/ IconList.bmp"_s);
    // One that can't go holds back nothing that the next start reads.
    m_root.MakeAll(u"IconList.jpg/x SmallIconList.jpg"_s);
    const auto saved = Save(Library(2));
    ASSERT_TRUE(saved);
    ASSERT_EQ(saved.Value().formerSheets.size(), 1);
    EXPECT_TRUE(
        saved.Value().formerSheets.front().English().startsWith(m_root.Path(u"IconList.jpg"_s)));
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
    EXPECT_THAT(Save(library).Value().leftOut, leftOut);
    const auto back = Read();
    ASSERT_TRUE(back);
    ASSERT_EQ(back.Value().catalogue.size(), 3U);
    EXPECT_EQ(back.Value().catalogue[1].TitleE, u"Ж!"_s);
    EXPECT_EQ(back.Value().icons.Large(1).bgr, library.icons.Large(5).bgr);
}

TEST_F(CatalogueCacheTest, OfALargeSheetOnlyTheRowsThatChangedAreWritten)
{
    constexpr int kGames = 4 * 512 + 1;
    Library library(kGames);
    ASSERT_TRUE(Save(library));
    const auto inode = [&] {
        struct stat status = {};
        EXPECT_EQ(stat(QFile::encodeName(m_root.Path(u"IconList.bmp"_s)).constData(), &status), 0);
        return status.st_ino;
    };
    const auto before = inode();
    library.icons.Set(700, library::PlainIcon(library::kLargeIcon, 9, 8, 7));
    ASSERT_TRUE(Save(library));
    EXPECT_EQ(inode(), before) << "the file is the same";
    EXPECT_EQ(m_root.ReadRaw(u"IconList.bmp"_s), SheetByFreeImage(library.icons, 512 * 32, 5 * 32));
    // Where much has changed a new file takes its place.
    for (int row = 0; row < 3; ++row) {
        library.icons.Set(512 * row, library::PlainIcon(library::kLargeIcon, 1, 2, 3));
    }
    ASSERT_TRUE(Save(library));
    EXPECT_NE(inode(), before);
    EXPECT_EQ(Read().Value().icons.Large(1024).bgr, library.icons.Large(1024).bgr);
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
    const auto found = [&] {
        return library::FoldersWithoutCache(m_library.places, library.catalogue);
    };
    const QString before = m_root.TreeText();
    EXPECT_THAT(found(), ElementsAre(u"Café"_s, u"Café 2"_s, u"genre"_s, u"maker"_s, u"title"_s));
    EXPECT_EQ(m_root.TreeText(), before);
    library.catalogue[0].Folder = u"Café"_s;
    library.catalogue.resize(library::kMostGames);
    EXPECT_THAT(found(), ElementsAre(u"Café 2"_s)) << "a full library takes no more";
}

TEST_F(CatalogueCacheTest, DamagedFilesAreRefused)
{
    ASSERT_TRUE(Save(Library(2)));
    const QByteArray list = m_root.ReadRaw(u"Gamelist.lst"_s);
    const QByteArray sheet = m_root.ReadRaw(u"IconList.bmp"_s);
    const qsizetype second = list.indexOf('\2') + 1;
    const auto replaced = [&](const char* from, const char* to) {
        return QByteArray(list).replace(from, to);
    };
    const auto header = [&](int at, char value) {
        return QByteArray(sheet).replace(at, 1, &value, 1);
    };
    struct Case {
        const char* what;
        QByteArray list;
        QByteArray sheet;
    };
    const Case cases[] = {
        {"an empty line", "\r\n", sheet},
        {"one record less", list.left(second - 1), sheet},
        {"one record more", list.chopped(2) + '\2' + list.left(second - 1), sheet},
        {"a record twice", list.left(second) + list.left(second - 1), sheet},
        {"no second title", replaced("\3", ""), sheet},
        {"a field more", replaced("ETC", "E\1TC"), sheet},
        {"a field less", replaced("ETC\1", "ETC"), sheet},
        {"no folder", list.mid(list.indexOf('\1')), sheet},
        {"broken characters", replaced("ETC", "\xb0 "), sheet},
        {"32 bits a pixel", list, header(28, 32)},
        {"compressed", list, header(30, 1)},
        {"another width", list, header(18, 32)},
        {"another height", list, header(22, 64)},
        {"from the top", list, header(25, '\xff')},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        m_root.WriteRaw(u"Gamelist.lst"_s, c.list);
        m_root.WriteRaw(u"IconList.bmp"_s, c.sheet);
        EXPECT_EQ(KindOf(Read()), ErrorKind::Malformed);
    }
    m_root.WriteRaw(u"Gamelist.lst"_s, list.chopped(1));
    m_root.WriteRaw(u"IconList.bmp"_s, sheet);
    EXPECT_EQ(KindOf(Read()), ErrorKind::Malformed) << "who knows what else is missing";
    m_root.WriteRaw(u"Gamelist.lst"_s, list.chopped(2) + '\n');
    EXPECT_TRUE(Read());
    QFile::remove(m_root.Path(u"IconList.bmp"_s));
    EXPECT_EQ(KindOf(Read()), ErrorKind::NotFound);
}

TEST_F(CatalogueCacheTest, NoListEverStandsBesideAnotherOnesIcons)
{
    ASSERT_TRUE(Save(Library(2)));
    Library changed(2);
    std::swap(changed.catalogue[0].Folder, changed.catalogue[1].Folder);
    changed.icons.Set(0, NumberedIcon(500));

    // The list's place is taken by something that no write can replace: as if the program had
    // ended between the two files.
    QFile::remove(m_root.Path(u"Gamelist.lst"_s));
    m_root.MakeAll(u"Gamelist.lst/x"_s);
    EXPECT_FALSE(Save(changed));
    EXPECT_TRUE(SheetIsOf(Library(2))) << "as long as the old list can't go";
    const auto oldOneStands = [&]() -> platform::Done {
        EXPECT_TRUE(SheetIsOf(Library(2)));
        return platform::Success();
    };
    ASSERT_TRUE(library::WriteIconSheet(
        m_root.Path(u"IconList.bmp"_s), changed.icons, {0, 1}, oldOneStands));
    EXPECT_TRUE(SheetIsOf(changed));
}

TEST_F(CatalogueCacheTest, AnUnchangedSheetIsNotWrittenAgain)
{
    Library library(3);
    ASSERT_TRUE(Save(library));
    const int breaths = m_progress.breaths;
    QFile sheet(m_root.Path(u"IconList.bmp"_s));
    ASSERT_TRUE(sheet.open(QIODevice::ReadWrite));
    const QDateTime old = QDateTime::fromSecsSinceEpoch(800000000);
    sheet.setFileTime(old, QFileDevice::FileModificationTime);
    sheet.close();
    ASSERT_TRUE(Save(library));
    EXPECT_EQ(QFileInfo(sheet).lastModified(), old);
    EXPECT_EQ(m_progress.breaths, 2 * breaths - 1) << "the window breathed behind the row of cells";
    library.icons.Set(2, NumberedIcon(9));
    ASSERT_TRUE(Save(library));
    EXPECT_GT(QFileInfo(sheet).lastModified(), old);
}

TEST_F(CatalogueCacheTest, WhatWasRemovedLeavesNoTraceInTheSheet)
{
    const QString path = m_root.Path(u"IconList.bmp"_s);
    Library library(515);
    ASSERT_TRUE(Save(library));
    // Where no icon is the sheet is black, whatever another program has put there.
    QByteArray spoilt = m_root.ReadRaw(u"IconList.bmp"_s);
    spoilt[54 + 96 * 511] = 'x'; // the lower band comes first
    m_root.WriteRaw(u"IconList.bmp"_s, spoilt);
    library.icons = Read().Value().icons;
    for (const int gone : {514, 100}) {
        library.icons.Remove({gone});
        library.catalogue.erase(library.catalogue.begin() + gone);
        ASSERT_TRUE(Save(library));
        EXPECT_EQ(m_root.ReadRaw(u"IconList.bmp"_s), SheetByFreeImage(library.icons, 16384, 64));
    }
    EXPECT_EQ(library.icons.Large(100).bgr, test::NumberedIcon(101).bgr);
    library.icons.Append(test::NumberedIcon(900));
    EXPECT_EQ(library.icons.Large(513).bgr, test::NumberedIcon(900).bgr);
    EXPECT_EQ(library.icons.Large(512).bgr, test::NumberedIcon(513).bgr);

    // One pixel that the quick look does not see.
    library.icons.Remove({513});
    library::IconPixels icon = library.icons.Large(3);
    icon.bgr[0] = 99;
    library.icons.Set(3, icon);
    ASSERT_TRUE(Save(library));
    EXPECT_EQ(Read().Value().icons.Large(3).bgr, icon.bgr);
}

TEST_F(CatalogueCacheTest, TellsProgress)
{
    using library::Phase;
    using Told = RecordedProgress::Told;
    ASSERT_TRUE(Save(Library(26)));
    EXPECT_THAT(m_progress.begun, ElementsAre(Told{Phase::SavingList, 25}));
    EXPECT_EQ(m_progress.steps.back(), (Told{Phase::SavingList, 24, 120}));
    m_progress.begun.clear();
    m_progress.steps.clear();
    ASSERT_TRUE(Read());
    EXPECT_THAT(m_progress.begun, ElementsAre(Told{Phase::LoadingIcons, 26}));
    EXPECT_EQ(m_progress.steps.size(), 13U);

    m_progress.onStep = [](const auto&) { return false; };
    EXPECT_EQ(KindOf(Read()), ErrorKind::Abandoned);
    EXPECT_TRUE(Save(Library(2))) << "the last thing a program does is not given up";
}

} // namespace
