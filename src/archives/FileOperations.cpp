#include "archives/FileOperations.h"

#include "archives/private/FileTrees.h"
#include "archives/private/TreeWalk.h"
#include "platform/PathWordings.h"
#include "platform/Paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace pelorin::archives {

using platform::Done;
using platform::Error;
using platform::ErrorKind;
using platform::Outcome;
using platform::Success;
using platform::Wording;

namespace {

bool EndsWithSeparator(const QString& path)
{
    return path.endsWith(u'/') || path.endsWith(u'\\');
}

/// The path in its spelling on disk; as given, with slashes, where there is no such thing.
QString OnDisk(const QString& path)
{
    QString native = platform::NativePath(path);
    if (Stands(native) || !QDir::isAbsolutePath(native)) {
        return native;
    }
    return platform::ResolvePath(QString(), native);
}

/// An empty name behind a separator, "." or ".." would mean the folder above.
bool NamesFolder(const QString& path)
{
    return QDir::isAbsolutePath(path) && platform::IsPlainName(platform::LastPathSegment(path));
}

Error Refusal(const Wording& reason)
{
    return Error::Worded(ErrorKind::Refused, reason);
}

Error NeedsWholePath(const QString& path)
{
    return Refusal(Wording{480, u"<1>: a whole path below the root is needed."_s, {path}});
}

Error IsThereAlready(const QString& path)
{
    return Refusal(Wording{476, u"<1> is there already."_s, {path}});
}

bool Matches(QStringView pattern, QStringView name)
{
    if (pattern.isEmpty()) {
        return name.isEmpty();
    }
    if (pattern.front() == u'*') {
        return Matches(pattern.sliced(1), name) ||
               (!name.isEmpty() && Matches(pattern, name.sliced(1)));
    }
    const bool fits =
        !name.isEmpty() && (pattern.front() == u'?' || pattern.front() == name.front());
    return fits && Matches(pattern.sliced(1), name.sliced(1));
}

/// Both in lower case. A ".*" at the end also stands for no ending at all.
bool MatchesPattern(const QString& pattern, const QString& name)
{
    const bool anyEnding = pattern.endsWith(u".*"_s) && !name.contains(u'.');
    return Matches(pattern, name) || (anyEnding && Matches(pattern.chopped(2), name));
}

bool IsFolder(const QByteArray& path)
{
    struct stat status = {};
    return stat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

Done DeleteMatching(const QString& folder, const QString& pattern)
{
    const QByteArray place = QFile::encodeName(folder);
    const Outcome<QList<QByteArray>> names = NamesIn(place);
    if (!names) {
        return names.Failure().kind == ErrorKind::NotFound ? Success() : Done(names.Failure());
    }
    const QString lowerPattern = pattern.toLower();
    for (const QByteArray& name : names.Value()) {
        const QByteArray path = place + '/' + name;
        if (!MatchesPattern(lowerPattern, QFile::decodeName(name).toLower()) || IsFolder(path)) {
            continue;
        }
        Done removed = RemoveFile(path);
        if (!removed) {
            return removed;
        }
    }
    return Success();
}

/// Where the thing goes: `destination` itself, or its own name below that.
QString TargetPath(const QString& source, const QString& destination, bool intoFolder)
{
    QString target = OnDisk(destination);
    if (!intoFolder) {
        return target;
    }
    return OnDisk(target + u'/' + platform::LastPathSegment(source));
}

bool LiesIn(const QString& path, const QString& folder)
{
    const QString real = QFileInfo(folder).canonicalFilePath();
    const QString parent = QFileInfo(QFileInfo(path).path()).canonicalFilePath();
    return !real.isEmpty() && (parent == real || parent.startsWith(real + u'/'));
}

} // namespace

bool FileExists(const QString& path)
{
    const QFileInfo info(OnDisk(path));
    return info.exists() && !info.isDir();
}

bool FolderExists(const QString& path)
{
    return QFileInfo(OnDisk(path)).isDir();
}

Done DeleteFile(const QString& path)
{
    const QString name = platform::LastPathSegment(path);
    const QString found = OnDisk(path);
    if (name.isEmpty()) {
        return Refusal(Wording{479, u"<1> names no file."_s, {path}});
    }
    if (Stands(found)) {
        return QFileInfo(found).isDir() ? Refusal(platform::IsAFolder(found))
                                        : RemoveFile(QFile::encodeName(found));
    }
    if (name.contains(u'*') || name.contains(u'?')) {
        const QString folder = OnDisk(path.chopped(name.size()));
        return NamesFolder(folder) ? DeleteMatching(folder, name) : NeedsWholePath(path);
    }
    return NoSuchThing(found);
}

Done DeleteFileIfThere(const QString& path)
{
    Done deleted = DeleteFile(path);
    const bool missing = !deleted && deleted.Failure().kind == ErrorKind::NotFound;
    return missing ? Success() : deleted;
}

Done DeleteFolder(const QString& path)
{
    const QString folder = OnDisk(path);
    if (!NamesFolder(path)) {
        return NeedsWholePath(path);
    }
    if (!Stands(folder)) {
        return NoSuchThing(folder);
    }
    if (!QFileInfo(folder).isDir()) {
        return Refusal(platform::NoFolder(folder));
    }
    return RemoveTree(QFile::encodeName(folder));
}

Done MoveFolderQuiet(const QString& source, const QString& destination, const KeepGoing& keepGoing)
{
    const QString from = OnDisk(source);
    const QString to = TargetPath(from, destination, EndsWithSeparator(destination));
    if (!QFileInfo(from).isDir()) {
        return NoSuchThing(from);
    }
    // A name that differs by case only resolves to the source itself: that is a rename.
    const bool sameFolder = to == from;
    const QString target = sameFolder ? platform::NativePath(destination) : to;
    if (Stands(target)) {
        return IsThereAlready(target);
    }
    if (LiesIn(target, from)) {
        return Refusal(Wording{477, u"<1> lies in the folder that is to be moved."_s, {target}});
    }
    return MoveTree(QFile::encodeName(from), QFile::encodeName(target), keepGoing);
}

Done MoveFile(const QString& source, const QString& destination, const KeepGoing& keepGoing)
{
    const QString from = OnDisk(source);
    const bool into = EndsWithSeparator(destination) || FolderExists(destination);
    const QString to = TargetPath(from, destination, into);
    if (!FileExists(from)) {
        return NoSuchThing(from);
    }
    const bool sameFile = to == from;
    const QString target = sameFile && !into ? platform::NativePath(destination) : to;
    if (Stands(target)) {
        return IsThereAlready(target);
    }
    return MoveTree(QFile::encodeName(from), QFile::encodeName(target), keepGoing);
}

Done CopyFile(const QString& source, const QString& destination, const KeepGoing& keepGoing)
{
    const QString from = OnDisk(source);
    const bool into = EndsWithSeparator(destination) || FolderExists(destination);
    const QString to = TargetPath(from, destination, into);
    if (!FileExists(from)) {
        return NoSuchThing(from);
    }
    if (QFileInfo(from).canonicalFilePath() == QFileInfo(to).canonicalFilePath()) {
        return Refusal(Wording{481, u"<1> is the file that is to be copied."_s, {to}});
    }
    if (QFileInfo(to).isDir()) {
        return Refusal(platform::IsAFolder(to));
    }
    return CopyOneFile(QFile::encodeName(from), QFile::encodeName(to), keepGoing);
}

QString MissingToolsTitle()
{
    return u"파일이 없습니다."_s;
}

QString CheckFileTools(const MissingTools& missing)
{
    QStringList lines;
    if (missing.copyFile) {
        lines << u"Tools\\CopyFile.exe 가 없습니다."_s << u"파일 복사가 작동하지 않습니다."_s
              << QString();
    }
    if (missing.moveFile) {
        lines << u"Tools\\MoveFile.exe 가 없습니다."_s << u"파일/폴더 이동이 작동하지 않습니다."_s
              << QString();
    }
    if (lines.isEmpty()) {
        return QString();
    }
    lines << u"간혹 이 파일들이 백신에 의해 삭제되는 경우가 있으니"_s
          << u"실시간 감지를 끄고 런처를 다시 다운 받으세요"_s;
    return lines.join(u"\r\n"_s);
}

} // namespace pelorin::archives
