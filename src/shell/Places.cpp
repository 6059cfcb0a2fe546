#include "shell/Places.h"

#include "platform/Paths.h"

using namespace Qt::StringLiterals;

namespace pelorin::shell {

QString Places::DefaultGamesRoot() const
{
    return InAppDir(u"Games"_s);
}

QString Places::DefaultExportRoot() const
{
    return InAppDir(u"Export"_s);
}

QString Places::InAppDir(const QString& relative) const
{
    return platform::ResolvePath(appDir, relative);
}

QString Places::GameDir(const QString& folder) const
{
    return gamesRoot + u'/' + folder;
}

QString Places::MetaDir(const QString& folder) const
{
    return platform::ResolvePath(GameDir(folder), u"DosBox"_s);
}

QString Places::InMetaDir(const QString& folder, const QString& relative) const
{
    return platform::ResolvePath(MetaDir(folder), relative);
}

} // namespace pelorin::shell
