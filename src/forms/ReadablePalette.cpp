#include "forms/ReadablePalette.h"

#include <QApplication>
#include <QEvent>

#include <algorithm>
#include <cmath>

namespace pelorin::forms {

namespace {

// Above the 4.5 that readers need, since small letters are drawn fainter than their colour, and
// those of what is disabled, a hint among them, on another ground than their own.
constexpr double kTextContrast = 5.5;
constexpr double kDisabledContrast = 6.5;
constexpr int kSteps = 50;

double Luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double ContrastOf(const QColor& one, const QColor& other)
{
    const auto [low, high] = std::minmax({Luminance(one), Luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

QColor Mixed(const QColor& some, const QColor& rest, double part)
{
    const auto mix = [part](float a, float b) {
        return static_cast<float>(a * part + b * (1 - part));
    };
    return QColor::fromRgbF(
        mix(some.redF(), rest.redF()),
        mix(some.greenF(), rest.greenF()),
        mix(some.blueF(), rest.blueF()));
}

/// What is selected: dark letters on a light colour where the window is dark, so that the colour
/// stands out from the window as well, and the other way round.
void MakeSelectionReadable(QPalette& palette)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor text = palette.color(group, QPalette::HighlightedText);
        const QColor ground = palette.color(group, QPalette::Highlight);
        if (ContrastOf(text, ground) >= kTextContrast) {
            continue;
        }
        const QColor window = palette.color(QPalette::Active, QPalette::Window);
        const bool isDark = ContrastOf(window, Qt::white) > ContrastOf(window, Qt::black);
        const QColor letters = isDark ? Qt::black : Qt::white;
        palette.setColor(group, QPalette::HighlightedText, letters);
        palette.setColor(
            group,
            QPalette::Highlight,
            Contrasting(ground, isDark ? Qt::white : Qt::black, letters, kTextContrast));
    }
}

} // namespace

QColor Contrasting(const QColor& colour, const QColor& other, const QColor& ground, double contrast)
{
    QColor mixed = colour;
    for (int i = 0; i <= kSteps && ContrastOf(mixed, ground) < contrast; ++i) {
        mixed = Mixed(other, colour, static_cast<double>(i) / kSteps);
    }
    return mixed;
}

QPalette MadeReadable(QPalette palette)
{
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::Text, QPalette::Window}, // which disabled boxes stand on
    };
    for (const auto& [text, ground] : pairs) {
        palette.setColor(
            QPalette::Disabled,
            text,
            Contrasting(
                palette.color(QPalette::Active, ground),
                palette.color(QPalette::Active, text),
                palette.color(QPalette::Active, ground),
                kDisabledContrast));
    }
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    palette.setColor(QPalette::PlaceholderText, Contrasting(base, text, base, kDisabledContrast));
    MakeSelectionReadable(palette);
    return palette;
}

ReadablePalette::ReadablePalette(QApplication& application)
{
    application.installEventFilter(this);
    Apply();
}

bool ReadablePalette::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange &&
        watched == QCoreApplication::instance()) {
        Apply();
    }
    return false;
}

void ReadablePalette::Apply()
{
    if (!m_applying) {
        m_applying = true;
        QApplication::setPalette(MadeReadable(QApplication::palette()));
        m_applying = false;
    }
}

} // namespace pelorin::forms
