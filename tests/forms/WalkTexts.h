#pragma once

#include <QList>
#include <QRect>
#include <QStringList>

class QWidget;

// Where the texts of a control stand, kind by kind.

namespace pelorin::test {

/// In the control's own coordinates, without its frame; nothing where it shows no text.
QList<QRect> TextPlaces(const QWidget& control);

/// The texts of the control that are wider than their places. What files hold does not count.
QStringList TooWideTexts(const QWidget& control);

} // namespace pelorin::test
