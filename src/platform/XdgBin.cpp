#include "platform/XdgBin.h"

#include "platform/MountTable.h"
#include "platform/PathWordings.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <optional>
#include <system_error>

using namespace Qt::StringLiterals;

namespace pelorin::platform {

namespace {

constexpr int kMaxNameBytes = 255;
constexpr int kMaxTries = 10'000;

struct TrashFolder {
    QString path;
    QString top; // paths in its info files are relative to this; empty: absolute
};

/// What is seen of an entry, of a link itself. Node numbers are left out: some file systems in
/// layers give a moved file a new one.
struct Sight {
    mode_t kind = 0;
    off_t size = 0; // of a file
    bool operator==(const Sight&) const = default;
};

/// nullopt when there is no such entry.
std::optional<Sight> SightOf(const QString& path)
{
    struct stat status = {};
    if (lstat(QFile::encodeName(path).constData(), &status) != 0) {
        return std::nullopt;
    }
    return Sight{status.st_mode & S_IFMT, S_ISREG(status.st_mode) ? status.st_size : 0};
}

QString ReasonOf(int code)
{
    return QString::fromLocal8Bit(std::generic_category().message(code).c_str());
}

/// Makes a folder for us alone unless it is there: 0, or an error number. In a place where others
/// can write, one that is there must be ours and no link.
int MakeFolder(const QString& path, bool isShared)
{
    const QByteArray name = QFile::encodeName(path);
    if (mkdir(name.constData(), S_IRWXU) != 0 && errno != EEXIST) {
        return errno;
    }
    struct stat status = {};
    if ((isShared ? lstat : stat)(name.constData(), &status) != 0) {
        return errno;
    }
    if (!S_ISDIR(status.st_mode)) {
        return ENOTDIR;
    }
    return isShared && status.st_uid != geteuid() ? EPERM : 0;
}

int MakeTrash(const TrashFolder& trash)
{
    const bool isShared = !trash.top.isEmpty();
    int code = MakeFolder(trash.path, isShared);
    for (const QString& part : {u"/info"_s, u"/files"_s}) {
        code = code == 0 ? MakeFolder(trash.path + part, isShared) : code;
    }
    return code;
}

/// An administrator's ".Trash" counts only as a real folder with the sticky bit.
bool IsSharedTrash(const QString& path)
{
    struct stat status = {};
    return lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
           (status.st_mode & S_ISVTX) != 0;
}

/// In order of preference. Between two mounts nothing can be renamed, so what lies on another one
/// than the user's bin goes to that one's own.
QList<TrashFolder> TrashFoldersFor(
    const QString& homeTrash, const QString& homeTop, const QString& top)
{
    if (top == homeTop) {
        return {{homeTrash, QString()}};
    }
    const QString user = QString::number(geteuid());
    const QString below = top == u"/" ? QString() : top;
    QList<TrashFolder> folders;
    if (IsSharedTrash(below + u"/.Trash"_s)) {
        folders << TrashFolder{below + u"/.Trash/"_s + user, top};
    }
    folders << TrashFolder{below + u"/.Trash-"_s + user, top};
    return folders;
}

/// "Star", "Star.2", "Star.3" ..., cut so that the info file's name is not too long.
QString NumberedName(const QString& name, int number)
{
    const QString suffix = number == 1 ? QString() : u'.' + QString::number(number);
    QString stem = name;
    const auto bytes = [&] { return QFile::encodeName(stem + suffix + u".trashinfo"_s).size(); };
    while (bytes() > kMaxNameBytes && !stem.isEmpty()) {
        stem.chop(stem.size() > 1 && stem.back().isLowSurrogate() ? 2 : 1);
    }
    return stem + suffix;
}

QByteArray InfoText(const QString& source, const TrashFolder& trash)
{
    const QString path = trash.top.isEmpty() ? source : QDir(trash.top).relativeFilePath(source);
    return "[Trash Info]\nPath=" + QUrl::toPercentEncoding(path, "/") + "\nDeletionDate=" +
           QDateTime::currentDateTime().toString(u"yyyy-MM-ddThh:mm:ss"_s).toLatin1() + '\n';
}

/// 0, or an error number. Never replaces what is there.
int RenameAside(const QString& from, const QString& to)
{
    const QByteArray fromName = QFile::encodeName(from);
    const QByteArray toName = QFile::encodeName(to);
    if (renameat2(AT_FDCWD, fromName.constData(), AT_FDCWD, toName.constData(), RENAME_NOREPLACE) ==
        0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return errno;
    }
    // Some file systems can't promise it; the info file keeps others of our kind off the name.
    if (SightOf(to)) {
        return EEXIST;
    }
    return rename(fromName.constData(), toName.constData()) == 0 ? 0 : errno;
}

/// Moves and looks: 0, or an error number with the source where it was.
int MoveProved(const QString& source, const QString& target)
{
    const auto before = SightOf(source);
    const int code = RenameAside(source, target);
    if (code != 0 || (!SightOf(source) && SightOf(target) == before)) {
        return code;
    }
    RenameAside(target, source);
    return EIO;
}

/// One name in one bin: 0, or an error number with nothing left behind.
int MoveAs(const QString& source, const TrashFolder& trash, const QString& name)
{
    const QString infoPath = trash.path + u"/info/"_s + name + u".trashinfo"_s;
    const int handle = open(
        QFile::encodeName(infoPath).constData(),
        O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
        S_IRUSR | S_IWUSR);
    if (handle < 0) {
        return errno;
    }
    const QByteArray text = InfoText(source, trash);
    const bool written = write(handle, text.constData(), static_cast<std::size_t>(text.size())) ==
                         static_cast<ssize_t>(text.size());
    close(handle);
    const int code = written ? MoveProved(source, trash.path + u"/files/"_s + name) : ENOSPC;
    if (code != 0) {
        QFile::remove(infoPath);
    }
    return code;
}

int MoveInto(const QString& source, const TrashFolder& trash)
{
    if (const int code = MakeTrash(trash); code != 0) {
        return code;
    }
    const QString name = QFileInfo(source).fileName();
    int code = EEXIST;
    for (int number = 1; code == EEXIST && number < kMaxTries; ++number) {
        code = MoveAs(source, trash, NumberedName(name, number));
    }
    return code;
}

/// The entry's real place: its folder's canonical path and its own name, whatever it links to.
/// Empty when the folder is missing.
QString RealPlace(const QFileInfo& entry)
{
    const QString folder = QFileInfo(entry.path()).canonicalFilePath();
    return folder.isEmpty() ? folder
                            : (folder == u"/" ? QString() : folder) + u'/' + entry.fileName();
}

QString WithoutTrailingSlashes(const QString& path)
{
    QString text = path;
    while (text.size() > 1 && text.endsWith(u'/')) {
        text.chop(1);
    }
    return text;
}

} // namespace

Done XdgBin::MoveToBin(const QString& path)
{
    const QFileInfo given(WithoutTrailingSlashes(path));
    const QString name = given.fileName();
    if (!given.isAbsolute() || name.isEmpty() || name == u"." || name == u"..") {
        return Error::Worded(
            ErrorKind::Refused,
            Wording{
                426, u"<1> is not a full path and can't be moved to the recycle bin."_s, {path}});
    }
    const QString source = RealPlace(given);
    if (source.isEmpty() || !SightOf(source)) {
        return Error::Worded(ErrorKind::NotFound, NotThere(path));
    }
    const QStringList mountPoints = MountPoints();
    if (HoldsMountPoint(mountPoints, source)) {
        return Error::Worded(
            ErrorKind::Refused,
            Wording{
                428,
                u"<1> stays out of the recycle bin: a file system is mounted there."_s,
                {path}});
    }
    QDir().mkpath(m_dataHome);
    const QString home = QFileInfo(m_dataHome).canonicalFilePath();
    if ((home + u'/').startsWith(source + u'/')) {
        return Error::Worded(
            ErrorKind::Refused,
            Wording{429, u"<1> can't be moved to the recycle bin, which lies in it."_s, {path}});
    }
    const QString homeTop = TopOfFileSystem(mountPoints, home + u"/Trash"_s);
    const QString top = TopOfFileSystem(mountPoints, source);
    QStringList reasons;
    for (const TrashFolder& trash : TrashFoldersFor(m_dataHome + u"/Trash"_s, homeTop, top)) {
        const int code = MoveInto(source, trash);
        if (code == 0) {
            return Success();
        }
        reasons << u"%1: %2"_s.arg(trash.path, ReasonOf(code));
    }
    return Error::Worded(
        ErrorKind::Unwritable,
        Wording{
            425, u"<1> can't be moved to the recycle bin: <2>"_s, {path, reasons.join(u"; "_s)}});
}

} // namespace pelorin::platform
