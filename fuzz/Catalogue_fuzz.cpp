#include "fuzz/Harness.h"
#include "library/CatalogueCache.h"
#include "library/IconSheetFile.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;
using namespace pelorin;

namespace {

constexpr int kMostRecords = 40; // more cost time and show nothing new

library::IconSheet BlackIcons(int count)
{
    const int bytes = library::kLargeIcon * library::kLargeIcon * 3;
    library::IconSheet icons;
    while (icons.Count() < count) {
        icons.Append(library::IconPixels{library::kLargeIcon, QByteArray(bytes, '\0')});
    }
    return icons;
}

/// A sheet that suits a list of so many records, so that the list is what is judged.
void WriteSheet(const QString& path, int count)
{
    static int last = 0;
    if (count == last) {
        return;
    }
    std::vector<int> positions(static_cast<std::size_t>(count));
    std::iota(positions.begin(), positions.end(), 0);
    const auto nothing = [] { return platform::Success(); };
    fuzz::Require(
        library::WriteIconSheet(path, BlackIcons(count), positions, nothing).Ok(),
        "a sheet can be written");
    last = count;
}

bool SameGame(const library::GameEntry& a, const library::GameEntry& b)
{
    return a.Folder == b.Folder && a.TitleK == b.TitleK && a.TitleE == b.TitleE &&
           a.ListIndex == b.ListIndex && a.GenreK == b.GenreK && a.GenreE == b.GenreE &&
           a.DosboxVersion == b.DosboxVersion && a.Maker == b.Maker && a.Release == b.Release &&
           a.GameLanguage == b.GameLanguage && a.Country == b.Country;
}

/// A separator of titles anywhere else comes from another writer, and goes at the next save.
bool IsClean(const library::GameEntry& entry)
{
    const QString all = entry.TitleK + entry.TitleE + entry.GenreK + entry.GenreE + entry.Maker +
                        entry.Release + entry.GameLanguage + entry.Country;
    return !all.contains(u'\x0003');
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::FuzzInstallation installation;
    const shell::Places& places = installation.Places();
    const int records = 1 + static_cast<int>(std::count(data, data + size, 2));
    if (records > kMostRecords) {
        return -1;
    }
    WriteSheet(installation.InApp(u"IconList.bmp"_s), records);
    fuzz::FuzzInstallation::Write(installation.InApp(u"Gamelist.lst"_s), fuzz::BytesOf(data, size));

    fuzz::Require(library::HasCatalogueCache(places), "both files are there");
    fuzz::NoProgress progress;
    const auto read = library::ReadCatalogueCache(places, progress);
    if (!read) {
        return 0;
    }
    const library::GameEntries& catalogue = read.Value().catalogue;
    const library::IconSheet& icons = read.Value().icons;
    library::FoldersWithoutCache(places, catalogue);
    fuzz::Require(icons.Count() == static_cast<int>(catalogue.size()), "an icon for each game");
    const auto saved = library::SaveCatalogueCache(places, catalogue, icons, progress);
    fuzz::Require(saved.Ok(), "what was read can be saved");
    if (!saved.Value().leftOut.isEmpty() ||
        !std::all_of(catalogue.begin(), catalogue.end(), IsClean)) {
        return 0;
    }
    const auto again = library::ReadCatalogueCache(places, progress);
    fuzz::Require(again.Ok(), "what was saved can be read");
    const library::GameEntries& second = again.Value().catalogue;
    fuzz::Require(
        std::equal(catalogue.begin(), catalogue.end(), second.begin(), second.end(), SameGame),
        "what was saved reads the same");
    return 0;
}
