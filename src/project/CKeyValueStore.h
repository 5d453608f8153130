#pragma once

#include "platform/Files.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace dyeworks {

/// A line of a store: the three tokens name, "=" and value of an assignment, or the line as it was read.
using StoreLine = std::vector<std::string>;

enum LineKind { kAssignmentLine = 0, kCommentLine = 1, kOtherLine = 2 };

/// What a line is: of the assignments, those with a name that `IsValidName` accepts.
[[nodiscard]] LineKind ClassifyLine(const StoreLine& line);

/// 1 to 256 ASCII letters, digits, "_", "@", "." and "\", the first a letter, "_" or "\".
[[nodiscard]] bool IsValidName(std::string_view text);

/// Takes an assignment ("name = value") apart into three tokens, dropping a comment behind it ("# old") and
/// the blanks around name and value; any other text becomes a single token, unchanged. The result is the
/// number of tokens.
std::size_t TokenizeLine(const std::string& text, StoreLine& tokens);
/// The same, for names of any characters that begin with `prefix`.
std::size_t TokenizeLine(const std::string& text, std::string_view prefix, StoreLine& tokens);

/// Splits at any of the delimiter characters; empty fields are dropped. The result is the number of fields.
std::size_t SplitFields(std::string_view text, std::string_view delimiters, std::vector<std::string>& fields);

/// A text file of assignments that is kept as it is: comments, blank lines and lines that nobody knows
/// survive loading and saving, and each line keeps its place. Names differ by case. Lengths count characters.
class CKeyValueStore {
public:
    /// Of a line; loading breaks longer ones, nothing makes longer ones.
    static constexpr std::size_t kLongestLine = 511;
    /// Of a text to expand, while it is expanded, too.
    static constexpr std::size_t kLongestExpansion = 255;
    static constexpr int kMostSubstitutions = 256;

    /// Appends the file's lines. A file that is not UTF-8 is read in code page 932. False, changing nothing,
    /// when the file cannot be read, the reason then in `why`.
    bool LoadFile(const std::string& path, std::optional<FileError>* why = nullptr);
    /// The same of a file's bytes.
    void LoadBytes(std::span<const std::byte> bytes);
    /// Writes all lines in the encoding of the file that was loaded last, in UTF-8 when there was none or
    /// that cannot hold them. False when the file cannot be written, the reason then in `why`; it then is as
    /// it was.
    bool SaveFile(const std::string& path, std::optional<FileError>* why = nullptr) const;
    /// The bytes of that file.
    [[nodiscard]] std::string FileText() const;

    /// Appends the line, or puts an assignment in the place of the one of the same name. The result is the
    /// number of lines.
    std::size_t AddLine(const std::string& text);
    /// Adds the line "name = value". Nothing when that would be too long or would be several lines.
    std::size_t SetValue(const std::string& name, const std::string& value);
    std::size_t SetLongValue(const std::string& name, std::int32_t value);
    /// Whether `SetValue` gives the name this value, or what is left of it as a line.
    [[nodiscard]] static bool takes(const std::string& name, const std::string& value);
    /// Whether the line "name = value" is short enough, and gives the value back as it is.
    [[nodiscard]] static bool holds(const std::string& name, const std::string& value);
    /// False, leaving `value` alone, when there is no such name.
    bool GetValue(const std::string& name, std::string& value) const;
    /// Removes the first line whose first token is the name.
    void RemoveKey(const std::string& name);
    /// One name after the other: hands the value to `take`, which must leave the store alone, and removes the
    /// assignment. Names without a value are passed over. Costs one pass over the lines, however many names.
    void TakeValues(const std::vector<std::string>& names,
                    const std::function<void(const std::string& value)>& take);
    /// Nothing when there is no such line.
    void RemoveLine(std::size_t index);
    void RemoveAll();
    [[nodiscard]] std::size_t LineCount() const noexcept { return lines_.size(); }

    /// Replaces each "$(name)" by its value, also those that values bring. False, leaving `out` alone, when a
    /// name has no value, the parentheses do not match, or there is no end to it.
    bool Expand(const std::string& text, std::string& out) const;

    [[nodiscard]] const std::vector<StoreLine>& lines() const noexcept { return lines_; }
    [[nodiscard]] const std::unordered_map<std::string, std::string>& values() const noexcept {
        return values_;
    }

private:
    [[nodiscard]] std::unordered_map<std::string, std::size_t>& places();

    std::vector<StoreLine> lines_;
    std::unordered_map<std::string, std::string> values_;
    std::unordered_map<std::string, std::size_t> places_; ///< Of the assignments, by name.
    bool placesAreValid_ = true;
    bool codePage932_ = false;
    bool byteOrderMark_ = false;
};

} // namespace dyeworks
