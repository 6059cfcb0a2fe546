#include "platform/FileReplacement.h"

using namespace Qt::StringLiterals;

namespace pelorin::platform {

FileReplacement::FileReplacement(const QString& path)
    : m_file(path)
{
    // Unbuffered: what fails only when the buffer is emptied at the end goes unnoticed there, and
    // on a full disk an empty file would take the place of the old one.
    m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

Done FileReplacement::Append(const QByteArray& bytes)
{
    return m_file.isOpen() && m_file.write(bytes) == bytes.size() ? Success() : Done(Failure());
}

Done FileReplacement::Replace()
{
    return m_file.isOpen() && m_file.commit() ? Success() : Done(Failure());
}

Error FileReplacement::Failure() const
{
    return Error{ErrorKind::Unwritable, u"%1: %2"_s.arg(m_file.fileName(), m_file.errorString())};
}

} // namespace pelorin::platform
