#include "framework/KanjiReading.h"

#include "platform/TextCase.h"

#include <algorithm>
#include <iterator>

namespace dyeworks {

namespace {

struct Word {
    std::string_view kanji;
    std::string_view kana;
};

/// In the order of their bytes. Where one begins another, the longer one is taken: "上書" is not "上" and
/// "書".
constexpr Word kWords[] = {
    {"一覧", "いちらん"},
    {"上", "うえ"},
    {"上下", "じょうげ"},
    {"上書", "うわが"},
    {"下", "した"},
    {"並", "なら"},
    {"丸", "まる"},
    {"付", "つ"},
    {"作成", "さくせい"},
    {"使", "つか"},
    {"使用", "しよう"},
    {"保存", "ほぞん"},
    {"倍", "ばい"},
    {"元", "もと"},
    {"入", "い"},
    {"入力", "にゅうりょく"},
    {"全", "ぜん"},
    {"全画面", "ぜんがめん"},
    {"円", "えん"},
    {"出力", "しゅつりょく"},
    {"切", "き"},
    {"初期", "しょき"},
    {"削除", "さくじょ"},
    {"前", "まえ"},
    {"割", "わ"},
    {"半分", "はんぶん"},
    {"印刷", "いんさつ"},
    {"反転", "はんてん"},
    {"取", "と"},
    {"右", "みぎ"},
    {"合", "あ"},
    {"同色", "どうしょく"},
    {"名前", "なまえ"},
    {"四角", "しかく"},
    {"四角形", "しかくけい"},
    {"回", "まわ"},
    {"回転", "かいてん"},
    {"塗", "ぬ"},
    {"変換", "へんかん"},
    {"変更", "へんこう"},
    {"大", "おお"},
    {"実行", "じっこう"},
    {"対称", "たいしょう"},
    {"小", "ちい"},
    {"履歴", "りれき"},
    {"左", "ひだり"},
    {"左右", "さゆう"},
    {"度", "ど"},
    {"当", "あ"},
    {"情報", "じょうほう"},
    {"戻", "もど"},
    {"抜", "ぬ"},
    {"拡大", "かくだい"},
    {"指定", "してい"},
    {"描画", "びょうが"},
    {"換", "か"},
    {"操作", "そうさ"},
    {"整列", "せいれつ"},
    {"整理", "せいり"},
    {"新", "あたら"},
    {"新規作成", "しんきさくせい"},
    {"時", "じ"},
    {"替", "か"},
    {"最初", "さいしょ"},
    {"最後", "さいご"},
    {"最近", "さいきん"},
    {"検査", "けんさ"},
    {"検査前", "けんさまえ"},
    {"検索", "けんさく"},
    {"次", "つぎ"},
    {"段階", "だんかい"},
    {"消去", "しょうきょ"},
    {"状態", "じょうたい"},
    {"状況", "じょうきょう"},
    {"現在", "げんざい"},
    {"画像", "がぞう"},
    {"直", "なお"},
    {"直線", "ちょくせん"},
    {"示", "しめ"},
    {"移動", "いどう"},
    {"範囲", "はんい"},
    {"終了", "しゅうりょう"},
    {"結果", "けっか"},
    {"編集", "へんしゅう"},
    {"縮小", "しゅくしょう"},
    {"繰", "く"},
    {"置", "お"},
    {"色", "いろ"},
    {"虫", "むし"},
    {"表示", "ひょうじ"},
    {"解除", "かいじょ"},
    {"設定", "せってい"},
    {"詰", "つ"},
    {"調整", "ちょうせい"},
    {"貼", "は"},
    {"込", "こ"},
    {"返", "かえ"},
    {"追加", "ついか"},
    {"逆順", "ぎゃくじゅん"},
    {"選択", "せんたく"},
    {"配置", "はいち"},
    {"重", "かさ"},
    {"閉", "と"},
    {"開", "ひら"},
    {"項目", "こうもく"},
};

static_assert(std::ranges::is_sorted(kWords, {}, &Word::kanji), "look-up needs the order");

/// The longest word at the front of the text, or null.
const Word* wordAtFront(std::string_view text) {
    const auto after = std::ranges::upper_bound(kWords, text, {}, &Word::kanji);
    for (auto word = after; word != std::begin(kWords);) {
        --word;
        if (text.starts_with(word->kanji))
            return word;
        // What is smaller and shares no character with the text is no beginning of it, nor is what follows.
        if (word->kanji.front() != text.front())
            return nullptr;
    }
    return nullptr;
}

/// Whether a character of three bytes stands in front that is a kanji: U+3400 to U+9FFF.
bool kanjiAtFront(std::string_view text) {
    return characterLength(text) == 3 && text.substr(0, 3) >= "\xE3\x90\x80" &&
           text.substr(0, 3) <= "\xE9\xBF\xBF";
}

} // namespace

std::optional<std::string> kanaReading(std::string_view text) {
    std::string reading;
    while (!text.empty()) {
        const Word* const word = kanjiAtFront(text) ? wordAtFront(text) : nullptr;
        if (word != nullptr) {
            reading.append(" ").append(word->kana);
            text.remove_prefix(word->kanji.size());
            continue;
        }
        if (kanjiAtFront(text))
            return std::nullopt;
        const std::size_t length = characterLength(text);
        reading.append(text.substr(0, length));
        text.remove_prefix(length);
    }
    return reading;
}

} // namespace dyeworks
