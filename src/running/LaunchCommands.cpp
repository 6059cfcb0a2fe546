#include "running/LaunchCommands.h"

#include "dosboxconf/ConfFiles.h"
#include "dosboxconf/ConfReportCommands.h"
#include "dosboxconf/EditorCommands.h"
#include "platform/Desktop.h"
#include "platform/Paths.h"
#include "platform/ProgramHost.h"
#include "platform/TextFile.h"
#include "running/DosboxLaunch.h"
#include "running/GlideIni.h"
#include "running/GuestWindows.h"
#include "running/LaunchStory.h"
#include "running/PlacementCommands.h"
#include "running/RunPlan.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"
#include "shell/RecentFile.h"

#include <QFileInfo>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::running {

using platform::HostText;
using platform::Outcome;
using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.running";

/// A start ready to go: what to run, and the text that lies in its folder as dosbox.conf.
struct Launch {
    bool glideOn = false;                      // glide.ini is to be rewritten
    Outcome<platform::ProcessRequest> request; // or why there is no program
    QString confPath;
    QByteArray confBytes;
    QString confShown;
    QList<platform::Wording> notes;
};

Emulator FindEmulator(const Launcher& launcher, RunMode mode, const QString& build)
{
    const CommandLine command = DosboxCommandLine(launcher.options);
    const QString folder = launcher.places.InAppDir(u"DOSBox/"_s + ConfigFolder(mode, build));
    const QString asked = platform::ResolvePath(folder, command.program);
    const platform::ProgramHost host(launcher.places.appDir, launcher.searchPath);
    Emulator emulator{folder, command.arguments, host.Find(asked), platform::PathForm::Posix};
    if (emulator.program) {
        emulator.pathForm = emulator.program.Value().pathForm;
    } else if (QFileInfo::exists(asked)) {
        emulator.pathForm = platform::PathForm::Windows; // that can't be run here
    }
    return emulator;
}

/// By the grid as it is and the keyboard's NumLock.
RunEnding EndingOf(const Launcher& launcher, const RunRequest& request, const QString& build)
{
    RunEnding ending{request.mode, request.startCommands, request.typedLine, false, {}};
    ending.addkey = WantsAddkey(
        request.mode,
        launcher.options,
        launcher.places.gamesRoot,
        launcher.ports.desktop.NumLockOn());
    if (BranchOf(request.mode, build, request.startCommands.size()) == RunBranch::GuestWindows) {
        ending.guestLines = GuestWindowsLines(request, build, launcher.places);
    }
    return ending;
}

void LoadSettings(Launcher& launcher, const RunRequest& request)
{
    const bool ofAllGames = request.mode == RunMode::LibraryShell;
    dosboxconf::TellReport(
        launcher,
        dosboxconf::LoadGameConf(
            launcher.places, ofAllGames ? QString() : request.folder, launcher.options)
            .report);
}

/// Writes nothing. A missing program is no error yet.
Outcome<Launch> PrepareLaunch(Launcher& launcher, const RunRequest& request, const QString& build)
{
    LoadSettings(launcher, request);
    const Outcome<ComposedStart> composed = ComposeStart(launcher, request, build);
    if (!composed) {
        return composed.Failure();
    }
    const auto& [emulator, text, glideOn] = composed.Value();
    const platform::PathForm form = emulator.pathForm;
    Launch launch{
        glideOn,
        platform::ProcessRequest(),
        platform::ResolvePath(emulator.folder, u"dosbox.conf"_s),
        text.Print(form),
        text.Preview(form),
        LaunchNotes(request, build, text, form)};
    if (emulator.program) {
        launch.request = emulator.program.Value().Request(
            emulator.arguments, emulator.folder, ShowStateOf(request.mode));
    } else {
        launch.request = emulator.program.Failure();
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

void WriteAndStart(Launcher& launcher, const RunRequest& request, const QString& build)
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
    if (launch.glideOn) {
        shell::TellIfFailed(launcher, kCategory, WriteGlideIni(launcher.places, launcher.options));
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
    StartPlacementTimer(launcher);
    if (EntersRecentList(request.mode)) {
        shell::AddRecent(launcher.recent, request.folder, request.title);
    }
}

} // namespace

Outcome<dosboxconf::ConfText> BuildDosboxConf(
    Launcher& launcher, const RunRequest& request, const QString& build)
{
    if (const platform::Done possible = CheckRequest(request, build); !possible) {
        return possible.Failure();
    }
    LoadSettings(launcher, request);
    return dosboxconf::ComposeDosboxConf(
        dosboxconf::LoadRunFacts(launcher.places, ConfRequestOf(request, build)), launcher.options);
}

Outcome<ComposedStart> ComposeStart(
    const Launcher& launcher, const RunRequest& request, const QString& build)
{
    if (const platform::Done possible = CheckRequest(request, build); !possible) {
        return possible.Failure();
    }
    Emulator emulator = FindEmulator(launcher, request.mode, build);
    const platform::PathForm form = emulator.pathForm;
    if (const platform::Done possible = CheckCommands(request, build, form); !possible) {
        return possible.Failure();
    }
    const dosboxconf::RunFacts facts =
        dosboxconf::LoadRunFacts(launcher.places, ConfRequestOf(request, build));
    const dosboxconf::ConfText composed = dosboxconf::ComposeDosboxConf(facts, launcher.options);
    HostText text = FinishRunText(composed.text, EndingOf(launcher, request, build));
    if (const platform::Done fits = CheckLaunch(facts, text, form); !fits) {
        return fits.Failure();
    }
    return ComposedStart{std::move(emulator), std::move(text), composed.glideOn};
}

void LaunchDosbox(Launcher& launcher, const RunRequest& request, const QString& build)
{
    const std::optional<dosboxconf::Selection> edits = dosboxconf::UnsavedEdits(launcher);
    WriteAndStart(launcher, request, build);
    // The start has loaded what it needs into the grid.
    if (edits) {
        dosboxconf::ShowEdits(launcher, *edits);
    } else if (dosboxconf::ShowsConfigPage(launcher)) {
        dosboxconf::ShowConfigPage(launcher);
    }
}

} // namespace pelorin::running
