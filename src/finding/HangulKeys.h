#pragma once

#include <QString>
#include <QStringView>

namespace pelorin::finding {

/// Hangul as the keys that are pressed for it, one lone letter each: "별" gives "ㅂㅕㄹ", "값" gives
/// "ㄱㅏㅂㅅ". So what stands after the first keys of a word is always a beginning of the whole, which
/// is not so for syllables. Takes syllables and conjoining letters; anything else stays.
QString HangulKeys(QStringView text);

} // namespace pelorin::finding
