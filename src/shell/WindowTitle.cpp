#include "shell/WindowTitle.h"

using namespace Qt::StringLiterals;

namespace pelorin::shell {

QString OwnBuildStamp()
{
    return u"16100103"_s;
}

QString BuildWindowTitle(const QString& buildStamp, const LangTable& lang)
{
    QStringList numbers;
    for (int first = 0; first < 8; first += 2) {
        numbers << buildStamp.mid(first, 2);
    }
    return u'[' + lang[1] + u" Ver."_s + numbers.join(u'.') + u"] by "_s + lang[0];
}

} // namespace pelorin::shell
