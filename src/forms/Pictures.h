#pragma once

#include "library/IconPixels.h"

#include <QIcon>
#include <QPixmap>
#include <QString>

// The pictures of data/pictures, compiled in. They are SVG, drawn by Qt's plugin for that (Debian:
// libqt6svg6) at the size and device pixel ratio asked for; without the plugin they are empty.

namespace pelorin::forms {

/// The picture `name`.svg. What it draws in "currentColor" and "accentColor" takes the text and
/// highlight colours of the palette at the moment of drawing, so that it suits a dark one as well.
QIcon PictureIcon(const QString& name);

/// The program's own.
QIcon ApplicationIcon();

/// The icon of a game that has none, 32 x 32; a plain one when it can't be drawn.
library::IconPixels DefaultGameIcon();

/// An icon of the sheet, scaled smoothly to `side` logical pixels.
QPixmap IconPixmap(const library::IconPixels& icon, int side, double devicePixelRatio);

} // namespace pelorin::forms
