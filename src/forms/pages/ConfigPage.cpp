#include "forms/pages/ConfigPage.h"

#include "forms/Metrics.h"
#include "forms/pages/ConfPreviewPart.h"
#include "forms/pages/ValueCombo.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include <memory>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

using dosboxconf::ConfigEditor;

namespace {

/// Of the stack, in its order.
enum Part { Lists, Differences, Message, Nothing };

Part PartOf(const dosboxconf::ConfigPageState& page)
{
    if (page.lists) {
        return Lists;
    }
    if (page.picEdit) {
        return Differences;
    }
    return page.message ? Message : Nothing;
}

QHBoxLayout* RowOf(QWidget& part)
{
    auto* row = new QHBoxLayout(&part);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Gap(part) / 2);
    return row;
}

void ScrollTo(const std::vector<RowList*>& lists, int value)
{
    for (const RowList* const list : lists) {
        list->verticalScrollBar()->setValue(value);
    }
}

/// Lists side by side scroll together, as far as each has rows.
void ScrollTogether(const std::vector<RowList*>& lists)
{
    const auto following = std::make_shared<bool>(false);
    for (RowList* const moved : lists) {
        moved->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
        const QScrollBar* const bar = moved->verticalScrollBar();
        QObject::connect(bar, &QScrollBar::valueChanged, moved, [lists, following](int value) {
            // A shorter list stops before its end, and must not pull the longer one back.
            if (!std::exchange(*following, true)) {
                ScrollTo(lists, value);
                *following = false;
            }
        });
    }
}

} // namespace

ConfigPage::ConfigPage(const Shown& shown, const Deeds& deeds, QWidget* parent)
    : Page(parent)
    , m_shown(shown)
    , m_deeds(deeds)
    , m_listening(shown.screens.config.changed, [this](std::uint32_t changed) { Follow(changed); })
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap(*this));
    column->addLayout(BuildHead());
    m_stack = new QStackedWidget(this);
    m_stack->addWidget(BuildLists());
    m_stack->addWidget(BuildDifferences());
    m_stack->addWidget(BuildMessage());
    m_stack->addWidget(new QWidget(m_stack));
    column->addWidget(m_stack, 5);
    m_txtDesc = new QPlainTextEdit(this);
    m_txtDesc->setObjectName(u"txtDesc"_s);
    m_txtDesc->setReadOnly(true);
    m_txtDesc->setTabChangesFocus(true);
    column->addWidget(m_txtDesc, 2);
    m_preview = new ConfPreviewPart(this);
    column->addWidget(m_preview, 2);
    column->addLayout(BuildCommands());
    Follow(ConfigEditor::All);
}

QLayout* ConfigPage::BuildHead()
{
    m_cmbConfigSub = new QComboBox(this);
    m_cmbConfigSub->setObjectName(u"cmbConfigSub"_s);
    m_cmbConfigSub->setMaxVisibleItems(dosboxconf::kGroups);
    m_cmbConfigSub->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(m_cmbConfigSub, &QComboBox::activated, this, [this](int group) {
        Do(m_deeds.cmbConfigSub_Click, group);
    });
    // Screen readers call a combo box by its label alone.
    m_lblConfigSub = new QLabel(this);
    m_lblConfigSub->setObjectName(u"lblConfigSub"_s);
    m_lblConfigSub->setBuddy(m_cmbConfigSub);
    m_chkEditConfig = new QCheckBox(this);
    m_chkEditConfig->setObjectName(u"chkEditConfig"_s);
    connect(m_chkEditConfig, &QCheckBox::clicked, this, [this](bool checked) {
        Do(m_deeds.chkEditConfig_Click, checked);
    });
    auto* groups = new QHBoxLayout;
    groups->addWidget(m_lblConfigSub);
    groups->addWidget(m_cmbConfigSub, 1);
    auto* head = new QVBoxLayout;
    head->addWidget(m_chkEditConfig);
    head->addLayout(groups);
    return head;
}

