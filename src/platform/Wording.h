#pragma once

#include <QString>
#include <QStringList>

namespace pelorin::platform {

/// A text for the user: an entry of the language file behind those that every file has, the English
/// that stands in where the file lacks it, and the values for <1>, <2> and so on. Entry 0: there is
/// only the English.
struct Wording {
    int entry = 0;
    QString english;
    QStringList values;

    /// With the values in their places, one after the other, plainly.
    static QString Filled(QString text, const QStringList& values);
    QString English() const { return Filled(english, values); }
};

} // namespace pelorin::platform
