// Makes the ports, the Launcher and the form, wires the user's deeds to the commands, and holds no
// rule.

#include "archives/FileCommands.h"
#include "dosboxconf/EditorCommands.h"
#include "dosboxconf/PresetCommands.h"
#include "dosboxconf/StartList.h"
#include "dosboxconf/StartPageCommands.h"
#include "finding/FilterCommands.h"
#include "forms/Deeds.h"
#include "forms/FocusRing.h"
#include "forms/Pictures.h"
#include "forms/QtPrompts.h"
#include "forms/ReadablePalette.h"
#include "forms/Shown.h"
#include "forms/frmDosGames.h"
#include "forms/frmFolderCFG.h"
#include "library/CatalogueCommands.h"
#include "library/ConfigDetailCommands.h"
#include "library/DeleteCommands.h"
#include "library/GenreCommands.h"
#include "library/InfoCommands.h"
#include "library/ListCommands.h"
#include "library/MediaCommands.h"
#include "library/RenameCommands.h"
#include "library/ShowinfoCommands.h"
#include "platform/DesktopShellVerbs.h"
#include "platform/DetachedProcesses.h"
#include "platform/ProgramHost.h"
#include "platform/QtTimers.h"
#include "platform/X11Desktop.h"
#include "platform/XdgBin.h"
#include "running/PlacementCommands.h"
#include "running/RunCommands.h"
#include "running/RunMenuCommands.h"
#include "shell/CommandLine.h"
#include "shell/FolderCfgCommands.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"
#include "shell/LifecycleCommands.h"
#include "shell/SiteCommands.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace pelorin;

namespace {

void Say(const QString& text)
{
    std::fputs(QString(text + u'\n').toLocal8Bit().constData(), stderr);
}

QStringList ArgumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    return arguments;
}

/// The folder of the executable, whatever the working folder and the links on the way.
QString AppDir()
{
    return QFileInfo(u"/proc/self/exe"_s).canonicalPath();
}

void WireStartPage(forms::Deeds& deeds, shell::Launcher& launcher)
{
    dosboxconf::StartCommands& start = launcher.screens.start;
    deeds.cmdAddExec_Click = [&] { dosboxconf::AddSelectedFile(start); };
    deeds.cmdAddEmpty_Click = [&] { dosboxconf::AddEmptyLine(start); };
    deeds.cmdDelete_Click = [&] { dosboxconf::DeleteLine(start); };
    deeds.cmdUp_Click = [&] { dosboxconf::MoveLineUp(start); };
    deeds.cmdDown_Click = [&] { dosboxconf::MoveLineDown(start); };
    deeds.lstAutoexec_DblClick = [&](int row) { dosboxconf::lstAutoexec_DblClick(launcher, row); };
    deeds.fileEXE_DblClick = [&](int) { running::RunFileWithArgs(launcher); };
    deeds.cmdSaveExec_Click = [&] { dosboxconf::WriteAutoexecConf(launcher); };
    deeds.chkCD_Click = [&](bool checked) { dosboxconf::chkCD_Click(launcher, checked); };
    deeds.chkMountCD_Click = [&](bool checked) { dosboxconf::chkMountCD_Click(launcher, checked); };
    deeds.mnuCD = [&] { return dosboxconf::CdMenu(launcher); };
    deeds.mnuCD_Click = [&](int index) { dosboxconf::mnuCD_Click(launcher, index); };
    deeds.cmdSaveCD_Click = [&] { dosboxconf::cmdSaveCD_Click(launcher); };
}

void WireConfigPage(forms::Deeds& deeds, shell::Launcher& launcher)
{
    using dosboxconf::GroupStep;
    deeds.chkEditConfig_Click = [&](bool on) { dosboxconf::chkEditConfig_Click(launcher, on); };
    deeds.cmbConfigSub_Click = [&](int group) { dosboxconf::cmbConfigSub_Click(launcher, group); };
    deeds.lstConfigTitle_Click = [&](int row) { dosboxconf::lstConfigTitle_Click(launcher, row); };
    deeds.lstConfigTitle_DblClick = [&](int item) {
        dosboxconf::lstConfigTitle_DblClick(launcher, item);
    };
    deeds.lstConfigTitle_CtrlTab = [&](int step) {
        dosboxconf::lstConfigTitle_CtrlTab(
            launcher, step > 0 ? GroupStep::Next : GroupStep::Previous);
    };
    deeds.lstConfig_Row = [&](int row) { dosboxconf::lstConfig_Row(launcher, row); };
    deeds.lstConfig_Focus = [&](bool here) { launcher.flags.ConfigListFocused = here; };
    deeds.lstConfig_Click = [&](int row) { dosboxconf::lstConfig_Click(launcher, row); };
    deeds.cmbConfig_Click = [&](int index) { dosboxconf::cmbConfig_Click(launcher, index); };
    deeds.cmbConfig_Leave = [&] { dosboxconf::cmbConfig_Leave(launcher); };
    deeds.lstEdit_Click = [&](int row) { dosboxconf::lstEdit_Click(launcher, row); };
    deeds.cmdSaveConfig_Click = [&] { dosboxconf::cmdSaveConfig_Click(launcher); };
    deeds.cmdDeleteConfig_Click = [&] { dosboxconf::cmdDeleteConfig_Click(launcher); };
    deeds.cmdOpenPreset_Click = [&] { dosboxconf::cmdOpenPreset_Click(launcher); };
    deeds.cmdSavePreset_Click = [&] { dosboxconf::cmdSavePreset_Click(launcher); };
}

