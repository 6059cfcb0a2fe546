#include "finding/HangulKeys.h"

namespace pelorin::finding {

namespace {

constexpr int kFirstSyllable = 0xAC00;
constexpr int kFirstInitial = 0x1100;
constexpr int kFirstVowel = 0x1161;
constexpr int kFirstFinal = 0x11A8;

constexpr QStringView kInitials[] = {
    u"ㄱ",
    u"ㄲ",
    u"ㄴ",
    u"ㄷ",
    u"ㄸ",
    u"ㄹ",
    u"ㅁ",
    u"ㅂ",
    u"ㅃ",
    u"ㅅ",
    u"ㅆ",
    u"ㅇ",
    u"ㅈ",
    u"ㅉ",
    u"ㅊ",
    u"ㅋ",
    u"ㅌ",
    u"ㅍ",
    u"ㅎ"};
constexpr QStringView kVowels[] = {u"ㅏ",   u"ㅐ",   u"ㅑ",   u"ㅒ",   u"ㅓ",   u"ㅔ",   u"ㅕ",
                                   u"ㅖ",   u"ㅗ",   u"ㅗㅏ", u"ㅗㅐ", u"ㅗㅣ", u"ㅛ",   u"ㅜ",
                                   u"ㅜㅓ", u"ㅜㅔ", u"ㅜㅣ", u"ㅠ",   u"ㅡ",   u"ㅡㅣ", u"ㅣ"};
constexpr QStringView kFinals[] = {u"ㄱ",   u"ㄲ",   u"ㄱㅅ", u"ㄴ",   u"ㄴㅈ", u"ㄴㅎ", u"ㄷ",
                                   u"ㄹ",   u"ㄹㄱ", u"ㄹㅁ", u"ㄹㅂ", u"ㄹㅅ", u"ㄹㅌ", u"ㄹㅍ",
                                   u"ㄹㅎ", u"ㅁ",   u"ㅂ",   u"ㅂㅅ", u"ㅅ",   u"ㅆ",   u"ㅇ",
                                   u"ㅈ",   u"ㅊ",   u"ㅋ",   u"ㅌ",   u"ㅍ",   u"ㅎ"};
constexpr int kInitialCount = std::size(kInitials);
constexpr int kVowelCount = std::size(kVowels);
constexpr int kFinalCount = std::size(kFinals);
constexpr int kSyllablesPerVowel = kFinalCount + 1; // without a final as well
constexpr int kSyllableCount = kInitialCount * kVowelCount * kSyllablesPerVowel;

/// Appends the letters of a conjoining letter; false for any other character.
bool AppendLetter(QString& keys, int code)
{
    if (code >= kFirstInitial && code < kFirstInitial + kInitialCount) {
        keys += kInitials[code - kFirstInitial];
    } else if (code >= kFirstVowel && code < kFirstVowel + kVowelCount) {
        keys += kVowels[code - kFirstVowel];
    } else if (code >= kFirstFinal && code < kFirstFinal + kFinalCount) {
        keys += kFinals[code - kFirstFinal];
    } else {
        return false;
    }
    return true;
}

} // namespace

QString HangulKeys(QStringView text)
{
    QString keys;
    for (const QChar character : text) {
        const int syllable = character.unicode() - kFirstSyllable;
        if (syllable >= 0 && syllable < kSyllableCount) {
            const int final = syllable % kSyllablesPerVowel;
            const int vowel = syllable / kSyllablesPerVowel % kVowelCount;
            keys += kInitials[syllable / kSyllablesPerVowel / kVowelCount];
            keys += kVowels[vowel];
            keys += final > 0 ? kFinals[final - 1] : QStringView();
        } else if (!AppendLetter(keys, character.unicode())) {
            keys += character;
        }
    }
    return keys;
}

} // namespace pelorin::finding
