#include "forms/frmOutput.h"

#include "forms/Metrics.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

frmOutput::frmOutput(const Words& words, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(u"frmOutput"_s);
    setWindowTitle(words.OutputTitle);

    auto* txtOutput = new QPlainTextEdit(words.OutputText, this);
    txtOutput->setObjectName(u"txtOutput"_s);
    txtOutput->setAccessibleName(words.OutputTitle);
    txtOutput->setReadOnly(true);
    // The tab key leads on to the button; the text can be selected by keys all the same.
    txtOutput->setTabChangesFocus(true);
    txtOutput->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

    auto* cmdOk = new QPushButton(words.cmdOk, this);
    cmdOk->setObjectName(u"cmdOk"_s);
    connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
    // Enter closes it wherever the focus is. A default button would look focused all the time.
    cmdOk->setAutoDefault(false);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* enter = new QShortcut(QKeySequence(key), this);
        connect(enter, &QShortcut::activated, this, &QDialog::accept);
    }

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOk);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(Gap(*this));
    column->addWidget(txtOutput);
    column->addLayout(buttons);
    cmdOk->setFocus();
    resize(Ems(*this, 44), Lines(*this, 24));
}

} // namespace pelorin::forms
