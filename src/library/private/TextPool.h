#pragma once

#include "library/GameEntry.h"

#include <QSet>

namespace pelorin::library {

/// Lets equal facts of many games be one text in memory: a library has thousands of games and a
/// few dozen makers. The pool itself may go before the texts do.
class TextPool {
public:
    void ShareFacts(GameEntry& entry)
    {
        for (QString GameEntry::*fact : kSharedFacts) {
            entry.*fact = *m_texts.insert(entry.*fact);
        }
    }

private:
    QSet<QString> m_texts;
};

} // namespace pelorin::library
