#include "library/private/NewFile.h"

#include "platform/TextFile.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace pelorin::library {

platform::Done WriteNewMeta(GameFiles& files, QStringView name, const QStringList& lines)
{
    using platform::Error;
    using platform::ErrorKind;
    const QString path = files.MetaPath(name);
    const platform::Encoded text = platform::EncodeCp949(lines.join(u"\r\n"_s) + u"\r\n"_s);
    if (!text.lost.isEmpty()) {
        return Error{ErrorKind::Unencodable, u"%1: %2"_s.arg(path, text.lost)};
    }
    // Unbuffered: a file that still has something to write is not removed.
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) {
        return Error{ErrorKind::Unwritable, u"%1: %2"_s.arg(path, file.errorString())};
    }
    if (file.write(text.bytes) != text.bytes.size()) {
        const QString reason = file.errorString();
        file.remove();
        return Error{ErrorKind::Unwritable, u"%1: %2"_s.arg(path, reason)};
    }
    files.NoteMetaFile(name);
    return platform::Success();
}

} // namespace pelorin::library
