#include "finding/ClassifyInitial.h"

namespace pelorin::finding {

namespace {

constexpr int kFirstSyllable = 0xAC00;
constexpr int kSyllablesPerInitial = 588; // 21 vowels, 28 finals
constexpr int kFirstJamo = 0x3131;

// By the number of the initial in the order of syllables: ㄱ ㄲ ㄴ ㄷ ㄸ ㄹ ㅁ ㅂ ㅃ ㅅ ㅆ ㅇ ㅈ ㅉ ㅊ ...
constexpr QStringView kBySyllable = u"ㄱㄱㄴㄷㄷㄹㅁㅂㅂㅅㅅㅇㅈㅈㅊㅋㅌㅍㅎ";
// By the place among the lone consonants: ㄱ ㄲ ㄳ ㄴ ㄵ ㄶ ㄷ ㄸ, ㄹ and its seven clusters, ㅁ ...
constexpr QStringView kByJamo = u"ㄱㄱㄱㄴㄴㄴㄷㄷㄹㄹㄹㄹㄹㄹㄹㄹㅁㅂㅂㅂㅅㅅㅇㅈㅈㅊㅋㅌㅍㅎ";

} // namespace

QStringView ClassifyInitial(QStringView text)
{
    if (text.isEmpty()) {
        return {};
    }
    const int code = text.front().toLower().unicode();
    // Towards zero, so that the 587 codes before the first syllable count as its initial's.
    const int initial = (code - kFirstSyllable) / kSyllablesPerInitial;
    if (initial >= 0 && initial < kBySyllable.size()) {
        return kBySyllable.mid(initial, 1);
    }
    if (code >= u'0' && code <= u'9') {
        return u"123";
    }
    if (code >= u'a' && code <= u'z') {
        return u"ABC";
    }
    const int jamo = code - kFirstJamo;
    if (jamo >= 0 && jamo < kByJamo.size()) {
        return kByJamo.mid(jamo, 1);
    }
    return u"기타";
}

} // namespace pelorin::finding
