#pragma once

#include "forms/Deeds.h"
#include "forms/Listening.h"
#include "forms/Shown.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <array>
#include <cstdint>

namespace pelorin::forms {

/// The four facts of a game, to be chosen or typed. Opens and closes when its model tells so.
class frmConfigDetail : public QDialog {
public:
    frmConfigDetail(const Shown& shown, const Deeds& deeds, QWidget* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Build();
    void BuildBoxes();
    void BuildButtons();
    void Follow(std::uint32_t changed);
    void TakeTexts();
    void ShowBoxes();
    void GoOn(int box);

    Shown m_shown;
    const Deeds& m_deeds;
    std::array<QLabel*, 4> m_lblCombo1{};
    std::array<QComboBox*, 4> m_Combo1{};
    std::array<QPushButton*, 3> m_Command{}; // save, cancel, delete
    bool m_showing = false;                  // the program changes the boxes, not the user
    Listening m_listening;
};

} // namespace pelorin::forms
