#include "forms/Menus.h"

using namespace Qt::StringLiterals;

namespace pelorin::forms {

namespace {

/// A menu of any length: it scrolls where others would fill the screen with columns, and opens at
/// the entry that holds now.
class LongMenu : public QMenu {
public:
    explicit LongMenu(QWidget* parent)
        : QMenu(parent)
    {
        setStyleSheet(u"QMenu { menu-scrollable: 1; }"_s);
    }

protected:
    void showEvent(QShowEvent* event) override
    {
        QMenu::showEvent(event);
        for (QAction* action : actions()) {
            if (action->isChecked()) {
                setActiveAction(action);
            }
        }
    }
};

} // namespace

void FillMenu(
    QMenu& menu, const QString& name, const shell::MenuModel& model, const Deeds::IndexDeed& chosen)
{
    menu.clear();
    for (const shell::MenuEntry& entry : model) {
        QAction* const action = entry.separator ? menu.addSeparator() : menu.addAction(entry.text);
        action->setObjectName(u"%1_%2"_s.arg(name).arg(entry.index));
        action->setEnabled(entry.enabled && chosen);
        action->setCheckable(entry.checked);
        action->setChecked(entry.checked);
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
    auto* menu = new LongMenu(&owner);
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
    auto* menu = new LongMenu(&button);
    menu->setObjectName(name + u"Root"_s);
    QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, name, &model, &chosen] {
        FillMenu(*menu, name, model ? model() : shell::MenuModel{}, chosen);
    });
    button.setMenu(menu);
    button.setPopupMode(QToolButton::InstantPopup);
    button.setEnabled(static_cast<bool>(model));
}

} // namespace pelorin::forms
