#include "running/GuestCommand.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace pelorin::running {

namespace {

enum class Use { Program, Prefix, NamesFiles, Text };

Use UseOf(const QString& word)
{
    struct Row {
        QStringView word;
        Use use = Use::Program;
    };
    static constexpr Row kRows[] = {
        {u"call", Use::Prefix},
        {u"lh", Use::Prefix},
        {u"loadhigh", Use::Prefix},
        {u"loadfix", Use::Prefix},
        {u"cd", Use::NamesFiles},
        {u"chdir", Use::NamesFiles},
        {u"mount", Use::NamesFiles},
        {u"imgmount", Use::NamesFiles},
        {u"boot", Use::NamesFiles},
        {u"loadrom", Use::NamesFiles},
        {u"echo", Use::Text},
        {u"rem", Use::Text},
        {u"set", Use::Text},
        {u"prompt", Use::Text},
        {u"goto", Use::Text},
    };
    const auto* hit = std::find_if(std::begin(kRows), std::end(kRows), [&](const Row& row) {
        return word.compare(row.word, Qt::CaseInsensitive) == 0;
    });
    return hit == std::end(kRows) ? Use::Program : hit->use;
}

bool IsBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'=';
}

/// Takes the first word off the line, without its quotation marks.
QString TakeWord(QString& line)
{
    QString word;
    bool quoted = false;
    qsizetype at = 0;
    while (at < line.size() && (line[at] == u'@' || IsBlank(line[at]))) {
        ++at;
    }
    for (; at < line.size() && (quoted || !IsBlank(line[at])); ++at) {
        if (line[at] == u'"') {
            quoted = !quoted;
        } else {
            word += line[at];
        }
    }
    line.remove(0, at);
    return word;
}

/// DOSBox ends a command at a slash, and one of its own at a point or a backslash as well:
/// "cd\games", "echo.", even "call.exe".
void PartCommand(QString& word, QString& line)
{
    const auto isEnd = [](QChar c) { return c == u'\\' || c == u'.' || c == u'/'; };
    const auto* end = std::find_if(word.cbegin(), word.cend(), isEnd);
    const qsizetype length = end - word.cbegin();
    if (length < word.size() && (*end == u'/' || UseOf(word.left(length)) != Use::Program)) {
        line.prepend(word.mid(length));
        word.truncate(length);
    }
}

bool IsAscii(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 128; });
}

void TakeUnopenable(QString line, QStringList& names)
{
    while (!line.isEmpty()) {
        const QString word = TakeWord(line);
        if (!IsAscii(word)) {
            names << word;
        }
    }
}

} // namespace

UnopenableNames UnopenableNamesIn(const QString& command)
{
    UnopenableNames names;
    QString line = command;
    QString word = TakeWord(line);
    PartCommand(word, line);
    while (UseOf(word) == Use::Prefix || (word.startsWith(u'-') && !line.isEmpty())) {
        word = TakeWord(line);
        PartCommand(word, line);
    }
    const Use use = UseOf(word);
    if (use == Use::Text || word.startsWith(u':')) {
        return names;
    }
    if (!IsAscii(word)) {
        names.needed << word;
    }
    TakeUnopenable(line, use == Use::NamesFiles ? names.needed : names.passedOn);
    return names;
}

} // namespace pelorin::running
