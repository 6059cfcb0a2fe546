#pragma once

#include "finding/FilterTree.h"
#include "finding/GameList.h"
#include "shell/MenuModel.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace pelorin::forms {

/// What the user does, one call a deed, named after the control and the event. main wires each to
/// a command. The form has written the models before it calls: the list's selection, the text of
/// the search box, the selected row of lstAutoexec ...
/// A deed that is not set has no command yet: its control is shown and disabled.
struct Deeds {
    using Deed = std::function<void()>;
    using IndexDeed = std::function<void(int index)>;
    using CheckDeed = std::function<void(bool checked)>;
    using Menu = std::function<shell::MenuModel()>;

    // The list. ItemClick follows each change of the selection, SelectionMoved comes when it rests:
    // on the release of a mouse button or key, within 60 ms while a key is held or an input method
    // composes, and when the list loses the focus.
    Deed LVGamelist_ItemClick;
    Deed LVGamelist_SelectionMoved;
    Deed LVGamelist_DblClick; // Enter as well
    Deed LVGamelist_Delete;
    Menu mnuGame;
    IndexDeed mnuGame_Click;
    IndexDeed LVGamelist_ColumnClick;
    Deed FocusTitle;       // F2
    Deed RenameGameFolder; // F4, and panel 2 of the status bar
    Deed OpenDetails;      // F6
    Deed SaveDetails;      // frmConfigDetail's Command1
    Deed DeleteDetails;    // its Command3

    // The toolbar.
    Deed cmdRun_Click; // element 0; element 1 opens mnuRun
    Menu mnuRun;
    IndexDeed mnuRun_Click;
    Menu mnuFolder; // of cmdOpenFolder
    IndexDeed mnuFolder_Click;
    Deed cmdRefresh_Click; // F5 as well
    std::function<void(finding::View view)> optViewmode_Click;
    Deed Picture2_Click;
    Deed cmdFind_Click; // Enter as well
    Deed txtFind_Esc;
    Deed cmdFind_Esc;
    Deed picAddGame_Click;
    Menu mnuDownload; // its right button
    IndexDeed mnuDownload_Click;
    std::function<void(const QStringList& paths)> picAddGame_DragDrop;
    Deed cmdVespra_Click;

    // The tree: its box toggled, to `checked`, and its label clicked.
    std::function<void(const finding::NodePlace& place, bool checked)> TreeView1_NodeCheck;
    std::function<void(const finding::NodePlace& place)> TreeView1_NodeClick;

    Deed Command1_Click; // gives a job on several games up

    // The right panel.
    IndexDeed tabInfo_Click; // counted from 1; frame.tabInfo holds it
    Deed Info_Change;        // typed into a title or the description
    IndexDeed Info_Esc;      // in a title (0, 1) or the description (2)
    Deed cmdSaveInfo_Click;  // Ctrl+S as well
    IndexDeed cmdIcon_Click;
    Menu mnuGenreK;
    IndexDeed mnuGenreK_Click;
    Menu mnuGenreE;
    IndexDeed mnuGenreE_Click;
    Menu mnuPic; // of fileImages and pic1
    IndexDeed mnuPic_Click;
    Deed fileImages_Delete;
    Menu mnuAV; // of fileAV
    IndexDeed mnuAV_Click;
    Deed fileAV_Delete;
    Menu mnuManual; // of fileManual
    IndexDeed mnuManual_Click;
    Deed fileManual_Delete;
    Deed pic1_Click;

    // The start page.
    Deed cmdAddExec_Click;
    Deed cmdAddEmpty_Click;
    Deed cmdDelete_Click;
    Deed cmdUp_Click;
    Deed cmdDown_Click;
    IndexDeed lstAutoexec_DblClick; // the row
    Deed cmdSaveExec_Click;
    IndexDeed fileEXE_DblClick; // the row
    CheckDeed chkCD_Click;
    CheckDeed chkMountCD_Click;
    Menu mnuCD;            // of cmdCD
    IndexDeed mnuCD_Click; // 0 the game's folder, 1 images
    Deed cmdSaveCD_Click;

    // The configuration page.
    CheckDeed chkEditConfig_Click;
    IndexDeed cmbConfigSub_Click;      // the group
    IndexDeed lstConfigTitle_Click;    // the row
    IndexDeed lstConfigTitle_DblClick; // Enter as well
    IndexDeed lstConfigTitle_CtrlTab;  // 1 forward, -1 back
    IndexDeed lstConfig_Row;           // gone to
    CheckDeed lstConfig_Focus;         // it came or went
    IndexDeed lstConfig_Click;         // clicked, or Enter
    IndexDeed cmbConfig_Click;         // the value chosen
    Deed cmbConfig_Leave;
    IndexDeed lstEdit_Click; // the row
    Deed cmdSaveConfig_Click;
    Deed cmdDeleteConfig_Click;
    Deed cmdOpenPreset_Click;
    Deed cmdSavePreset_Click;

    // The settings page.
    Deed cmdSetPos_Click;
    Deed cmdRememberPos_Click;
    std::function<void(int box, int step)> txtDosboxPos_Step; // Up and Down in a box
    IndexDeed cmdMoveDosbox_Click;                            // 0 up, 1 left, 2 right, 3 down
    Deed cmdCompact_Click;
    Deed cmdFolderCFG_Click;
    Deed cmdUpdate_Click;

    // The tools page.
    IndexDeed cmdDownloadTools_Click;

    // The status bar: 3 the count. The folder, 2, is renamed; the form itself shows the notes of 4.
    IndexDeed SBDirectory_PanelClick;

    /// The window is about to close; false keeps it open. Not set: it closes.
    std::function<bool()> Form_Unload;
};

template <class... Args>
void Do(const std::function<void(Args...)>& deed, std::type_identity_t<Args>... args)
{
    if (deed) {
        deed(args...);
    }
}

} // namespace pelorin::forms
