#pragma once

#include "shell/Launcher.h"
#include "support/FakePorts.h"
#include "support/TestFolder.h"

#include <memory>

namespace pelorin::test {

/// A whole AppDir in a temporary folder with the shipped data of a language, a DOSBox that is a
/// script, and a Launcher over it whose ports are fakes.
class Installation {
public:
    explicit Installation(const QString& language = QStringLiteral("ko"));

    /// Another program run over the same folders: what one leaves the next one finds.
    std::unique_ptr<shell::Launcher> NewLauncher();
    /// NewLauncher, brought up. Fails the test if it doesn't come up.
    std::unique_ptr<shell::Launcher> Start();

    /// A game folder with a start file; `meta` is the spelling of its metadata folder.
    void AddGame(const QString& name, const QString& meta = QStringLiteral("DosBox")) const;

    TestFolder folder{QStringLiteral("펠로린 [앱]")};
    FakePorts fakes;
};

/// Selects the game's row as a click does.
void Click(shell::Launcher& launcher, const QString& game);

} // namespace pelorin::test
