#pragma once

#include "forms/Listening.h"
#include "forms/TextListModel.h"
#include "forms/pages/Page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QStackedWidget>

#include <array>

namespace pelorin::forms {

class ConfPreviewPart;
class ValueCombo;

/// picInfo(2), for the tabs 3 and 4: the options of a group with their values, or what a game sets
/// differently; below, the description of the option chosen and the text that a start would write.
class ConfigPage : public Page {
public:
    ConfigPage(const Shown& shown, const Deeds& deeds, QWidget* parent);

    void TakeTexts() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* BuildHead();
    QWidget* BuildLists();
    QWidget* BuildDifferences();
    QWidget* BuildMessage();
    QLayout* BuildCommands();
    void ClickValue(int row);
    void Follow(std::uint32_t changed);
    void ShowState();
    void ShowRows();
    void ShowChosen();

    Shown m_shown;
    const Deeds& m_deeds;
    QComboBox* m_cmbConfigSub = nullptr;
    QLabel* m_lblConfigSub = nullptr;
    QCheckBox* m_chkEditConfig = nullptr;
    QStackedWidget* m_stack = nullptr; // lists, differences, message, nothing
    RowList* m_lstConfigTitle = nullptr;
    RowList* m_lstConfig = nullptr;
    ValueCombo* m_cmbConfig = nullptr;
    std::array<RowList*, 3> m_lstEdit{};
    std::array<QAbstractButton*, 4> m_commands{}; // save, delete, open preset, save preset
    QPlainTextEdit* m_txtDesc = nullptr;
    ConfPreviewPart* m_preview = nullptr;
    Listening m_listening;
};

} // namespace pelorin::forms
