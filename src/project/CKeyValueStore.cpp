#include "project/CKeyValueStore.h"

#include "platform/CodePage932.h"
#include "platform/Platform.h"
#include "platform/TextCase.h"

#include <algorithm>
#include <optional>
#include <span>
#include <unordered_set>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kOpening = "$(";

/// The next piece of the text, at most as long as a line may be, with the line feed that ends it.
std::string_view takePiece(std::string_view& text) {
    std::size_t length = 0;
    for (std::size_t characters = 0; characters < CKeyValueStore::kLongestLine && length < text.size();
         ++characters) {
        const bool ends = text[length] == '\n';
        length += characterLength(text.substr(length));
        if (ends)
            break;
    }
    // The line feed does not count: behind a line of full length it would be read as an empty one.
    if (length > 0 && text[length - 1] != '\n' && length < text.size() && text[length] == '\n')
        ++length;
    const std::string_view piece = text.substr(0, length);
    text.remove_prefix(length);
    return piece;
}

std::string withoutCarriageReturns(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' || i + 1 == text.size() || text[i + 1] != '\n')
            result += text[i];
    }
    return result;
}

std::string assignment(const std::string& name, const std::string& value) {
    return name + " = " + value;
}

/// The line as it stands in the file.
std::string lineText(const StoreLine& tokens) {
    std::string text;
    for (std::size_t i = 0; i < tokens.size(); ++i)
        (i == 0 ? text : text += '\t') += tokens[i];
    // "name=value" may have been read where the tabs no longer fit into what is read as one line.
    if (tokens.size() == 3 && characterCount(text) > CKeyValueStore::kLongestLine)
        return tokens[0] + tokens[1] + tokens[2];
    return text;
}

bool fitsALine(const std::string& text) {
    return characterCount(text) <= CKeyValueStore::kLongestLine && text.find_first_of("\r\n") == text.npos;
}

} // namespace

bool CKeyValueStore::LoadFile(const std::string& path, std::optional<FileError>* why) {
    const Result<ByteBuffer, FileError> file = platform().files().read(path);
    if (!file) {
        if (why != nullptr)
            *why = file.error();
        return false;
    }
    LoadBytes(file.value().bytes());
    return true;
}

void CKeyValueStore::LoadBytes(std::span<const std::byte> bytes) {
    std::string_view raw(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    const bool utf8 = isUtf8(raw);
    byteOrderMark_ = utf8 && raw.starts_with(kByteOrderMark);
    if (byteOrderMark_)
        raw.remove_prefix(kByteOrderMark.size());
    const std::optional<std::string> japanese = utf8 ? std::nullopt : fromCodePage932(raw);
    codePage932_ = japanese.has_value();

    const std::string text = withoutCarriageReturns(japanese ? *japanese : raw);
    for (std::string_view rest = text; !rest.empty();) {
        std::string_view line = takePiece(rest);
        if (line.ends_with('\n'))
            line.remove_suffix(1);
        AddLine(std::string(line));
    }
}

bool CKeyValueStore::SaveFile(const std::string& path, std::optional<FileError>* why) const {
    const std::string text = FileText();
    const std::optional<FileError> error = platform().files().write(path, std::as_bytes(std::span(text)));
    if (why != nullptr)
        *why = error;
    return !error.has_value();
}

std::string CKeyValueStore::FileText() const {
    std::string text;
    for (const StoreLine& line : lines_)
        text += lineText(line) + "\r\n";
    if (codePage932_) {
        // A few texts in code page 932 would be taken for UTF-8 when they are read again.
        if (std::optional<std::string> japanese = toCodePage932(text); japanese && !isUtf8(*japanese))
            return std::move(*japanese);
    }
    // A line that begins like the mark, and has become the first, is not to be taken for one.
    if ((byteOrderMark_ && !codePage932_) || text.starts_with(kByteOrderMark))
        text.insert(0, kByteOrderMark);
    return text;
}

std::size_t CKeyValueStore::AddLine(const std::string& text) {
    StoreLine line;
    std::size_t place = lines_.size();
    if (TokenizeLine(text, line) > 1)
        place = places().try_emplace(line[0], place).first->second;
    if (ClassifyLine(line) == kAssignmentLine)
        values_[line[0]] = line[2];
    if (place == lines_.size())
        lines_.push_back(std::move(line));
    else
        lines_[place] = std::move(line);
    return lines_.size();
}

/// Removing lines moves those behind them, so the places are found anew when they are needed next.
std::unordered_map<std::string, std::size_t>& CKeyValueStore::places() {
    if (std::exchange(placesAreValid_, true))
        return places_;
    places_.clear();
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        if (lines_[i].size() > 1)
            places_.try_emplace(lines_[i][0], i);
    }
    return places_;
}

std::size_t CKeyValueStore::SetValue(const std::string& name, const std::string& value) {
    const std::string line = assignment(name, value);
    return fitsALine(line) ? AddLine(line) : lines_.size();
}

std::size_t CKeyValueStore::SetLongValue(const std::string& name, std::int32_t value) {
    return SetValue(name, std::to_string(value));
}

bool CKeyValueStore::holds(const std::string& name, const std::string& value) {
    const std::string line = assignment(name, value);
    StoreLine tokens;
    return fitsALine(line) && TokenizeLine(line, tokens) == 3 && tokens[0] == name && tokens[2] == value;
}

bool CKeyValueStore::takes(const std::string& name, const std::string& value) {
    return IsValidName(name) && fitsALine(assignment(name, value));
}

bool CKeyValueStore::GetValue(const std::string& name, std::string& value) const {
    const auto found = values_.find(name);
    if (found == values_.end())
        return false;
    value = found->second;
    return true;
}

void CKeyValueStore::RemoveKey(const std::string& name) {
    const auto found =
        std::ranges::find_if(lines_, [&](const StoreLine& line) { return !line.empty() && line[0] == name; });
    if (found != lines_.end())
        RemoveLine(static_cast<std::size_t>(found - lines_.begin()));
}

void CKeyValueStore::TakeValues(const std::vector<std::string>& names,
                                const std::function<void(const std::string& value)>& take) {
    std::unordered_set<std::string> taken;
    for (const std::string& name : names) {
        const auto found = values_.find(name);
        if (found == values_.end())
            continue;
        take(found->second);
        values_.erase(found);
        taken.insert(name);
    }
    // Not a line that merely consists of such a name.
    std::erase_if(lines_, [&](const StoreLine& line) { return line.size() > 1 && taken.contains(line[0]); });
    placesAreValid_ = false;
}

void CKeyValueStore::RemoveLine(std::size_t index) {
    if (index >= lines_.size())
        return;
    const auto line = lines_.begin() + static_cast<std::ptrdiff_t>(index);
    if (!line->empty())
        values_.erase((*line)[0]);
    lines_.erase(line);
    placesAreValid_ = false;
}

void CKeyValueStore::RemoveAll() {
    lines_.clear();
    values_.clear();
    placesAreValid_ = false;
}

bool CKeyValueStore::Expand(const std::string& text, std::string& out) const {
    std::string work = text;
    for (int substitutions = 0; characterCount(work) <= kLongestExpansion; ++substitutions) {
        const std::size_t opening = work.find(kOpening);
        const std::size_t closing = work.find(')');
        if (opening == std::string::npos || closing == std::string::npos) {
            out = work;
            return true;
        }
        std::string value;
        if (closing < opening || substitutions == kMostSubstitutions ||
            !GetValue(work.substr(opening + kOpening.size(), closing - opening - kOpening.size()), value))
            return false;
        work.replace(opening, closing + 1 - opening, value);
    }
    return false;
}

} // namespace dyeworks
