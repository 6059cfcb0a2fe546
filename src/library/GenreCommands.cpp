#include "library/GenreCommands.h"

#include "finding/TreeNodes.h"
#include "library/Catalogue.h"
#include "library/CatalogueCommands.h"
#include "library/GameFiles.h"
#include "platform/Paths.h"
#include "platform/Prompts.h"
#include "platform/TextFile.h"
#include "shell/FolderCfgCommands.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"
#include "shell/LossCommands.h"

#include <array>

using namespace Qt::StringLiterals;

namespace pelorin::library {

using shell::DetailsPanel;
using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.library";
constexpr int kNewGenre = 0;
constexpr int kFirstValue = 2;

/// Where one of the two genres stands.
struct GenrePlace {
    finding::Category category = finding::Category::GenreK;
    QString DetailsPanel::*label = nullptr;
    shell::GenreMenu DetailsPanel::*menu = nullptr;
    QString GameEntry::*field = nullptr;
};

const GenrePlace& PlaceOf(GenreFile which)
{
    static constexpr std::array<GenrePlace, 2> kPlaces{{
        {finding::Category::GenreK,
         &DetailsPanel::lblGenreK,
         &DetailsPanel::mnuGenreK,
         &GameEntry::GenreK},
        {finding::Category::GenreE,
         &DetailsPanel::lblGenreE,
         &DetailsPanel::mnuGenreE,
         &GameEntry::GenreE},
    }};
    return kPlaces[which == GenreFile::Korean ? 0 : 1];
}

/// What the file gives back of it, since the tree shows the same at the next start.
QString AsKept(const QString& genre)
{
    return platform::DecodeCp949(platform::EncodeCp949(genre).bytes);
}

void SetGenre(Launcher& launcher, const QString& folder, GenreFile which, const QString& genre)
{
    if (shell::ShowsFormerRoot(launcher)) {
        return;
    }
    GameFiles files = ListGame(launcher.places, folder);
    if (const platform::Done written = WriteGenre(files, which, genre); !written) {
        shell::TellNote(launcher, kCategory, written.Failure());
        return;
    }
    const platform::RedrawLock lock(launcher.screens.gate);
    const GenrePlace& place = PlaceOf(which);
    DetailsPanel& details = launcher.screens.details;
    if (details.folder == folder) {
        details.*place.label = genre;
        details.changed.Tell(DetailsPanel::Genres);
    }
    const int position = PositionOf(launcher.catalogue, folder);
    if (position >= 0) {
        launcher.catalogue.Edit(position, [&](GameEntry& entry) { entry.*place.field = genre; });
        finding::RefillValueNodes(launcher.screens.tree, launcher.catalogue);
        ShowGameEntry(launcher, folder);
    }
}

} // namespace

shell::MenuModel GenreMenu(Launcher& launcher, GenreFile which)
{
    DetailsPanel& details = launcher.screens.details;
    const GenrePlace& place = PlaceOf(which);
    shell::GenreMenu& menu = details.*place.menu;
    menu.folder = details.folder;
    menu.values = finding::ChildTexts(launcher.screens.tree, place.category);
    const bool usable = platform::IsPlainName(menu.folder);
    shell::MenuModel model{{kNewGenre, launcher.lang[67], usable}, {1, QString(), true, true}};
    for (qsizetype i = 0; i < menu.values.size(); ++i) {
        const QString& value = menu.values[i];
        const int index = kFirstValue + static_cast<int>(i);
        const bool present = value == details.*place.label;
        model.push_back({index, shell::MenuTitle(value), usable, false, present});
    }
    return model;
}

void mnuGenre_Click(Launcher& launcher, GenreFile which, int index)
{
    // By value: while the question stands, the menu may be filled for another game.
    const shell::GenreMenu menu = launcher.screens.details.*PlaceOf(which).menu;
    if (!platform::IsPlainName(menu.folder)) {
        return;
    }
    QString genre = menu.values.value(index - kFirstValue);
    if (index == kNewGenre) {
        genre = CleanField(
            launcher.ports.prompts.InputText(launcher.lang[35], launcher.lang[282], QString()));
        if (!shell::MayLose(launcher, platform::EncodeCp949(genre).lost)) {
            return;
        }
    }
    if (!finding::IsBlankValue(genre)) {
        SetGenre(launcher, menu.folder, which, AsKept(genre));
    }
}

} // namespace pelorin::library
