#include "platform/CacheReplacement.h"

#include <QFileInfo>

#include <cerrno>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace pelorin::platform {

namespace {

/// Where a link leads to, since a rename would take the link's place.
QString Target(const QString& path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    return target.isEmpty() ? path : target;
}

} // namespace

CacheReplacement::CacheReplacement(const QString& path)
    : m_path(Target(path))
    // Always the same name, so that what a killed process left is overwritten, not collected.
    , m_file(m_path + u".new"_s)
{
    m_failed = !m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
    if (!m_failed && QFile::exists(m_path)) {
        m_file.setPermissions(QFile::permissions(m_path));
    }
}

CacheReplacement::~CacheReplacement()
{
    if (m_file.isOpen()) {
        m_file.remove();
    }
}

Done CacheReplacement::Append(const QByteArray& bytes)
{
    m_failed = m_failed || m_file.write(bytes) != bytes.size();
    return m_failed ? Done(Failure()) : Success();
}

Done CacheReplacement::Replace()
{
    const auto encoded = [](const QString& path) { return QFile::encodeName(path); };
    if (m_failed) {
        return Failure();
    }
    if (std::rename(encoded(m_file.fileName()).constData(), encoded(m_path).constData()) != 0) {
        return Error{ErrorKind::Unwritable, u"%1: %2"_s.arg(m_path, qt_error_string(errno))};
    }
    m_file.close();
    return Success();
}

Error CacheReplacement::Failure() const
{
    return Error{ErrorKind::Unwritable, u"%1: %2"_s.arg(m_path, m_file.errorString())};
}

} // namespace pelorin::platform
