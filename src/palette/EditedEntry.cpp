#include "palette/EditedEntry.h"

namespace dyeworks {

void EditedEntry::read(const TlutData* table, std::optional<std::int32_t> index) {
    value_ = index ? table->getEntry(*index) : std::uint16_t{0};
    channels_ = index ? channelsOf(table->colourType, value_) : ChannelValues{};
    text_ = table == nullptr ? std::string() : entryText(value_);
    pending_ = false;
}

void EditedEntry::takeChannels(std::uint16_t entry) {
    value_ = entry;
    text_ = entryText(entry);
    pending_ = true;
}

void EditedEntry::takeText(ColourType type) {
    if (const auto typed = ParseEntryText()) {
        value_ = *typed;
        channels_ = channelsOf(type, value_);
    }
    pending_ = true;
}

} // namespace dyeworks
