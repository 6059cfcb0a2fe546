#include "fuzz/Harness.h"
#include "shell/LangTable.h"

using namespace Qt::StringLiterals;
using namespace pelorin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::FuzzInstallation installation;
    const QString path = installation.InApp(u"Language.dat"_s);
    fuzz::FuzzInstallation::Write(path, fuzz::BytesOf(data, size));

    const auto lang = shell::ReadLanguageFile(path);
    if (!lang) {
        fuzz::Require(lang.Failure().text.contains(path), "an error names the file");
        return 0;
    }
    for (int entry = 0; entry <= shell::kLastEntry + 1; ++entry) {
        fuzz::Require(!lang.Value()[entry].contains(u"\\n"_s), "line ends are line ends");
        lang.Value().Text(entry, {u"<2>"_s, u"<3>"_s, QString()});
    }
    fuzz::Require(
        !lang.Value().OwnText(shell::kLastEntry + 1, u"english"_s).isNull(), "own texts stand in");
    lang.Value().IsKorean();
    return 0;
}
