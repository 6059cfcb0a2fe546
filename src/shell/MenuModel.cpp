#include "shell/MenuModel.h"

using namespace Qt::StringLiterals;

namespace pelorin::shell {

QString MenuTitle(const QString& title)
{
    // Titles come from any file: one of a page's length would make a menu wider than the screen.
    constexpr qsizetype kMostCharacters = 100;
    QString shown = title.size() > kMostCharacters ? title.left(kMostCharacters) + u'…' : title;
    // What stands behind a tab is a menu's column of shortcuts.
    return shown.replace(u'\t', u' ').replace(u"&"_s, u"&&"_s);
}

} // namespace pelorin::shell
