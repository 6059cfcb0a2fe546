#include "dosboxconf/private/MetaFolder.h"

#include "library/GameFiles.h"
#include "platform/Paths.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

platform::Done MakeMetaDir(const shell::Places& places, const QString& folder)
{
    const QString gameDir = places.GameDir(folder);
    if (!platform::IsPlainName(folder) || !QFileInfo(gameDir).isDir()) {
        return platform::Error::Worded(platform::ErrorKind::Refused, library::FolderIsGone(folder));
    }
    library::GameFiles files = library::ListGame(places, folder);
    return library::MakeMetaDir(files);
}

} // namespace pelorin::dosboxconf
