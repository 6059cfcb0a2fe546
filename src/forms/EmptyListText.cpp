#include "forms/EmptyListText.h"

#include "forms/Metrics.h"
#include "forms/OwnTexts.h"

#include <QPainter>

#include <optional>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

namespace {

struct EmptyTexts {
    OwnEntry reason;
    OwnEntry hint;
};

/// None while the list has not been built: that is no finding.
std::optional<EmptyTexts> TextsOf(finding::ListOutcome outcome)
{
    using finding::ListOutcome;
    switch (outcome) {
    case ListOutcome::NoFilterHit: return EmptyTexts{kOwnNoMatch, kOwnFilterHint};
    case ListOutcome::NoSearchHit: return EmptyTexts{kOwnNoMatch, kOwnSearchHint};
    case ListOutcome::NoGames: return EmptyTexts{kOwnNoGames, kOwnAddHint};
    default: return std::nullopt;
    }
}

} // namespace

void EmptyListText::Take(const finding::GameList& list, const shell::LangTable& lang)
{
    const std::optional<EmptyTexts> texts = TextsOf(list.outcome);
    const bool tells = texts && list.items.empty();
    m_reason = tells ? Own(lang, texts->reason) : QString();
    m_hint = tells ? Own(lang, texts->hint) : QString();
}

QString EmptyListText::Spoken() const
{
    return m_reason.isEmpty() ? QString() : m_reason + u". "_s + m_hint;
}

void EmptyListText::Paint(QWidget& viewport) const
{
    if (m_reason.isEmpty()) {
        return;
    }
    QPainter painter(&viewport);
    // Also while the panel rests it is what one has to read.
    painter.setPen(viewport.palette().color(QPalette::Active, QPalette::Text));
    const int gap = Gap(viewport);
    const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    QRect area = viewport.rect().adjusted(2 * gap, gap, -2 * gap, -gap);
    area.setTop(area.top() + area.height() / 3);
    const QFont plain = viewport.font();
    QFont large = Scaled(plain, 1.25);
    large.setBold(true);
    painter.setFont(large);
    QRect used;
    painter.drawText(area, flags, m_reason, &used);
    area.setTop(used.bottom() + gap);
    painter.setFont(plain);
    painter.drawText(area, flags, m_hint);
}

} // namespace pelorin::forms
