#pragma once

#include "library/GameInfo.h"
#include "shell/MenuModel.h"

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::library {

/// mnuGenreK or mnuGenreE as it opens for the game that the details show: 0 a new genre, 1 a line,
/// from 2 on the values of the tree, as many as there are; the game's own is checked.
shell::MenuModel GenreMenu(shell::Launcher& launcher, GenreFile which);

/// mnuGenreK_Click, mnuGenreE_Click: gives the game the chosen genre, or asks for a new one.
void mnuGenre_Click(shell::Launcher& launcher, GenreFile which, int index);

} // namespace pelorin::library
