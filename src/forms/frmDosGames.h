#pragma once

#include "forms/Deeds.h"
#include "forms/Listening.h"
#include "forms/Shown.h"
#include "forms/WindowGeometry.h"

#include <QMainWindow>
#include <QShortcut>

#include <cstdint>

namespace pelorin::forms {

class AddGameButton;
class EmptyLibraryButton;
class FilterTreeView;
class GameListView;
class NoticeOverlay;
class ProgressOverlay;
class RightPanel;
class StatusPanels;
class Toolbar;
class frmConfigDetail;

/// The main window. It shows the screen models and hands what the user does to the deeds; it holds
/// no rule. It opens when the frame's model tells Show.
class frmDosGames : public QMainWindow {
public:
    /// All of it outlives the window. Which deeds are set is looked at here and when a page is
    /// first shown, so they are set before.
    frmDosGames(const Shown& shown, const Deeds& deeds);
    ~frmDosGames() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildLeft();
    void BuildKeys();
    void Follow(std::uint32_t changed);
    void FollowWindow(std::uint32_t changed);
    void ShowPanelsEnabled();
    void TakeTexts();
    void ShowMinimumSize();
    void PlaceOverlays();

    Shown m_shown;
    const Deeds& m_deeds;
    WindowGeometry m_geometry;
    QWidget* m_picBack0 = nullptr;
    Toolbar* m_toolbar = nullptr;
    FilterTreeView* m_tree = nullptr;
    GameListView* m_list = nullptr;
    ProgressOverlay* m_progress = nullptr;
    NoticeOverlay* m_notice = nullptr;
    EmptyLibraryButton* m_emptyLibrary = nullptr;
    AddGameButton* m_addGame = nullptr;
    RightPanel* m_picBack1 = nullptr;
    StatusPanels* m_status = nullptr;
    frmConfigDetail* m_configDetail = nullptr;
    QShortcut* m_refreshEmpty = nullptr; // F5 while the panels rest
    Listening m_listening;
    Listening m_panelsListening;
};

} // namespace pelorin::forms
