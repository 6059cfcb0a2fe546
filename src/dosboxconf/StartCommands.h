#pragma once

#include "platform/Notifier.h"

#include <QString>
#include <QStringList>

#include <cstdint>

namespace pelorin::dosboxconf {

/// The start page's upper half: the selected game's start commands and its runnable files.
struct StartCommands {
    enum Changed : std::uint32_t { Commands = 1, CommandRow = 2, Files = 4, FileRow = 8 };

    QStringList lstAutoexec;
    QStringList saved;   // the lines that the game's file holds
    int commandRow = -1; // selected row; -1 none
    QStringList fileEXE; // names in GameDir
    int fileRow = -1;
    QString cmdAddEmpty; // the button's caption, which is itself the line that it inserts

    platform::Notifier changed;
};

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

} // namespace pelorin::dosboxconf