void OpenFolderCFG(shell::Launcher& launcher)
{
    using shell::Root;
    shell::frmFolderCFG_Load(launcher);
    forms::frmFolderCFG(
        launcher.screens.folderCfg,
        launcher.lang,
        {[&](Root root) { shell::ChooseRoot(launcher, root); },
         [&](Root root) { shell::TakeDefaultRoot(launcher, root); },
         [&](Root root) { shell::OpenRoot(launcher, root); },
         [&] { return shell::AcceptRoots(launcher); }},
        QApplication::activeWindow())
        .exec();
}

void WireWindow(forms::Deeds& deeds, shell::Launcher& launcher)
{
    deeds.cmdSetPos_Click = [&] { running::cmdSetPos_Click(launcher); };
    deeds.cmdRememberPos_Click = [&] { running::cmdRememberPos_Click(launcher); };
    deeds.cmdMoveDosbox_Click = [&](int index) { running::cmdMoveDosbox_Click(launcher, index); };
    deeds.txtDosboxPos_Step = [&](int box, int step) {
        running::txtDosboxPos_Step(launcher, box, step);
    };
    deeds.cmdFolderCFG_Click = [&] { OpenFolderCFG(launcher); };
    deeds.cmdVespra_Click = [&] { shell::cmdVespra_Click(launcher); };
}

void WireListMenu(forms::Deeds& deeds, shell::Launcher& launcher)
{
    deeds.mnuGame = [&] { return library::mnuGame_Popup(launcher); };
    deeds.mnuGame_Click = [&](int index) { library::mnuGame_Click(launcher, index); };
    deeds.mnuFolder = [&] { return library::mnuFolder_Popup(launcher); };
    deeds.mnuFolder_Click = [&](int index) { library::mnuFolder_Click(launcher, index); };
    deeds.LVGamelist_Delete = [&] { library::DeleteSelectedGames(launcher); };
    deeds.Command1_Click = [&] { shell::Command1_Click(launcher); };
    deeds.RenameGameFolder = [&] { library::RenameGameFolder(launcher); };
    deeds.Picture2_Click = [&] { library::Picture2_Click(launcher); };
    deeds.FocusTitle = [&] { library::FocusTitle(launcher); };
}

void WireDetails(forms::Deeds& deeds, shell::Launcher& launcher)
{
    using library::GenreFile;
    deeds.tabInfo_Click = [&](int) { library::tabInfo_Click(launcher); };
    deeds.Info_Change = [&] { library::Info_Change(launcher); };
    deeds.Info_Esc = [&](int box) { library::Info_Esc(launcher, box); };
    deeds.cmdSaveInfo_Click = [&] { library::cmdSaveInfo_Click(launcher); };
    deeds.mnuGenreK = [&] { return library::GenreMenu(launcher, GenreFile::Korean); };
    deeds.mnuGenreE = [&] { return library::GenreMenu(launcher, GenreFile::English); };
    deeds.mnuGenreK_Click = [&](int index) {
        library::mnuGenre_Click(launcher, GenreFile::Korean, index);
    };
    deeds.mnuGenreE_Click = [&](int index) {
        library::mnuGenre_Click(launcher, GenreFile::English, index);
    };
}

void WireConfigDetail(forms::Deeds& deeds, shell::Launcher& launcher)
{
    deeds.OpenDetails = [&] { library::OpenDetails(launcher); };
    deeds.SaveDetails = [&] { library::SaveDetails(launcher); };
    deeds.DeleteDetails = [&] { library::DeleteDetails(launcher); };
}

void WireMedia(forms::Deeds& deeds, shell::Launcher& launcher)
{
    using library::Media;
    const auto wire = [&](Media media,
                          forms::Deeds::Menu& menu,
                          forms::Deeds::IndexDeed& chosen,
                          forms::Deeds::Deed& remove) {
        menu = [&launcher, media] { return library::MediaMenu(launcher, media); };
        chosen = [&launcher, media](int index) { library::mnuMedia_Click(launcher, media, index); };
        remove = [&launcher, media] { library::DeleteMediaFile(launcher, media); };
    };
    wire(Media::Pictures, deeds.mnuPic, deeds.mnuPic_Click, deeds.fileImages_Delete);
    wire(Media::Recordings, deeds.mnuAV, deeds.mnuAV_Click, deeds.fileAV_Delete);
    wire(Media::Manuals, deeds.mnuManual, deeds.mnuManual_Click, deeds.fileManual_Delete);
    deeds.pic1_Click = [&] { library::pic1_Click(launcher); };
}

