#include "forms/pages/ConfigPage.h"

#include "dosboxconf/ConfFiles.h"
#include "forms/Metrics.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

ConfigPage::ConfigPage(const Shown& shown, const Deeds&, QWidget* parent)
    : Page(parent)
    , m_shown(shown)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap(*this));
    m_cmbConfigSub = new QComboBox(this);
    m_cmbConfigSub->setObjectName(u"cmbConfigSub"_s);
    m_cmbConfigSub->setMaxVisibleItems(dosboxconf::kGroups);
    m_cmbConfigSub->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    // Screen readers call a combo box by its label alone.
    auto* caption = new QLabel(this);
    caption->setObjectName(u"lblConfigSub"_s);
    caption->setBuddy(m_cmbConfigSub);
    auto* head = new QHBoxLayout;
    head->addWidget(caption);
    head->addWidget(m_cmbConfigSub, 1);
    column->addLayout(head);
    column->addWidget(BuildLists(), 5);
    auto* txtDesc = new QPlainTextEdit(this);
    txtDesc->setObjectName(u"txtDesc"_s);
    txtDesc->setReadOnly(true);
    txtDesc->setTabChangesFocus(true);
    txtDesc->setEnabled(false);
    column->addWidget(txtDesc, 2);
    column->addLayout(BuildCommands());
    ShowGroups();
    connect(m_cmbConfigSub, &QComboBox::currentIndexChanged, this, [this] { ShowRows(); });
}

QWidget* ConfigPage::BuildLists()
{
    auto* pair = new QWidget(this);
    auto* row = new QHBoxLayout(pair);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Gap(*this) / 2);
    m_lstConfigTitle = new RowList(m_titles, m_titleRow, pair);
    m_lstConfigTitle->setObjectName(u"lstConfigTitle"_s);
    m_lstConfig = new RowList(m_values, m_valueRow, pair);
    m_lstConfig->setObjectName(u"lstConfig"_s);
    row->addWidget(m_lstConfigTitle, 3);
    row->addWidget(m_lstConfig, 2);
    const auto link = [](RowList* from, RowList* to, int& toRow, const QStringList& rows) {
        from->SetRowChosen([to, &toRow, &rows](int chosen) {
            if (chosen < rows.size()) {
                toRow = chosen;
                to->ShowRow();
            }
        });
        from->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
        QObject::connect(
            from->verticalScrollBar(),
            &QScrollBar::valueChanged,
            to->verticalScrollBar(),
            &QScrollBar::setValue);
    };
    link(m_lstConfigTitle, m_lstConfig, m_valueRow, m_values);
    link(m_lstConfig, m_lstConfigTitle, m_titleRow, m_titles);
    return pair;
}

QLayout* ConfigPage::BuildCommands()
{
    auto* grid = new QGridLayout;
    grid->setSpacing(Gap(*this) / 2);
    auto* chkEditConfig = new QCheckBox(this);
    chkEditConfig->setObjectName(u"chkEditConfig"_s);
    chkEditConfig->hide(); // no editing yet
    grid->addWidget(chkEditConfig, 0, 0, 1, 2);
    grid->addWidget(AddPush(u"cmdSaveConfig"_s, false), 1, 0);
    grid->addWidget(AddPush(u"cmdDeleteConfig"_s, false), 1, 1);
    grid->addWidget(AddPush(u"cmdOpenPreset"_s, false), 2, 0);
    grid->addWidget(AddPush(u"cmdSavePreset"_s, false), 2, 1);
    return grid;
}

void ConfigPage::ComeOnTop(int)
{
    // The grid belongs to whoever loaded it last, so it is shown as it is now.
    ShowGroups();
    ShowRows();
}

void ConfigPage::ShowGroups()
{
    const QStringList& groups = m_shown.options.GroupCaption;
    if (m_cmbConfigSub->count() == groups.size()) {
        return;
    }
    m_cmbConfigSub->clear();
    m_cmbConfigSub->addItems(groups);
}

void ConfigPage::ShowRows()
{
    const dosboxconf::OptionGrid& grid = m_shown.options;
    const int group = m_cmbConfigSub->currentIndex();
    m_titles.clear();
    m_values.clear();
    for (int item = 0; group >= 0 && item < dosboxconf::kItems; ++item) {
        const dosboxconf::Cell cell{group, item};
        if (grid.Title(cell).isEmpty()) {
            break;
        }
        m_titles << grid.Title(cell);
        m_values << dosboxconf::ShownValue(grid, cell, grid.Selected(cell));
    }
    m_titleRow = m_titles.isEmpty() ? -1 : 0;
    m_valueRow = m_titleRow;
    m_lstConfigTitle->ShowRows();
    m_lstConfig->ShowRows();
}

} // namespace pelorin::forms
