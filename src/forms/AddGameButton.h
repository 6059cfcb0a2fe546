#pragma once

#include "forms/Deeds.h"

#include <QToolButton>

namespace pelorin::forms {

/// picAddGame: takes files and folders dropped on it; the left button asks for an address, the
/// right one opens a menu. It stays usable while the panels are not, so it is no child of theirs:
/// it stands over a place that the toolbar keeps free for it.
class AddGameButton : public QToolButton {
public:
    AddGameButton(const Deeds& deeds, QWidget* parent);

    /// The widget whose place it takes; `place` lies in a widget beside this one.
    void StandOver(QWidget* place);
    /// By the language of the texts.
    void ShowPicture(bool korean);
    /// Once its text is known: the place is as large as it wants to be.
    void TakeSize();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void Follow();

    const Deeds& m_deeds;
    QWidget* m_place = nullptr;
};

} // namespace pelorin::forms
