#include "finding/TypeAhead.h"

#include "finding/HangulKeys.h"

#include <algorithm>

namespace pelorin::finding {

namespace {

/// Case and width gone; Hangul in whole syllables however it was written.
QString Folded(QStringView text)
{
    return text.toString().normalized(QString::NormalizationForm_KC).toCaseFolded();
}

/// A beginning of a text that folds to at least so many characters, if it has them. A syllable may be
/// written in three.
QStringView Head(const QString& text, qsizetype characters)
{
    return QStringView(text).left(3 * characters + 3);
}

/// Most titles differ in the first character, and most begin with one that folding leaves alone.
bool DiffersAtOnce(QChar a, QChar b)
{
    const auto plain = [](QChar c) {
        return c.unicode() < 0x80 || (c.unicode() >= 0xAC00 && c.unicode() <= 0xD7A3);
    };
    return plain(a) && plain(b) && a.toLower() != b.toLower();
}

/// What was typed, folded once for all titles.
struct Wanted {
    Wanted(const QString& typed, const QString& composing)
        : begin(Folded(typed))
        , keys(HangulKeys(Folded(composing)))
    {}

    bool Begins(const QString& title) const
    {
        if (title.isEmpty() || (!begin.isEmpty() && DiffersAtOnce(title.front(), begin.front()))) {
            return false;
        }
        const QString folded = Folded(Head(title, begin.size() + keys.size()));
        return folded.startsWith(begin) &&
               (keys.isEmpty() ||
                HangulKeys(QStringView(folded).mid(begin.size())).startsWith(keys));
    }

    QString begin;
    QString keys;
};

bool IsOneLetter(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [&](QChar c) { return c == text.front(); });
}

} // namespace

bool BeginsWith(const QString& title, const QString& typed, const QString& composing)
{
    return Wanted(typed, composing).Begins(title);
}

int TypeAhead::Type(const GameList& list, const QString& text, qint64 nowMs)
{
    const bool composed = !m_composing.isEmpty();
    const bool fresh = BeginsNewWord(nowMs);
    m_composing.clear();
    if (!text.isEmpty() && text.front().category() == QChar::Other_Control) {
        m_typed.chop(text.front() == u'\b' ? 1 : m_typed.size());
        return -1;
    }
    m_typed += text;
    if (m_typed.trimmed().isEmpty()) {
        m_typed.clear();
        return -1;
    }
    const int row = RowOf(list, m_typed, fresh);
    if (row >= 0 || composed || !IsOneLetter(m_typed)) {
        return row;
    }
    return RowOf(list, m_typed.left(1), true);
}

int TypeAhead::Compose(const GameList& list, const QString& text, qint64 nowMs)
{
    const bool fresh = BeginsNewWord(nowMs);
    m_composing = text;
    return text.isEmpty() ? -1 : RowOf(list, m_typed, fresh);
}

/// A word that is being composed goes on, however long one thinks about it.
bool TypeAhead::BeginsNewWord(qint64 nowMs)
{
    const bool begins = m_composing.isEmpty() && (m_typed.isEmpty() || nowMs - m_lastMs >= kWordMs);
    m_lastMs = nowMs;
    if (begins) {
        m_typed.clear();
    }
    return begins;
}

/// From the selected row on, or from the one behind it, and round to it.
int TypeAhead::RowOf(const GameList& list, const QString& typed, bool passSelected) const
{
    const Wanted wanted(typed, m_composing);
    const int count = static_cast<int>(list.items.size());
    const int first = std::max(list.selected, 0) + (passSelected && list.selected >= 0 ? 1 : 0);
    for (int i = 0; i < count; ++i) {
        const int row = (first + i) % count;
        if (wanted.Begins(list.items[static_cast<std::size_t>(row)].text[0])) {
            return row;
        }
    }
    return -1;
}

} // namespace pelorin::finding
