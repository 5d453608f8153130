#include "notes/NoteValues.h"

#include <algorithm>

namespace dyeworks::plugins {

namespace {

/// A line of the file has at most 511 characters, key and spaces included.
constexpr qsizetype kLongestPiece = 400;
/// Damaged files may tell of more than anybody writes.
constexpr int kMostNotes = 65536;
constexpr const char* kBlank = "%20";

constexpr char kEscape = '%';

bool isHeld(char byte) {
    return static_cast<unsigned char>(byte) >= 0x20 && byte != 0x7F && byte != '#' && byte != kEscape;
}

bool continues(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

QByteArray escaped(char byte) {
    return kEscape + QByteArray(1, byte).toHex().toUpper();
}

/// Blanks at the ends of a value are lost.
QByteArray withEnds(QByteArray piece) {
    if (piece.endsWith(' '))
        piece.replace(piece.size() - 1, 1, kBlank);
    if (piece.startsWith(' '))
        piece.replace(0, 1, kBlank);
    return piece;
}

template <typename EndsAfter>
std::vector<QByteArray> pieces(const QString& text, qsizetype longest, EndsAfter endsAfter) {
    std::vector<QByteArray> result;
    QByteArray piece;
    const auto finish = [&] {
        if (!piece.isEmpty())
            result.push_back(withEnds(std::exchange(piece, {})));
    };
    const QByteArray bytes = text.toUtf8();
    // Both ends may become longer.
    const qsizetype room = longest - 4;
    for (qsizetype at = 0; at < bytes.size();) {
        const qsizetype first = at++;
        while (at < bytes.size() && continues(bytes[at]))
            ++at;
        const QByteArray character =
            isHeld(bytes[first]) ? bytes.mid(first, at - first) : escaped(bytes[first]);
        if (piece.size() + character.size() > room)
            finish();
        piece += character;
        if (endsAfter(bytes[first]))
            finish();
    }
    finish();
    return result;
}

QByteArray keyOf(qsizetype note) {
    return QByteArray(NoteTree::kPath) + '\\' + QByteArray::number(note);
}

QByteArray keyOf(qsizetype note, qsizetype piece) {
    return keyOf(note) + '.' + QByteArray::number(piece);
}

void addValues(NoteValues& values, qsizetype& number, const Note& above, int depth) {
    for (const std::unique_ptr<Note>& note : above.children) {
        const std::vector<QByteArray> text = encodedPieces(note->text, kLongestPiece);
        values.emplace_back(keyOf(number), QByteArray::number(depth) + ',' +
                                               QByteArray::number(static_cast<qlonglong>(text.size())) + ',' +
                                               encoded(note->title));
        for (std::size_t i = 0; i < text.size(); ++i)
            values.emplace_back(keyOf(number, static_cast<qsizetype>(i)), text[i]);
        ++number;
        addValues(values, number, *note, depth + 1);
    }
}

/// The note that `note`, or the top of the tree, is or has above itself in that many levels.
Note& parentAt(Note& note, int depth) {
    Note* parent = &note;
    while (depthOf(*parent) >= depth)
        parent = parent->parent;
    return *parent;
}

} // namespace

std::vector<QByteArray> encodedPieces(const QString& text, qsizetype longest) {
    return pieces(text, longest, [](char byte) { return byte == '\n'; });
}

QByteArray encoded(const QString& text) {
    const std::vector<QByteArray> all =
        pieces(text, std::numeric_limits<qsizetype>::max(), [](char) { return false; });
    return all.empty() ? QByteArray() : all.front();
}

QString decoded(const QByteArray& text) {
    QByteArray bytes;
    for (qsizetype at = 0; at < text.size(); ++at) {
        bool isNumber = false;
        const uint byte = text[at] == kEscape ? text.mid(at + 1, 2).toUInt(&isNumber, 16) : 0;
        if (isNumber && at + 2 < text.size()) {
            bytes += static_cast<char>(byte);
            at += 2;
        } else {
            bytes += text[at];
        }
    }
    return QString::fromUtf8(bytes);
}

NoteValues valuesOf(const NoteTree& tree) {
    NoteValues values;
    qsizetype number = 0;
    addValues(values, number, tree.root(), 0);
    if (number > 0)
        values.insert(values.begin(), {NoteTree::kPath, QByteArray::number(number)});
    return values;
}

std::map<QByteArray, QByteArray>
readNotes(NoteTree& tree, const std::function<std::optional<QByteArray>(const QByteArray& key)>& valueOf) {
    std::map<QByteArray, QByteArray> found;
    const auto take = [&](const QByteArray& key) {
        std::optional<QByteArray> value = valueOf(key);
        if (value)
            found.emplace(key, *value);
        return value;
    };
    Note* last = &tree.root();
    const int count = std::min(take(NoteTree::kPath).value_or(QByteArray()).toInt(), kMostNotes);
    for (int i = 0; i < count; ++i) {
        const std::optional<QByteArray> head = take(keyOf(i));
        if (!head)
            continue;
        QString text;
        // No further than there are any, whatever the number says.
        const qsizetype afterDepth = head->indexOf(',');
        const qsizetype afterPieces = afterDepth < 0 ? -1 : head->indexOf(',', afterDepth + 1);
        const int pieceCount =
            afterPieces < 0 ? 0 : head->mid(afterDepth + 1, afterPieces - afterDepth - 1).toInt();
        for (int piece = 0; piece < pieceCount; ++piece) {
            const std::optional<QByteArray> value = take(keyOf(i, piece));
            if (!value)
                break;
            text += decoded(*value);
        }
        if (afterPieces < 0)
            continue;
        const int depth = std::clamp(head->left(afterDepth).toInt(), 0, NoteTree::kMostLevels - 1);
        Note& parent = parentAt(*last, depth);
        last = &tree.insert({&parent, parent.children.size()}, decoded(head->mid(afterPieces + 1)), text);
    }
    return found;
}

} // namespace dyeworks::plugins
