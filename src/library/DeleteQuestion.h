#pragma once

#include "archives/FolderSize.h"

#include <QString>
#include <QStringList>

namespace pelorin::shell {
class LangTable;
}

namespace pelorin::library {

/// How a game is called where it is about to go: its title, and its folder where that differs, since
/// titles may repeat. A long one is cut in its middle.
QString NameForDeletion(const QString& title, const QString& folder);

/// The question before games are moved to the recycle bin: the first names, how many more there are,
/// and what lies in their folders.
QString DeleteQuestion(
    const QStringList& names, const archives::FolderSize& size, const shell::LangTable& lang);

} // namespace pelorin::library
