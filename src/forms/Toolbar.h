#pragma once

#include "forms/Deeds.h"
#include "forms/Listening.h"
#include "forms/Shown.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

#include <cstdint>

namespace pelorin::forms {

/// The row of buttons over the list. Its controls keep to the left, so that cmdVespra's right edge
/// does not move with the window: it makes the smallest width.
class Toolbar : public QWidget {
public:
    Toolbar(const Shown& shown, const Deeds& deeds, QWidget* parent = nullptr);

    /// Kept free for picAddGame.
    QWidget* AddGamePlace() const { return m_addGamePlace; }
    /// What stands before it.
    QWidget* BeforeAddGame() const { return m_cmdFind; }
    QWidget* Vespra() const { return m_cmdVespra; }
    /// Where cmdVespra stands once the row has the room that it needs.
    int VespraLeft() const;
    QLineEdit* Find() const { return m_txtFind; }
    void ShowViewMode();
    void ShowTitlePicture();
    void ShowSite();
    /// Texts that are made of several entries.
    void TakeTexts();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Dress(QToolButton& button, const QString& name, const QString& picture);
    QToolButton* AddButton(const QString& name, const QString& picture, const Deeds::Deed& deed);
    QToolButton* AddMenuButton(const QString& name, const QString& picture);
    void AddRunButtons();
    void AddViewButtons();
    void AddFind();
    void FollowSearch(std::uint32_t changed);
    void KeyReleased(bool inBox, int key) const;
    void AddGap();

    Shown m_shown;
    const Deeds& m_deeds;
    QHBoxLayout* m_row;
    QButtonGroup m_optViewmode;
    QToolButton* m_cmdOpenFolder = nullptr;
    QToolButton* m_picture2 = nullptr;
    QLineEdit* m_txtFind = nullptr;
    QToolButton* m_cmdFind = nullptr;
    int m_pressed = 0; // the key that is down in the box or on the button
    QWidget* m_addGamePlace = nullptr;
    QToolButton* m_cmdVespra = nullptr;
    Listening m_listening;
};

} // namespace pelorin::forms
