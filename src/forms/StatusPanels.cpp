#include "forms/StatusPanels.h"

#include "forms/Metrics.h"
#include "forms/OwnTexts.h"
#include "forms/Pictures.h"
#include "forms/Texts.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

StatusPanel::StatusPanel(QWidget* parent)
    : QAbstractButton(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
}

void StatusPanel::Show(const QString& text)
{
    setText(text);
    setShortcut({}); // "&" in a path is no key
    setToolTip(AsToolTip(text));
    setAccessibleName(text);
    updateGeometry();
    update();
}

void StatusPanel::SetClickable(bool clickable)
{
    m_clickable = clickable;
    setFocusPolicy(clickable ? Qt::TabFocus : Qt::NoFocus);
    setCursor(clickable ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

QSize StatusPanel::sizeHint() const
{
    const int gap = Gap(*this);
    const int picture = icon().isNull() ? 0 : SmallSide(*this) + gap;
    return {
        fontMetrics().horizontalAdvance(text()) + picture + 2 * gap, fontMetrics().height() + gap};
}

QSize StatusPanel::minimumSizeHint() const
{
    return {Ems(*this, 2), sizeHint().height()};
}

QRect StatusPanel::TextRect() const
{
    const int gap = Gap(*this);
    const int picture = icon().isNull() ? 0 : SmallSide(*this) + gap;
    return rect().adjusted(gap + picture, 0, -gap, 0);
}

void StatusPanel::resizeEvent(QResizeEvent* event)
{
    QAbstractButton::resizeEvent(event);
    update();
}

void StatusPanel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int gap = Gap(*this);
    if (m_clickable && underMouse()) {
        QColor ground = palette().color(QPalette::Highlight);
        ground.setAlpha(30);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawRoundedRect(rect(), gap / 2.0, gap / 2.0);
    }
    if (!icon().isNull()) {
        const int side = SmallSide(*this);
        icon().paint(&painter, gap, (height() - side) / 2, side, side);
    }
    const QRect words = TextRect();
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(
        words,
        Qt::AlignLeft | Qt::AlignVCenter,
        fontMetrics().elidedText(text(), Qt::ElideMiddle, words.width()));
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

StatusPanels::StatusPanels(const Shown& shown, const Deeds& deeds, QWidget* parent)
    : QStatusBar(parent)
    , m_shown(shown)
    , m_listening(shown.screens.status.changed, [this](std::uint32_t changed) {
        if ((changed & shell::StatusBar::Texts) != 0) {
            ShowTexts();
        }
        if ((changed & shell::StatusBar::Notes) != 0) {
            ShowNotes();
        }
    })
{
    setObjectName(u"SBDirectory"_s);
    constexpr std::array<int, 4> kStretch{5, 8, 4, 6};
    for (int i = 0; i < 4; ++i) {
        auto* panel = new StatusPanel(this);
        panel->setObjectName(u"SBDirectory_%1"_s.arg(i + 1));
        m_panels[static_cast<std::size_t>(i)] = panel;
        addWidget(panel, kStretch[static_cast<std::size_t>(i)]);
    }
    m_panels[1]->SetClickable(static_cast<bool>(deeds.RenameGameFolder));
    connect(m_panels[1], &StatusPanel::clicked, this, [&deeds] { Do(deeds.RenameGameFolder); });
    m_panels[2]->SetClickable(static_cast<bool>(deeds.SBDirectory_PanelClick));
    connect(m_panels[2], &StatusPanel::clicked, this, [&deeds] {
        Do(deeds.SBDirectory_PanelClick, 3);
    });
    m_panels[3]->setIcon(PictureIcon(u"note"_s));
    m_panels[3]->SetClickable(true);
    connect(m_panels[3], &StatusPanel::clicked, this, [this] { TellNotes(); });
    ShowTexts();
    ShowNotes();
}

void StatusPanels::ShowTexts()
{
    const shell::StatusBar& status = m_shown.screens.status;
    m_panels[0]->Show(status.game);
    m_panels[1]->Show(status.folder);
    m_panels[2]->Show(status.count);
}

void StatusPanels::ShowNotes()
{
    const std::vector<shell::Note>& notes = m_shown.screens.status.notes;
    m_panels[3]->setVisible(!notes.empty());
    m_panels[3]->Show(notes.empty() ? QString() : notes.back().text.section(u'\n', 0, 0).trimmed());
}

void StatusPanels::TellNotes()
{
    QStringList stories;
    const std::vector<shell::Note>& notes = m_shown.screens.status.notes;
    for (const shell::Note& note : notes) {
        const bool more = !note.story.isEmpty() && note.story != note.text;
        // The newest first.
        stories.prepend(more ? note.text + u"\n"_s + note.story : note.text);
    }
    m_shown.prompts.ShowReport(Own(m_shown.lang, kOwnNotes), stories.join(u"\n\n"_s));
}

} // namespace pelorin::forms
