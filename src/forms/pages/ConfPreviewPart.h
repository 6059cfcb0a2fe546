#pragma once

#include "dosboxconf/ConfigEditor.h"
#include "forms/OwnTexts.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QWidget>

namespace pelorin::forms {

/// The text that a start would write, with a line above it that says what has become of it.
class ConfPreviewPart : public QWidget {
public:
    explicit ConfPreviewPart(QWidget* parent);

    /// Where the text changes, the change is brought into view.
    void Show(const dosboxconf::ConfPreview& preview, const shell::LangTable& lang);

private:
    void ShowText(const QString& text);

    QLabel* m_lblPreview = nullptr;
    QPlainTextEdit* m_txtPreview = nullptr;
};

} // namespace pelorin::forms
