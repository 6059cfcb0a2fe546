#pragma once

#include "library/GameEntry.h"

#include <QSet>

namespace pelorin::library {

/// Lets equal facts of many games be one text in memory: a library has thousands of games and a
/// few dozen makers. The pool itself may go before the texts do.
class TextPool {
public:
    /// Genres, maker, release, language and country.
    void ShareFacts(GameEntry& entry)
    {
        Share(entry.GenreK);
        Share(entry.GenreE);
        Share(entry.Maker);
        Share(entry.GameLanguage);
        Share(entry.Release);
        Share(entry.Country);
    }

private:
    void Share(QString& text) { text = *m_texts.insert(text); }

    QSet<QString> m_texts;
};

} // namespace pelorin::library
