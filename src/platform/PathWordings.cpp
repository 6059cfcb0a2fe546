#include "platform/PathWordings.h"

using namespace Qt::StringLiterals;

namespace pelorin::platform {

Wording NotThere(const QString& path)
{
    return Wording{427, u"<1> is not there."_s, {path}};
}

Wording NoFolder(const QString& path)
{
    return Wording{464, u"<1> is not a folder."_s, {path}};
}

Wording IsAFolder(const QString& path)
{
    return Wording{478, u"<1> is a folder."_s, {path}};
}

Wording FolderNotMade(const QString& path)
{
    return Wording{413, u"The folder <1> can't be made."_s, {path}};
}

} // namespace pelorin::platform
