#pragma once

#include <QWidget>

namespace pelorin::shell {
class LangTable;
}

namespace pelorin::forms {

/// Gives the controls below `root` their captions, tool tips and accessible names. Those that are
/// not there (yet) are passed over; texts that depend on what is shown are their widgets' own.
void ApplyTexts(QWidget& root, const shell::LangTable& lang);

/// A text of the table as a plain caption: no trailing colon, no blanks around it.
QString Heading(const QString& text);

} // namespace pelorin::forms
