#include "platform/DesktopShellVerbs.h"

#include "platform/PathWordings.h"
#include "platform/Processes.h"
#include "platform/ProgramHost.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace pelorin::platform {

DesktopShellVerbs::DesktopShellVerbs(Processes& processes, QStringList searchPath)
    : m_processes(processes)
    , m_searchPath(std::move(searchPath))
{}

Done DesktopShellVerbs::Start(const QString& what, const QString& workingFolder)
{
    const QString opener = FindExecutable(m_searchPath, {u"xdg-open"_s});
    if (opener.isEmpty()) {
        return Error::Worded(
            ErrorKind::NotFound,
            Wording{467, u"<1> can't be opened: xdg-open is not installed."_s, {what}});
    }
    ProcessRequest request;
    request.program = opener;
    request.arguments = QStringList{what};
    request.workingFolder = workingFolder;
    return m_processes.StartDetached(request, [this, what](const ProcessEnd& end) {
        if (end.exitStatus != 0 && failed) {
            failed(
                Error::Worded(
                    ErrorKind::NotFound, Wording{470, u"<1>: no program could open it."_s, {what}}),
                QString::fromLocal8Bit(end.output).trimmed());
        }
    });
}

Done DesktopShellVerbs::Open(const QString& path)
{
    const QFileInfo info(path);
    if (!info.isAbsolute() || !info.exists()) {
        return Error::Worded(ErrorKind::NotFound, NotThere(path));
    }
    return Start(path, info.isDir() ? path : info.path());
}

Done DesktopShellVerbs::OpenUrl(const QString& url)
{
    const QUrl address(url.trimmed());
    const bool isWeb = address.scheme() == u"http" || address.scheme() == u"https";
    if (!isWeb || address.host().isEmpty()) {
        return Error::Worded(
            ErrorKind::Refused, Wording{466, u"<1> is not a web address."_s, {url}});
    }
    return Start(QString::fromLatin1(address.toEncoded()), QDir::rootPath());
}

} // namespace pelorin::platform
