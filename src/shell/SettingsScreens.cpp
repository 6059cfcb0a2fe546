#include "shell/SettingsScreens.h"

namespace pelorin::shell {

void ShowSettings(const LauncherCfg& cfg, const SettingsTargets& targets)
{
    targets.places.gamesRoot = cfg.gamesRoot;
    targets.places.exportRoot = cfg.exportRoot;
    targets.settings.TitleLanguageKorean = cfg.titleLanguageKorean;

    finding::GameList& list = targets.screens.list;
    list.view = static_cast<finding::View>(cfg.view);
    list.columnWidths = cfg.columnWidths;
    list.changed.Tell(finding::GameList::ViewMode | finding::GameList::Columns);

    PlacementPanel& placement = targets.screens.placement;
    placement.txtDosboxPos = cfg.txtDosboxPos;
    placement.chkDosboxMove = cfg.chkDosboxMove;
    placement.cmbDosboxMove = cfg.cmbDosboxMove;
    placement.changed.Tell(PlacementPanel::All);

    MainFrame& frame = targets.screens.frame;
    frame.state = cfg.state;
    frame.left = cfg.left;
    frame.top = cfg.top;
    frame.width = cfg.width;
    frame.height = cfg.height;
    frame.changed.Tell(MainFrame::Geometry | MainFrame::TitlePicture);
}

LauncherCfg CollectSettings(const Screens& screens, const Settings& settings, const Places& places)
{
    LauncherCfg cfg;
    cfg.view = static_cast<int>(screens.list.view);
    cfg.state = screens.frame.state;
    cfg.left = screens.frame.left;
    cfg.top = screens.frame.top;
    cfg.width = screens.frame.width;
    cfg.height = screens.frame.height;
    cfg.gamesRoot = places.gamesRoot;
    cfg.exportRoot = places.exportRoot;
    cfg.txtDosboxPos = screens.placement.txtDosboxPos;
    cfg.chkDosboxMove = screens.placement.chkDosboxMove;
    cfg.cmbDosboxMove = screens.placement.cmbDosboxMove;
    cfg.columnWidths = screens.list.columnWidths;
    cfg.titleLanguageKorean = settings.TitleLanguageKorean;
    return cfg;
}

} // namespace pelorin::shell
