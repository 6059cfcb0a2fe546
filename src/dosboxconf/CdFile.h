#pragma once

#include "dosboxconf/StartCommands.h"
#include "platform/Outcome.h"
#include "shell/Places.h"

#include <QString>
#include <QStringList>

namespace pelorin::library {
struct GameFiles;
}

// CD.conf in a game's metadata folder: line 1 chkMountCD (0 or 1), line 2 CdMountMode (0 or 1).
// That the file is there means that the game wants a CD. Images lie in the folder CD beside it.

namespace pelorin::dosboxconf {

/// What a game's metadata folder says about its CD.
struct CdFacts {
    bool hasFolder = false; // the folder CD is there
    QStringList images;     // names of *.iso, then of *.cue, each in order of names
    bool hasConf = false;   // CD.conf is there; the next two are its lines
    bool chkMountCD = false;
    int CdMountMode = 0; // any number but 0 reads as 1
};

/// Looks at the disk. An unreadable CD.conf counts as one with zeros.
CdFacts ReadCdFacts(const shell::Places& places, const QString& folder);
/// The same for a game whose folders are listed already.
CdFacts ReadCdFacts(const library::GameFiles& files);

// `placeholder` is the one row of lstCD that stands for the game's own folder.

/// A game without the folder CD gets an empty list and keeps the former game's chkCD; the
/// selection of a game calls ResetCdPanel before.
void FillCdList(CdPanel& panel, const CdFacts& facts, const QString& placeholder);

/// All as for a game without a CD. Tells nothing: FillCdList follows.
void ResetCdPanel(CdPanel& panel);

/// The check box chkCD now stands at `checked`.
void ChkCdClicked(
    CdPanel& panel, bool checked, const QStringList& images, const QString& placeholder);

/// The popup mnuCD: 0 the game's folder, 1 images.
void ChooseCdMode(CdPanel& panel, int mode, const QStringList& images, const QString& placeholder);

/// chkMountCD now stands at `checked`: a drive for each image means images.
void ChkMountCdClicked(
    CdPanel& panel, bool checked, const QStringList& images, const QString& placeholder);

/// Writes CD.conf; with chkCD but no row leaves all as it is; without chkCD deletes the file.
/// Makes the metadata folder, and CD in it where it can, if they are missing. Error Unwritable, or Refused for a game that is not
/// there.
platform::Done SaveCdConf(const shell::Places& places, const QString& folder, const CdPanel& panel);

} // namespace pelorin::dosboxconf
