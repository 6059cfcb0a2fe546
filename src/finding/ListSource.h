#pragma once

#include "library/GameEntry.h"

#include <QString>
#include <QStringList>

namespace pelorin::finding {

/// What the list is built from. All of it must outlive the call.
struct ListSource {
    library::GamesView catalogue;
    const QStringList& buildNames; // value list of the first option cell
    bool TitleLanguageKorean = true;
    QString txtFind;   // as typed
    QString storeMark; // what the titles of stored games hold
};

} // namespace pelorin::finding
