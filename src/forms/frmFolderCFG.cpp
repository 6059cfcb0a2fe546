#include "forms/frmFolderCFG.h"

#include "forms/Metrics.h"
#include "forms/Texts.h"
#include "shell/LangTable.h"
#include "shell/Screens.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

using shell::Root;

namespace {

constexpr double kBoxEms = 30;

} // namespace

frmFolderCFG::frmFolderCFG(
    shell::FolderCfg& boxes, const shell::LangTable& lang, FolderCfgDeeds deeds, QWidget* parent)
    : QDialog(parent)
    , m_boxes(boxes)
    , m_deeds(std::move(deeds))
    , m_listening(boxes.changed, [this](std::uint32_t) { Follow(); })
{
    setObjectName(u"frmFolderCFG"_s);
    setWindowTitle(lang[196]);
    m_frames[0] = BuildRoot(Root::Games, u"Games"_s, boxes.txtGames);
    m_frames[1] = BuildRoot(Root::Export, u"Export"_s, boxes.txtExport);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(2 * Gap(*this));
    for (QGroupBox* frame : m_frames) {
        column->addWidget(frame);
    }
    column->addStretch();
    column->addLayout(BuildEnd(lang));
    ApplyTexts(*this, lang);
    NameButtons();
    Follow();
    m_texts[0]->setFocus();
}

QGroupBox* frmFolderCFG::BuildRoot(Root root, const QString& name, QString& text)
{
    auto* frame = new QGroupBox(this);
    frame->setObjectName(u"fra"_s + name);
    auto* box = new QLineEdit(frame);
    box->setObjectName(u"txt"_s + name);
    box->setMinimumWidth(Ems(*this, kBoxEms));
    connect(box, &QLineEdit::textEdited, this, [&text](const QString& typed) { text = typed; });
    m_texts[root == Root::Games ? 0 : 1] = box;
    auto* row = new QHBoxLayout;
    const std::pair<const char16_t*, const FolderCfgDeeds::RootDeed&> buttons[] = {
        {u"Path", m_deeds.cmdPath_Click},
        {u"Default", m_deeds.cmdDefault_Click},
        {u"Open", m_deeds.cmdOpen_Click},
    };
    for (const auto& [what, deed] : buttons) {
        auto* button = new QPushButton(frame);
        button->setObjectName(u"cmd"_s + name + QString::fromUtf16(what));
        connect(button, &QPushButton::clicked, this, [&deed = deed, root] { deed(root); });
        row->addWidget(button);
    }
    row->addStretch();
    auto* column = new QVBoxLayout(frame);
    column->addWidget(box);
    column->addLayout(row);
    return frame;
}

QLayout* frmFolderCFG::BuildEnd(const shell::LangTable& lang)
{
    auto* cmdOk = new QPushButton(lang[203], this);
    cmdOk->setObjectName(u"cmdOk"_s);
    cmdOk->setDefault(true);
    connect(cmdOk, &QPushButton::clicked, this, [this] {
        if (m_deeds.cmdOk_Click()) {
            accept();
        }
    });
    auto* cmdCancel = new QPushButton(lang[205], this);
    cmdCancel->setObjectName(u"cmdCancel"_s);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(cmdOk);
    row->addWidget(cmdCancel);
    return row;
}

void frmFolderCFG::NameButtons()
{
    // The same words stand in both frames; who can't see the frame needs its name.
    for (QGroupBox* frame : m_frames) {
        for (QPushButton* button : frame->findChildren<QPushButton*>()) {
            button->setAccessibleName(frame->title() + u": "_s + button->text());
        }
    }
}

void frmFolderCFG::Follow()
{
    const std::array<const QString*, 2> texts{&m_boxes.txtGames, &m_boxes.txtExport};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (m_texts[i]->text() != *texts[i]) {
            m_texts[i]->setText(*texts[i]);
        }
    }
}

} // namespace pelorin::forms
