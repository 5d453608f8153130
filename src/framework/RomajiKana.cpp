#include "framework/RomajiKana.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace dyeworks {

namespace {

constexpr std::u32string_view kVowels = U"aiueo";

/// What is typed before a vowel, and the kana for each of the vowels in their order; '-' for one that is not.
struct Row {
    std::u32string_view typed;
    std::u32string_view kana[5];
};

constexpr Row kRows[] = {
    {U"", {U"あ", U"い", U"う", U"え", U"お"}},
    {U"k", {U"か", U"き", U"く", U"け", U"こ"}},
    {U"s", {U"さ", U"し", U"す", U"せ", U"そ"}},
    {U"t", {U"た", U"ち", U"つ", U"て", U"と"}},
    {U"n", {U"な", U"に", U"ぬ", U"ね", U"の"}},
    {U"h", {U"は", U"ひ", U"ふ", U"へ", U"ほ"}},
    {U"m", {U"ま", U"み", U"む", U"め", U"も"}},
    {U"y", {U"や", U"", U"ゆ", U"", U"よ"}},
    {U"r", {U"ら", U"り", U"る", U"れ", U"ろ"}},
    {U"w", {U"わ", U"うぃ", U"", U"うぇ", U"を"}},
    {U"g", {U"が", U"ぎ", U"ぐ", U"げ", U"ご"}},
    {U"z", {U"ざ", U"じ", U"ず", U"ぜ", U"ぞ"}},
    {U"d", {U"だ", U"ぢ", U"づ", U"で", U"ど"}},
    {U"b", {U"ば", U"び", U"ぶ", U"べ", U"ぼ"}},
    {U"p", {U"ぱ", U"ぴ", U"ぷ", U"ぺ", U"ぽ"}},
    {U"f", {U"ふぁ", U"ふぃ", U"ふ", U"ふぇ", U"ふぉ"}},
    {U"j", {U"じゃ", U"じ", U"じゅ", U"じぇ", U"じょ"}},
    {U"sh", {U"しゃ", U"し", U"しゅ", U"しぇ", U"しょ"}},
    {U"ch", {U"ちゃ", U"ち", U"ちゅ", U"ちぇ", U"ちょ"}},
    {U"ts", {U"", U"", U"つ", U"", U""}},
    {U"v", {U"ゔぁ", U"ゔぃ", U"ゔ", U"ゔぇ", U"ゔぉ"}},
    {U"ky", {U"きゃ", U"", U"きゅ", U"", U"きょ"}},
    {U"sy", {U"しゃ", U"", U"しゅ", U"", U"しょ"}},
    {U"ty", {U"ちゃ", U"", U"ちゅ", U"", U"ちょ"}},
    {U"ny", {U"にゃ", U"", U"にゅ", U"", U"にょ"}},
    {U"hy", {U"ひゃ", U"", U"ひゅ", U"", U"ひょ"}},
    {U"my", {U"みゃ", U"", U"みゅ", U"", U"みょ"}},
    {U"ry", {U"りゃ", U"", U"りゅ", U"", U"りょ"}},
    {U"gy", {U"ぎゃ", U"", U"ぎゅ", U"", U"ぎょ"}},
    {U"zy", {U"じゃ", U"", U"じゅ", U"", U"じょ"}},
    {U"by", {U"びゃ", U"", U"びゅ", U"", U"びょ"}},
    {U"py", {U"ぴゃ", U"", U"ぴゅ", U"", U"ぴょ"}},
    {U"th", {U"", U"てぃ", U"", U"", U""}},
    {U"dh", {U"", U"でぃ", U"", U"", U""}},
};

} // namespace

std::u32string kanaOfRomaji(std::u32string_view letters) {
    std::u32string kana;
    while (!letters.empty()) {
        const std::size_t vowel = letters.find_first_of(kVowels);
        const char32_t first = letters.front();
        const bool twice = letters.size() > 1 && letters[1] == first;
        if (first == U'n' && vowel != 1 && (letters.size() < 2 || letters[1] != U'y')) {
            // Alone at the end it may yet become "na".
            if (letters.size() > 1)
                kana += U'ん';
            letters.remove_prefix(twice ? 2 : 1);
        } else if (twice && vowel != 0) {
            kana += U'っ';
            letters.remove_prefix(1);
        } else if (vowel == std::u32string_view::npos) {
            return letters.size() < 3 && letters.find_first_not_of(U"kstnhmyrwgzdbpfjcv") == vowel ? kana
                                                                                                   : U"";
        } else {
            const auto row = std::ranges::find(kRows, letters.substr(0, vowel), &Row::typed);
            if (row == std::end(kRows) || row->kana[kVowels.find(letters[vowel])].empty())
                return {};
            kana += row->kana[kVowels.find(letters[vowel])];
            letters.remove_prefix(vowel + 1);
        }
    }
    return kana;
}

} // namespace dyeworks
