#include "forms/Menus.h"

using namespace Qt::StringLiterals;

namespace pelorin::forms {

void FillMenu(
    QMenu& menu, const QString& name, const shell::MenuModel& model, const Deeds::IndexDeed& chosen)
{
    menu.clear();
    for (const shell::MenuEntry& entry : model) {
        QAction* const action = entry.separator ? menu.addSeparator() : menu.addAction(entry.text);
        action->setObjectName(u"%1_%2"_s.arg(name).arg(entry.index));
        action->setEnabled(entry.enabled && chosen);
        QObject::connect(action, &QAction::triggered, &menu, [chosen, index = entry.index] {
            Do(chosen, index);
        });
    }
}

void PopupMenu(
    QWidget& owner,
    const QString& name,
    const shell::MenuModel& model,
    const Deeds::IndexDeed& chosen,
    QPoint position)
{
    auto* menu = new QMenu(&owner);
    menu->setObjectName(name + u"Root"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    FillMenu(*menu, name, model, chosen);
    menu->popup(position);
}

void GiveMenu(
    QToolButton& button,
    const QString& name,
    const Deeds::Menu& model,
    const Deeds::IndexDeed& chosen)
{
    auto* menu = new QMenu(&button);
    menu->setObjectName(name + u"Root"_s);
    QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, name, &model, &chosen] {
        FillMenu(*menu, name, model ? model() : shell::MenuModel{}, chosen);
    });
    button.setMenu(menu);
    button.setPopupMode(QToolButton::InstantPopup);
    button.setEnabled(static_cast<bool>(model));
}

} // namespace pelorin::forms
