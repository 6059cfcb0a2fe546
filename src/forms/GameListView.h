#pragma once

#include "finding/TypeAhead.h"
#include "forms/Deeds.h"
#include "forms/EmptyListText.h"
#include "forms/GameListModel.h"
#include "forms/HookedView.h"
#include "forms/Listening.h"
#include "forms/Shown.h"

#include <QElapsedTimer>
#include <QItemSelectionModel>
#include <QListView>
#include <QStackedWidget>
#include <QTimer>
#include <QTreeView>

#include <cstdint>
#include <functional>

namespace pelorin::forms {

class CellDelegate;

/// LVGamelist: the games as icons or list in one view, as details in another. Both show the same
/// rows and share one selection, so that a change of view keeps it.
class GameListView : public QStackedWidget {
public:
    GameListView(const Shown& shown, const Deeds& deeds, QWidget* parent = nullptr);
    ~GameListView() override;

    /// The view on top, which has the keyboard when the list has it.
    QAbstractItemView* View() const;
    /// Called when the list has taken another view.
    void SetViewModeListener(std::function<void()> listener)
    {
        m_viewModeShown = std::move(listener);
    }
    /// Takes the words of the empty list and of accessibility anew.
    void TakeTexts();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    ViewHooks Hooks();
    void BuildViews();
    void Prepare(QAbstractItemView& view);
    void Follow(std::uint32_t changed);
    void ShowViewMode();
    void ShowColumns();
    void ShowSelection();
    void TakeSelection();
    void TakeColumnWidths();
    void Settle();
    bool KeyPressed(const QKeyEvent& event);
    void KeyReleased(const QKeyEvent& event);
    void MouseReleased(const QMouseEvent& event);
    void FocusLost();
    void MenuKeyPressed();
    void Composed(const QInputMethodEvent& event);
    void SelectByUser(int row);
    void ShowGameMenu(QPoint position);
    void ShowEmpty();

    Shown m_shown;
    const Deeds& m_deeds;
    finding::GameList& m_list;
    GameListModel m_model;
    QItemSelectionModel m_selection;
    CellDelegate* m_cells;
    HookedView<QListView>* m_icons;
    HookedView<QTreeView>* m_details;
    finding::TypeAhead m_typeAhead;
    QElapsedTimer m_clock;
    QTimer m_settle;          // until the release of a key that is held, or without one
    bool m_moved = false;     // the selection is not settled yet
    bool m_settled = false;   // it is since the last press of a key
    bool m_deleting = false;  // the Delete key is down
    bool m_following = false; // the program changes the views, not the user
    EmptyListText m_empty;
    std::function<void()> m_viewModeShown;
    Listening m_listening;
};

} // namespace pelorin::forms
