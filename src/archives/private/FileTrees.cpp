#include "archives/private/FileTrees.h"

#include "archives/private/TreeWalk.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <vector>

using namespace Qt::StringLiterals;

namespace pelorin::archives {

using platform::Done;
using platform::Error;
using platform::ErrorKind;
using platform::Success;
using platform::Wording;

namespace {

class Descriptor {
public:
    explicit Descriptor(int descriptor)
        : m_descriptor(descriptor)
    {}
    ~Descriptor()
    {
        if (m_descriptor >= 0) {
            close(m_descriptor);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Get() const { return m_descriptor; }
    bool Ok() const { return m_descriptor >= 0; }

private:
    int m_descriptor;
};

bool MayGoOn(const KeepGoing& keepGoing)
{
    return !keepGoing || keepGoing();
}

Error GivenUp(const QByteArray& path)
{
    return Error::Worded(
        ErrorKind::Abandoned, Wording{482, u"<1>: given up."_s, {QFile::decodeName(path)}});
}

Error NotWhole(const QByteArray& path)
{
    return Error::Worded(
        ErrorKind::Unwritable,
        Wording{485, u"<1> did not arrive whole."_s, {QFile::decodeName(path)}});
}

bool WriteAll(int descriptor, const char* bytes, ssize_t count)
{
    while (count > 0) {
        const ssize_t written = write(descriptor, bytes, static_cast<std::size_t>(count));
        if (written < 0 && errno != EINTR) {
            return false;
        }
        bytes += written > 0 ? written : 0;
        count -= written > 0 ? written : 0;
    }
    return true;
}

Done CopyBytes(
    const Descriptor& in,
    const Descriptor& out,
    const QByteArray& from,
    const QByteArray& to,
    const KeepGoing& keepGoing)
{
    constexpr std::size_t kBlock = 1 << 20;
    std::vector<char> block(kBlock);
    while (true) {
        if (!MayGoOn(keepGoing)) {
            return GivenUp(from);
        }
        const ssize_t count = read(in.Get(), block.data(), kBlock);
        if (count == 0) {
            return Success();
        }
        if (count < 0 && errno != EINTR) {
            return SystemFault(ErrorKind::Unreadable, from);
        }
        if (count > 0 && !WriteAll(out.Get(), block.data(), count)) {
            return SystemFault(ErrorKind::Unwritable, to);
        }
    }
}

/// Mode and time, last, since a read-only mode would refuse what comes before. Not every file system
/// can keep them, and a copy without them is whole all the same.
void TakeOver(const Descriptor& place, const struct stat& status)
{
    const timespec times[2] = {status.st_atim, status.st_mtim};
    if (place.Ok()) {
        fchmod(place.Get(), status.st_mode & kModeBits);
        futimens(place.Get(), static_cast<const timespec*>(times));
    }
}

Done FillCopy(
    const Descriptor& out, const QByteArray& from, const QByteArray& to, const KeepGoing& keepGoing)
{
    // Opening a pipe would wait for its other end.
    const Descriptor in(open(from.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status = {};
    if (!in.Ok() || fstat(in.Get(), &status) != 0) {
        return SystemFault(ErrorKind::Unreadable, from);
    }
    if (!S_ISREG(status.st_mode)) {
        return Error::Worded(
            ErrorKind::Refused,
            Wording{483, u"<1> is no plain file."_s, {QFile::decodeName(from)}});
    }
    Done copied = CopyBytes(in, out, from, to, keepGoing);
    if (!copied) {
        return copied;
    }
    struct stat arrived = {};
    if (fstat(out.Get(), &arrived) != 0) {
        return SystemFault(ErrorKind::Unwritable, to);
    }
    if (arrived.st_size != status.st_size) {
        return NotWhole(to);
    }
    TakeOver(out, status);
    return Success();
}

Done CopyLink(const QByteArray& from, const QByteArray& to)
{
    QByteArray target(PATH_MAX, '\0');
    const ssize_t length =
        readlink(from.constData(), target.data(), static_cast<std::size_t>(target.size()));
    if (length < 0) {
        return SystemFault(ErrorKind::Unreadable, from);
    }
    target.truncate(length);
    return symlink(target.constData(), to.constData()) == 0
               ? Success()
               : SystemFault(ErrorKind::Unwritable, to);
}

/// Whatever is no folder, as it is.
Done CopyThing(
    const QByteArray& from,
    const QByteArray& to,
    const struct stat& status,
    const KeepGoing& keepGoing)
{
    return S_ISLNK(status.st_mode) ? CopyLink(from, to) : CopyOneFile(from, to, keepGoing);
}

/// Into the folder `to`, which is there and empty.
Done CopyTree(const QByteArray& from, const QByteArray& to, const KeepGoing& keepGoing)
{
    const OneFileSystem mounts(from);
    const auto placeOf = [&](const QByteArray& path) { return to + path.mid(from.size()); };
    return Walk(
        from,
        [&](const QByteArray& path, const struct stat& status) -> Done {
            const QByteArray place = placeOf(path);
            if (!S_ISDIR(status.st_mode)) {
                return CopyThing(path, place, status, keepGoing);
            }
            if (place != to && mkdir(place.constData(), S_IRWXU) != 0) {
                return SystemFault(ErrorKind::Unwritable, place);
            }
            return mounts.Check(path, status);
        },
        [&](const QByteArray& path, const struct stat& status) -> Done {
            const QByteArray place = placeOf(path);
            TakeOver(
                Descriptor(open(place.constData(), O_RDONLY | O_CLOEXEC | O_DIRECTORY)), status);
            return Success();
        });
}

/// Whether everything below `from` stands below `to` with its kind and its length. Events run during
/// a copy, so the source may have changed meanwhile.
Done CompareTrees(const QByteArray& from, const QByteArray& to)
{
    return Walk(
        from,
        [&](const QByteArray& path, const struct stat& status) -> Done {
            const QByteArray place = to + path.mid(from.size());
            struct stat arrived = {};
            const bool same = lstat(place.constData(), &arrived) == 0 &&
                              (arrived.st_mode & S_IFMT) == (status.st_mode & S_IFMT) &&
                              (!S_ISREG(status.st_mode) || arrived.st_size == status.st_size);
            return same ? Success() : Done(NotWhole(path));
        },
        DoNothing);
}

/// What lies in the folder is on the disk, not only on its way there: the source is deleted next.
Done Settle(const QByteArray& path)
{
    const Descriptor place(open(path.constData(), O_RDONLY | O_CLOEXEC | O_DIRECTORY));
    return place.Ok() && syncfs(place.Get()) == 0 ? Success()
                                                  : SystemFault(ErrorKind::Unwritable, path);
}

Done FillStaging(const QByteArray& from, const QByteArray& staging, const KeepGoing& keepGoing)
{
    Done done = CopyTree(from, staging, keepGoing);
    if (done) {
        done = CompareTrees(from, staging);
    }
    return done ? Settle(staging) : done;
}

/// The staging folder lies beside the target, so that the last step is one rename.
Done CopyFolder(const QByteArray& from, const QByteArray& to, const KeepGoing& keepGoing)
{
    QByteArray staging = ParentOf(to) + "/.pelorin-XXXXXX";
    if (mkdtemp(staging.data()) == nullptr) {
        return SystemFault(ErrorKind::Unwritable, ParentOf(to));
    }
    Done done = FillStaging(from, staging, keepGoing);
    if (done && rename(staging.constData(), to.constData()) != 0) {
        done = SystemFault(ErrorKind::Unwritable, to);
    }
    if (!done) {
        const Done cleared = RemoveTree(staging);
        return cleared ? done
                       : Error{
                             done.Failure().kind,
                             done.Failure().text + u"; "_s + cleared.Failure().text};
    }
    return done;
}

Done MoveByCopy(const QByteArray& from, const QByteArray& to, const KeepGoing& keepGoing)
{
    struct stat status = {};
    if (lstat(from.constData(), &status) != 0) {
        return SystemFault(ErrorKind::Unreadable, from);
    }
    Done done = S_ISDIR(status.st_mode) ? CopyFolder(from, to, keepGoing)
                                        : CopyThing(from, to, status, keepGoing);
    if (done && !S_ISDIR(status.st_mode)) {
        done = CompareTrees(from, to);
    }
    if (done) {
        // A folder's new name too, or a power cut could leave it under the hidden one.
        done = Settle(ParentOf(to));
    }
    if (!done) {
        return done;
    }
    done = RemoveTree(from);
    if (!done) {
        return Error::Worded(
            done.Failure().kind,
            Wording{
                486,
                u"<1> (the copy in <2> is whole)"_s,
                {done.Failure().text, QFile::decodeName(to)}});
    }
    return done;
}

} // namespace

bool Stands(const QByteArray& path)
{
    struct stat status = {};
    return lstat(path.constData(), &status) == 0;
}

bool Stands(const QString& path)
{
    return Stands(QFile::encodeName(path));
}

Error NoSuchThing(const QString& path)
{
    return Error{ErrorKind::NotFound, u"%1: %2"_s.arg(path, qt_error_string(ENOENT))};
}

Done RemoveFile(const QByteArray& path)
{
    return unlink(path.constData()) == 0 ? Success() : SystemFault(ErrorKind::Unwritable, path);
}

Done RemoveTree(const QByteArray& path)
{
    const OneFileSystem mounts(path);
    Done done = Walk(
        path,
        [&](const QByteArray& thing, const struct stat& status) {
            // A read-only folder would keep what it holds.
            if (S_ISDIR(status.st_mode) && (status.st_mode & S_IRWXU) != S_IRWXU) {
                chmod(thing.constData(), (status.st_mode & kModeBits) | S_IRWXU);
            }
            return mounts.Check(thing, status);
        },
        DoNothing);
    if (!done) {
        return done;
    }
    return Walk(
        path,
        [](const QByteArray& thing, const struct stat& status) {
            return S_ISDIR(status.st_mode) ? Success() : RemoveFile(thing);
        },
        [](const QByteArray& folder, const struct stat& /*status*/) {
            return rmdir(folder.constData()) == 0
                       ? Success()
                       : Done(SystemFault(ErrorKind::Unwritable, folder));
        });
}

Done CopyOneFile(const QByteArray& from, const QByteArray& to, const KeepGoing& keepGoing)
{
    QByteArray part = ParentOf(to) + "/.pelorin-XXXXXX";
    const Descriptor out(mkostemp(part.data(), O_CLOEXEC));
    if (!out.Ok()) {
        return SystemFault(ErrorKind::Unwritable, ParentOf(to));
    }
    Done done = FillCopy(out, from, to, keepGoing);
    if (done && rename(part.constData(), to.constData()) != 0) {
        done = SystemFault(ErrorKind::Unwritable, to);
    }
    if (!done) {
        unlink(part.constData());
    }
    return done;
}

Done MoveTree(const QByteArray& from, const QByteArray& to, const KeepGoing& keepGoing)
{
    if (rename(from.constData(), to.constData()) == 0) {
        return Success();
    }
    return errno == EXDEV ? MoveByCopy(from, to, keepGoing)
                          : SystemFault(ErrorKind::Unwritable, to);
}

} // namespace pelorin::archives
