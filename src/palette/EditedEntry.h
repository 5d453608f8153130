#pragma once

#include "palette/EntryFormat.h"

#include <cstdint>
#include <optional>
#include <string>

namespace dyeworks {

/// The entry that is edited, with its mirrors: channels and hexadecimal text.
class EditedEntry {
public:
    /// Takes the entry at `index`, 0 without one; what was not applied is dropped. Without a table the text
    /// is empty.
    void read(const TlutData* table, std::optional<std::int32_t> index);
    /// A channel is another now; `takeChannels` makes the others follow.
    void setChannel(Channel channel, std::int32_t value) { channels_[channel] = value; }
    void takeChannels(std::uint16_t entry);
    /// The text is another now; `takeText` makes the others follow.
    void setText(std::string text) { text_ = std::move(text); }
    /// They keep their values while the text is no entry.
    void takeText(ColourType type);

    [[nodiscard]] std::uint16_t value() const noexcept { return value_; }
    [[nodiscard]] const ChannelValues& channels() const noexcept { return channels_; }
    [[nodiscard]] const std::string& text() const noexcept { return text_; }
    /// Nothing when the text is no entry.
    [[nodiscard]] std::optional<std::uint16_t> ParseEntryText() const { return parseEntry(text_); }
    /// It has not been applied.
    [[nodiscard]] bool pending() const noexcept { return pending_; }

private:
    ChannelValues channels_;
    std::string text_;
    std::uint16_t value_ = 0; ///< That of the text, as long as the text is an entry.
    bool pending_ = false;
};

} // namespace dyeworks
