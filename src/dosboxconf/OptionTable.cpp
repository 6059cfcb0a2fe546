#include "dosboxconf/OptionTable.h"

#include "dosboxconf/ConfUpgrade.h"
#include "platform/TextFile.h"

#include <QHash>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

namespace {

using platform::ErrorKind;

/// Gives the fields of a text one by one.
class FieldReader {
public:
    explicit FieldReader(const QString& text)
        : m_lines(platform::SplitLines(text))
    {}

    /// nullopt behind the last line.
    std::optional<QString> Next()
    {
        if (m_lineDone) {
            if (m_line + 1 >= m_lines.size()) {
                return std::nullopt;
            }
            ++m_line;
            m_at = 0;
            m_lineDone = false;
        }
        return TakeField(m_lines[m_line]);
    }

    /// Of the field that Next gave last, from 1.
    qsizetype Line() const { return std::max<qsizetype>(1, m_line + 1); }

private:
    QString TakeField(const QString& line)
    {
        while (m_at < line.size() && (line[m_at] == u' ' || line[m_at] == u'\t')) {
            ++m_at;
        }
        qsizetype start = m_at;
        qsizetype end = -1;
        if (start < line.size() && line[start] == u'"') {
            ++start;
            end = line.indexOf(u'"', start);
            end = end < 0 ? line.size() : end;
        }
        const qsizetype comma = line.indexOf(u',', end < 0 ? start : end);
        m_lineDone = comma < 0;
        m_at = comma + 1;
        const qsizetype fieldEnd = comma < 0 ? line.size() : comma;
        return line.mid(start, (end < 0 ? fieldEnd : end) - start);
    }

    QStringList m_lines;
    qsizetype m_line = -1;
    qsizetype m_at = 0;
    bool m_lineDone = true;
};

QString WithCommas(QString text)
{
    return text.replace(u'`', u',');
}

OptionKind KindOfMark(const QString& mark)
{
    struct Mark {
        QStringView text;
        OptionKind kind = OptionKind::Other;
    };
    static constexpr Mark kMarks[] = {
        {u"<INDEX>", OptionKind::Index},
        {u"<MAPPER>", OptionKind::Mapper},
        {u"<CPUCYCLE>", OptionKind::CpuCycle},
        {u"<TEXT>", OptionKind::Text},
        {u"<NONE>", OptionKind::None},
        {u"<SAVEPATH>", OptionKind::SavePath},
        {u"<CAPTURE>", OptionKind::Capture},
        {u"<DOCPATH>", OptionKind::DocPath},
        {u"<LOGFILE>", OptionKind::LogFile},
        {u"<GUSULTRA>", OptionKind::GusUltra},
    };
    for (const Mark& known : kMarks) {
        if (mark == known.text) {
            return known.kind;
        }
    }
    return OptionKind::Other;
}

QStringList ValuesOf(const QString& piece)
{
    // A bar that only stands in front parts nothing.
    if (piece.lastIndexOf(u'|') <= 0) {
        return {WithCommas(piece)};
    }
    return WithCommas(piece).split(u'|');
}

/// The table as far as it is read. Each step gives the reason when a field can't be taken.
class TableBuilder {
public:
    QString OpenGroup()
    {
        if (m_grid.GroupCaption.size() == kGroups) {
            return u"more than %1 groups"_s.arg(kGroups);
        }
        m_grid.GroupCaption << u"temp"_s;
        return QString();
    }

    QString NameGroup(const QString& caption)
    {
        if (m_grid.GroupCaption.isEmpty()) {
            return u"a caption before the first group (an empty line opens a group)"_s;
        }
        m_grid.GroupCaption.last() = WithCommas(caption);
        m_item = 0;
        return QString();
    }

    QString AddRow(const QString& row)
    {
        const QStringList pieces = row.split(u';');
        const QStringList names = pieces.first().split(u'|');
        const QStringList values = ValuesOf(pieces.value(1));
        if (QString reason = WhyNot(pieces, names, values); !reason.isEmpty()) {
            return reason;
        }
        const std::size_t at =
            OptionGrid::Index(Cell{static_cast<int>(m_grid.GroupCaption.size()) - 1, m_item});
        m_grid.OptionTitle[at] = names[0];
        m_grid.OptionKey[at] = names[1];
        m_grid.OptionValue[at] = values;
        m_grid.OptionKinds[at] = KindOfMark(pieces[2]);
        ++m_item;
        return QString();
    }

    OptionGrid Take() { return std::move(m_grid); }

private:
    QString WhyNot(const QStringList& pieces, const QStringList& names, const QStringList& values)
    {
        if (m_grid.GroupCaption.isEmpty()) {
            return u"an option before the first group (an empty line opens a group)"_s;
        }
        if (pieces.size() < 3) {
            return u"an option needs title|key;values;kind"_s;
        }
        if (names.size() < 2) {
            return u"no \"|\" between title and key"_s;
        }
        if (m_item == kItems) {
            return u"more than %1 options in a group"_s.arg(kItems);
        }
        if (values.size() > kValues) {
            return u"more than %1 values"_s.arg(kValues);
        }
        // A second cell of such a key would have its old value translated a second time.
        if (OldCellOf(names[1]).has_value() && std::exchange(m_upgradeKeys[names[1]], true)) {
            return u"the key \"%1\" stands twice"_s.arg(names[1]);
        }
        return QString();
    }

    OptionGrid m_grid;
    QHash<QString, bool> m_upgradeKeys;
    int m_item = 0;
};

QString TakeField(TableBuilder& table, const QString& field)
{
    if (field.isEmpty()) {
        return table.OpenGroup();
    }
    if (field.contains(QChar::ReplacementCharacter)) {
        return u"bytes that are no text in code page 949"_s;
    }
    if (field.startsWith(u"@T"_s)) {
        return table.NameGroup(field.mid(2));
    }
    return table.AddRow(field);
}

} // namespace

platform::Outcome<OptionGrid> ParseOptionTable(const QString& text, const QString& name)
{
    FieldReader fields(text);
    TableBuilder table;
    while (const std::optional<QString> field = fields.Next()) {
        if (*field == u"end"_s) {
            return table.Take();
        }
        if (const QString reason = TakeField(table, *field); !reason.isEmpty()) {
            return platform::LineError(ErrorKind::Malformed, name, fields.Line(), reason);
        }
    }
    return platform::LineError(
        ErrorKind::Malformed, name, fields.Line(), u"the file has no \"end\""_s);
}

platform::Outcome<OptionGrid> ReadOptionTable(const QString& path)
{
    const platform::Outcome<QString> text = platform::ReadText(path);
    if (!text) {
        return platform::NoFirstLine(path, text.Failure());
    }
    return ParseOptionTable(text.Value(), path);
}

} // namespace pelorin::dosboxconf
