#include "fuzz/Harness.h"
#include "shell/RecentFile.h"

using namespace Qt::StringLiterals;
using namespace pelorin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::FuzzInstallation installation;
    const shell::Places& places = installation.Places();
    fuzz::FuzzInstallation::Write(installation.InApp(u"recent.sav"_s), fuzz::BytesOf(data, size));

    const auto read = shell::ReadRecentFile(places);
    fuzz::Require(read.Ok(), "any list of games can be read");
    fuzz::Require(shell::WriteRecentFile(places, read.Value()).Ok(), "it can be written again");
    const auto second = shell::ReadRecentFile(places);
    fuzz::Require(
        fuzz::AsWritten(shell::RecentLines(second.Value())) ==
            fuzz::AsWritten(shell::RecentLines(read.Value())),
        "it reads the same");

    shell::RecentList grown = second.Value();
    shell::AddRecent(grown, u"Star"_s, u"별"_s);
    fuzz::Require(grown.RecentFolders[0] == u"Star"_s, "a started game comes first");
    return 0;
}
