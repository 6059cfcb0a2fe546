#pragma once

#include "forms/TextListModel.h"
#include "forms/pages/Page.h"

#include <QComboBox>
#include <QStringList>

namespace pelorin::forms {

/// picInfo(2): the option grid as a pair of lists, for the tabs 3 and 4. It only shows yet.
class ConfigPage : public Page {
public:
    ConfigPage(const Shown& shown, const Deeds& deeds, QWidget* parent);

    void ComeOnTop(int tab) override;

private:
    QWidget* BuildLists();
    QLayout* BuildCommands();
    void ShowGroups();
    void ShowRows();

    Shown m_shown;
    QComboBox* m_cmbConfigSub = nullptr;
    QStringList m_titles;
    QStringList m_values;
    int m_titleRow = 0;
    int m_valueRow = 0;
    RowList* m_lstConfigTitle = nullptr;
    RowList* m_lstConfig = nullptr;
};

} // namespace pelorin::forms