void WireTree(forms::Deeds& deeds, shell::Launcher& launcher)
{
    deeds.TreeView1_NodeCheck = [&](const finding::NodePlace& place, bool checked) {
        finding::TreeView1_NodeCheck(launcher, place, checked);
    };
    deeds.TreeView1_NodeClick = [&](const finding::NodePlace& place) {
        finding::TreeView1_NodeClick(launcher, place);
    };
    deeds.cmdFind_Click = [&] { finding::cmdFind_Click(launcher); };
    deeds.txtFind_Esc = [&] { finding::txtFind_Esc(launcher); };
    deeds.cmdFind_Esc = [&] { finding::cmdFind_Esc(launcher); };
}

void Wire(forms::Deeds& deeds, shell::Launcher& launcher)
{
    deeds.LVGamelist_ItemClick = [&] { library::LVGamelist_ItemClick(launcher); };
    deeds.LVGamelist_SelectionMoved = [&] { library::LVGamelist_SelectionMoved(launcher); };
    deeds.LVGamelist_ColumnClick = [&](int column) {
        finding::LVGamelist_ColumnClick(launcher, column);
    };
    deeds.LVGamelist_DblClick = [&] { library::LVGamelist_DblClick(launcher); };
    deeds.cmdRun_Click = [&] { running::RunGame(launcher); };
    deeds.mnuRun = [&] { return running::RunMenu(launcher); };
    deeds.mnuRun_Click = [&](int index) { running::mnuRun_Click(launcher, index); };
    deeds.cmdRefresh_Click = [&] { library::cmdRefresh_Click(launcher); };
    deeds.optViewmode_Click = [&](finding::View view) { finding::SetView(launcher, view); };
    deeds.cmdCompact_Click = [&] { archives::cmdCompact_Click(launcher); };
    deeds.Form_Unload = [&] { return shell::Form_Unload(launcher); };
    WireTree(deeds, launcher);
    WireStartPage(deeds, launcher);
    WireConfigPage(deeds, launcher);
    WireWindow(deeds, launcher);
    WireListMenu(deeds, launcher);
    WireDetails(deeds, launcher);
    WireConfigDetail(deeds, launcher);
    WireMedia(deeds, launcher);
}

int RunWindow(int argc, char** argv)
{
    QApplication application(argc, argv);
    const forms::ReadablePalette palette(application);
    const forms::FocusRing ring(application);
    bool ending = false;
    forms::QtPrompts prompts;
    platform::DetachedProcesses processes([&ending] { return ending; });
    platform::DesktopShellVerbs shellVerbs(processes, platform::SearchPath());
    platform::XdgBin bin(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    platform::QtTimers timers;
    platform::X11Desktop desktop;
    platform::Ports ports{processes, shellVerbs, bin, prompts, timers, desktop};

    shell::Launcher launcher(ports);
    launcher.places.appDir = AppDir();
    launcher.searchPath = platform::SearchPath();
    launcher.drawDefaultIcon = forms::DefaultGameIcon;
    prompts.SetLanguage(launcher.lang);
    shellVerbs.failed = [&launcher](const platform::Error& failure, const QString& output) {
        shell::TellNote(launcher, "pelorin.platform", failure, output);
    };

    forms::Deeds deeds;
    Wire(deeds, launcher);
    forms::frmDosGames form(
        {launcher.screens,
         launcher.lang,
         launcher.settings,
         launcher.icons,
         launcher.options,
         prompts},
        deeds);
    prompts.SetParent(&form);
    if (const platform::Done loaded = shell::Form_Load(launcher); !loaded) {
        const QString text = launcher.lang.Told(loaded.Failure().Told());
        Say(text);
        prompts.Ask(platform::MessageBox{
            text, u"Pelorin"_s, platform::Buttons::Ok, platform::BoxIcon::Exclamation});
        return 1;
    }
    const int status = QApplication::exec();
    ending = true;
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    // Relative names mean files beside the executable.
    QDir::setCurrent(AppDir());
    switch (shell::ParseCommandLine(ArgumentsOf(argc, argv)).task) {
    case shell::CommandLine::Task::OpenWindow: return RunWindow(argc, argv);
    case shell::CommandLine::Task::EndAtOnce: return 0;
    default: Say(u"Pelorin: merge and split are not built yet"_s); return 1;
    }
}
