#include "running/RunCommands.h"

#include "archives/FileOperations.h"
#include "dosboxconf/ConfFiles.h"
#include "library/FolderCommands.h"
#include "library/GameFiles.h"
#include "library/ShowinfoCommands.h"
#include "platform/PathWordings.h"
#include "platform/Paths.h"
#include "platform/ProgramHost.h"
#include "platform/Prompts.h"
#include "running/DosboxLaunch.h"
#include "running/GlideIni.h"
#include "running/LaunchCommands.h"
#include "running/NetAddress.h"
#include "running/RunPlan.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace pelorin::running {

using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.running";
constexpr int kStartPage = 2;

bool IsNetwork(RunMode mode)
{
    return mode == RunMode::NetHost || mode == RunMode::NetClient;
}

RunRequest RequestOf(const Launcher& launcher, RunMode mode)
{
    RunRequest request;
    request.mode = mode;
    request.folder = launcher.current.CurrentFolder;
    request.title = launcher.current.CurrentTitle;
    request.startCommands = launcher.screens.start.lstAutoexec;
    request.cd = dosboxconf::ChoiceOf(launcher.screens.cd);
    return request;
}

QString Paragraphs(const Launcher& launcher, std::initializer_list<int> entries)
{
    QStringList paragraphs;
    for (const int entry : entries) {
        paragraphs << launcher.lang[entry];
    }
    return paragraphs.join(u"\r\n\r\n"_s);
}

void Warn(Launcher& launcher, const QString& text, int title)
{
    launcher.ports.prompts.Ask(platform::MessageBox{
        text, launcher.lang[title], platform::Buttons::Ok, platform::BoxIcon::Exclamation});
}

/// A game without start commands: shows the start page and offers the bare DOS prompt.
void OfferDosPrompt(Launcher& launcher, RunMode mode)
{
    const QString folder = launcher.current.CurrentFolder;
    launcher.screens.frame.tabInfo = kStartPage;
    launcher.screens.frame.changed.Tell(shell::MainFrame::Tab);
    const bool network = IsNetwork(mode);
    const platform::Answer answer = launcher.ports.prompts.Ask(platform::MessageBox{
        network ? Paragraphs(launcher, {168, 169, 170}) : Paragraphs(launcher, {177, 178, 179}),
        launcher.lang[network ? 171 : 149],
        platform::Buttons::YesNo,
        platform::BoxIcon::Question});
    // Window events ran: the prompt was offered for the game that was current.
    if (answer == platform::Answer::Yes && launcher.current.CurrentFolder == folder) {
        RunDosPrompt(launcher);
    }
}

bool IsPacked(Launcher& launcher, const QString& folder, RunMode mode)
{
    if (!library::IsGameStored(library::ListGame(launcher.places, folder))) {
        return false;
    }
    if (mode == RunMode::FileWithArgs) {
        launcher.ports.prompts.Ask(
            platform::MessageBox{launcher.lang[258], launcher.lang[259], platform::Buttons::Ok});
        return true;
    }
    shell::TellNote(
        launcher,
        kCategory,
        launcher.lang.OwnText(343, u"<1>: packed games can't be started yet."_s, {folder}));
    return true;
}

/// Asks a network game's address into the request. False: there is to be no start.
bool AskForAddress(Launcher& launcher, RunRequest& request)
{
    const QString typed = launcher.ports.prompts.InputText(
        launcher.lang[270], launcher.lang[271], ReadNetAddress(launcher.places));
    if (typed.isEmpty()) {
        return false;
    }
    const platform::Outcome<QString> address = NetAddressOf(typed);
    if (!address) {
        Warn(launcher, launcher.lang.Told(address.Failure().Told()), 271);
        return false;
    }
    request.ipxAddress = address.Value();
    shell::TellIfFailed(launcher, kCategory, WriteNetAddress(launcher.places, request.ipxAddress));
    return true;
}

/// Asks for the file's arguments. False: there is to be no start.
bool AskForArguments(Launcher& launcher, RunRequest& request)
{
    const dosboxconf::StartCommands& start = launcher.screens.start;
    const QString file = start.fileEXE.value(start.fileRow);
    request.typedLine =
        launcher.ports.prompts.InputText(launcher.lang[224], launcher.lang[225], file + u' ');
    if (request.typedLine.isEmpty()) {
        Warn(launcher, launcher.lang[114], 223);
        return false;
    }
    return true;
}

/// Processes the settings before anything is asked: what can't become a text is told at once.
bool ProcessSettings(Launcher& launcher, const RunRequest& request, const QString& build)
{
    const platform::Outcome<dosboxconf::ConfText> composed =
        BuildDosboxConf(launcher, request, build);
    if (!composed) {
        shell::TellNote(launcher, kCategory, composed.Failure());
        return false;
    }
    if (composed.Value().glideOn) {
        shell::TellIfFailed(launcher, kCategory, WriteGlideIni(launcher.places, launcher.options));
    }
    return true;
}

/// Guests run no single files. The settings are processed all the same, and that is said.
void RefuseGuest(Launcher& launcher, const RunRequest& request, const QString& build)
{
    if (ProcessSettings(launcher, request, build)) {
        Warn(launcher, Paragraphs(launcher, {221, 222}), 223);
    }
}

