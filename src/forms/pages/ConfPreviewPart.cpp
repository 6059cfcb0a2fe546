#include "forms/pages/ConfPreviewPart.h"

#include "forms/Metrics.h"

#include <QFontDatabase>
#include <QTextBlock>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

namespace {

OwnEntry WordsOf(dosboxconf::ConfPreview::State state)
{
    using State = dosboxconf::ConfPreview::State;
    switch (state) {
    case State::Saved: return kOwnPreviewSaved;
    case State::Differs: return kOwnPreviewDiffers;
    case State::Unsaved: return kOwnPreviewUnsaved;
    case State::WillBeNone: return kOwnPreviewWillBeNone;
    case State::None: break;
    }
    return kOwnPreviewNone;
}

/// The first line in which the texts differ; -1 if they don't.
int FirstDifference(const QStringList& a, const QStringList& b)
{
    const qsizetype common = qMin(a.size(), b.size());
    for (qsizetype line = 0; line < common; ++line) {
        if (a[line] != b[line]) {
            return static_cast<int>(line);
        }
    }
    return a.size() == b.size() ? -1 : static_cast<int>(common);
}

} // namespace

ConfPreviewPart::ConfPreviewPart(QWidget* parent)
    : QWidget(parent)
    , m_lblPreview(new QLabel(this))
    , m_txtPreview(new QPlainTextEdit(this))
{
    m_lblPreview->setObjectName(u"lblPreview"_s);
    m_lblPreview->setWordWrap(true);
    m_txtPreview->setObjectName(u"txtPreview"_s);
    m_txtPreview->setReadOnly(true);
    m_txtPreview->setTabChangesFocus(true);
    m_txtPreview->setLineWrapMode(QPlainTextEdit::NoWrap);
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPointSizeF(Scaled(font(), 0.9).pointSizeF());
    m_txtPreview->setFont(fixed);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap(*this) / 2);
    column->addWidget(m_lblPreview);
    column->addWidget(m_txtPreview, 1);
}

void ConfPreviewPart::Show(const dosboxconf::ConfPreview& preview, const shell::LangTable& lang)
{
    using State = dosboxconf::ConfPreview::State;
    QString words = Own(lang, WordsOf(preview.state));
    if (!preview.refusal.isEmpty()) {
        const bool edited = preview.state == State::WillBeNone;
        words = (edited ? Own(lang, kOwnDraft) + u". "_s : QString()) + preview.refusal;
    }
    m_lblPreview->setText(words);
    ShowText(QString(preview.text).replace(u"\r\n"_s, u"\n"_s));
}

void ConfPreviewPart::ShowText(const QString& text)
{
    const QString former = m_txtPreview->toPlainText();
    if (former == text) {
        return;
    }
    m_txtPreview->setPlainText(text);
    if (former.isEmpty()) {
        return;
    }
    const int line = FirstDifference(former.split(u'\n'), text.split(u'\n'));
    m_txtPreview->setTextCursor(
        QTextCursor(m_txtPreview->document()->findBlockByNumber(qMax(0, line))));
    m_txtPreview->centerCursor();
}

} // namespace pelorin::forms
