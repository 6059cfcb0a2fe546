#pragma once

#include "dosboxconf/CdPanel.h"
#include "dosboxconf/ConfigEditor.h"
#include "dosboxconf/StartList.h"
#include "finding/FilterTree.h"
#include "finding/GameList.h"
#include "library/ConfigDetail.h"
#include "library/GameInfo.h"
#include "library/MediaPanel.h"
#include "platform/Notifier.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <vector>

namespace pelorin::shell {

/// Where the main window stands. Form units are 1/15 pixel.
struct MainFrame {
    enum Changed : std::uint32_t {
        Caption = 1,
        Geometry = 2,
        Tab = 4,
        Language = 8, // texts of all controls are to be taken anew
        Front = 16,   // bring the window forward
        TitlePicture = 32,
        Show = 64,
        Site = 128,
    };
    enum class State { Normal, Maximized, Minimized };

    QString caption;
    QString applicationTitle;
    State state = State::Normal;
    double left = 100;
    double top = 100;
    double width = 0; // 0: as designed
    double height = 0;
    bool picBack0Enabled = true;
    bool picBack1Enabled = true;
    bool isEmptyLibrary = false; // both panels rest, but not for a job
    int tabInfo = 1;             // page on top, counted from 1
    bool minimumSizeHook = true; // false with the marker file NoHook
    bool hasSite = false;        // there is an address for cmdVespra

    platform::Notifier changed;
    platform::Notifier panelsEnabled; // and isEmptyLibrary; no redraw lock holds it
};

/// The values of a genre menu, from its element 2 on.
struct GenreMenu {
    QString folder;
    QStringList values;
};

/// The right page's information about a game.
struct DetailsPanel {
    enum Changed : std::uint32_t {
        Texts = 1,
        Icon = 2,
        Genres = 4,
        FocusTitle = 8, // the title in the language in use is to take the keyboard
        Draft = 16,     // whether the boxes hold more than the file
    };

    /// The game that the right panel shows: these texts, StartCommands and CdPanel are its, and are
    /// saved to it. While a selection moves it is not yet CurrentFolder. Empty before the first.
    QString folder;
    std::array<QString, 2> txtTitle;
    QString txtInfo;             // lines joined by CR LF
    library::InfoText savedInfo; // what the boxes would show without anything typed
    bool draft = false;          // what is typed is not saved
    QString lblGenreK;
    QString lblGenreE;
    QString iconFile; // native path; empty: the default icon
    /// The genres of the tree as they stood when the menu opened, for the game that it opened for.
    GenreMenu mnuGenreK;
    GenreMenu mnuGenreE;

    platform::Notifier changed;
};

/// The place of the emulator's window: what the settings keep of it.
struct PlacementPanel {
    enum Changed : std::uint32_t { All = 1 };

    std::array<QString, 2> txtDosboxPos; // x and y, as typed
    bool chkDosboxMove = false;
    int cmbDosboxMove = 4; // delay is index + 1 seconds
    int tmrDosboxPos = 0;  // the timer that places a window after a start; 0 when it rests

    platform::Notifier changed;
};

/// frmFolderCFG: the two roots as they stand in its boxes, until they are accepted.
struct FolderCfg {
    enum Changed : std::uint32_t { All = 1 };

    QString txtGames;
    QString txtExport;

    platform::Notifier changed;
};

struct Note {
    QString text;  // one line for the panel
    QString story; // what a click shows
};

/// SBDirectory's four panels.
struct StatusBar {
    enum Changed : std::uint32_t { Texts = 1, Notes = 2 };

    QString game;            // panel 1
    QString folder;          // panel 2
    QString count;           // panel 3
    QString folderPath;      // the path that panel 2 shows
    std::vector<Note> notes; // panel 4 shows the last one and is hidden without

    platform::Notifier changed;

    void Tell(const QString& text, const QString& story);
};

/// picProgress over the list.
struct ProgressPanel {
    enum Changed : std::uint32_t { All = 1 };

    bool visible = false;
    int maximum = 1;
    int value = 0;
    QString text;

    platform::Notifier changed;
};

/// The part of picMessage that a job on several games shows: how far it is, and Command1, which
/// asks it to stop.
struct BatchProgress {
    bool visible = false;
    int maximum = 1; // of ProgressBar1
    int value = 0;
    QString Label3; // how many
    QString Label4; // the game in hand
};

/// picMessage over the list.
struct BusyNotice {
    enum Changed : std::uint32_t { All = 1 };

    bool visible = false;
    QString lblMessage;
    std::uint32_t colour = 0; // 0 black, 255 red, 16711680 blue: red in the low byte
    int tmrMessage = 0;       // the timer that blinks it; 0 when it stands still
    BatchProgress batch;

    platform::Notifier changed;
};

/// All that controls hold. The form shows it and writes what the user did.
struct Screens {
    Screens();

    platform::RedrawGate gate;
    finding::GameList list;
    finding::FilterTree tree;
    finding::SearchBox search;
    DetailsPanel details;
    library::MediaPanel media;
    library::ConfigDetail configDetail;
    dosboxconf::StartCommands start;
    dosboxconf::ConfigEditor config;
    dosboxconf::CdPanel cd;
    PlacementPanel placement;
    FolderCfg folderCfg;
    StatusBar status;
    ProgressPanel progress;
    BusyNotice notice;
    MainFrame frame;
};

} // namespace pelorin::shell
