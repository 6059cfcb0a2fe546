#pragma once

#include "platform/Outcome.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <ostream>

// Short words for what tests say all the time, and texts that a failed one shows as texts.

inline std::ostream& operator<<(std::ostream& stream, const QString& text)
{
    return stream << text.toStdString();
}

inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text << '"';
}

namespace pelorin::test {

/// "a b c" as a list.
inline QStringList Words(const QString& text)
{
    return text.split(u' ', Qt::SkipEmptyParts);
}

/// For EXPECT_PRED2, which shows both.
inline bool Holds(const QString& text, const QString& part)
{
    return text.contains(part);
}

template <class T>
platform::ErrorKind KindOf(const platform::Outcome<T>& outcome)
{
    EXPECT_FALSE(outcome.Ok());
    return outcome.Ok() ? platform::ErrorKind::Malformed : outcome.Failure().kind;
}

/// The error's text; empty where there is none.
template <class T>
QString ErrorOf(const platform::Outcome<T>& outcome)
{
    return outcome.Ok() ? QString() : outcome.Failure().text;
}

} // namespace pelorin::test
