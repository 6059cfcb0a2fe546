#include "dosboxconf/AutoexecFile.h"
#include "dosboxconf/StartList.h"
#include "fuzz/Harness.h"

using namespace Qt::StringLiterals;
using namespace pelorin;

namespace {

/// What the buttons beside the list do, one deed a bit.
void Click(dosboxconf::StartCommands& start, std::uint8_t deeds)
{
    const auto asked = [&](int bit) { return (deeds >> bit & 1) != 0; };
    if (asked(0)) {
        dosboxconf::AddEmptyLine(start);
    }
    if (asked(1)) {
        dosboxconf::MoveLineDown(start);
    }
    if (asked(2)) {
        dosboxconf::MoveLineUp(start);
    }
    if (asked(3)) {
        dosboxconf::DeleteLine(start);
    }
    dosboxconf::AddSelectedFile(start);
    dosboxconf::ReplaceLine(start, deeds % 16 - 1, u" star.com "_s);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::FuzzInstallation installation;
    const shell::Places& places = installation.Places();
    fuzz::FuzzInstallation::Write(
        installation.InMeta(u"autoexec.conf"_s), fuzz::BytesOf(data, size));

    const auto read = dosboxconf::ReadAutoexecConf(places, u"Star"_s);
    fuzz::Require(read.Ok(), "any text can be read");
    if (dosboxconf::WriteAutoexecConf(places, u"Star"_s, read.Value())) {
        const auto again = dosboxconf::ReadAutoexecConf(places, u"Star"_s);
        fuzz::Require(again.Ok() && again.Value() == read.Value(), "commands read the same");
    }
    dosboxconf::StartCommands start;
    dosboxconf::FillStartCommands(start, read.Value());
    Click(start, size > 0 ? data[size - 1] : 0);
    return 0;
}
