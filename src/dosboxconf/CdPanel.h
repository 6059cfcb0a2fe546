#pragma once

#include "platform/Notifier.h"

#include <QString>
#include <QStringList>

#include <cstdint>

namespace pelorin::dosboxconf {

/// The start page's lower half: how the selected game gets a CD.
struct CdPanel {
    enum Changed : std::uint32_t { All = 1 };

    bool chkCD = false; // the game uses a CD
    bool picCDVisible = false;
    bool chkMountCD = false; // one drive for each image
    QStringList lstCD;       // image names, or the one placeholder row
    int row = -1;
    int CdMountMode = 0; // 0 the game's folder is the CD, 1 images
    bool edited = false; // the choice differs from what is saved

    platform::Notifier changed;
};

/// What a game's metadata folder says about its CD.
struct CdFacts {
    bool hasFolder = false; // the folder CD is there
    QStringList images;     // names of *.iso, then of *.cue, each in order of names
    bool hasConf = false;   // CD.conf is there; the next two are its lines
    bool chkMountCD = false;
    int CdMountMode = 0; // any number but 0 reads as 1
};

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

} // namespace pelorin::dosboxconf
