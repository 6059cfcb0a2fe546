#include "shell/LangTable.h"

#include "platform/TextFile.h"

using namespace Qt::StringLiterals;

namespace pelorin::shell {

using platform::Error;
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

QString Filled(QString text, const QStringList& values)
{
    for (qsizetype i = 0; i < values.size(); ++i) {
        text.replace(u"<%1>"_s.arg(i + 1), values[i]);
    }
    return text;
}

} // namespace

Outcome<LangTable> LangTable::FromLines(const QStringList& lines)
{
    if (lines.size() < kLastEntry) {
        return Error{
            ErrorKind::Malformed,
            u"line %1: missing, %2 are needed"_s.arg(lines.size() + 1).arg(kLastEntry)};
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
    return Filled((*this)[entry], values);
}

QString LangTable::OwnText(int entry, const QString& english, const QStringList& values) const
{
    const QString& text = (*this)[entry];
    return Filled(text.isEmpty() ? english : text, values);
}

bool LangTable::IsKorean() const
{
    return IsKoreanName((*this)[1]);
}

Outcome<LangTable> ReadLanguageFile(const QString& path)
{
    const Outcome<QStringList> lines = platform::ReadLines(path);
    if (!lines) {
        return lines.Failure();
    }
    Outcome<LangTable> table = LangTable::FromLines(lines.Value());
    if (!table) {
        return Error{ErrorKind::Malformed, u"%1: %2"_s.arg(path, table.Failure().text)};
    }
    return table;
}

} // namespace pelorin::shell
