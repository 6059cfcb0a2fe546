#include "shell/Endpoints.h"

#include "platform/TextFile.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace pelorin::shell {

using platform::ErrorKind;
using platform::Outcome;

namespace {

bool IsWebAddress(const QString& text)
{
    const QUrl url(text, QUrl::StrictMode);
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == u"http" || url.scheme() == u"https");
}

} // namespace

Outcome<Endpoints> ReadEndpoints(const Places& places)
{
    const QString path = places.InAppDir(u"Endpoints.cfg"_s);
    const Outcome<QStringList> lines = platform::ReadLines(path);
    if (!lines) {
        return lines.Failure().kind == ErrorKind::NotFound ? Outcome<Endpoints>(Endpoints{})
                                                           : lines.Failure();
    }
    Endpoints endpoints;
    qsizetype number = 0;
    for (const QString& line : lines.Value()) {
        ++number;
        const QString name = line.section(u'=', 0, 0).trimmed().toLower();
        const QString address = line.section(u'=', 1).trimmed();
        if (name != u"site" || address.isEmpty()) {
            continue;
        }
        if (!IsWebAddress(address)) {
            return platform::Error::Worded(
                ErrorKind::Malformed,
                platform::Wording{
                    465,
                    u"<1>: line <2>: no http or https address"_s,
                    {path, QString::number(number)}});
        }
        endpoints.siteRoot = address.endsWith(u'/') ? address : address + u'/';
    }
    return endpoints;
}

} // namespace pelorin::shell
