#pragma once

#include "cli/Command.h"
#include "cli/OutputFormat.h"
#include "cli/PictureWork.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace dyeworks {

/// Converts images, pictures and palettes into other formats.
class ConvertCommand final : public Command {
public:
    void declare(Options& options) override;
    [[nodiscard]] ExitCode run(Console& console) override;

private:
    /// Where the outputs of an input go.
    struct Place {
        OutputFormat format = OutputFormat::Tmf;
        std::string stem;  ///< With its folder, or "-".
        std::string whole; ///< The name as it was given, for the first file; empty in a folder.
    };

    [[nodiscard]] bool settleWork(Console& console);
    [[nodiscard]] std::optional<Place> placeOf(const std::string& input, Console& console) const;
    [[nodiscard]] bool convert(const std::string& input, const Place& place, Console& console);
    [[nodiscard]] bool write(const std::string& input, const Place& place,
                             const Result<OutputFiles, std::string>& files, Console& console);
    [[nodiscard]] bool writePalette(const std::string& input, const LoadedPicture& picture, Console& console);
    [[nodiscard]] SourceOptions sourceOptions(const std::string& stem) const;
    [[nodiscard]] bool goesIntoFolder() const;

    std::vector<std::string> inputs_;
    std::string output_;
    std::optional<std::size_t> format_;
    std::optional<std::string> palette_;
    std::optional<std::string> paletteOut_;
    PictureWork work_;
    std::optional<std::size_t> depth_;
    std::optional<std::size_t> type_;
    std::optional<std::size_t> dither_;
    std::optional<std::size_t> turn_;
    std::optional<std::string> name_;
    std::optional<std::int32_t> alignment_;
    bool wholePalette_ = false;
    std::set<std::string> written_;
};

} // namespace dyeworks