QWidget* ConfigPage::BuildLists()
{
    ConfigEditor& editor = m_shown.screens.config;
    auto* pair = new QWidget(this);
    QHBoxLayout* const lists = RowOf(*pair);
    m_lstConfigTitle = new RowList(editor.lstConfigTitle, editor.titleRow, pair);
    m_lstConfigTitle->setObjectName(u"lstConfigTitle"_s);
    m_lstConfigTitle->installEventFilter(this);
    m_lstConfig = new RowList(editor.lstConfig, editor.configRow, pair);
    m_lstConfig->setObjectName(u"lstConfig"_s);
    m_lstConfig->installEventFilter(this);
    lists->addWidget(m_lstConfigTitle, 3);
    lists->addWidget(m_lstConfig, 2);
    ScrollTogether({m_lstConfigTitle, m_lstConfig});
    m_lstConfigTitle->SetRowChosen([this](int row) { Do(m_deeds.lstConfigTitle_Click, row); });
    m_lstConfigTitle->SetActivated([this](int item) { Do(m_deeds.lstConfigTitle_DblClick, item); });
    m_lstConfig->SetRowChosen([this](int row) { Do(m_deeds.lstConfig_Row, row); });
    m_lstConfig->SetActivated([this](int row) { ClickValue(row); });
    connect(m_lstConfig, &QListView::clicked, this, [this](const QModelIndex& index) {
        ClickValue(index.row());
    });
    m_cmbConfig = new ValueCombo(
        *m_lstConfig,
        [this](int index) { Do(m_deeds.cmbConfig_Click, index); },
        [this] { Do(m_deeds.cmbConfig_Leave); });
    return pair;
}

QWidget* ConfigPage::BuildDifferences()
{
    ConfigEditor& editor = m_shown.screens.config;
    auto* picEdit = new QWidget(this);
    picEdit->setObjectName(u"picEdit"_s);
    QHBoxLayout* const row = RowOf(*picEdit);
    constexpr std::array<int, 3> kShares{2, 4, 3};
    for (std::size_t i = 0; i < m_lstEdit.size(); ++i) {
        m_lstEdit[i] = new RowList(editor.lstEdit[i], editor.editRow, picEdit);
        m_lstEdit[i]->setObjectName(u"lstEdit_%1"_s.arg(i));
        m_lstEdit[i]->SetRowChosen([this](int chosen) { Do(m_deeds.lstEdit_Click, chosen); });
        row->addWidget(m_lstEdit[i], kShares[i]);
    }
    ScrollTogether({m_lstEdit.begin(), m_lstEdit.end()});
    return picEdit;
}

QWidget* ConfigPage::BuildMessage()
{
    auto* picConfigMessage = new QWidget(this);
    picConfigMessage->setObjectName(u"picConfigMessage"_s);
    auto* lblConfigMessage = new QLabel(picConfigMessage);
    lblConfigMessage->setObjectName(u"lblConfigMessage"_s);
    lblConfigMessage->setWordWrap(true);
    auto* column = new QVBoxLayout(picConfigMessage);
    column->addWidget(lblConfigMessage);
    column->addStretch();
    return picConfigMessage;
}

QLayout* ConfigPage::BuildCommands()
{
    struct Command {
        const char16_t* name;
        const Deeds::Deed& deed;
    };
    const std::array<Command, 4> commands{{
        {u"cmdSaveConfig", m_deeds.cmdSaveConfig_Click},
        {u"cmdDeleteConfig", m_deeds.cmdDeleteConfig_Click},
        {u"cmdOpenPreset", m_deeds.cmdOpenPreset_Click},
        {u"cmdSavePreset", m_deeds.cmdSavePreset_Click},
    }};
    auto* grid = new QGridLayout;
    grid->setSpacing(Gap(*this) / 2);
    for (std::size_t i = 0; i < commands.size(); ++i) {
        m_commands[i] = AddPush(QString::fromUtf16(commands[i].name), commands[i].deed);
        const int place = static_cast<int>(i);
        grid->addWidget(m_commands[i], place / 2, place % 2);
    }
    return grid;
}

