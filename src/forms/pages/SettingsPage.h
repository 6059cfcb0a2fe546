#pragma once

#include "forms/Listening.h"
#include "forms/pages/Page.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <array>

namespace pelorin::forms {

/// picInfo(4): where the emulator's window goes, the upkeep of the library, the keys.
class SettingsPage : public Page {
public:
    SettingsPage(const Shown& shown, const Deeds& deeds, QWidget* parent);

    void TakeTexts() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* BuildPosition();
    QLayout* BuildNudges();
    QLayout* BuildDelay();
    QLayout* BuildUpkeep();
    QLayout* BuildKeys();
    void Follow();

    Shown m_shown;
    const Deeds& m_deeds;
    std::array<QLineEdit*, 2> m_txtDosboxPos{};
    std::array<QAbstractButton*, 4> m_cmdMoveDosbox{};
    QCheckBox* m_chkDosboxMove = nullptr;
    QComboBox* m_cmbDosboxMove = nullptr;
    Listening m_listening;
};

} // namespace pelorin::forms
