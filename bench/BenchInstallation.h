#pragma once

#include "library/Catalogue.h"
#include "library/IconSheet.h"
#include "library/ScanProgress.h"
#include "shell/LangTable.h"
#include "shell/Places.h"

#include <QString>

namespace pelorin::bench {

/// Long jobs run to their end, and nobody looks.
class NoProgress : public library::ScanProgress {
public:
    void Begin(library::Phase /*phase*/, int /*maximum*/) override {}
    bool Step(library::Phase /*phase*/, int /*value*/, int /*percent*/) override { return true; }
};

/// The installation in the folder `appDir` that bench.sh has staged, and its library, scanned once.
struct BenchInstallation {
    explicit BenchInstallation(const QString& appDir);

    shell::Places places;
    shell::LangTable lang;
    library::IconPixels defaultIcon;
    library::Catalogue catalogue;
    library::IconSheet icons;
};

} // namespace pelorin::bench
