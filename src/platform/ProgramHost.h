#pragma once

#include "platform/HostText.h"
#include "platform/Outcome.h"
#include "platform/Processes.h"

#include <QMap>
#include <QString>
#include <QStringList>

namespace pelorin::platform {

/// How a program is run on this machine.
struct HostProgram {
    QString program;     // native absolute path of what is started
    QStringList leading; // arguments before the program's own: the .exe itself for Wine
    PathForm pathForm = PathForm::Posix; // of paths in its arguments and in texts that it reads
    QMap<QString, QString> environment;  // what it needs there

    ProcessRequest Request(
        const QStringList& arguments,
        const QString& workingFolder,
        ShowState show = ShowState::Normal) const;
};

/// Decides how programs that are named as on Windows, "X.exe", run here:
///
///   a native executable "X" in the folder of "X.exe" | that        | POSIX paths
///   any other "X.exe" that exists                    | Wine        | Windows paths
///   a bare tool ("7z.exe")                           | beside us, else on the search path | POSIX
///
/// Names are found without regard to case; "_" in X may stand as "-" in the native name. Nothing
/// is ever looked for in the working folder. What is found is not kept: a program that was
/// installed meanwhile is found the next time.
class ProgramHost {
public:
    /// `appDir`: where our own executable lies. `searchPath`: folders, in order; relative ones are
    /// passed over.
    ProgramHost(QString appDir, QStringList searchPath);

    /// A program by its path: native and absolute, or below `appDir` with either separator
    /// ("DOSBox\0.74_SVN\dosbox.exe"). A name without ".exe" must be a native executable itself.
    /// Error NotFound, with a text that names what is missing.
    Outcome<HostProgram> Find(const QString& program) const;

    /// A tool by its bare name. "7z.exe" goes by the names "7zz", "7z" and "7za".
    Outcome<HostProgram> FindTool(const QString& name) const;

private:
    QString m_appDir;
    QStringList m_searchPath;
};

/// The folders of the environment's PATH.
QStringList SearchPath();

/// The first of the names, then of the folders, that is an executable file; empty if none is.
/// Relative folders are passed over.
QString FindExecutable(const QStringList& folders, const QStringList& names);

} // namespace pelorin::platform
