#pragma once

#include "platform/Outcome.h"

#include <QString>
#include <QStringList>

namespace pelorin::shell {

/// The highest entry that every language file must have.
inline constexpr int kLastEntry = 339;

/// The words of the interface. Entry n is line n of Language.dat, its backslash-n turned into CR LF;
/// entry 0 is set by us.
class LangTable {
public:
    /// `lines` without line ends, backslash-n still in them. Error Malformed, with `name` in the
    /// place of the path, for the first line up to kLastEntry that is missing or holds bytes that
    /// were no text.
    static platform::Outcome<LangTable> FromLines(
        const QStringList& lines, const QString& name = QStringLiteral("Language.dat"));

    /// 0 to kLastEntry; a number behind the table gives an empty text (OwnText serves those).
    const QString& operator[](int entry) const;
    /// Placeholders <1>, <2>, <3> replaced in this order, plainly.
    QString Text(int entry, const QStringList& values) const;
    /// Entries behind kLastEntry are our own and may be missing in a file: `english` stands in.
    QString OwnText(
        int entry, const QString& english, const QStringList& values = QStringList()) const;

    /// OwnText of these words; without an entry their English.
    QString Told(const platform::Wording& words) const;

    /// False for a table that no file has filled yet.
    bool IsLoaded() const { return m_entries.size() > 1; }

    /// Entry 1 is exactly the Korean name.
    bool IsKorean() const;

private:
    QStringList m_entries{QString()};
    QString m_none; // what a number behind the table gives
};

/// Error NotFound, Unreadable or Malformed, each with the path and the line at fault
/// ("/opt/pelorin/Language.dat: line 12: ...").
platform::Outcome<LangTable> ReadLanguageFile(const QString& path);

} // namespace pelorin::shell
