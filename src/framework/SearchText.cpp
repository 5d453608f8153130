#include "framework/SearchText.h"

#include "platform/TextCase.h"

#include <algorithm>
#include <cstdint>

namespace dyeworks {

namespace {

constexpr bool within(char32_t code, char32_t first, char32_t last) {
    return code >= first && code <= last;
}

/// The small letters U+00E0 to U+017F without their marks; '-' where there is none to take away.
constexpr std::u32string_view kBareLatin = U"aaaaaa-ceeeeiiii-nooooo-ouuuuy-y"
                                           U"aaaaaaccccccccddddeeeeeeeeeegggg"
                                           U"gggghhhhiiiiiiiiii--jjkk-llllll-"
                                           U"-llnnnnnn---oooooo--rrrrrrssssss"
                                           U"ssttttttuuuuuuuuuuuuwwyyyzzzzzzs";

/// Half-width katakana U+FF66 to U+FF9D at their full width.
constexpr std::u32string_view kFullKatakana = U"ヲァィゥェォャュョッーアイウエオカキクケコサシスセソ"
                                              U"タチツテトナニヌネノハヒフヘホマミムメモヤユヨラリルレロワン";

constexpr char32_t kVoiced = 0x3099;
constexpr char32_t kHalfVoiced = 0x309A;

/// A character of small case, without its width, its accent and its kind of kana.
char32_t bare(char32_t code) {
    if (within(code, 0xFF01, 0xFF5E))
        code -= 0xFEE0;
    if (within(code, 0xFF66, 0xFF9D))
        code = kFullKatakana[code - 0xFF66];
    if (code == 0xFF9E || code == 0xFF9F)
        return code == 0xFF9E ? kVoiced : kHalfVoiced;
    if (within(code, 0xE0, 0x17F) && kBareLatin[code - 0xE0] != U'-')
        return kBareLatin[code - 0xE0];
    return within(code, 0x30A1, 0x30F6) ? code - 0x60 : code;
}

/// Puts the voice mark on the kana before it, as half-width writing and decomposed texts have it.
void voice(std::u32string& letters, char32_t mark) {
    constexpr std::u32string_view kVoiceable = U"かきくけこさしすせそたちつてとはひふへほ";
    if (letters.empty() || kVoiceable.find(letters.back()) == std::u32string_view::npos)
        return;
    letters.back() += mark == kVoiced ? 1 : 2;
}

enum class Writing : std::uint8_t { Letter, Digit, Hiragana, Katakana, Kanji, None };

/// Of a bare character. `katakana`: kana were that before.
Writing writingOf(char32_t code, bool katakana) {
    if (within(code, U'0', U'9'))
        return Writing::Digit;
    if (within(code, 0x3041, 0x3096))
        return katakana ? Writing::Katakana : Writing::Hiragana;
    if (within(code, 0x4E00, 0x9FFF) || within(code, 0x3400, 0x4DBF) || code == U'々')
        return Writing::Kanji;
    if (within(code, U'a', U'z') || within(code, 0xAA, 0x2FF) || within(code, 0x370, 0x1FFF) ||
        within(code, 0xAC00, 0xD7A3))
        return code == 0xD7 || code == 0xF7 ? Writing::None : Writing::Letter;
    return Writing::None;
}

bool beginsWord(Writing before, Writing now) {
    if (before == Writing::None)
        return true;
    // What follows kanji in hiragana ends the word.
    return now != before && now != Writing::Hiragana;
}

/// Finds how what is typed falls into beginnings of words: of all of them, or of some, with a piece longer
/// than a letter or a single piece.
class WordWalk {
public:
    WordWalk(const SearchText& text, const SearchText& typed, bool all)
        : text_(text)
        , typed_(typed.letters)
        , all_(all)
        , failed_((typed_.size() + 1) * (text.words.size() + 1) * 2, false) {}

    [[nodiscard]] bool found() { return walk(0, 0, all_ || typed_.size() == 1); }

private:
    /// From this letter on, with this word or later ones. `longPiece`: there has been one.
    bool walk(std::size_t letter, std::size_t word, bool longPiece) {
        if (letter == typed_.size())
            return longPiece && (!all_ || word == text_.words.size());
        const std::size_t key = (letter * (text_.words.size() + 1) + word) * 2 + (longPiece ? 1 : 0);
        if (word == text_.words.size() || failed_[key])
            return false;
        for (std::size_t length = commonLength(letter, word); length > 0; --length) {
            if (walk(letter + length, word + 1, longPiece || length > 1))
                return true;
        }
        if (!all_ && walk(letter, word + 1, longPiece))
            return true;
        failed_[key] = true;
        return false;
    }

    /// Letters that the word begins with.
    [[nodiscard]] std::size_t commonLength(std::size_t letter, std::size_t word) const {
        const std::size_t start = text_.words[word];
        const std::size_t end = word + 1 < text_.words.size() ? text_.words[word + 1] : text_.letters.size();
        const std::size_t longest = std::min(end - start, typed_.size() - letter);
        std::size_t length = 0;
        while (length < longest && text_.letters[start + length] == typed_[letter + length])
            ++length;
        return length;
    }

    const SearchText& text_;
    const std::u32string& typed_;
    bool all_;
    std::vector<bool> failed_;
};

/// Whether the letters come up in this order among the `count` that `at` answers.
template <typename At>
bool inOrder(const std::u32string& typed, std::size_t count, At at) {
    std::size_t place = 0;
    for (const char32_t letter : typed) {
        while (place < count && at(place) != letter)
            ++place;
        if (place++ == count)
            return false;
    }
    return true;
}

} // namespace

SearchText searchText(std::string_view text) {
    SearchText result;
    std::u32string& letters = result.letters;
    Writing before = Writing::None;
    for (const char32_t code : foldedCase(text)) {
        const char32_t letter = bare(code);
        if (letter == kVoiced || letter == kHalfVoiced) {
            voice(letters, letter);
            continue;
        }
        // "What's" is one word, and so is one with accents of their own or with long vowels.
        if (letter == U'\'' || letter == U'’' || letter == U'ー' || within(letter, 0x300, 0x36F))
            continue;
        const Writing now = writingOf(letter, letter != code);
        if (now != Writing::None) {
            if (beginsWord(before, now))
                result.words.push_back(letters.size());
            letters.push_back(letter);
        }
        before = now;
    }
    return result;
}

TextFit fitOf(const SearchText& text, const SearchText& typed) {
    if (text.letters == typed.letters)
        return TextFit::Exact;
    if (text.letters.starts_with(typed.letters))
        return TextFit::Beginning;
    if (!inOrder(typed.letters, text.letters.size(), [&](std::size_t i) { return text.letters[i]; }))
        return TextFit::None;
    if (WordWalk(text, typed, true).found())
        return TextFit::AllWords;
    if (WordWalk(text, typed, false).found())
        return TextFit::Words;
    if (inOrder(typed.letters, text.words.size(), [&](std::size_t i) { return text.letters[text.words[i]]; }))
        return TextFit::Initials;
    return text.letters.find(typed.letters) != std::u32string::npos ? TextFit::Part : TextFit::Scattered;
}

} // namespace dyeworks
