#pragma once

#include <QString>

#include <vector>

namespace pelorin::shell {

/// One entry of a popup menu. The index is what the menu's command goes by.
struct MenuEntry {
    int index = 0;
    QString text; // "&" doubled where a title holds one
    bool enabled = true;
    bool separator = false;
    bool checked = false; // the one of several that holds now
};

using MenuModel = std::vector<MenuEntry>;

/// A title inside a caption: each "&" doubled, so that it is shown and underlines nothing; a long
/// one is cut.
QString MenuTitle(const QString& title);

} // namespace pelorin::shell
