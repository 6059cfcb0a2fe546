#pragma once

#include "shell/MenuModel.h"

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::library {

struct GameFiles;

/// The tabs of TabStrip1.
enum class Media { Pictures = 1, Recordings = 2, Manuals = 3 };

/// Fills the three lists and chooses the tab: manuals where there are some, else pictures, of which
/// the first is selected. Without a metadata folder the lists stay as they were.
void FillMedia(shell::Launcher& launcher, const GameFiles& files);

/// There is no game: the lists are empty.
void ClearMedia(shell::Launcher& launcher);

/// mnuPic, mnuAV or mnuManual; empty while the list is.
shell::MenuModel MediaMenu(const shell::Launcher& launcher, Media media);

/// An entry for the selected file was chosen; 0 opens it.
void mnuMedia_Click(shell::Launcher& launcher, Media media, int index);

/// The Delete key: the file goes to the recycle bin, and the first one that is left is selected; the
/// first tab when none is.
void DeleteMediaFile(shell::Launcher& launcher, Media media);

/// A click on pic1: the next picture, after the last one the first.
void pic1_Click(shell::Launcher& launcher);

} // namespace pelorin::library
