#include "platform/ProgramHost.h"

#include "platform/Paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::platform {

namespace {

Error Missing(const Wording& words)
{
    return Error::Worded(ErrorKind::NotFound, words);
}

bool IsExecutableFile(const QString& path)
{
    const QFileInfo info(path);
    return info.isFile() && info.isExecutable();
}

/// On file systems without rights every file is marked as executable, a game's data file "STAR"
/// beside "STAR.EXE" too. So the file's first bytes must say that it is a program or a script.
bool IsNativeProgram(const QString& path)
{
    QFile file(path);
    if (!IsExecutableFile(path) || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray start = file.read(4);
    return start == "\x7f"
                    "ELF" ||
           start.startsWith("#!");
}

QString WithoutExe(const QString& name)
{
    return name.endsWith(u".exe", Qt::CaseInsensitive) ? name.chopped(4) : name;
}

/// Names that the native counterpart may bear.
QStringList NativeNames(const QString& stem)
{
    QStringList names = {stem};
    if (stem.contains(u'_')) {
        names << QString(stem).replace(u'_', u'-');
    }
    return names;
}

QStringList ToolNames(const QString& name)
{
    const QString stem = WithoutExe(name);
    if (stem.compare(u"7z", Qt::CaseInsensitive) == 0) {
        return {u"7zz"_s, u"7z"_s, u"7za"_s};
    }
    return {stem, stem.toLower()};
}

HostProgram NativeProgram(const QString& path, const QString& stem)
{
    HostProgram host;
    host.program = path;
    if (stem.compare(u"dosbox_debug", Qt::CaseInsensitive) == 0) {
        // Its debugger draws on a terminal and ends at once where none is named; a dumb one does.
        host.environment[u"TERM"_s] = u"dumb"_s;
    }
    return host;
}

/// What is wrong with a native counterpart that is there; nothing when there is none.
std::optional<Wording> WhyNotNative(const QString& path)
{
    const QFileInfo info(path);
    if (info.isSymLink() && !info.exists()) {
        return Wording{
            393, u"<1> is a link to <2>, which is missing."_s, {path, info.symLinkTarget()}};
    }
    if (!info.isFile()) {
        return std::nullopt;
    }
    return Wording{
        394, u"<1> is not a program of this system, or not marked as executable."_s, {path}};
}

} // namespace

ProcessRequest HostProgram::Request(
    const QStringList& arguments, const QString& workingFolder, ShowState show) const
{
    ProcessRequest request;
    request.program = program;
    request.arguments = leading + arguments;
    request.workingFolder = workingFolder;
    request.environment = environment;
    request.show = show;
    return request;
}

ProgramHost::ProgramHost(QString appDir, QStringList searchPath)
    : m_appDir(std::move(appDir))
    , m_searchPath(std::move(searchPath))
{}

Outcome<HostProgram> ProgramHost::Find(const QString& program) const
{
    const QString below =
        program.startsWith(m_appDir + u'/') ? program.mid(m_appDir.size() + 1) : program;
    const QString path = QDir::isAbsolutePath(below) ? below : ResolvePath(m_appDir, below);
    const QFileInfo asked(path);
    const Listing beside = ListFolder(asked.path());
    if (!beside.exists) {
        return Missing(Wording{395, u"The folder <1> is missing."_s, {asked.path()}});
    }
    const QString folder = asked.path() + u'/';
    const QString stem = WithoutExe(asked.fileName());
    std::optional<Wording> trouble;
    for (const QString& wanted : NativeNames(stem)) {
        const QString name = beside.Find(wanted); // lists no broken link
        const QString native = folder + (name.isEmpty() ? wanted : name);
        if (IsNativeProgram(native)) {
            return NativeProgram(native, stem);
        }
        if (!trouble) {
            trouble = WhyNotNative(native);
        }
    }
    const QString windowsName = beside.Find(asked.fileName());
    if (stem == asked.fileName() || !beside.HasFile(windowsName)) {
        return Missing(trouble.value_or(Wording{
            396,
            u"Neither <1> nor a native program <2> beside it is there."_s,
            {path, NativeNames(stem).join(u", "_s)}}));
    }
    HostProgram host;
    host.program = FindExecutable(m_searchPath, {u"wine"_s, u"wine64"_s});
    if (host.program.isEmpty()) {
        return Missing(Wording{
            397,
            u"<1> is a Windows program, and Wine is not installed."_s,
            {folder + windowsName}});
    }
    host.leading = QStringList{folder + windowsName};
    host.pathForm = PathForm::Windows;
    return host;
}

Outcome<HostProgram> ProgramHost::FindTool(const QString& name) const
{
    if (!IsPlainName(name)) {
        return Error{ErrorKind::Refused, u"\"%1\" is not the bare name of a tool"_s.arg(name)};
    }
    const QStringList names = ToolNames(name);
    QString found = FindExecutable(QStringList{m_appDir}, names);
    if (found.isEmpty()) {
        found = FindExecutable(m_searchPath, names);
    }
    if (found.isEmpty()) {
        return Missing(
            Wording{398, u"None of these programs is installed: <1>"_s, {names.join(u", "_s)}});
    }
    return NativeProgram(found, QString());
}

QStringList SearchPath()
{
    return qEnvironmentVariable("PATH").split(u':', Qt::SkipEmptyParts);
}

QString FindExecutable(const QStringList& folders, const QStringList& names)
{
    for (const QString& name : names) {
        for (const QString& folder : folders) {
            QString path = folder + u'/' + name;
            if (QDir::isAbsolutePath(folder) && IsExecutableFile(path)) {
                return path;
            }
        }
    }
    return QString();
}

} // namespace pelorin::platform
