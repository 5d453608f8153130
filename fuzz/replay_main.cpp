// Runs kept inputs through a fuzz target: every file of the folders that are named.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    int replayed = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            // Named first, so that the last line tells which input ended the program.
            std::printf("%s\n", entry.path().filename().c_str());
            std::fflush(stdout);
            std::ifstream file(entry.path(), std::ios::binary);
            const std::vector<char> read{std::istreambuf_iterator<char>(file), {}};
            // Exactly as long as the input, so that the sanitizer sees a step beyond its end.
            std::vector<std::uint8_t> bytes(read.size());
            std::transform(read.begin(), read.end(), bytes.begin(),
                           [](char byte) { return static_cast<std::uint8_t>(byte); });
            LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
            ++replayed;
        }
    }
    std::printf("%d inputs\n", replayed);
    return replayed > 0 ? 0 : 1;
}