void ConfigPage::ClickValue(int row)
{
    if (row >= 0) {
        Do(m_deeds.lstConfig_Click, row);
    }
}

bool ConfigPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_lstConfig) {
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
            Do(m_deeds.lstConfig_Focus, event->type() == QEvent::FocusIn);
        }
        return Page::eventFilter(watched, event);
    }
    // As a shortcut override too, so that no tab bar takes it.
    const bool press = event->type() == QEvent::KeyPress;
    if (!press && event->type() != QEvent::ShortcutOverride) {
        return Page::eventFilter(watched, event);
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool back = key.key() == Qt::Key_Backtab;
    if ((key.key() != Qt::Key_Tab && !back) || (key.modifiers() & Qt::ControlModifier) == 0) {
        return Page::eventFilter(watched, event);
    }
    event->accept();
    if (press) {
        Do(m_deeds.lstConfigTitle_CtrlTab, back ? -1 : 1);
    }
    return true;
}

void ConfigPage::TakeTexts()
{
    ShowState();
    m_preview->Show(m_shown.screens.config.preview, m_shown.lang);
}

void ConfigPage::Follow(std::uint32_t changed)
{
    const ConfigEditor& editor = m_shown.screens.config;
    if ((changed & ConfigEditor::State) != 0) {
        ShowState();
    }
    if ((changed & ConfigEditor::Rows) != 0) {
        ShowRows();
    }
    if ((changed & ConfigEditor::Values) != 0) {
        m_lstConfig->ShowRows();
    }
    if ((changed & (ConfigEditor::Row | ConfigEditor::Values)) != 0) {
        ShowChosen();
    }
    if ((changed & ConfigEditor::Differences) != 0) {
        for (RowList* list : m_lstEdit) {
            list->ShowRows();
        }
    }
    if ((changed & ConfigEditor::EditRow) != 0) {
        for (RowList* list : m_lstEdit) {
            list->ShowRow();
        }
    }
    if ((changed & ConfigEditor::Combo) != 0) {
        m_cmbConfig->Show(
            editor.cmbConfig, editor.lstConfigTitle.value(editor.cmbConfig.cell.item));
    }
    if ((changed & ConfigEditor::Description) != 0) {
        m_txtDesc->setPlainText(editor.txtDesc);
    }
    if ((changed & ConfigEditor::Preview) != 0) {
        m_preview->Show(editor.preview, m_shown.lang);
    }
    if ((changed & ConfigEditor::FocusTitles) != 0) {
        m_lstConfigTitle->setFocus();
    }
}

void ConfigPage::ShowState()
{
    const ConfigEditor& editor = m_shown.screens.config;
    const dosboxconf::ConfigPageState& page = editor.page;
    m_stack->setCurrentIndex(PartOf(page));
    m_lblConfigSub->setVisible(page.lists);
    m_cmbConfigSub->setVisible(page.lists);
    m_chkEditConfig->setVisible(page.chkEditConfig);
    m_chkEditConfig->setChecked(editor.chkEditConfig);
    m_chkEditConfig->setText(m_shown.lang[page.editsExisting ? 72 : 71]);
    m_commands[1]->setText(m_shown.lang[page.deletesGame ? 74 : 73]);
    for (QAbstractButton* command : m_commands) {
        command->setVisible(page.commands);
    }
    m_txtDesc->setVisible(page.lists || page.picEdit);
    m_preview->setVisible(!page.message);
}

void ConfigPage::ShowRows()
{
    const QStringList& groups = m_shown.options.GroupCaption;
    if (m_cmbConfigSub->count() != groups.size()) {
        m_cmbConfigSub->clear();
        m_cmbConfigSub->addItems(groups);
    }
    m_cmbConfigSub->setCurrentIndex(m_shown.screens.config.cmbConfigSub);
    m_lstConfigTitle->ShowRows();
    m_lstConfig->ShowRows();
}

void ConfigPage::ShowChosen()
{
    m_lstConfigTitle->ShowRow();
    m_lstConfig->ShowRow();
}

} // namespace pelorin::forms
