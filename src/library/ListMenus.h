#pragma once

#include "shell/MenuModel.h"

#include <QList>
#include <QString>

namespace pelorin::shell {
class LangTable;
}

namespace pelorin::library {

/// What mnuGame depends on when it opens.
struct GameMenuFacts {
    int selected = 0; // games selected in the list
    QString title;    // of the game that single-game entries work on
    bool windowsGame = false;
    QList<int> commands; // indexes that have a command; the others are shown disabled
};

/// mnuGame, the popup of LVGamelist: one set of entries for a game, another for several. Empty when
/// none is selected.
shell::MenuModel GameMenu(const GameMenuFacts& facts, const shell::LangTable& lang);

/// mnuFolder, the popup of cmdOpenFolder. Without a game the entries for its folders are disabled.
shell::MenuModel FolderMenu(const QString& title, bool hasGame, const shell::LangTable& lang);

} // namespace pelorin::library
