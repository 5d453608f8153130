#pragma once

#include "cli/LoadedPicture.h"
#include "interchange/RawTexture.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dyeworks {

/// What can be written, by the endings of files.
enum class OutputFormat { Tmf, Bmp, Png, Source, Header, Raw, Tlf, Gimp, Jasc, Act, Hex };

/// Their names, in that order ("tmf", "bmp", …): the endings without a full stop.
[[nodiscard]] const std::vector<std::string>& outputFormatNames();
[[nodiscard]] std::optional<OutputFormat> outputFormatFor(std::string_view ending);
[[nodiscard]] bool isPaletteFormat(OutputFormat format);

/// One of the files that make up an output.
struct OutputFile {
    std::string ending; ///< Without full stop.
    std::string bytes;
};
using OutputFiles = std::vector<OutputFile>;

/// The files of an image with its palette (null: none), most often one; C source has its header beside it,
/// which it includes as `stem` and ".h". A palette format takes the palette alone. Otherwise a sentence for
/// the user that does not name the file.
[[nodiscard]] Result<OutputFiles, std::string> outputOf(OutputFormat format, const TmfImage& image,
                                                        const TlutData* palette, std::int32_t firstEntry,
                                                        const SourceOptions& options,
                                                        const std::string& stem);

/// The same of `count` entries of a palette from `first` on, without an image.
[[nodiscard]] Result<OutputFiles, std::string> outputOf(OutputFormat format, const TlutData& palette,
                                                        std::int32_t first, std::int32_t count,
                                                        const std::string& stem);

} // namespace dyeworks
