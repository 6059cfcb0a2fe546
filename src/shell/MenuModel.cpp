#include "shell/MenuModel.h"

using namespace Qt::StringLiterals;

namespace pelorin::shell {

QString MenuTitle(const QString& title)
{
    return QString(title).replace(u"&"_s, u"&&"_s);
}

} // namespace pelorin::shell
