#include "BenchInstallation.h"

#include "library/CatalogueScan.h"
#include "library/IconImages.h"

using namespace Qt::StringLiterals;

namespace pelorin::bench {

BenchInstallation::BenchInstallation(const QString& appDir)
    : places{appDir, appDir + u"/Games"_s, appDir + u"/Export"_s}
    , defaultIcon(library::PlainIcon(library::kLargeIcon, 200, 200, 200))
{
    auto read = shell::ReadLanguageFile(places.InAppDir(u"Language.dat"_s));
    if (!read) {
        qFatal("%s", qUtf8Printable(read.Failure().text));
    }
    lang = read.Take();
    NoProgress progress;
    library::ScanResult scan =
        library::ScanCatalogue(places, library::ReadingRules{lang, 0}, defaultIcon, progress);
    if (scan.troubles.count > 0 || scan.catalogue.empty()) {
        qFatal("%s: no library, or one with troubles", qUtf8Printable(places.gamesRoot));
    }
    catalogue = library::Catalogue(std::move(scan.catalogue));
    icons = std::move(scan.icons);
}

} // namespace pelorin::bench
