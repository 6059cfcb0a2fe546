#pragma once

#include <QWidget>

namespace pelorin::shell {
class LangTable;
}

namespace pelorin::forms {

/// Lines of key help on the settings page: entries 86 to 101 tell key and meaning by turns, 230 and
/// 248 are the ninth pair.
inline constexpr int kKeyPairs = 9;
inline constexpr int kTools = 14; // tools on the page of that name

/// Gives the controls below `root` their captions, tool tips and accessible names. Those that are
/// not there (yet) are passed over; texts that depend on what is shown are their widgets' own.
void ApplyTexts(QWidget& root, const shell::LangTable& lang);

/// The text as it stands, for a tool tip: Qt would take what looks like HTML for it.
QString AsToolTip(const QString& text);

/// A text of the table as a plain caption: no trailing colon, no blanks around it.
QString Heading(const QString& text);

} // namespace pelorin::forms
