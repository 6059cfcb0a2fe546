#pragma once

#include <QStringView>

#include <cstdint>

namespace pelorin::platform {

/// The number at the start of a text, as files of this system are read: leading blanks, a sign,
/// digits, a point and an exponent are taken; a text that starts with no number gives 0.
double NumericPrefix(QStringView text);

/// Nearest integer, ties to even, clamped to 32 bits. NaN gives 0.
std::int32_t RoundHalfEven(double value);

/// NumericPrefix, rounded.
std::int32_t IntegerPrefix(QStringView text);

/// A decimal text as files of this system hold it: no exponent, no trailing zeros ("4500", "12.5").
QString NumberText(double value);

} // namespace pelorin::platform
