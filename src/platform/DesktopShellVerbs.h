#pragma once

#include "platform/ShellVerbs.h"

#include <QStringList>

namespace pelorin::platform {

class Processes;

/// The real ShellVerbs: the desktop's `xdg-open`, started on its own. It gets a path as it stands,
/// not as an address, so blanks, Hangul, "%" and "#" in it mean themselves. Success says that it
/// was started; what it could not open is told by `failed` when it ends.
class DesktopShellVerbs : public ShellVerbs {
public:
    /// Folders where `xdg-open` is looked for, in order. `processes` outlives this.
    DesktopShellVerbs(Processes& processes, QStringList searchPath);

    /// Error NotFound when there is no such file or folder, or no `xdg-open`.
    Done Open(const QString& path) override;
    /// Error Refused for whatever does not begin with "http://" or "https://".
    Done OpenUrl(const QString& url) override;

private:
    Done Start(const QString& what, const QString& workingFolder);

    Processes& m_processes;
    QStringList m_searchPath;
};

} // namespace pelorin::platform
