#include "archives/FolderSize.h"

#include "archives/private/TreeWalk.h"

#include <QFile>

namespace pelorin::archives {

using platform::Done;
using platform::Error;
using platform::ErrorKind;

void AddFolderSize(FolderSize& size, const QString& path, const std::function<bool()>& keepCounting)
{
    const auto count = [&](const QByteArray& /*path*/, const struct stat& status) -> Done {
        if (!keepCounting()) {
            return Error{ErrorKind::Abandoned, QString()};
        }
        if (!S_ISDIR(status.st_mode)) {
            ++size.files;
            size.bytes += S_ISREG(status.st_mode) ? status.st_size : 0;
        }
        return platform::Success();
    };
    const Done walked = Walk(QFile::encodeName(path), count, DoNothing);
    size.whole = size.whole && (walked || walked.Failure().kind == ErrorKind::NotFound);
}

} // namespace pelorin::archives
