#pragma once

#include "finding/GameList.h"

#include <QString>

namespace pelorin::finding {

/// Whether a title begins with what was typed, without regard to case and width. `composing` is what
/// the input method has not handed over yet: it stands for all that its keys can still become, "벼"
/// for "별" as well.
bool BeginsWith(const QString& title, const QString& typed, const QString& composing);

/// Finding a row by typing the beginning of its title. Texts that follow each other quickly are one
/// word; one letter over and over goes through all titles that begin with it.
class TypeAhead {
public:
    /// The next text begins a new word after so long.
    static constexpr qint64 kWordMs = 1000;

    /// Text that was typed. The row that is now to be selected, -1 for none. `nowMs` is any clock.
    /// Backspace takes a letter back; Esc and other control characters give the word up.
    int Type(const GameList& list, const QString& text, qint64 nowMs);
    /// What an input method shows while it composes; empty when it has given up or is done.
    int Compose(const GameList& list, const QString& text, qint64 nowMs);

private:
    bool BeginsNewWord(qint64 nowMs);
    int RowOf(const GameList& list, const QString& typed, bool passSelected) const;

    QString m_typed;
    QString m_composing;
    qint64 m_lastMs = -kWordMs;
};

} // namespace pelorin::finding
