#include "archives/private/TreeWalk.h"

#include <QFile>

#include <dirent.h>

#include <cerrno>
#include <memory>

using namespace Qt::StringLiterals;

namespace pelorin::archives {

using platform::Done;
using platform::Error;
using platform::ErrorKind;
using platform::Outcome;
using platform::Success;

namespace {

struct CloseDirectory {
    void operator()(DIR* directory) const { closedir(directory); }
};

} // namespace

Error Fault(ErrorKind kind, const QByteArray& path, const QString& reason)
{
    return Error{kind, u"%1: %2"_s.arg(QFile::decodeName(path), reason)};
}

/// What the system says about the call that has just failed.
Error SystemFault(ErrorKind kind, const QByteArray& path)
{
    const int reason = errno;
    return Fault(reason == ENOENT ? ErrorKind::NotFound : kind, path, qt_error_string(reason));
}

QByteArray ParentOf(const QByteArray& path)
{
    const qsizetype slash = path.lastIndexOf('/');
    return slash > 0 ? path.left(slash) : QByteArray("/");
}

Outcome<QList<QByteArray>> NamesIn(const QByteArray& folder)
{
    const std::unique_ptr<DIR, CloseDirectory> directory(opendir(folder.constData()));
    if (!directory) {
        return SystemFault(ErrorKind::Unreadable, folder);
    }
    QList<QByteArray> names;
    while (const dirent* entry = readdir(directory.get())) {
        const QByteArray name(static_cast<const char*>(entry->d_name));
        if (name != "." && name != "..") {
            names << name;
        }
    }
    return names;
}

// NOLINTNEXTLINE(misc-no-recursion)
Done Walk(const QByteArray& path, const Visit& before, const Visit& after)
{
    struct stat status = {};
    if (lstat(path.constData(), &status) != 0) {
        return SystemFault(ErrorKind::Unreadable, path);
    }
    Done done = before(path, status);
    if (!done || !S_ISDIR(status.st_mode)) {
        return done;
    }
    const Outcome<QList<QByteArray>> names = NamesIn(path);
    if (!names) {
        return names.Failure();
    }
    for (const QByteArray& name : names.Value()) {
        done = Walk(path + '/' + name, before, after);
        if (!done) {
            return done;
        }
    }
    return after(path, status);
}

Done DoNothing(const QByteArray& /*path*/, const struct stat& /*status*/)
{
    return Success();
}

OneFileSystem::OneFileSystem(const QByteArray& root)
    : m_ok(stat(ParentOf(root).constData(), &m_parent) == 0)
{}

Done OneFileSystem::Check(const QByteArray& path, const struct stat& status) const
{
    if (m_ok && S_ISDIR(status.st_mode) && status.st_dev != m_parent.st_dev) {
        return Error::Worded(
            ErrorKind::Refused,
            platform::Wording{487, u"<1> is another file system."_s, {QFile::decodeName(path)}});
    }
    return Success();
}

} // namespace pelorin::archives
