#pragma once

#include "dosboxconf/OptionGrid.h"
#include "finding/TitleOrder.h"
#include "library/Catalogue.h"
#include "library/Drafts.h"
#include "library/IconSheet.h"
#include "platform/Ports.h"
#include "shell/Current.h"
#include "shell/Endpoints.h"
#include "shell/LangTable.h"
#include "shell/Places.h"
#include "shell/RecentList.h"
#include "shell/Screens.h"
#include "shell/Settings.h"

#include <QStringList>

#include <functional>
#include <optional>

namespace pelorin::shell {

/// The process-wide tables. main owns the one Launcher; commands take it by reference.
struct Launcher {
    explicit Launcher(platform::Ports& thePorts)
        : ports(thePorts)
    {}

    platform::Ports& ports;
    Places places;
    LangTable lang;
    Settings settings;
    Endpoints endpoints;
    RecentList recent;
    library::Catalogue catalogue;
    library::IconSheet icons;
    library::Drafts drafts;
    std::function<library::IconPixels()> drawDefaultIcon;
    library::IconPixels defaultIcon; // 32 x 32; no picture before the first scan
    dosboxconf::OptionGrid options;
    Current current;
    Flags flags;
    Screens screens;
    std::optional<finding::TitleOrder> titleOrder; // of the title language in use; made when needed
    QStringList runningGames; // folders whose emulator is up; one may stand several times
    QStringList searchPath;   // where programs that don't lie in AppDir are looked for
    QString BuildStamp;
    QString WindowTitle;
};

} // namespace pelorin::shell
