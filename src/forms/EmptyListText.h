#pragma once

#include "finding/GameList.h"

#include <QString>
#include <QWidget>

namespace pelorin::shell {
class LangTable;
}

namespace pelorin::forms {

/// What stands in the place of the rows of an empty list: why it is empty, and what helps.
class EmptyListText {
public:
    /// Nothing while the list has rows.
    void Take(const finding::GameList& list, const shell::LangTable& lang);
    /// The same in one sentence, for a screen reader.
    QString Spoken() const;
    /// In the font of `viewport`, and as legible while that is disabled.
    void Paint(QWidget& viewport) const;

private:
    QString m_reason;
    QString m_hint;
};

} // namespace pelorin::forms
