#include "forms/pages/StartPage.h"

#include "forms/MenuButton.h"
#include "forms/Menus.h"
#include "forms/Metrics.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

using dosboxconf::StartCommands;

StartPage::StartPage(const Shown& shown, const Deeds& deeds, QWidget* parent)
    : Page(parent)
    , m_shown(shown)
    , m_deeds(deeds)
    , m_startListening(
          shown.screens.start.changed, [this](std::uint32_t changed) { FollowStart(changed); })
    , m_cdListening(shown.screens.cd.changed, [this](std::uint32_t) { FollowCd(); })
{
    StartCommands& start = shown.screens.start;
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap(*this));

    auto* head = new QHBoxLayout;
    head->addWidget(AddHeading(u"lblAutoexec"_s), 1);
    head->addWidget(AddPush(u"cmdSaveExec"_s, deeds.cmdSaveExec_Click));
    column->addLayout(head);
    m_lstAutoexec = new RowList(start.lstAutoexec, start.commandRow, this);
    m_lstAutoexec->setObjectName(u"lstAutoexec"_s);
    m_lstAutoexec->SetActivated([this](int row) { Do(m_deeds.lstAutoexec_DblClick, row); });
    column->addWidget(m_lstAutoexec, 3);
    column->addLayout(BuildCommands());
    column->addSpacing(Gap(*this));

    column->addWidget(AddHeading(u"lblEXE"_s));
    m_fileEXE = new RowList(start.fileEXE, start.fileRow, this);
    m_fileEXE->setObjectName(u"fileEXE"_s);
    m_fileEXE->SetActivated([this](int row) { Do(m_deeds.fileEXE_DblClick, row); });
    column->addWidget(m_fileEXE, 3);
    column->addSpacing(Gap(*this));
    column->addWidget(BuildCd(), 2);
    FollowStart(
        StartCommands::Commands | StartCommands::CommandRow | StartCommands::Files |
        StartCommands::FileRow);
    FollowCd();
}

QLayout* StartPage::BuildCommands()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(Gap(*this) / 2);
    row->addWidget(AddPush(u"cmdAddExec"_s, m_deeds.cmdAddExec_Click));
    m_cmdAddEmpty = AddPush(u"cmdAddEmpty"_s, m_deeds.cmdAddEmpty_Click);
    row->addWidget(m_cmdAddEmpty);
    row->addStretch();
    row->addWidget(AddPicture(u"cmdUp"_s, u"up"_s, m_deeds.cmdUp_Click));
    row->addWidget(AddPicture(u"cmdDown"_s, u"down"_s, m_deeds.cmdDown_Click));
    row->addWidget(AddPicture(u"cmdDelete"_s, u"delete"_s, m_deeds.cmdDelete_Click));
    return row;
}

QWidget* StartPage::BuildCd()
{
    auto* part = new QWidget(this);
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap(*this));
    column->addLayout(BuildCdHead());
    m_picCD = new QWidget(part);
    m_picCD->setObjectName(u"picCD"_s);
    auto* inner = new QVBoxLayout(m_picCD);
    inner->setContentsMargins(0, 0, 0, 0);
    inner->setSpacing(Gap(*this));
    dosboxconf::CdPanel& cd = m_shown.screens.cd;
    m_lstCD = new RowList(cd.lstCD, cd.row, m_picCD);
    m_lstCD->setObjectName(u"lstCD"_s);
    inner->addWidget(m_lstCD, 1);
    inner->addLayout(BuildCdFoot());
    column->addWidget(m_picCD, 1);
    column->addStretch();
    return part;
}

QLayout* StartPage::BuildCdHead()
{
    m_chkCD = AddCheck(u"chkCD"_s, m_deeds.chkCD_Click);
    QFont bold = m_chkCD->font();
    bold.setBold(true);
    m_chkCD->setFont(bold);
    auto* row = new QHBoxLayout;
    row->addWidget(m_chkCD, 1);
    // Outside picCD, which is hidden without a CD: that there is none has to be saved as well.
    row->addWidget(AddPush(u"cmdSaveCD"_s, m_deeds.cmdSaveCD_Click));
    return row;
}

QLayout* StartPage::BuildCdFoot()
{
    m_chkMountCD = AddCheck(u"chkMountCD"_s, m_deeds.chkMountCD_Click);
    auto* cmdCD = new MenuButton(this);
    cmdCD->setObjectName(u"cmdCD"_s);
    cmdCD->setFocusPolicy(Qt::TabFocus);
    cmdCD->setToolButtonStyle(Qt::ToolButtonTextOnly);
    GiveMenu(*cmdCD, u"mnuCD"_s, m_deeds.mnuCD, m_deeds.mnuCD_Click);
    auto* row = new QHBoxLayout;
    row->addWidget(m_chkMountCD, 1);
    row->addWidget(cmdCD);
    return row;
}

QCheckBox* StartPage::AddCheck(const QString& name, const Deeds::CheckDeed& deed)
{
    auto* check = new QCheckBox(this);
    check->setObjectName(name);
    check->setEnabled(static_cast<bool>(deed));
    connect(check, &QCheckBox::clicked, this, [&deed](bool checked) { Do(deed, checked); });
    return check;
}

void StartPage::TakeTexts()
{
    // The button's caption is itself the line that it inserts.
    m_cmdAddEmpty->setText(m_shown.screens.start.cmdAddEmpty);
}

void StartPage::FollowStart(std::uint32_t changed)
{
    if ((changed & StartCommands::Commands) != 0) {
        m_lstAutoexec->ShowRows();
    } else if ((changed & StartCommands::CommandRow) != 0) {
        m_lstAutoexec->ShowRow();
    }
    if ((changed & StartCommands::Files) != 0) {
        m_fileEXE->ShowRows();
    } else if ((changed & StartCommands::FileRow) != 0) {
        m_fileEXE->ShowRow();
    }
}

void StartPage::FollowCd()
{
    const dosboxconf::CdPanel& cd = m_shown.screens.cd;
    m_chkCD->setChecked(cd.chkCD);
    m_chkMountCD->setChecked(cd.chkMountCD);
    m_lstCD->ShowRows();
    m_picCD->setVisible(cd.picCDVisible);
}

} // namespace pelorin::forms
