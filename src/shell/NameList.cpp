#include "shell/NameList.h"

#include "shell/LangTable.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace pelorin::shell {

QStringList FirstNames(const QStringList& names, const LangTable& lang)
{
    constexpr qsizetype kMostNames = 10;
    QStringList lines = names.mid(0, kMostNames);
    if (const qsizetype more = names.size() - lines.size(); more > 0) {
        const QLocale locale(lang.IsKorean() ? QLocale::Korean : QLocale::English);
        lines << lang.OwnText(416, u"and <1> more"_s, {locale.toString(more)});
    }
    return lines;
}

} // namespace pelorin::shell
