#include "forms/QtPrompts.h"

#include "forms/Metrics.h"
#include "forms/OwnTexts.h"
#include "forms/frmOutput.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

using platform::Answer;
using platform::Buttons;

namespace {

constexpr int kOutputOk = 296; // cmdOk of frmOutput

QMessageBox::Icon IconOf(platform::BoxIcon icon)
{
    switch (icon) {
    case platform::BoxIcon::Information: return QMessageBox::Information;
    case platform::BoxIcon::Question: return QMessageBox::Question;
    case platform::BoxIcon::Exclamation: return QMessageBox::Warning;
    case platform::BoxIcon::None: break;
    }
    return QMessageBox::NoIcon;
}

struct Choice {
    Answer answer;
    const OwnEntry& words;
    QMessageBox::ButtonRole role;
};

// The last one is also the answer of a box that is closed.
std::vector<Choice> ChoicesOf(Buttons buttons)
{
    switch (buttons) {
    case Buttons::OkCancel:
        return {
            {Answer::Ok, kOwnOk, QMessageBox::AcceptRole},
            {Answer::Cancel, kOwnCancel, QMessageBox::RejectRole}};
    case Buttons::YesNo:
        return {
            {Answer::Yes, kOwnYes, QMessageBox::YesRole},
            {Answer::No, kOwnNo, QMessageBox::NoRole}};
    case Buttons::SaveDiscardCancel:
        return {
            {Answer::Save, kOwnSave, QMessageBox::AcceptRole},
            {Answer::Discard, kOwnDiscard, QMessageBox::DestructiveRole},
            {Answer::Cancel, kOwnCancel, QMessageBox::RejectRole}};
    case Buttons::Ok: break;
    }
    return {{Answer::Ok, kOwnOk, QMessageBox::AcceptRole}};
}

} // namespace

QString QtPrompts::Words(const OwnEntry& own) const
{
    return m_lang != nullptr ? Own(*m_lang, own) : QString::fromUtf16(own.english);
}

QWidget* QtPrompts::Parent() const
{
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal != nullptr) {
        return modal;
    }
    return m_parent != nullptr && m_parent->isVisible() ? m_parent.data() : nullptr;
}

Answer QtPrompts::Ask(const platform::MessageBox& box)
{
    QMessageBox dialog(IconOf(box.icon), box.title, box.text, QMessageBox::NoButton, Parent());
    // Names and paths come from anywhere and are shown as they stand.
    dialog.setTextFormat(Qt::PlainText);
    const std::vector<Choice> choices = ChoicesOf(box.buttons);
    std::vector<QPushButton*> buttons;
    buttons.reserve(choices.size());
    for (const Choice& choice : choices) {
        buttons.push_back(dialog.addButton(Words(choice.words), choice.role));
    }
    dialog.setDefaultButton(box.noByDefault ? buttons.back() : buttons.front());
    dialog.setEscapeButton(buttons.back());
    dialog.exec();
    const auto clicked = std::find(buttons.begin(), buttons.end(), dialog.clickedButton());
    return clicked == buttons.end()
               ? choices.back().answer
               : choices[static_cast<std::size_t>(clicked - buttons.begin())].answer;
}

QString QtPrompts::InputText(const QString& prompt, const QString& title, const QString& preset)
{
    QInputDialog dialog(Parent());
    dialog.setWindowTitle(title);
    dialog.setLabelText(QString(prompt).replace(u"&"_s, u"&&"_s)); // the box is its buddy
    dialog.findChild<QLabel*>()->setTextFormat(Qt::PlainText);
    dialog.setTextValue(preset);
    dialog.setOkButtonText(Words(kOwnOk));
    dialog.setCancelButtonText(Words(kOwnCancel));
    // Names of folders and start commands are longer than the box would be by itself.
    dialog.resize(Ems(dialog, 28), dialog.sizeHint().height());
    return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
}

QString QtPrompts::ChooseFolder(const QString& title, const QString& start)
{
    return QFileDialog::getExistingDirectory(Parent(), title, start);
}

QString QtPrompts::OpenFile(const platform::FileDialog& asked)
{
    return QFileDialog::getOpenFileName(
        Parent(), asked.title, asked.folder, asked.filters.join(u";;"_s));
}

QString QtPrompts::SaveFile(const platform::FileDialog& asked)
{
    QFileDialog dialog(Parent(), asked.title, asked.folder);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(asked.filters);
    const auto followFilter = [&dialog](const QString& filter) {
        dialog.setDefaultSuffix(filter.section(u"(*."_s, 1).section(u')', 0, 0).remove(u'*'));
    };
    followFilter(asked.filters.value(0));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, followFilter);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void QtPrompts::ShowReport(const QString& title, const QString& text)
{
    frmOutput(frmOutput::Words{title, text, Words({kOutputOk, u"OK"})}, Parent()).exec();
}

} // namespace pelorin::forms
