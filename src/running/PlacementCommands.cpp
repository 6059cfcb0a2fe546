#include "running/PlacementCommands.h"

#include "platform/Desktop.h"
#include "platform/Numbers.h"
#include "platform/Timers.h"
#include "running/Placement.h"
#include "shell/Launcher.h"

namespace pelorin::running {

using platform::Desktop;
using shell::Launcher;
using shell::PlacementPanel;

namespace {

constexpr int kSecondMs = 1000;

void Show(Launcher& launcher, QPoint point)
{
    PlacementPanel& placement = launcher.screens.placement;
    placement.txtDosboxPos = {QString::number(point.x()), QString::number(point.y())};
    placement.changed.Tell(PlacementPanel::All);
}

void PlaceEmulatorWindow(Launcher& launcher, platform::WindowId window, bool toFront)
{
    Desktop& desktop = launcher.ports.desktop;
    const std::optional<platform::WindowPlace> place = desktop.PlaceOf(window);
    if (!place) {
        return;
    }
    const std::array<QString, 2>& typed = launcher.screens.placement.txtDosboxPos;
    desktop.Move(window, OuterFor(*place, {TypedCoordinate(typed[0]), TypedCoordinate(typed[1])}));
    if (toFront) {
        desktop.BringToFront(window);
    }
}

} // namespace

void cmdSetPos_Click(Launcher& launcher)
{
    for (const EmulatorWindow& kind : EmulatorWindows()) {
        if (const auto window = launcher.ports.desktop.FindWindow(kind.name.toString())) {
            PlaceEmulatorWindow(launcher, *window, kind.toFront);
            return;
        }
    }
}

void cmdRememberPos_Click(Launcher& launcher)
{
    Desktop& desktop = launcher.ports.desktop;
    for (const EmulatorWindow& kind : EmulatorWindows()) {
        const auto window =
            kind.remembered ? desktop.FindWindow(kind.name.toString()) : std::nullopt;
        if (!window) {
            continue;
        }
        if (const std::optional<platform::WindowPlace> place = desktop.PlaceOf(*window)) {
            Show(launcher, place->client);
        }
        return;
    }
}

void cmdMoveDosbox_Click(Launcher& launcher, int index)
{
    struct Step {
        int box;
        int by;
    };
    static constexpr std::array<Step, 4> kSteps{{{1, -1}, {0, -1}, {0, 1}, {1, 1}}};
    if (index >= 0 && index < static_cast<int>(kSteps.size())) {
        const Step step = kSteps[static_cast<std::size_t>(index)];
        txtDosboxPos_Step(launcher, step.box, step.by);
        cmdSetPos_Click(launcher);
    }
}

void txtDosboxPos_Step(Launcher& launcher, int box, int step)
{
    PlacementPanel& placement = launcher.screens.placement;
    QString& typed = placement.txtDosboxPos[static_cast<std::size_t>(box)];
    typed = platform::NumberText(TypedCoordinate(typed) + step);
    placement.changed.Tell(PlacementPanel::All);
}

void StartPlacementTimer(Launcher& launcher)
{
    PlacementPanel& placement = launcher.screens.placement;
    launcher.ports.timers.Stop(placement.tmrDosboxPos);
    placement.tmrDosboxPos = 0;
    if (placement.chkDosboxMove) {
        placement.tmrDosboxPos = launcher.ports.timers.StartSingleShot(
            (placement.cmbDosboxMove + 1) * kSecondMs, [&launcher] {
                launcher.screens.placement.tmrDosboxPos = 0;
                cmdSetPos_Click(launcher);
            });
    }
}

} // namespace pelorin::running
