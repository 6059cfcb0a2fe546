#include "shell/RootFolders.h"

#include "platform/PathWordings.h"
#include "platform/Paths.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace pelorin::shell {

namespace {

constexpr qsizetype kShortestRoot = 5;

bool IsIn(const QString& path, const QString& folder)
{
    return path == folder || folder == u"/" || path.startsWith(folder + u'/');
}

} // namespace

RootFault FaultOf(const RootFacts& facts)
{
    if (facts.text.isEmpty()) {
        return RootFault::Unnamed;
    }
    if (facts.text.size() < kShortestRoot || facts.path == u"/" ||
        facts.mountPoints.contains(facts.path)) {
        return RootFault::DriveRoot;
    }
    if (!facts.other.isEmpty() &&
        (IsIn(facts.path, facts.other) || IsIn(facts.other, facts.path))) {
        return RootFault::InOneAnother;
    }
    if (facts.root == Root::Games && IsIn(facts.appDir, facts.path)) {
        return RootFault::HoldsProgram;
    }
    return facts.fitsLauncherCfg ? RootFault::None : RootFault::Unencodable;
}

QString RootPath(const Places& places, const QString& text)
{
    if (text.trimmed().isEmpty()) {
        return {};
    }
    if (QDir::isAbsolutePath(text) && QFileInfo(text).isDir()) {
        return QDir::cleanPath(text);
    }
    const QString native = platform::NativePath(text);
    const bool absolute = QDir::isAbsolutePath(native);
    const QString path =
        platform::ResolvePath(QString(), absolute ? native : places.appDir + u'/' + native);
    return path.isEmpty() ? u"/"_s : QDir::cleanPath(path);
}

QString WithoutLinks(const QString& path)
{
    QString missing;
    for (QString there = path; !there.isEmpty(); there = QFileInfo(there).path()) {
        const QString real = QFileInfo(there).canonicalFilePath();
        if (!real.isEmpty()) {
            return QDir::cleanPath(real + missing);
        }
        if (there == u"/" || there == u".") {
            break;
        }
        missing.prepend(u'/' + QFileInfo(there).fileName());
    }
    return path;
}

platform::Done MakeRoot(const QString& path)
{
    if (QFileInfo(path).isDir() || QDir().mkpath(path)) {
        return platform::Success();
    }
    return platform::Error::Worded(platform::ErrorKind::Unwritable, platform::FolderNotMade(path));
}

} // namespace pelorin::shell
