#include "running/RunCommands.h"

#include "archives/FileOperations.h"
#include "dosboxconf/ConfFiles.h"
#include "dosboxconf/ConfReportCommands.h"
#include "library/CatalogueCommands.h"
#include "library/FolderCommands.h"
#include "library/GameFiles.h"
#include "library/ShowinfoCommands.h"
#include "platform/Paths.h"
#include "platform/ProgramHost.h"
#include "platform/Prompts.h"
#include "platform/TextFile.h"
#include "running/DosboxLaunch.h"
#include "running/LaunchStory.h"
#include "running/RunPlan.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"
#include "shell/RecentFile.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace pelorin::running {

using platform::Outcome;
using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.running";
constexpr int kStartPage = 2;
constexpr int kFirstRecent = 10; // of mnuRun's indexes

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

/// A start ready to go: what to run, and the text that lies in its folder as dosbox.conf.
struct Launch {
    Outcome<platform::ProcessRequest> request; // or why there is no program
    QString confPath;
    QByteArray confBytes;
    QString confShown;
    QList<platform::Wording> notes;
};

/// Without a program: of the Windows program that is there and can't be run, else our own.
platform::PathForm FormOf(const Outcome<platform::HostProgram>& found, const QString& asked)
{
    if (found) {
        return found.Value().pathForm;
    }
    return QFileInfo::exists(asked) ? platform::PathForm::Windows : platform::PathForm::Posix;
}

/// Composes and checks without writing anything. A missing program is no error yet.
Outcome<Launch> PrepareLaunch(Launcher& launcher, const RunRequest& request, const QString& build)
{
    const dosboxconf::RunFacts facts =
        dosboxconf::LoadRunFacts(launcher.places, ConfRequestOf(request, build));
    const Outcome<dosboxconf::ConfText> composed = BuildDosboxConf(launcher, request, facts);
    if (!composed) {
        return composed.Failure();
    }
    const CommandLine command = DosboxCommandLine(launcher.options);
    const QString workingFolder =
        launcher.places.InAppDir(u"DOSBox/"_s + ConfigFolder(request.mode, build));
    const QString asked = platform::ResolvePath(workingFolder, command.program);
    const platform::ProgramHost host(launcher.places.appDir, launcher.searchPath);
    const Outcome<platform::HostProgram> found = host.Find(asked);
    const platform::PathForm form = FormOf(found, asked);

    if (const platform::Done possible = CheckCommands(request, form); !possible) {
        return possible.Failure();
    }
    const RunEnding ending{request.mode, request.startCommands, request.typedLine, false, {}};
    const platform::HostText text = FinishRunText(composed.Value().text, ending);
    if (const platform::Done fits = CheckLaunch(facts, text, form); !fits) {
        return fits.Failure();
    }
    Launch launch{
        platform::ProcessRequest(),
        platform::ResolvePath(workingFolder, u"dosbox.conf"_s),
        text.Print(form),
        text.Preview(form),
        LaunchNotes(request, text, form)};
    if (found) {
        launch.request =
            found.Value().Request(command.arguments, workingFolder, ShowStateOf(request.mode));
    } else {
        launch.request = found.Failure();
    }
    return launch;
}

/// A program that was started and is gone too soon.
void TellEnd(
    Launcher& launcher, const QString& title, const Launch& launch, const platform::ProcessEnd& end)
{
    if (end.runMs >= kTooShortMs) {
        return;
    }
    const QString headline = launcher.lang.OwnText(
        340,
        u"<1>: DOSBox ended after <2> s."_s,
        {title, QString::number(static_cast<double>(end.runMs) / 1000.0, 'f', 1)});
    const QString output = QString::fromLocal8Bit(end.output);
    shell::TellNote(
        launcher,
        kCategory,
        headline,
        LaunchStory(launcher.lang, launch.request.Value(), launch.confShown, output));
}

/// It is not waited for. What holds it back is told.
void StartEmulator(Launcher& launcher, const RunRequest& run, const Launch& launch)
{
    if (!launch.request) {
        shell::TellNote(launcher, kCategory, launch.request.Failure());
        return;
    }
    const platform::ProcessRequest& request = launch.request.Value();
    const platform::Done started = launcher.ports.processes.StartDetached(
        request, [&launcher, run, launch](const platform::ProcessEnd& end) {
            launcher.runningGames.removeOne(run.folder);
            TellEnd(launcher, run.title, launch, end);
        });
    if (started) {
        launcher.runningGames << run.folder;
    } else {
        shell::TellNote(
            launcher,
            kCategory,
            started.Failure(),
            LaunchStory(launcher.lang, request, launch.confShown, QString()));
    }
}

void LaunchDosbox(Launcher& launcher, const RunRequest& request, const QString& build)
{
    const Outcome<Launch> prepared = PrepareLaunch(launcher, request, build);
    if (!prepared) {
        shell::TellNote(launcher, kCategory, prepared.Failure());
        return;
    }
    const Launch& launch = prepared.Value();
    for (const platform::Wording& note : launch.notes) {
        shell::TellNote(launcher, kCategory, launcher.lang.Told(note));
    }
    if (const platform::Done written = platform::WriteBytes(launch.confPath, launch.confBytes);
        !written) {
        // No folder, no program: the latter names what the user can do something about.
        shell::TellNote(
            launcher, kCategory, launch.request ? written.Failure() : launch.request.Failure());
        return;
    }
    // Whether the emulator came up does not matter to the recent list: the user asked for the game.
    StartEmulator(launcher, request, launch);
    if (EntersRecentList(request.mode)) {
        shell::AddRecent(launcher.recent, request.folder, request.title);
    }
}

