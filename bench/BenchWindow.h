#pragma once

#include "QuietPorts.h"
#include "forms/Pictures.h"
#include "forms/frmDosGames.h"
#include "library/ShowinfoCommands.h"
#include "platform/DetachedProcesses.h"
#include "shell/Launcher.h"
#include "shell/LifecycleCommands.h"

#include <QAbstractItemView>

#include <optional>

namespace pelorin::bench {

/// The main window, brought up over the library. Of all deeds it knows the selection of a game.
struct BenchWindow {
    explicit BenchWindow(const QString& appDir)
    {
        launcher.places.appDir = appDir;
        launcher.drawDefaultIcon = forms::DefaultGameIcon;
        deeds.LVGamelist_ItemClick = [this] { library::LVGamelist_ItemClick(launcher); };
        deeds.LVGamelist_SelectionMoved = [this] { library::LVGamelist_SelectionMoved(launcher); };
        form.emplace(
            forms::Shown{
                launcher.screens,
                launcher.lang,
                launcher.settings,
                launcher.icons,
                launcher.options,
                quiet.prompts},
            deeds);
        if (const platform::Done loaded = shell::Form_Load(launcher); !loaded) {
            qFatal("%s", qUtf8Printable(loaded.Failure().text));
        }
    }

    QWidget& Viewport() const
    {
        const char* const name = launcher.screens.list.view == finding::View::Details
                                     ? "LVGamelist_details"
                                     : "LVGamelist_icons";
        return *form->findChild<QAbstractItemView*>(QString::fromLatin1(name))->viewport();
    }

    QuietPorts quiet;
    platform::DetachedProcesses processes;
    platform::Ports ports{
        processes, quiet.shell, quiet.bin, quiet.prompts, quiet.timers, quiet.desktop};
    shell::Launcher launcher{ports};
    forms::Deeds deeds;
    std::optional<forms::frmDosGames> form;
};

/// Composing, starting and editing: RunFigures.cpp.
void AddRunFigures(BenchWindow& window);

} // namespace pelorin::bench
