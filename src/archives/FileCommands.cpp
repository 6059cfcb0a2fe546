#include "archives/FileCommands.h"

#include "archives/FileOperations.h"
#include "platform/Processes.h"
#include "platform/Prompts.h"
#include "platform/Timers.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"

using namespace Qt::StringLiterals;

namespace pelorin::archives {

using platform::Done;
using shell::Launcher;

namespace {

using Operation = Done (*)(const QString&, const QString&, const KeepGoing&);

/// Lets window events run between the pieces of a copy; gives up when the program ends.
KeepGoing Pumping(Launcher& launcher)
{
    return [&launcher] {
        launcher.ports.timers.RunPendingEvents();
        return !launcher.flags.Ending;
    };
}

Done UnderNotice(
    Launcher& launcher,
    int entry,
    Operation operation,
    const QString& source,
    const QString& destination)
{
    const shell::Job job(launcher);
    const shell::BusyMessage message(launcher, launcher.lang[entry]);
    return operation(source, destination, Pumping(launcher));
}

} // namespace

Done MoveFolder(Launcher& launcher, const QString& source, const QString& destination)
{
    return UnderNotice(launcher, 218, MoveFolderQuiet, source, destination);
}

Done MoveFileWithTool(Launcher& launcher, const QString& source, const QString& destination)
{
    return UnderNotice(launcher, 219, MoveFile, source, destination);
}

Done CopyFileWithTool(Launcher& launcher, const QString& source, const QString& destination)
{
    return UnderNotice(launcher, 220, CopyFile, source, destination);
}

Done RunAndWait(Launcher& launcher, const platform::ProcessRequest& request)
{
    const shell::Job job(launcher);
    const platform::Outcome<platform::ProcessEnd> end =
        launcher.ports.processes.RunAndWait(request);
    return end ? platform::Success() : Done(end.Failure());
}

void CheckFileTools(Launcher& launcher)
{
    const QString report = CheckFileTools(MissingTools{});
    if (!report.isEmpty()) {
        launcher.ports.prompts.ShowReport(MissingToolsTitle(), report);
    }
}

void cmdCompact_Click(Launcher& launcher)
{
    const QString text = launcher.lang.OwnText(
        350, u"This system has no compression of folders that Pelorin could switch on."_s);
    launcher.ports.prompts.Ask(platform::MessageBox{
        text, launcher.lang[240], platform::Buttons::Ok, platform::BoxIcon::Information});
}

} // namespace pelorin::archives
