#pragma once

#include <QByteArray>

namespace pelorin::library {

/// Picks, out of a .ico file's pictures, the one that suits `side` best (the smallest that is not
/// smaller, else the largest; of these the one with most colours) and gives a .ico file of that one
/// alone. Empty when the bytes are no .ico file or the picture claims more than `mostPixels`.
QByteArray SingleIco(const QByteArray& ico, int side, qint64 mostPixels);

} // namespace pelorin::library
