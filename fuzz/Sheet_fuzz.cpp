#include "fuzz/Harness.h"
#include "library/IconSheetFile.h"

#include <numeric>

using namespace Qt::StringLiterals;
using namespace pelorin;

// The first byte is the number of icons that the reader expects, up to 8.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::FuzzInstallation installation;
    if (size == 0) {
        return 0;
    }
    const int count = 1 + data[0] % 8;
    const QString path = installation.InApp(u"IconList.bmp"_s);
    fuzz::FuzzInstallation::Write(path, fuzz::BytesOf(data + 1, size - 1));

    fuzz::NoProgress progress;
    const auto read = library::ReadIconSheet(path, count, progress);
    std::vector<int> positions(static_cast<std::size_t>(count));
    std::iota(positions.begin(), positions.end(), 0);
    if (!read) {
        return 0;
    }
    fuzz::Require(read.Value().Count() == count, "as many icons as asked for");
    const bool current = library::StaleBands(path, read.Value(), positions) == std::vector<int>();
    const auto nothing = [] { return platform::Success(); };
    fuzz::Require(
        current || library::WriteIconSheet(path, read.Value(), positions, nothing).Ok(),
        "what was read can be written");
    const auto again = library::ReadIconSheet(path, count, progress);
    fuzz::Require(again.Ok(), "what was written can be read");
    for (int i = 0; i < count; ++i) {
        fuzz::Require(
            again.Value().Large(i).bgr == read.Value().Large(i).bgr, "icons read the same");
    }
    return 0;
}
