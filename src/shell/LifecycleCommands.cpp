#include "shell/LifecycleCommands.h"

#include "archives/FileCommands.h"
#include "archives/FileOperations.h"
#include "dosboxconf/ConfFiles.h"
#include "dosboxconf/ConfReportCommands.h"
#include "library/CatalogueCommands.h"
#include "library/InfoCommands.h"
#include "library/ShowinfoCommands.h"
#include "platform/Bin.h"
#include "platform/Paths.h"
#include "platform/Prompts.h"
#include "platform/Timers.h"
#include "shell/JobCommands.h"
#include "shell/LanguageCommands.h"
#include "shell/Launcher.h"
#include "shell/SettingsCommands.h"
#include "shell/SiteCommands.h"
#include "shell/WindowTitle.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace pelorin::shell {

namespace {

constexpr auto kCategory = "pelorin.shell";

/// A former place of an emulator. What somebody put there goes to the bin, an empty folder for
/// good; a link is not ours to follow.
void ClearObsoleteFolder(Launcher& launcher)
{
    const QString path = launcher.places.InAppDir(u"Emulator/NP21"_s);
    if (!archives::FolderExists(path) || QFileInfo(path).isSymLink()) {
        return;
    }
    // The system alone knows for sure that nothing is in it.
    if (QDir().rmdir(path)) {
        return;
    }
    TellIfFailed(launcher, kCategory, launcher.ports.bin.MoveToBin(path));
}

void LoadCatalogue(Launcher& launcher)
{
    launcher.flags.ListRefreshReady = false;
    library::ReadGameList(launcher);
    dosboxconf::TellReport(
        launcher, dosboxconf::ReadDefaultConf(launcher.places, launcher.options));
    launcher.flags.ListRefreshReady = true;
}

void ShowFirstGame(Launcher& launcher)
{
    launcher.screens.list.changed.Tell(finding::GameList::ViewMode);
    if (!launcher.screens.list.items.empty()) {
        library::LVGamelist_ItemClick(launcher);
        library::ShowinfoProcess(launcher);
    }
}

/// What could not be saved, one line each. A job, since window events run while
/// the list is written: a scan or a second close would change what is being saved.
QStringList SaveAll(Launcher& launcher)
{
    const Job job(launcher);
    QStringList failures;
    for (const platform::Done& done : {library::SaveCatalogue(launcher), SaveSettings(launcher)}) {
        if (!done) {
            failures << launcher.lang.Told(done.Failure().Told());
        }
    }
    return failures;
}

/// Closing all the same would lose what the session changed; only the user may decide that.
bool ClosesUnsaved(Launcher& launcher, const QString& failures)
{
    const QString question =
        launcher.lang.OwnText(349, u"Not everything could be saved. Close all the same?"_s);
    const platform::Answer answer = launcher.ports.prompts.Ask(platform::MessageBox{
        failures + u"\n\n"_s + question,
        launcher.lang[1],
        platform::Buttons::YesNo,
        platform::BoxIcon::Exclamation});
    return answer == platform::Answer::Yes;
}

} // namespace

platform::Done Form_Load(Launcher& launcher)
{
    MainFrame& frame = launcher.screens.frame;
    frame.minimumSizeHook = !archives::FileExists(launcher.places.InAppDir(u"NoHook"_s));
    launcher.BuildStamp = OwnBuildStamp();
    ClearObsoleteFolder(launcher);
    if (platform::Done read = ReadLanguage(launcher); !read) {
        return read;
    }
    if (platform::Done loaded = LoadSettings(launcher); !loaded) {
        return loaded;
    }
    LoadEndpoints(launcher);
    launcher.flags.ConfigListFocused = false;
    launcher.screens.cd.chkMountCD = false;
    launcher.flags.CloseBlocked = false;
    launcher.ports.timers.RunPendingEvents();
    frame.changed.Tell(MainFrame::Geometry | MainFrame::Show);
    LoadCatalogue(launcher);
    ShowFirstGame(launcher);
    archives::CheckFileTools(launcher);
    return platform::Success();
}

bool Form_Unload(Launcher& launcher)
{
    if (launcher.screens.notice.batch.visible) {
        Command1_Click(launcher);
    }
    if (!launcher.flags.BusyReady || launcher.flags.CloseBlocked) {
        return false;
    }
    const std::optional<QStringList> unsaved = library::SettleDrafts(launcher);
    if (!unsaved || !launcher.flags.BusyReady) {
        return false;
    }
    const QString failures = (*unsaved + SaveAll(launcher)).join(u'\n');
    if (!failures.isEmpty() && !ClosesUnsaved(launcher, failures)) {
        return false;
    }
    launcher.flags.Ending = true;
    return true;
}

} // namespace pelorin::shell
