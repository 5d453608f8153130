#pragma once

#include "interchange/RawTexture.h"

#include <string>
#include <string_view>

namespace dyeworks {

/// A name that C and C++ take for an array: letters, digits and "_" of `text`, every run of others a "_",
/// with a "_" before a leading digit or behind a keyword. "texture" when nothing is left.
[[nodiscard]] std::string identifierOf(std::string_view text);

/// A header that defines everything (`.h` alone), C99 and C++.
[[nodiscard]] Result<std::string, InterchangeError> headerWithData(const TmfImage& image,
                                                                   const TlutData* palette,
                                                                   std::int32_t firstEntry,
                                                                   const SourceOptions& options);
/// A header that declares it and a source (`.c`) that defines it and includes the header as `headerName`.
struct SourcePair {
    std::string header;
    std::string source;
};
[[nodiscard]] Result<SourcePair, InterchangeError>
headerAndSource(const TmfImage& image, const TlutData* palette, std::int32_t firstEntry,
                const SourceOptions& options, std::string_view headerName);

} // namespace dyeworks
