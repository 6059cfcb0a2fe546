#pragma once

#include <QStringView>

namespace pelorin::finding {

/// The bucket of the index of initial consonants that a text falls in by its first character: one of
/// ㄱ ㄴ ㄷ ㄹ ㅁ ㅂ ㅅ ㅇ ㅈ ㅊ ㅋ ㅌ ㅍ ㅎ, "123", "ABC", "기타" for all else, empty for an empty text.
/// Doubled consonants fall in with the single ones.
QStringView ClassifyInitial(QStringView text);

} // namespace pelorin::finding
