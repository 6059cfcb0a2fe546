#pragma once

#include "platform/Notifier.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>

namespace pelorin::library {

/// What frmConfigDetail holds: the four facts of one game, in the order maker, release, language,
/// country.
struct ConfigDetail {
    enum Changed : std::uint32_t { Open = 1, Texts = 2, Close = 4 };

    QString folder; // whose facts they are; empty while the dialog is closed
    QString title;
    std::array<QString, 4> Combo1;     // as typed
    std::array<QStringList, 4> values; // what each suggests

    platform::Notifier changed;
};

} // namespace pelorin::library
