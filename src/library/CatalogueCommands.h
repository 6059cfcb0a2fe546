#pragma once

#include "library/ScanProgress.h"
#include "platform/Outcome.h"

#include <QString>
#include <QStringList>

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::library {

/// Fills Catalogue, icons, tree and list out of the cache files, or by a scan when one is missing
/// or damaged or belongs to another root. At the start of the program.
void ReadGameList(shell::Launcher& launcher);

/// Reads all game folders anew. An empty library loses its cache files and is told so in a box.
void ScanGames(shell::Launcher& launcher);

/// F5: a scan, and the selection taken over anew. Nothing while a job stands.
void cmdRefresh_Click(shell::Launcher& launcher);

/// Reads one game's titles, build and marks again and shows them in its row.
void RereadGameEntry(shell::Launcher& launcher, const QString& folder);

/// Shows what the Catalogue holds of a game in its row, if the list has one.
void ShowGameEntry(shell::Launcher& launcher, const QString& folder);

/// RereadGameEntry, and the details of the current game are shown anew.
void RefreshGameEntry(shell::Launcher& launcher, const QString& folder);

/// The first half of a game's removal: moves its folder to the recycle bin. A folder that is gone
/// already counts as moved. On an error the game stays as it is.
platform::Done MoveGameToBin(shell::Launcher& launcher, const QString& folder);
/// The second half: takes games whose folders are gone out of the Catalogue, all at once, since the
/// gaps are closed each time. The caller refreshes the list, and calls TellEmptyLibrary when no game
/// is left then.
void RemoveGameEntries(shell::Launcher& launcher, const QStringList& folders);

/// Deletes the cache files of a library that has no game any more, and tells so in a box.
void TellEmptyLibrary(shell::Launcher& launcher);

/// Writes IconList.bmp and Gamelist.lst, or deletes both when the roots have changed since they
/// were filled, so that the next start scans. Games that the files can't hold are told.
platform::Done SaveCatalogue(shell::Launcher& launcher);

/// Shows a long job's progress in picProgress and lets window events run at each step, and between
/// two steps some fifty times a second.
class ShownProgress : public ScanProgress {
public:
    explicit ShownProgress(shell::Launcher& launcher)
        : m_launcher(launcher)
    {}
    ~ShownProgress() override;

    void Begin(Phase phase, int maximum) override;
    bool Step(Phase phase, int value, int percent) override;
    bool Breathe() override;

private:
    bool RunEvents();

    shell::Launcher& m_launcher;
    qint64 m_eventsRan = 0; // when
};

} // namespace pelorin::library
