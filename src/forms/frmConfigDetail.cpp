#include "forms/frmConfigDetail.h"

#include "forms/Metrics.h"
#include "forms/Texts.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

using library::ConfigDetail;

namespace {

constexpr int kFirstFact = 307;
constexpr int kFirstCommand = 319;

} // namespace

frmConfigDetail::frmConfigDetail(const Shown& shown, const Deeds& deeds, QWidget* parent)
    : QDialog(parent)
    , m_shown(shown)
    , m_deeds(deeds)
    , m_listening(
          shown.screens.configDetail.changed, [this](std::uint32_t changed) { Follow(changed); })
{
    setObjectName(u"frmConfigDetail"_s);
    setWindowModality(Qt::WindowModal);
}

/// The start of the program does not wait for what few of its runs show.
void frmConfigDetail::Build()
{
    auto* column = new QVBoxLayout(this);
    column->setSpacing(2 * Gap(*this));
    BuildBoxes();
    BuildButtons();
}

void frmConfigDetail::BuildBoxes()
{
    auto* grid = new QGridLayout;
    grid->setSpacing(Gap(*this));
    for (int i = 0; i < static_cast<int>(m_Combo1.size()); ++i) {
        const auto at = static_cast<std::size_t>(i);
        auto* label = new QLabel(this);
        label->setObjectName(u"lblCombo1_%1"_s.arg(i));
        auto* box = new QComboBox(this);
        box->setObjectName(u"Combo1_%1"_s.arg(i));
        box->setEditable(true);
        box->setInsertPolicy(QComboBox::NoInsert);
        box->setCompleter(nullptr); // what is typed stays as it is typed
        box->setMinimumWidth(Ems(*this, 16));
        // Values come from any file; the longest must not make the dialog.
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->installEventFilter(this);
        connect(box, &QComboBox::editTextChanged, this, [this, at](const QString& text) {
            if (!m_showing) {
                m_shown.screens.configDetail.Combo1[at] = text;
            }
        });
        label->setBuddy(box);
        grid->addWidget(label, i, 0);
        grid->addWidget(box, i, 1);
        m_lblCombo1[at] = label;
        m_Combo1[at] = box;
    }
    grid->setColumnStretch(1, 1);
    static_cast<QVBoxLayout*>(layout())->addLayout(grid);
}

void frmConfigDetail::BuildButtons()
{
    auto* row = new QHBoxLayout;
    for (std::size_t i = 0; i < m_Command.size(); ++i) {
        m_Command[i] = new QPushButton(this);
        m_Command[i]->setObjectName(u"Command%1"_s.arg(i + 1));
    }
    m_Command[0]->setDefault(true);
    connect(m_Command[0], &QPushButton::clicked, this, [this] { Do(m_deeds.SaveDetails); });
    connect(m_Command[1], &QPushButton::clicked, this, [this] { reject(); });
    connect(m_Command[2], &QPushButton::clicked, this, [this] { Do(m_deeds.DeleteDetails); });
    row->addStretch();
    for (QPushButton* command : m_Command) {
        row->addWidget(command);
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void frmConfigDetail::Follow(std::uint32_t changed)
{
    if (layout() == nullptr) {
        Build();
    }
    if ((changed & ConfigDetail::Open) != 0) {
        TakeTexts();
    }
    if ((changed & ConfigDetail::Texts) != 0) {
        ShowBoxes();
    }
    if ((changed & ConfigDetail::Open) != 0) {
        m_Combo1[0]->setFocus();
        open();
    }
    if ((changed & ConfigDetail::Close) != 0) {
        accept();
    }
}

void frmConfigDetail::TakeTexts()
{
    const shell::LangTable& lang = m_shown.lang;
    setWindowTitle(lang.Text(317, {m_shown.screens.configDetail.title}));
    for (int i = 0; i < static_cast<int>(m_Combo1.size()); ++i) {
        const auto at = static_cast<std::size_t>(i);
        m_lblCombo1[at]->setText(lang[kFirstFact + i] + u" : "_s);
        m_Combo1[at]->setAccessibleName(Heading(lang[kFirstFact + i]));
    }
    for (int i = 0; i < static_cast<int>(m_Command.size()); ++i) {
        m_Command[static_cast<std::size_t>(i)]->setText(lang[kFirstCommand + i]);
    }
}

void frmConfigDetail::ShowBoxes()
{
    const ConfigDetail& dialog = m_shown.screens.configDetail;
    m_showing = true;
    for (std::size_t i = 0; i < m_Combo1.size(); ++i) {
        m_Combo1[i]->clear();
        m_Combo1[i]->addItems(dialog.values[i]);
        m_Combo1[i]->setCurrentIndex(static_cast<int>(dialog.values[i].indexOf(dialog.Combo1[i])));
        m_Combo1[i]->setEditText(dialog.Combo1[i]);
    }
    m_showing = false;
}

void frmConfigDetail::GoOn(int box)
{
    const auto next = static_cast<std::size_t>(box) + 1;
    if (next < m_Combo1.size()) {
        m_Combo1[next]->setFocus(Qt::TabFocusReason);
    } else {
        m_Command[0]->click();
    }
}

bool frmConfigDetail::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const hit = std::find(m_Combo1.begin(), m_Combo1.end(), watched);
    if (hit == m_Combo1.end()) {
        return QDialog::eventFilter(watched, event);
    }
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            GoOn(static_cast<int>(hit - m_Combo1.begin()));
            return true;
        }
    }
    const bool handled = QDialog::eventFilter(watched, event);
    if (event->type() == QEvent::FocusIn) {
        (*hit)->lineEdit()->selectAll();
    }
    return handled;
}

} // namespace pelorin::forms