/// A game without start commands: shows the start page and offers the bare DOS prompt.
void OfferDosPrompt(Launcher& launcher)
{
    launcher.screens.frame.tabInfo = kStartPage;
    launcher.screens.frame.changed.Tell(shell::MainFrame::Tab);
    const QStringList paragraphs{launcher.lang[177], launcher.lang[178], launcher.lang[179]};
    const platform::Answer answer = launcher.ports.prompts.Ask(platform::MessageBox{
        paragraphs.join(u"\r\n\r\n"_s),
        launcher.lang[149],
        platform::Buttons::YesNo,
        platform::BoxIcon::Question});
    if (answer == platform::Answer::Yes) {
        shell::TellNote(
            launcher,
            kCategory,
            launcher.lang.OwnText(341, u"The DOS prompt can't be started yet."_s));
    }
}

bool IsPacked(Launcher& launcher, const QString& folder)
{
    if (!library::IsGameStored(library::ListGame(launcher.places, folder))) {
        return false;
    }
    shell::TellNote(
        launcher,
        kCategory,
        launcher.lang.OwnText(343, u"<1>: packed games can't be started yet."_s, {folder}));
    return true;
}

} // namespace

Outcome<dosboxconf::ConfText> BuildDosboxConf(
    Launcher& launcher, const RunRequest& request, const dosboxconf::RunFacts& facts)
{
    if (const platform::Done possible = CheckRequest(request, facts.request.build); !possible) {
        return possible.Failure();
    }
    const bool hasOwn = dosboxconf::HasGameConf(launcher.places, request.folder);
    if (UsesGlobalConf(request.mode, hasOwn)) {
        dosboxconf::TellReport(
            launcher, dosboxconf::ReadDefaultConf(launcher.places, launcher.options));
    } else {
        dosboxconf::TellReport(
            launcher,
            dosboxconf::LoadGameConf(launcher.places, request.folder, launcher.options).report);
    }
    return dosboxconf::ComposeDosboxConf(facts, launcher.options);
}

void RunGame(Launcher& launcher)
{
    const QString folder = launcher.current.CurrentFolder;
    if (launcher.flags.JobHeld || !platform::IsPlainName(folder)) {
        return;
    }
    if (!library::HasGameFolder(launcher, folder) || IsPacked(launcher, folder)) {
        return;
    }
    // A moving selection is a step ahead of what the controls hold.
    if (launcher.screens.details.folder != folder) {
        library::ShowinfoProcess(launcher);
    }
    const RunRequest request = RequestOf(launcher, RunMode::Game);
    const QString build = dosboxconf::ReadGameBuild(launcher.places, folder, launcher.options);
    switch (BranchOf(request.mode, build, request.startCommands.size())) {
    case RunBranch::Dos: LaunchDosbox(launcher, request, build); break;
    case RunBranch::AskForPrompt: OfferDosPrompt(launcher); break;
    case RunBranch::NoSuchBuild:
        shell::TellNote(
            launcher,
            kCategory,
            launcher.lang.OwnText(
                344, u"<1>: its settings name a build that is not in the list."_s, {folder}));
        break;
    default:
        shell::TellNote(
            launcher,
            kCategory,
            launcher.lang.OwnText(
                345, u"<1>: games of <2> can't be started yet."_s, {folder, build}));
    }
}

shell::MenuModel RunMenu(const Launcher& launcher)
{
    const QStringList title{shell::MenuTitle(launcher.current.CurrentTitle)};
    const bool windowsGame =
        launcher.options.SelectedText(dosboxconf::kDirectXCell) == u"Windows"_s;
    const bool hasGame = !launcher.current.CurrentFolder.isEmpty();
    // What can't be started yet is shown, so that the menu keeps its places.
    shell::MenuModel menu{
        {0, launcher.lang.OwnText(346, u"Run a random game"_s), false},
        {1, QString(), false, true},
        {2, launcher.lang.Text(140, title), hasGame},
        {3, launcher.lang.Text(windowsGame ? 255 : 141, title), false},
        {4, QString(), false, true},
        {5, launcher.lang.Text(142, title), false},
        {6, launcher.lang.Text(143, title), false},
        {7, QString(), false, true},
        {8, launcher.lang.OwnText(347, u"DOS prompt over all games"_s), false},
        {9, QString(), false, true},
    };
    for (int i = 0; i < shell::kRecentGames; ++i) {
        const auto slot = static_cast<std::size_t>(i);
        if (launcher.recent.RecentFolders[slot].isEmpty()) {
            break;
        }
        menu.push_back({kFirstRecent + i, shell::MenuTitle(launcher.recent.RecentTitles[slot])});
    }
    return menu;
}

void mnuRun_Click(Launcher& launcher, int index)
{
    constexpr int kRunGame = 2;
    if (index == kRunGame) {
        RunGame(launcher);
        return;
    }
    const bool isRecent = index >= kFirstRecent && index < kFirstRecent + shell::kRecentGames;
    if (!isRecent || launcher.flags.JobHeld) {
        return;
    }
    const auto slot = static_cast<std::size_t>(index - kFirstRecent);
    const QString folder = launcher.recent.RecentFolders[slot];
    const QString title = launcher.recent.RecentTitles[slot];
    if (!platform::IsPlainName(folder) ||
        !archives::FolderExists(launcher.places.GameDir(folder))) {
        return;
    }
    launcher.current.CurrentFolder = folder;
    launcher.current.CurrentTitle = title;
    library::ShowinfoProcess(launcher);
    RunGame(launcher);
}

} // namespace pelorin::running
