#pragma once

#include "library/GameEntry.h"

#include <QSet>
#include <QString>
#include <QStringView>

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

    /// The one text that is equal to this part of another.
    const QString& Shared(QStringView text)
    {
        // Without a copy as long as it is only looked for.
        const auto known = m_texts.constFind(QString::fromRawData(text.data(), text.size()));
        return known != m_texts.constEnd() ? *known : *m_texts.insert(text.toString());
    }

private:
    QSet<QString> m_texts;
};

} // namespace pelorin::library
