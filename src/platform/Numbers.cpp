#include "platform/Numbers.h"

#include <QString>

#include <cmath>
#include <limits>
#include <optional>

namespace pelorin::platform {

namespace {

qsizetype SkipDigits(QStringView text, qsizetype at)
{
    while (at < text.size() && text[at] >= u'0' && text[at] <= u'9') {
        ++at;
    }
    return at;
}

bool IsSign(QChar c)
{
    return c == u'+' || c == u'-';
}

/// Where the number that begins at `start` ends; `start` itself if there is none.
qsizetype NumberEnd(QStringView text, qsizetype start)
{
    qsizetype at = start;
    if (at < text.size() && IsSign(text[at])) {
        ++at;
    }
    qsizetype end = SkipDigits(text, at);
    qsizetype digits = end - at;
    if (end < text.size() && text[end] == u'.') {
        const qsizetype fraction = SkipDigits(text, end + 1);
        digits += fraction - end - 1;
        end = fraction;
    }
    if (digits == 0) {
        return start;
    }
    if (end < text.size() && (text[end] == u'e' || text[end] == u'E')) {
        const qsizetype first = end + 1 < text.size() && IsSign(text[end + 1]) ? end + 2 : end + 1;
        const qsizetype exponent = SkipDigits(text, first);
        end = exponent > first ? exponent : end;
    }
    return end;
}

/// Most numbers are a few digits, which are far cheaper to read than numbers in general. No digit at
/// all is 0.
std::optional<double> FewDigits(QStringView number)
{
    constexpr qsizetype kExact = 15;
    if (number.size() > kExact) {
        return std::nullopt;
    }
    qint64 value = 0;
    for (const QChar c : number) {
        if (c < u'0' || c > u'9') {
            return std::nullopt;
        }
        value = value * 10 + (c.unicode() - u'0');
    }
    return static_cast<double>(value);
}

} // namespace

double NumericPrefix(QStringView text)
{
    qsizetype start = 0;
    while (start < text.size() && (text[start] == u' ' || text[start] == u'\t')) {
        ++start;
    }
    const qsizetype end = NumberEnd(text, start);
    const QStringView number = text.sliced(start, end - start);
    const std::optional<double> few = FewDigits(number);
    return few ? *few : number.toDouble();
}

std::int32_t RoundHalfEven(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double kLowest = std::numeric_limits<std::int32_t>::min();
    constexpr double kHighest = std::numeric_limits<std::int32_t>::max();
    const double floor = std::floor(value);
    const double rest = value - floor;
    const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(floor, 2.0) != 0.0);
    const double rounded = up ? floor + 1.0 : floor;
    return static_cast<std::int32_t>(std::fmin(std::fmax(rounded, kLowest), kHighest));
}

std::int32_t IntegerPrefix(QStringView text)
{
    return RoundHalfEven(NumericPrefix(text));
}

QString NumberText(double value)
{
    QString text = QString::number(value, 'f', 3);
    while (text.endsWith(u'0')) {
        text.chop(1);
    }
    if (text.endsWith(u'.')) {
        text.chop(1);
    }
    return text == u"-0" ? text.mid(1) : text;
}

} // namespace pelorin::platform