/// The file on hand of a game for Windows, from the game's folder.
void StartWindowsFile(Launcher& launcher, const RunRequest& request)
{
    const dosboxconf::StartCommands& start = launcher.screens.start;
    const QString folder = launcher.places.GameDir(request.folder);
    const QString file = start.fileEXE.value(start.fileRow);
    if (!file.endsWith(u".exe", Qt::CaseInsensitive)) {
        shell::TellNote(
            launcher,
            kCategory,
            launcher.lang.OwnText(
                469, u"<1>: of games for Windows only .exe files can be started."_s, {file}));
        return;
    }
    const platform::ProgramHost host(launcher.places.appDir, launcher.searchPath);
    const platform::Outcome<platform::HostProgram> program =
        host.Find(platform::ResolvePath(folder, file));
    if (!program) {
        shell::TellNote(launcher, kCategory, program.Failure());
        return;
    }
    const QString running = request.folder;
    const platform::Done started = launcher.ports.processes.StartDetached(
        program.Value().Request({}, folder), [&launcher, running](const platform::ProcessEnd&) {
            launcher.runningGames.removeOne(running);
        });
    if (started) {
        launcher.runningGames << running;
    }
    shell::TellIfFailed(launcher, kCategory, started);
}

/// What a mode has to know yet before the start. False: there is to be none.
bool Complete(Launcher& launcher, RunRequest& request, const QString& build)
{
    switch (request.mode) {
    case RunMode::NetHost: request.serverPort = FreeServerPort(); return true;
    case RunMode::NetClient: return AskForAddress(launcher, request);
    case RunMode::FileWithArgs:
        return ProcessSettings(launcher, request, build) && AskForArguments(launcher, request);
    default: return true;
    }
}

void Start(Launcher& launcher, RunRequest request, const QString& build)
{
    // A question lets window events run: another game may be current then, and this one gone.
    if (Complete(launcher, request, build) && !launcher.flags.JobHeld &&
        library::HasGameFolder(launcher, request.folder)) {
        LaunchDosbox(launcher, request, build);
    }
}

/// A moving selection is a step ahead of what the controls hold.
void ShowCurrentGame(Launcher& launcher)
{
    if (launcher.screens.details.folder != launcher.current.CurrentFolder) {
        library::ShowinfoProcess(launcher);
    }
}

void Run(Launcher& launcher, RunMode mode)
{
    const QString folder = launcher.current.CurrentFolder;
    if (launcher.flags.JobHeld || !platform::IsPlainName(folder)) {
        return;
    }
    if (!library::HasGameFolder(launcher, folder) || IsPacked(launcher, folder, mode) ||
        (IsNetwork(mode) && launcher.screens.list.items.empty())) {
        return;
    }
    ShowCurrentGame(launcher);
    const RunRequest request = RequestOf(launcher, mode);
    const QString build = dosboxconf::ReadGameBuild(launcher.places, folder, launcher.options);
    switch (BranchOf(mode, build, request.startCommands.size())) {
    case RunBranch::Nothing: break;
    case RunBranch::Dos:
    case RunBranch::GuestWindows: Start(launcher, request, build); break;
    case RunBranch::AskForPrompt: OfferDosPrompt(launcher, mode); break;
    case RunBranch::RefuseGuest: RefuseGuest(launcher, request, build); break;
    case RunBranch::WindowsFile: StartWindowsFile(launcher, request); break;
    case RunBranch::NoSuchBuild:
        shell::TellNote(launcher, kCategory, launcher.lang.Told(UnknownBuild(folder)));
        break;
    default:
        shell::TellNote(
            launcher,
            kCategory,
            launcher.lang.OwnText(
                345, u"<1>: games of <2> can't be started yet."_s, {folder, build}));
    }
}

} // namespace

void RunGame(Launcher& launcher)
{
    Run(launcher, RunMode::Game);
}

void RunDosPrompt(Launcher& launcher)
{
    Run(launcher, RunMode::DosPrompt);
}

void RunNetHost(Launcher& launcher)
{
    Run(launcher, RunMode::NetHost);
}

void RunNetClient(Launcher& launcher)
{
    Run(launcher, RunMode::NetClient);
}

void RunFileWithArgs(Launcher& launcher)
{
    const dosboxconf::StartCommands& start = launcher.screens.start;
    if (start.fileRow >= 0 && start.fileRow < start.fileEXE.size()) {
        Run(launcher, RunMode::FileWithArgs);
    }
}

void RunLibraryShell(Launcher& launcher)
{
    const QString emulators = launcher.places.InAppDir(u"DOSBox"_s);
    if (launcher.flags.JobHeld) {
        return;
    }
    if (!archives::FolderExists(emulators)) {
        shell::TellNote(launcher, kCategory, launcher.lang.Told(platform::NotThere(emulators)));
        return;
    }
    ShowCurrentGame(launcher);
    const QString build = dosboxconf::ReadGameBuild(
        launcher.places, launcher.current.CurrentFolder, launcher.options);
    LaunchDosbox(launcher, RequestOf(launcher, RunMode::LibraryShell), build);
}

void RunRandomGame(Launcher& launcher)
{
    if (launcher.flags.JobHeld || launcher.catalogue.empty()) {
        return;
    }
    const auto games = static_cast<int>(launcher.catalogue.size());
    const library::GameEntry& entry =
        launcher.catalogue[static_cast<std::size_t>(QRandomGenerator::global()->bounded(games))];
    launcher.current.CurrentFolder = entry.Folder;
    launcher.current.CurrentTitle =
        library::DisplayTitle(entry, launcher.settings.TitleLanguageKorean);
    // Where the list shows it, it is selected there.
    finding::GameList& list = launcher.screens.list;
    if (const int row = list.RowOf(entry.Folder); row >= 0) {
        list.Select(row);
        library::LVGamelist_ItemClick(launcher);
    }
    library::ShowinfoProcess(launcher);
    RunGame(launcher);
}

} // namespace pelorin::running
