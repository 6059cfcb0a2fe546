#include "forms/pages/SettingsPage.h"

#include "forms/Metrics.h"
#include "forms/Texts.h"
#include "shell/LauncherCfg.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

SettingsPage::SettingsPage(const Shown& shown, const Deeds& deeds, QWidget* parent)
    : Page(parent)
    , m_shown(shown)
    , m_deeds(deeds)
    , m_listening(shown.screens.placement.changed, [this](std::uint32_t) { Follow(); })
{
    auto* column = new QVBoxLayout(this);
    const int gap = Gap(*this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(gap);
    column->addWidget(AddHeading(u"lblPlacement"_s));
    auto* place = new QHBoxLayout;
    place->addLayout(BuildPosition(), 1);
    place->addSpacing(gap / 2);
    place->addLayout(BuildNudges());
    column->addLayout(place);
    column->addLayout(BuildDelay());
    column->addSpacing(2 * gap);
    column->addWidget(AddHeading(u"lblUpkeep"_s));
    column->addLayout(BuildUpkeep());
    column->addSpacing(2 * gap);
    column->addWidget(AddHeading(u"lblKeys"_s));
    column->addLayout(BuildKeys());
    column->addStretch();
    // As they stand: the one down stands between left and right.
    setTabOrder(m_cmdMoveDosbox[1], m_cmdMoveDosbox[3]);
    setTabOrder(m_cmdMoveDosbox[3], m_cmdMoveDosbox[2]);
    Follow();
}

QLayout* SettingsPage::BuildPosition()
{
    auto* grid = new QGridLayout;
    grid->setSpacing(Gap(*this) / 2);
    for (int i = 0; i < 2; ++i) {
        auto* caption = new QLabel(this);
        caption->setObjectName(u"lblDosboxPos_%1"_s.arg(i));
        auto* box = new QLineEdit(this);
        box->setObjectName(u"txtDosboxPos_%1"_s.arg(i));
        caption->setBuddy(box);
        connect(box, &QLineEdit::textEdited, this, [this, i](const QString& text) {
            m_shown.screens.placement.txtDosboxPos[static_cast<std::size_t>(i)] = text;
        });
        box->installEventFilter(this);
        connect(box, &QLineEdit::returnPressed, this, [this] { Do(m_deeds.cmdSetPos_Click); });
        grid->addWidget(caption, 0, 2 * i);
        grid->addWidget(box, 0, 2 * i + 1);
        m_txtDosboxPos[static_cast<std::size_t>(i)] = box;
    }
    auto* commands = new QHBoxLayout;
    commands->setSpacing(Gap(*this) / 2);
    commands->addWidget(AddPush(u"cmdSetPos"_s, m_deeds.cmdSetPos_Click));
    commands->addWidget(AddPush(u"cmdRememberPos"_s, m_deeds.cmdRememberPos_Click), 1);
    grid->addLayout(commands, 1, 0, 1, 4);
    return grid;
}

QLayout* SettingsPage::BuildNudges()
{
    struct Nudge {
        const char16_t* picture;
        int row;
        int column;
    };
    constexpr std::array<Nudge, 4> kNudges{
        {{u"up", 0, 1}, {u"left", 1, 0}, {u"right", 1, 2}, {u"down", 1, 1}}};
    auto* grid = new QGridLayout;
    grid->setSpacing(Gap(*this) / 3);
    for (int i = 0; i < 4; ++i) {
        const Nudge& nudge = kNudges[static_cast<std::size_t>(i)];
        QAbstractButton* const button = AddPicture(
            u"cmdMoveDosbox_%1"_s.arg(i),
            QString::fromUtf16(nudge.picture),
            m_deeds.cmdMoveDosbox_Click,
            i);
        grid->addWidget(button, nudge.row, nudge.column);
        m_cmdMoveDosbox[static_cast<std::size_t>(i)] = button;
    }
    return grid;
}

QLayout* SettingsPage::BuildDelay()
{
    shell::PlacementPanel& placement = m_shown.screens.placement;
    m_chkDosboxMove = new QCheckBox(this);
    m_chkDosboxMove->setObjectName(u"chkDosboxMove"_s);
    connect(m_chkDosboxMove, &QCheckBox::clicked, this, [&placement](bool checked) {
        placement.chkDosboxMove = checked;
    });
    auto* caption = new QLabel(this);
    caption->setObjectName(u"lblDosboxMove"_s);
    m_cmbDosboxMove = new QComboBox(this);
    m_cmbDosboxMove->setObjectName(u"cmbDosboxMove"_s);
    for (int i = 0; i < shell::kMoveDelays; ++i) {
        m_cmbDosboxMove->addItem(QString());
    }
    caption->setBuddy(m_cmbDosboxMove);
    connect(m_cmbDosboxMove, &QComboBox::activated, this, [&placement](int index) {
        placement.cmbDosboxMove = index;
    });
    auto* column = new QVBoxLayout;
    column->setSpacing(Gap(*this) / 2);
    column->addWidget(m_chkDosboxMove);
    auto* row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(m_cmbDosboxMove);
    row->addStretch();
    column->addLayout(row);
    return column;
}

QLayout* SettingsPage::BuildUpkeep()
{
    struct Command {
        const char16_t* name;
        const Deeds::Deed& deed;
    };
    const std::array<Command, 3> commands{{
        {u"cmdFolderCFG", m_deeds.cmdFolderCFG_Click},
        {u"cmdCompact", m_deeds.cmdCompact_Click},
        {u"cmdUpdate", m_deeds.cmdUpdate_Click},
    }};
    auto* grid = new QGridLayout;
    grid->setSpacing(Gap(*this) / 2);
    int place = 0;
    for (const Command& command : commands) {
        grid->addWidget(
            AddPush(QString::fromUtf16(command.name), command.deed), place / 2, place % 2);
        ++place;
    }
    return grid;
}

QLayout* SettingsPage::BuildKeys()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * Gap(*this));
    grid->setVerticalSpacing(Gap(*this) / 4);
    grid->setColumnStretch(1, 1);
    for (int i = 0; i < kKeyPairs; ++i) {
        auto* key = new QLabel(this);
        key->setObjectName(u"lblKeyTitle_%1"_s.arg(i));
        key->setFrameShape(QFrame::StyledPanel);
        key->setAlignment(Qt::AlignCenter);
        key->setMargin(Gap(*this) / 4);
        auto* meaning = new QLabel(this);
        meaning->setObjectName(u"lblkey_%1"_s.arg(i));
        grid->addWidget(key, i, 0);
        grid->addWidget(meaning, i, 1);
    }
    return grid;
}

bool SettingsPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) {
        return Page::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down) {
        return Page::eventFilter(watched, event);
    }
    Do(m_deeds.txtDosboxPos_Step, watched == m_txtDosboxPos[0] ? 0 : 1, key == Qt::Key_Up ? 1 : -1);
    return true;
}

void SettingsPage::TakeTexts()
{
    for (int i = 0; i < m_cmbDosboxMove->count(); ++i) {
        m_cmbDosboxMove->setItemText(i, m_shown.lang.Text(313, {QString::number(i + 1)}));
    }
}

void SettingsPage::Follow()
{
    const shell::PlacementPanel& placement = m_shown.screens.placement;
    for (std::size_t i = 0; i < m_txtDosboxPos.size(); ++i) {
        m_txtDosboxPos[i]->setText(placement.txtDosboxPos[i]);
    }
    m_chkDosboxMove->setChecked(placement.chkDosboxMove);
    m_cmbDosboxMove->setCurrentIndex(placement.cmbDosboxMove);
}

} // namespace pelorin::forms
