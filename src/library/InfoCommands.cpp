#include "library/InfoCommands.h"

#include "library/Catalogue.h"
#include "library/CatalogueCommands.h"
#include "library/Drafts.h"
#include "library/GameFiles.h"
#include "platform/Paths.h"
#include "platform/Prompts.h"
#include "shell/FolderCfgCommands.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"
#include "shell/LossCommands.h"
#include "shell/NameList.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::library {

using shell::DetailsPanel;
using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.library";

InfoDraft TypedDraft(const DetailsPanel& details)
{
    const InfoText typed{{details.txtTitle[0], details.txtTitle[1]}, details.txtInfo};
    return DraftOf(details.savedInfo, typed);
}

void FillBoxes(DetailsPanel& details, const InfoText& text)
{
    details.txtTitle = {text.titles.first, text.titles.second};
    details.txtInfo = text.description;
}

enum class Saved { Yes, Refused, Failed };

/// Saves a draft over what the file has by now. `failure` says why it failed.
Saved SaveDraft(
    Launcher& launcher, const QString& folder, const InfoChange& change, platform::Error& failure)
{
    if (shell::ShowsFormerRoot(launcher) || !shell::MayLose(launcher, LostInInfo(change))) {
        return Saved::Refused;
    }
    // Window events ran: the folder is looked at as it is now.
    GameFiles files = ListGame(launcher.places, folder);
    if (const platform::Done written = WriteInfo(files, change, Loss::Accept); !written) {
        failure = written.Failure();
        return Saved::Failed;
    }
    launcher.drafts.erase(folder);
    return Saved::Yes;
}

QString TitleOfFolder(const Launcher& launcher, const QString& folder)
{
    const int position = PositionOf(launcher.catalogue, folder);
    if (position < 0) {
        return folder;
    }
    const GameEntry& entry = launcher.catalogue[static_cast<std::size_t>(position)];
    return DisplayTitle(entry, launcher.settings.TitleLanguageKorean);
}

QString QuestionAboutDrafts(const Launcher& launcher)
{
    QStringList titles;
    for (const auto& [folder, draft] : launcher.drafts) {
        titles << TitleOfFolder(launcher, folder);
    }
    const QStringList lines =
        QStringList{
            launcher.lang.OwnText(435, u"Titles or descriptions that are not saved:"_s),
            QString()} +
        shell::FirstNames(titles, launcher.lang) +
        QStringList{QString(), launcher.lang.OwnText(437, u"Save them?"_s)};
    return lines.join(u'\n');
}

} // namespace

void ShowInfo(Launcher& launcher, const GameFiles& files)
{
    DetailsPanel& details = launcher.screens.details;
    details.savedInfo = ReadInfo(files);
    const auto draft = launcher.drafts.find(files.folder);
    const bool drafted =
        draft != launcher.drafts.end() && details.savedInfo.state == InfoState::Whole;
    FillBoxes(details, drafted ? DraftOver(details.savedInfo, draft->second) : details.savedInfo);
    details.draft = drafted;
    details.changed.Tell(DetailsPanel::Texts | DetailsPanel::Draft);
}

void Info_Change(Launcher& launcher)
{
    DetailsPanel& details = launcher.screens.details;
    if (!MayEditInfo(details, launcher.settings)) {
        return;
    }
    const InfoDraft draft = TypedDraft(details);
    KeepDraft(launcher.drafts, details.folder, draft);
    if (details.draft == draft.IsEmpty()) {
        details.draft = !draft.IsEmpty();
        details.changed.Tell(DetailsPanel::Draft);
    }
}

void Info_Esc(Launcher& launcher, int box)
{
    DetailsPanel& details = launcher.screens.details;
    switch (box) {
    case 0: details.txtTitle[0] = details.savedInfo.titles.first; break;
    case 1: details.txtTitle[1] = details.savedInfo.titles.second; break;
    default: details.txtInfo = details.savedInfo.description; break;
    }
    details.changed.Tell(DetailsPanel::Texts);
    Info_Change(launcher);
}

void WriteGameInfo(Launcher& launcher)
{
    DetailsPanel& details = launcher.screens.details;
    const QString folder = details.folder; // the boxes are its, wherever the selection is by now
    if (!platform::IsPlainName(folder)) {
        return;
    }
    platform::Error failure;
    // Over the file as it is by now: another program may have changed what was not typed into.
    const InfoChange change =
        ChangeOf(ReadInfo(ListGame(launcher.places, folder)), TypedDraft(details));
    switch (SaveDraft(launcher, folder, change, failure)) {
    case Saved::Yes:
        if (details.folder == folder) {
            ShowInfo(launcher, ListGame(launcher.places, folder));
        }
        break;
    case Saved::Failed: shell::TellNote(launcher, kCategory, failure); break;
    case Saved::Refused: break;
    }
}

void cmdSaveInfo_Click(Launcher& launcher)
{
    if (launcher.screens.list.items.empty() || launcher.flags.JobHeld) {
        return;
    }
    const QString folder =
        launcher.screens.details.folder; // by value: the refresh may show another
    WriteGameInfo(launcher);
    RefreshGameEntry(launcher, folder);
}

std::optional<QStringList> SettleDrafts(Launcher& launcher)
{
    if (launcher.drafts.empty()) {
        return QStringList();
    }
    const platform::Answer answer = launcher.ports.prompts.Ask(platform::MessageBox{
        QuestionAboutDrafts(launcher),
        launcher.lang[1],
        platform::Buttons::SaveDiscardCancel,
        platform::BoxIcon::Question});
    if (answer == platform::Answer::Cancel) {
        return std::nullopt;
    }
    QStringList failures;
    if (answer == platform::Answer::Discard) {
        return failures;
    }
    const Drafts drafts = launcher.drafts; // a copy: each question lets window events run
    for (const auto& [folder, draft] : drafts) {
        const InfoText saved = ReadInfo(ListGame(launcher.places, folder));
        platform::Error failure;
        switch (SaveDraft(launcher, folder, ChangeOf(saved, draft), failure)) {
        case Saved::Yes:
            RereadGameEntry(launcher, folder);
            if (launcher.screens.details.folder == folder) {
                ShowInfo(launcher, ListGame(launcher.places, folder));
            }
            break;
        case Saved::Failed: failures << launcher.lang.Told(failure.Told()); break;
        case Saved::Refused: return std::nullopt;
        }
    }
    return failures;
}

void ForgetDrafts(Launcher& launcher)
{
    DetailsPanel& details = launcher.screens.details;
    launcher.drafts.clear();
    FillBoxes(details, details.savedInfo);
    details.draft = false;
    details.changed.Tell(DetailsPanel::Texts | DetailsPanel::Draft);
}

} // namespace pelorin::library
