#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace pelorin::shell {

/// The selected game, which almost all commands work on.
struct Current {
    QString CurrentFolder;      // folder name below GamesRoot; empty before the first selection
    QString CurrentTitle;       // as the list shows it, with its marks
    QStringList BatchSelection; // folders of the games of a command on several
};

/// The flags that guard against re-entry, as the whole program shares them.
struct Flags {
    bool BusyReady = false;             // true: no long job runs and the window may close
    bool ListRefreshReady = false;      // true: the list's selection events are acted on
    bool ConfigListFocused = false;     // lstConfig has the focus
    bool CloseBlocked = false;          // refuses closing; nothing sets it
    bool Ending = false;                // the window is closing: waits come back abandoned
    bool CancelRequested = false;       // a job on several games ends after the one in hand
    bool JobHeld = false;               // a Job stands; only Job writes it
    std::optional<bool> PanelsAfterJob; // whether the panels can be used then; unset: as before it
};

} // namespace pelorin::shell
