#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstddef>

// The least work for an end, written without regard to anything but speed.

namespace pelorin::bench {

/// Reads a file into memory of its own. Empty when it can't be read.
QByteArray ReadWhole(const char* path);

struct BareScan {
    std::size_t entries = 0; // in all folders
    std::size_t bytes = 0;   // of all texts
    std::size_t pixels = 0;  // of all icons
};

/// Lists each game folder and its metadata folder once, reads each file there that makes up a game's
/// entry once, and unpacks each icon once.
BareScan ScanBare(const QString& gamesRoot);

/// Lists a game's folders once and reads what the details show of it once; gives the bytes read.
std::size_t LookAtGame(const QString& gameDir);

/// The program cp, as somebody would type it. False when it fails.
bool CopyByCp(const QStringList& files, const QString& folder);

} // namespace pelorin::bench
