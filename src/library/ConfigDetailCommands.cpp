#include "library/ConfigDetailCommands.h"

#include "finding/TreeNodes.h"
#include "library/Catalogue.h"
#include "library/CatalogueCommands.h"
#include "library/ConfigDetail.h"
#include "library/GameFiles.h"
#include "library/GameInfo.h"
#include "platform/Prompts.h"
#include "platform/TextFile.h"
#include "shell/FolderCfgCommands.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"
#include "shell/LossCommands.h"

using namespace Qt::StringLiterals;

namespace pelorin::library {

using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.library";

/// The categories of the tree whose values each box suggests.
constexpr std::array<finding::Category, 4> kSuggested{
    finding::Category::Maker,
    finding::Category::Release,
    finding::Category::GameLanguage,
    finding::Category::Country};

std::array<QString, 4> TextsOf(const Facts& facts)
{
    return {facts.Maker, facts.Release, facts.GameLanguage, facts.Country};
}

/// The texts as the file gives them back.
Facts FactsOf(const std::array<QString, 4>& texts)
{
    std::array<QString, 4> kept;
    for (std::size_t i = 0; i < kept.size(); ++i) {
        const platform::Encoded encoded = platform::EncodeCp949(CleanField(texts[i]));
        kept[i] = platform::DecodeCp949(encoded.bytes);
    }
    return Facts{kept[0], kept[1], kept[2], kept[3]};
}

QString LostIn(const std::array<QString, 4>& texts)
{
    return platform::EncodeCp949(texts[0] + texts[1] + texts[2] + texts[3]).lost;
}

void ShowFacts(Launcher& launcher, const QString& folder, const Facts& facts)
{
    const platform::RedrawLock lock(launcher.screens.gate);
    const int position = PositionOf(launcher.catalogue, folder);
    if (position < 0) {
        return;
    }
    launcher.catalogue.Edit(position, [&](GameEntry& entry) {
        entry.Maker = facts.Maker;
        entry.Release = facts.Release;
        entry.GameLanguage = facts.GameLanguage;
        entry.Country = facts.Country;
    });
    finding::RefillValueNodes(launcher.screens.tree, launcher.catalogue);
    ShowGameEntry(launcher, folder);
}

void Close(ConfigDetail& dialog)
{
    dialog.folder.clear();
    dialog.changed.Tell(ConfigDetail::Close);
}

/// A file that already says so is left alone.
platform::Done Store(Launcher& launcher, const QString& folder, const Facts& facts)
{
    GameFiles files = ListGame(launcher.places, folder);
    const bool same = TextsOf(ReadFacts(files)) == TextsOf(facts);
    return same && files.HasMetaFile(kFactsFile) ? platform::Success() : WriteFacts(files, facts);
}

/// What games have in each category by now.
void OfferValues(Launcher& launcher)
{
    ConfigDetail& dialog = launcher.screens.configDetail;
    for (std::size_t i = 0; i < kSuggested.size(); ++i) {
        dialog.values[i] = finding::ChildTexts(launcher.screens.tree, kSuggested[i]);
    }
}

} // namespace

void OpenDetails(Launcher& launcher)
{
    const QString folder = launcher.current.CurrentFolder;
    if (launcher.flags.JobHeld || PositionOf(launcher.catalogue, folder) < 0) {
        return;
    }
    ConfigDetail& dialog = launcher.screens.configDetail;
    dialog.folder = folder;
    dialog.title = launcher.current.CurrentTitle;
    dialog.Combo1 = TextsOf(ReadFacts(ListGame(launcher.places, folder)));
    OfferValues(launcher);
    dialog.changed.Tell(ConfigDetail::Open | ConfigDetail::Texts);
}

void SaveDetails(Launcher& launcher)
{
    ConfigDetail& dialog = launcher.screens.configDetail;
    const QString folder = dialog.folder;
    const std::array<QString, 4> texts = dialog.Combo1;
    if (folder.isEmpty() || shell::ShowsFormerRoot(launcher) ||
        !shell::MayLose(launcher, LostIn(texts))) {
        return;
    }
    const Facts facts = FactsOf(texts);
    if (const platform::Done stored = Store(launcher, folder, facts); !stored) {
        shell::TellNote(launcher, kCategory, stored.Failure());
        return;
    }
    ShowFacts(launcher, folder, facts);
    Close(dialog);
}

void DeleteDetails(Launcher& launcher)
{
    ConfigDetail& dialog = launcher.screens.configDetail;
    const QString folder = dialog.folder;
    if (shell::ShowsFormerRoot(launcher)) {
        return;
    }
    const platform::Answer answer = launcher.ports.prompts.Ask(platform::MessageBox{
        launcher.lang.OwnText(444, u"The details will be deleted."_s),
        launcher.lang.OwnText(443, u"Delete details"_s),
        platform::Buttons::YesNo,
        platform::BoxIcon::Question});
    if (folder.isEmpty() || answer != platform::Answer::Yes) {
        return;
    }
    GameFiles files = ListGame(launcher.places, folder);
    if (const platform::Done gone = DeleteFacts(files); !gone) {
        shell::TellNote(launcher, kCategory, gone.Failure());
        return;
    }
    ShowFacts(launcher, folder, Facts{});
    dialog.Combo1 = {};
    OfferValues(launcher);
    dialog.changed.Tell(ConfigDetail::Texts);
}

} // namespace pelorin::library
