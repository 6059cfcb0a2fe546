#include "forms/Overlays.h"

#include "forms/Metrics.h"

#include <QVBoxLayout>

#include <initializer_list>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

namespace {

constexpr QRgb kNoticeGround = qRgb(255, 250, 232);
constexpr QRgb kNoticeText = qRgb(90, 84, 68);
constexpr int kFrameMs = 16;

QColor ColourOf(std::uint32_t bgr)
{
    return {
        static_cast<int>(bgr & 0xff),
        static_cast<int>((bgr >> 8) & 0xff),
        static_cast<int>((bgr >> 16) & 0xff)};
}

void SetTextColour(QWidget& widget, const QColor& colour)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, colour);
    widget.setPalette(palette);
}

} // namespace

ProgressOverlay::ProgressOverlay(const Shown& shown, QWidget* parent)
    : QFrame(parent)
    , m_model(shown.screens.progress)
    , m_lblProgress(new QLabel(this))
    , m_pbProgress(new QProgressBar(this))
    , m_listening(m_model.changed, [this](std::uint32_t) { Follow(); })
{
    setObjectName(u"picProgress"_s);
    setBackgroundRole(QPalette::Base);
    setFrameShape(StyledPanel);
    setAutoFillBackground(true);
    m_lblProgress->setObjectName(u"lblProgress"_s);
    m_lblProgress->setTextFormat(Qt::PlainText);
    m_lblProgress->setAlignment(Qt::AlignCenter);
    m_pbProgress->setObjectName(u"pbProgress"_s);
    m_pbProgress->setTextVisible(false);
    auto* column = new QVBoxLayout(this);
    const int gap = Gap(*this);
    column->setContentsMargins(2 * gap, gap, 2 * gap, 2 * gap);
    column->setSpacing(gap);
    column->addWidget(m_lblProgress);
    column->addWidget(m_pbProgress);
    m_frame.setSingleShot(true);
    m_frame.setInterval(kFrameMs);
    connect(&m_frame, &QTimer::timeout, this, [this] { ShowStep(); });
    Follow();
}

void ProgressOverlay::Place(const QRect& area)
{
    m_area = area;
    if (!m_model.visible) {
        return;
    }
    const QSize size(qMin(area.width(), Ems(*this, 26)), sizeHint().height());
    QRect place(QPoint(0, 0), size);
    place.moveCenter(area.center());
    setGeometry(place);
}

void ProgressOverlay::Follow()
{
    if (m_model.visible && isVisible()) {
        // Of steps that follow each other faster than a screen shows them the last one is painted.
        if (!m_frame.isActive()) {
            m_frame.start();
        }
        return;
    }
    m_frame.stop();
    if (m_model.visible) {
        ShowStep();
        Place(m_area);
        raise();
    }
    setVisible(m_model.visible);
}

void ProgressOverlay::ShowStep()
{
    m_lblProgress->setText(m_model.text);
    m_pbProgress->setAccessibleName(m_model.text);
    m_pbProgress->setRange(0, qMax(1, m_model.maximum));
    m_pbProgress->setValue(m_model.value);
}

NoticeOverlay::NoticeOverlay(const Shown& shown, const Deeds& deeds, QWidget* parent)
    : QFrame(parent)
    , m_model(shown.screens.notice)
    , m_lblMessage(new QLabel(this))
    , m_second(new QLabel(this))
    , m_listening(m_model.changed, [this](std::uint32_t) { Follow(); })
{
    setObjectName(u"picMessage"_s);
    setFrameShape(StyledPanel);
    setAutoFillBackground(true);
    QPalette light = palette();
    light.setColor(QPalette::Window, QColor(kNoticeGround));
    setPalette(light);
    m_lblMessage->setObjectName(u"lblMessage"_s);
    m_second->setObjectName(u"lblMessage2"_s);
    // Large and bold, since pure red can't stand out well from any light ground.
    QFont large = Scaled(font(), 1.6);
    large.setBold(true);
    m_lblMessage->setFont(large);
    SetTextColour(*m_second, QColor(kNoticeText));
    auto* column = new QVBoxLayout(this);
    const int gap = Gap(*this);
    column->setContentsMargins(4 * gap, 3 * gap, 4 * gap, 3 * gap);
    column->setSpacing(gap);
    for (QLabel* label : {m_lblMessage, m_second}) {
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        column->addWidget(label);
    }
    BuildBatch(deeds);
    Follow();
}

void NoticeOverlay::BuildBatch(const Deeds& deeds)
{
    m_label4 = new QLabel(this);
    m_label4->setObjectName(u"Label4"_s);
    m_label3 = new QLabel(this);
    m_label3->setObjectName(u"Label3"_s);
    m_progressBar1 = new QProgressBar(this);
    m_progressBar1->setObjectName(u"ProgressBar1"_s);
    m_progressBar1->setTextVisible(false);
    m_command1 = new QPushButton(this);
    m_command1->setObjectName(u"Command1"_s);
    m_command1->setEnabled(static_cast<bool>(deeds.Command1_Click));
    connect(m_command1, &QPushButton::clicked, this, [&deeds] { Do(deeds.Command1_Click); });
    for (QLabel* label : {m_label3, m_label4}) {
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        SetTextColour(*label, QColor(kNoticeText));
    }
    for (QWidget* widget : std::initializer_list<QWidget*>{m_label4, m_progressBar1, m_label3}) {
        layout()->addWidget(widget);
    }
    static_cast<QVBoxLayout*>(layout())->addWidget(m_command1, 0, Qt::AlignHCenter);
}

void NoticeOverlay::TakeTexts(const shell::LangTable& lang)
{
    m_command1->setText(lang[322]);
    m_progressBar1->setAccessibleName(lang[4]);
    if (m_model.lblMessage.isEmpty()) {
        m_lblMessage->setText(lang[2]);
    }
    m_second->setText(lang[4]);
}

void NoticeOverlay::Place(const QRect& area)
{
    m_area = area;
    if (!m_model.visible) {
        return; // and has not been laid out for its texts
    }
    const QSize size = sizeHint().boundedTo(area.size());
    QRect place(QPoint(0, 0), size);
    place.moveCenter(area.center());
    setGeometry(place);
}

void NoticeOverlay::Follow()
{
    if (!m_model.lblMessage.isEmpty()) {
        m_lblMessage->setText(m_model.lblMessage);
    }
    SetTextColour(*m_lblMessage, ColourOf(m_model.colour));
    // The same words twice would look like a fault.
    m_second->setVisible(m_second->text() != m_lblMessage->text());
    FollowBatch();
    setVisible(m_model.visible);
    if (m_model.visible) {
        Place(m_area);
        raise();
    }
}

void NoticeOverlay::FollowBatch()
{
    const shell::BatchProgress& batch = m_model.batch;
    const bool begins = batch.visible && m_command1->isHidden();
    for (QWidget* widget :
         std::initializer_list<QWidget*>{m_label3, m_label4, m_progressBar1, m_command1}) {
        widget->setVisible(batch.visible);
    }
    if (!batch.visible) {
        return;
    }
    m_second->hide();
    // A long title must not make the notice jump from game to game.
    const int width = Ems(*this, 24);
    m_label4->setFixedWidth(width);
    m_label4->setText(fontMetrics().elidedText(batch.Label4, Qt::ElideMiddle, width));
    m_label3->setText(batch.Label3);
    m_progressBar1->setRange(0, qMax(1, batch.maximum));
    m_progressBar1->setValue(batch.value);
    if (begins) {
        m_command1->setFocus(); // what has the keyboard else is disabled meanwhile
    }
}

} // namespace pelorin::forms
