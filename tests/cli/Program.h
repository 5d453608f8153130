#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace dyeworks {

/// What a run of the real program came to.
struct ProgramRun {
    int code = -1;
    std::string out;
    std::string err;
};

/// Surroundings of a run.
struct ProgramSetting {
    std::string input{};        ///< Standard input.
    std::string language = "C"; ///< LC_ALL.
    std::string output{};       ///< Host path of the standard output; empty: what the run answers.
    bool tinyFiles = false;     ///< No file may become longer than a kilobyte.
    std::string program{};      ///< Another one than dyeworks-cli, found in the PATH.
};

/// Runs it in `folder`.
ProgramRun runProgram(const std::filesystem::path& folder, const std::vector<std::string>& arguments,
                      const ProgramSetting& setting = {});

/// A folder that is gone with it.
class TestFolder {
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }
    void write(const std::string& name, const std::string& bytes) const;
    [[nodiscard]] std::string read(const std::string& name) const;
    ProgramRun run(const std::vector<std::string>& arguments, const ProgramSetting& setting = {}) const {
        return runProgram(path_, arguments, setting);
    }

private:
    std::filesystem::path path_;
};

/// Bytes of a TMF file whose texel (x, y) is `texel(x, y)`; (0, 0) is the top left one. Written anew here, so
/// that the program's own writer is not tested with itself.
std::string tmfFile(int width, int height, int bits, const std::vector<unsigned>& texels);
/// Bytes of a TLF file, RGBA or IA.
std::string tlfFile(const std::vector<unsigned>& entries, bool ia);

} // namespace dyeworks
