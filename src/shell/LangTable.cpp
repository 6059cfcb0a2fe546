#include "shell/LangTable.h"

#include "platform/TextFile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pelorin::shell {

using platform::ErrorKind;
using platform::Outcome;

namespace {

// Entry 0: the maker's word of the window title, by which every room also tells the language.
QString MakersWord(bool korean)
{
    return korean ? u"베스프라"_s : u"mirel55"_s;
}

bool IsKoreanName(const QString& name)
{
    return name == u"펠로린"_s;
}

} // namespace

Outcome<LangTable> LangTable::FromLines(const QStringList& lines, const QString& name)
{
    // The entries behind the last one have texts of our own to stand in.
    const qsizetype needed = std::min<qsizetype>(lines.size(), kLastEntry);
    for (qsizetype i = 0; i < needed; ++i) {
        if (lines[i].contains(QChar::ReplacementCharacter)) {
            return platform::LineError(
                ErrorKind::Malformed, name, i + 1, u"bytes that are no text in code page 949"_s);
        }
    }
    if (needed < kLastEntry) {
        return platform::LineError(
            ErrorKind::Malformed,
            name,
            needed + 1,
            u"missing, %1 lines are needed"_s.arg(kLastEntry));
    }
    LangTable table;
    table.m_entries.reserve(lines.size() + 1);
    for (const QString& line : lines) {
        table.m_entries << QString(line).replace(u"\\n"_s, u"\r\n"_s);
    }
    table.m_entries[0] = MakersWord(table.IsKorean());
    return table;
}

const QString& LangTable::operator[](int entry) const
{
    return entry >= 0 && entry < m_entries.size() ? m_entries[entry] : m_none;
}

QString LangTable::Text(int entry, const QStringList& values) const
{
    return platform::Wording::Filled((*this)[entry], values);
}

QString LangTable::OwnText(int entry, const QString& english, const QStringList& values) const
{
    const QString& text = (*this)[entry];
    return platform::Wording::Filled(text.isEmpty() ? english : text, values);
}

QString LangTable::Told(const platform::Wording& words) const
{
    return words.entry > kLastEntry ? OwnText(words.entry, words.english, words.values)
                                    : words.English();
}

bool LangTable::IsKorean() const
{
    return IsKoreanName((*this)[1]);
}

Outcome<LangTable> ReadLanguageFile(const QString& path)
{
    const Outcome<QStringList> lines = platform::ReadLines(path);
    if (!lines) {
        return platform::NoFirstLine(path, lines.Failure());
    }
    return LangTable::FromLines(lines.Value(), path);
}

} // namespace pelorin::shell
