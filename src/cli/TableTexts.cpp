#include "cli/TableTexts.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace dyeworks {

std::string TableTexts::translate(const char* context, const char* source) const {
    if (table_ == nullptr)
        return source;
    using Key = std::pair<std::string_view, std::string_view>;
    const auto keyOf = [this](const TextTable::Row& row) {
        return Key(table_->texts + row.context, table_->texts + row.source);
    };
    const Key wanted(context, source);
    const auto found = std::ranges::lower_bound(table_->rows, wanted, {}, keyOf);
    return found == table_->rows.end() || keyOf(*found) != wanted ? source
                                                                  : table_->texts + found->translation;
}

} // namespace dyeworks
