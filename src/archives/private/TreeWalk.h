#pragma once

#include "platform/Outcome.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <sys/stat.h>

#include <functional>

// Walking a tree. Paths are bytes here: games come out of archives with names in all kinds of
// encodings, and a name that is no UTF-8 wouldn't find its file again as a QString. Links are never
// followed.

namespace pelorin::archives {

inline constexpr mode_t kModeBits = 07777;

platform::Error Fault(platform::ErrorKind kind, const QByteArray& path, const QString& reason);

/// What the system says about the call that has just failed; NotFound when it found nothing.
platform::Error SystemFault(platform::ErrorKind kind, const QByteArray& path);

/// The folder that holds a thing, by its absolute path.
QByteArray ParentOf(const QByteArray& path);

/// The names in a folder without "." and "..", in no order.
platform::Outcome<QList<QByteArray>> NamesIn(const QByteArray& folder);

using Visit = std::function<platform::Done(const QByteArray& path, const struct stat& status)>;

/// `before` is called for each thing of the tree, a folder ahead of what it holds; `after` for each
/// folder behind that. Stops at the first error.
platform::Done Walk(const QByteArray& path, const Visit& before, const Visit& after);

/// For Walk: there is nothing to do here.
platform::Done DoNothing(const QByteArray& path, const struct stat& status);

/// A folder on another device than the one that the tree lies in is a mount point.
class OneFileSystem {
public:
    explicit OneFileSystem(const QByteArray& root);

    /// Refused for such a folder.
    platform::Done Check(const QByteArray& path, const struct stat& status) const;

private:
    struct stat m_parent = {};
    bool m_ok = false;
};

} // namespace pelorin::archives
