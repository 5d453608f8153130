#include "cli/Program.h"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace dyeworks {

namespace {

std::string contents(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void redirect(int descriptor, const std::filesystem::path& path, int flags) {
    const int file = ::open(path.c_str(), flags, 0600);
    ::dup2(file, descriptor);
    ::close(file);
}

std::string bigEndian(unsigned value, int bytes) {
    std::string text;
    for (int i = bytes - 1; i >= 0; --i)
        text += static_cast<char>(value >> 8 * i & 255U);
    return text;
}

} // namespace

ProgramRun runProgram(const std::filesystem::path& folder, const std::vector<std::string>& arguments,
                      const ProgramSetting& setting) {
    const TestFolder streams;
    streams.write("in", setting.input);
    const std::filesystem::path out =
        setting.output.empty() ? streams.path() / "out" : std::filesystem::path(setting.output);
    const std::string program = setting.program.empty() ? DYEWORKS_CLI : setting.program;
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        redirect(STDIN_FILENO, streams.path() / "in", O_RDONLY);
        redirect(STDOUT_FILENO, out, O_WRONLY | O_CREAT | O_TRUNC);
        redirect(STDERR_FILENO, streams.path() / "err", O_WRONLY | O_CREAT | O_TRUNC);
        ::setenv("LC_ALL", setting.language.c_str(), 1);
        ::unsetenv("LANGUAGE");
        if (setting.tinyFiles) {
            const rlimit limit{1024, 1024};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        }
        if (::chdir(folder.c_str()) == 0)
            ::execvp(program.c_str(), words.data());
        ::_exit(127);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status),
            setting.output.empty() ? contents(out) : std::string(), contents(streams.path() / "err")};
}

TestFolder::TestFolder() {
    std::string name = std::filesystem::temp_directory_path() / "dyeworks-cli-XXXXXX";
    path_ = ::mkdtemp(name.data());
}

TestFolder::~TestFolder() {
    std::filesystem::remove_all(path_);
}

void TestFolder::write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
}

std::string TestFolder::read(const std::string& name) const {
    return contents(path_ / name);
}

std::string tmfFile(int width, int height, int bits, const std::vector<unsigned>& texels) {
    std::string file = bigEndian(bits == 4 ? 0x120200 : 0x120300, 4) + bigEndian(unsigned(width), 4) +
                       bigEndian(unsigned(height), 4) + bigEndian(unsigned(bits), 4) + std::string(48, '\0');
    for (int y = height - 1; y >= 0; --y) {
        const unsigned* const row = texels.data() + std::size_t(y) * std::size_t(width);
        for (int x = 0; x < width; x += 8 / bits) {
            const unsigned right = x + 1 < width ? row[x + 1] : 0;
            file += static_cast<char>(bits == 8 ? row[x] : row[x] << 4 | right);
        }
    }
    file.append((4 - file.size() % 4) % 4, '\0');
    return file;
}

std::string tlfFile(const std::vector<unsigned>& entries, bool ia) {
    const auto count = static_cast<unsigned>(entries.size());
    std::string file = bigEndian(count == 16 ? 0x200100 : 0x200200, 4) + bigEndian(count, 4) +
                       bigEndian(ia ? 1 : 0, 4) + std::string(52, '\0');
    for (const unsigned entry : entries)
        file += bigEndian(entry, 2);
    return file;
}

} // namespace dyeworks
