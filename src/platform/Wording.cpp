#include "platform/Wording.h"

using namespace Qt::StringLiterals;

namespace pelorin::platform {

QString Wording::Filled(QString text, const QStringList& values)
{
    for (qsizetype i = 0; i < values.size(); ++i) {
        text.replace(u"<%1>"_s.arg(i + 1), values[i]);
    }
    return text;
}

} // namespace pelorin::platform
