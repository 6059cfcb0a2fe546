#include "running/PreviewCommands.h"

#include "library/TitleMarks.h"
#include "platform/Paths.h"
#include "running/LaunchCommands.h"
#include "running/RunPlan.h"
#include "shell/Launcher.h"

#include <QFileInfo>

namespace pelorin::running {

namespace {

/// The title that the list will show once the edits of the page are saved: its marks tell of the
/// game's settings, and it names files.
QString TitleOnceSaved(const shell::Launcher& launcher)
{
    const dosboxconf::ConfigEditor& editor = launcher.screens.config;
    if (editor.saved == launcher.options.OptionSelection) {
        return launcher.current.CurrentTitle;
    }
    const shell::DetailsPanel& details = launcher.screens.details;
    library::MarkFacts marks = library::MarkFactsOf(
        library::ListGame(launcher.places, details.folder),
        static_cast<std::int16_t>(launcher.options.Selected(dosboxconf::kVersionCell)));
    marks.edited = marks.edited || launcher.screens.frame.tabInfo == dosboxconf::kGameTab;
    const auto& [korean, english] = details.savedInfo.titles;
    const QString& title = launcher.settings.TitleLanguageKorean ? korean : english;
    return library::MarkedTitle(library::DisplayTitle(title, details.folder), marks, launcher.lang);
}

} // namespace

platform::Outcome<QString> PreviewGameText(const shell::Launcher& launcher)
{
    RunRequest request;
    request.folder = launcher.screens.details.folder;
    request.title = TitleOnceSaved(launcher);
    request.startCommands = launcher.screens.start.lstAutoexec;
    request.cd = dosboxconf::ChoiceOf(launcher.screens.cd);
    const QString build = launcher.options.SelectedText(dosboxconf::kVersionCell);
    if (!platform::IsPlainName(request.folder) || build.isEmpty()) {
        return QString();
    }
    switch (BranchOf(request.mode, build, request.startCommands.size())) {
    case RunBranch::Dos:
    case RunBranch::GuestWindows: break;
    case RunBranch::AskForPrompt: request.mode = RunMode::DosPrompt; break;
    default: return QString();
    }
    const platform::Outcome<ComposedStart> start = ComposeStart(launcher, request, build);
    if (!start) {
        return start.Failure();
    }
    const Emulator& emulator = start.Value().emulator;
    if (!emulator.program && !QFileInfo(emulator.folder).isDir()) {
        return emulator.program.Failure(); // no folder to write into
    }
    return start.Value().text.Preview(emulator.pathForm);
}

} // namespace pelorin::running
