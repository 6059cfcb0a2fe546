#pragma once

#include <QFont>
#include <QWidget>

// Sizes come from the font, so that they fit at any resolution of the screen: a device pixel ratio
// scales them by itself, and a desktop that asks for more dots an inch makes the font larger.

namespace pelorin::forms {

/// Pixels of so many widths of a wide letter.
inline int Ems(const QWidget& widget, double ems)
{
    return qRound(widget.fontMetrics().height() * ems / 1.35);
}

/// Pixels of so many lines of text.
inline int Lines(const QWidget& widget, double lines)
{
    return qRound(widget.fontMetrics().lineSpacing() * lines);
}

/// The distance between things that belong together.
inline int Gap(const QWidget& widget)
{
    return qMax(4, qRound(widget.fontMetrics().height() * 0.45));
}

/// The side of a picture beside text; 16 where text is small.
inline int SmallSide(const QWidget& widget)
{
    return qMax(16, qRound(widget.fontMetrics().height() * 1.0));
}

/// The side of a game's large icon.
inline int LargeSide(const QWidget& widget)
{
    return 2 * SmallSide(widget);
}

/// The widget's font in another size; weight and all else stay.
inline QFont Scaled(QFont font, double factor)
{
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * factor);
    } else {
        font.setPixelSize(qRound(font.pixelSize() * factor));
    }
    return font;
}

} // namespace pelorin::forms
