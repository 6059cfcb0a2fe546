#pragma once

#include "dosboxconf/RunFacts.h"

#include <QString>
#include <QStringList>

namespace pelorin::running {

/// How a game is started.
enum class RunMode {
    Game,         // RunGame: with the start commands
    DosPrompt,    // RunDosPrompt: without them
    NetHost,      // RunNetHost: as Game, with an IPX server
    NetClient,    // RunNetClient: as Game, joining an IPX server
    LibraryShell, // RunLibraryShell: the file manager over all games
    FileWithArgs, // RunFileWithArgs: one file of the game with typed arguments
};

/// One start, as the controls stood when the user asked for it.
struct RunRequest {
    RunMode mode = RunMode::Game;
    QString folder;            // CurrentFolder
    QString title;             // CurrentTitle
    QStringList startCommands; // lstAutoexec
    QString ipxAddress;        // NetClient: as typed
    QString typedLine;         // FileWithArgs: as typed
    dosboxconf::CdChoice cd;
    int serverPort = dosboxconf::kIpxPort; // NetHost: what can be bound
};

/// What the request asks of the text, under the build's own name (a guest's too).
dosboxconf::ConfRequest ConfRequestOf(const RunRequest& request, const QString& build);

} // namespace pelorin::running
