#include "plugin/PlugInRecords.h"

#include "core/PlainArray.h"

#include <cstddef>
#include <type_traits>
#include <utility>

namespace dyeworks {

namespace {

static_assert(std::is_standard_layout_v<TmfImage> && sizeof(TmfImage) == sizeof(::TmfImage));
static_assert(offsetof(TmfImage, width) == offsetof(::TmfImage, width));
static_assert(offsetof(TmfImage, height) == offsetof(::TmfImage, height));
static_assert(offsetof(TmfImage, bits) == offsetof(::TmfImage, bits));
static_assert(offsetof(TmfImage, texels) == offsetof(::TmfImage, texels));
static_assert(std::is_standard_layout_v<TlutData> && sizeof(TlutData) == sizeof(::TlutData));
static_assert(offsetof(TlutData, colourType) == offsetof(::TlutData, colourType));
static_assert(offsetof(TlutData, count) == offsetof(::TlutData, count));
static_assert(offsetof(TlutData, entries) == offsetof(::TlutData, entries));

} // namespace

::TmfImage* plainRecord(TmfImage* image) noexcept {
    return reinterpret_cast<::TmfImage*>(image);
}

::TlutData* plainRecord(TlutData* table) noexcept {
    return reinterpret_cast<::TlutData*>(table);
}

const TmfImage* usable(const ::TmfImage* image) noexcept {
    const auto* own = reinterpret_cast<const TmfImage*>(image);
    return own != nullptr && own->holdsTexels() ? own : nullptr;
}

const TlutData* usable(const ::TlutData* table) noexcept {
    if (table == nullptr || table->entries == nullptr || (table->count != 16 && table->count != 256) ||
        (table->colourType != DW_COLOUR_RGBA && table->colourType != DW_COLOUR_IA))
        return nullptr;
    return reinterpret_cast<const TlutData*>(table);
}

PlainImage handedOut(TmfImage&& image) noexcept {
    PlainImage record(allocatePlainArray<::TmfImage>(1));
    if (record == nullptr)
        return nullptr;
    record->width = image.width;
    record->height = image.height;
    record->bits = image.bits;
    record->texels = std::exchange(image.texels, nullptr);
    return record;
}

PlainTable handedOut(TlutData&& table) noexcept {
    PlainTable record(allocatePlainArray<::TlutData>(1));
    if (record == nullptr)
        return nullptr;
    record->colourType = static_cast<std::uint32_t>(table.colourType);
    record->count = table.count;
    record->entries = std::exchange(table.entries, nullptr);
    table.count = 0;
    return record;
}

} // namespace dyeworks
