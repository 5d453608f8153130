#include "cli/thumbnailer/TexelRows.h"

#include "cli/CliTexts.h"
#include "cli/FormatFaults.h"
#include "core/TmfImage.h"

namespace dyeworks {

Result<TexelRows, std::string> TexelRows::behind(std::span<const std::byte> header, HostFileReader& file) {
    const Result<TmfHeader, TmfError> read = parseTmfHeader(header);
    if (!read)
        return describe(read.error());
    const TmfHeader& told = read.value();
    if (!TmfImage::canBe(told.width, told.height, told.bits))
        return say(CliText::ImageTooLarge);
    if (told.width == 0 || told.height == 0)
        return say(CliText::NoImage);
    if (missingTexelBytes(told, file.size()) > 0)
        return say(CliText::FileCutOff);
    return TexelRows(told, file);
}

TexelRows::TexelRows(const TmfHeader& header, HostFileReader& file)
    : header_(header)
    , layout_(rowLayout(header, file.size()))
    , file_(&file)
    , row_(layout_.step) {}

bool TexelRows::next(std::span<std::uint8_t> values) {
    if (file_->read(row_) != row_.size())
        return false;
    if (header_.bits == 8) {
        for (std::size_t x = 0; x < values.size(); ++x)
            values[x] = std::to_integer<std::uint8_t>(row_[x]);
        return true;
    }
    for (std::size_t x = 0; x < values.size(); ++x) {
        const auto two = std::to_integer<unsigned>(row_[x / 2]);
        values[x] = static_cast<std::uint8_t>(x % 2 == 0 ? two >> 4U : two & 15U);
    }
    return true;
}

bool TexelRows::skip(std::int32_t count) {
    return file_->skip(std::uint64_t{row_.size()} * static_cast<std::uint32_t>(count));
}

} // namespace dyeworks
