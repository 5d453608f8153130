#include "interchange/EntryList.h"

#include <charconv>
#include <set>
#include <system_error>

namespace dyeworks {

namespace {

/// Walks over the text from its beginning to its end.
class Walk {
public:
    explicit Walk(std::string_view text)
        : rest_(text) {
        skipBlanks();
    }

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }

    /// Whether this letter came next, which is then behind.
    bool take(char letter) {
        if (!rest_.starts_with(letter))
            return false;
        rest_.remove_prefix(1);
        skipBlanks();
        return true;
    }

    std::optional<std::int32_t> number() {
        std::int32_t value = 0;
        const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
        if (error != std::errc() || rest_.starts_with('-'))
            return std::nullopt;
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
        skipBlanks();
        return value;
    }

private:
    void skipBlanks() {
        const std::size_t first = rest_.find_first_not_of(" \t");
        rest_.remove_prefix(first == std::string_view::npos ? rest_.size() : first);
    }

    std::string_view rest_;
};

} // namespace

std::optional<std::vector<std::int32_t>> parseEntryList(std::string_view text, std::int32_t count) {
    std::set<std::int32_t> numbers;
    Walk walk(text);
    while (!walk.atEnd()) {
        const std::optional<std::int32_t> first = walk.number();
        const std::optional<std::int32_t> last = first && walk.take('-') ? walk.number() : first;
        if (!first || !last || *last < *first || *last >= count)
            return std::nullopt;
        for (std::int32_t number = *first; number <= *last; ++number)
            numbers.insert(number);
        if (!walk.atEnd() && !walk.take(','))
            return std::nullopt;
    }
    return std::vector<std::int32_t>(numbers.begin(), numbers.end());
}

} // namespace dyeworks
