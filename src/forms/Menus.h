#pragma once

#include "forms/Deeds.h"

#include <QMenu>
#include <QPoint>
#include <QString>
#include <QToolButton>

namespace pelorin::forms {

/// Replaces the menu's entries. An entry's action is named `name` and its index ("mnuRun_2") and
/// calls `chosen` with it; without `chosen` all are disabled.
void FillMenu(
    QMenu& menu,
    const QString& name,
    const shell::MenuModel& model,
    const Deeds::IndexDeed& chosen);

/// Shows the entries at a place of the screen. Comes back at once; the menu belongs to `owner` and
/// lasts as long as it is open.
void PopupMenu(
    QWidget& owner,
    const QString& name,
    const shell::MenuModel& model,
    const Deeds::IndexDeed& chosen,
    QPoint position);

/// Gives the button a menu named `name` and "Root" that asks for its entries each time it opens.
/// Both deeds outlive the button.
void GiveMenu(
    QToolButton& button,
    const QString& name,
    const Deeds::Menu& model,
    const Deeds::IndexDeed& chosen);

} // namespace pelorin::forms
