#pragma once

#include "shell/MenuModel.h"

#include <QString>

#include <vector>

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::library {

/// A game as commands on the list keep it across prompts and waits: never by its place.
struct ListedGame {
    QString folder;
    QString title; // as the list shows it
};

/// The selected games in the order of the list.
std::vector<ListedGame> SelectedGames(const shell::Launcher& launcher);

/// BatchSelection takes the games when there are several.
void FillBatchSelection(shell::Launcher& launcher, const std::vector<ListedGame>& games);

/// mnuGame for the selection, which is taken over as the current game; BatchSelection takes the
/// games when there are several.
shell::MenuModel mnuGame_Popup(shell::Launcher& launcher);
/// An entry was chosen.
void mnuGame_Click(shell::Launcher& launcher, int index);

/// mnuFolder for the current game.
shell::MenuModel mnuFolder_Popup(const shell::Launcher& launcher);
/// An entry was chosen. A missing ExportRoot is made.
void mnuFolder_Click(shell::Launcher& launcher, int index);

/// The title language's picture: asks, and shows the titles in the other language by a scan.
void Picture2_Click(shell::Launcher& launcher);

/// F2: the title in the language in use gets the keyboard, on the information page.
void FocusTitle(shell::Launcher& launcher);

} // namespace pelorin::library
