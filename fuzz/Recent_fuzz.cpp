#include "fuzz/Harness.h"
#include "platform/TextFile.h"
#include "shell/RecentFile.h"

using namespace Qt::StringLiterals;
using namespace pelorin;

namespace {

QByteArray Written(const shell::RecentList& recent)
{
    return platform::EncodeCp949(shell::RecentLines(recent).join(u'\n')).bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::FuzzInstallation installation;
    const shell::Places& places = installation.Places();
    fuzz::FuzzInstallation::Write(installation.InApp(u"recent.sav"_s), fuzz::BytesOf(data, size));

    const auto read = shell::ReadRecentFile(places);
    fuzz::Require(read.Ok(), "any list of games can be read");
    fuzz::Require(shell::WriteRecentFile(places, read.Value()).Ok(), "it can be written again");
    const auto second = shell::ReadRecentFile(places);
    fuzz::Require(Written(second.Value()) == Written(read.Value()), "it reads the same");

    shell::RecentList grown = second.Value();
    shell::AddRecent(grown, u"Star"_s, u"별"_s);
    fuzz::Require(grown.RecentFolders[0] == u"Star"_s, "a started game comes first");
    return 0;
}
