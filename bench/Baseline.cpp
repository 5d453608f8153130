#include "bench/Baseline.h"

#include "platform/fake/ScratchFolder.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <set>
#include <unistd.h>
#include <vector>

namespace dyeworks {

namespace {

struct CHeap {
    void operator()(void* bytes) const { std::free(bytes); }
};
using Fresh = std::unique_ptr<char, CHeap>;

Fresh allocate(std::size_t bytes) {
    return Fresh(static_cast<char*>(std::malloc(bytes)));
}

void measureMemset(benchmark::State& state, std::size_t bytes) {
    std::vector<char> to(bytes, 1);
    char value = 0;
    for (auto _ : state) {
        std::memset(to.data(), ++value, bytes);
        benchmark::ClobberMemory();
    }
}

void measureMemcpy(benchmark::State& state, std::size_t bytes) {
    const std::vector<char> from(bytes, 1);
    std::vector<char> to(bytes, 2);
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), bytes);
        benchmark::ClobberMemory();
    }
}

void measureMemcpyFresh(benchmark::State& state, std::size_t bytes) {
    const std::vector<char> from(bytes, 1);
    for (auto _ : state) {
        const Fresh to = allocate(bytes);
        std::memcpy(to.get(), from.data(), bytes);
        benchmark::DoNotOptimize(to.get());
        benchmark::ClobberMemory();
    }
}

bool writeFlushed(const std::string& path, const std::vector<char>& bytes) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    const bool written = file >= 0 &&
                         ::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()) &&
                         ::fsync(file) == 0;
    return file >= 0 && ::close(file) == 0 && written;
}

void measureRead(benchmark::State& state, std::size_t bytes) {
    const ScratchFolder folder;
    const std::string path = folder.path() + "/plain";
    if (!writeFlushed(path, std::vector<char>(bytes, 1)))
        state.SkipWithError("the file could not be written");
    for (auto _ : state) {
        const Fresh to = allocate(bytes);
        const int file = ::open(path.c_str(), O_RDONLY);
        if (::read(file, to.get(), bytes) != static_cast<ssize_t>(bytes))
            state.SkipWithError("the file could not be read");
        ::close(file);
        benchmark::DoNotOptimize(to.get());
    }
}

void measureWrite(benchmark::State& state, std::size_t bytes) {
    const ScratchFolder folder;
    const std::vector<char> from(bytes, 1);
    for (auto _ : state) {
        if (!writeFlushed(folder.path() + "/plain", from))
            state.SkipWithError("the file could not be written");
    }
}

void measureReplace(benchmark::State& state, std::size_t bytes) {
    const ScratchFolder scratch;
    const std::vector<char> from(bytes, 1);
    const std::string beside = scratch.path() + "/beside";
    const std::string place = scratch.path() + "/plain";
    for (auto _ : state) {
        const int folder = ::open(scratch.path().c_str(), O_RDONLY | O_DIRECTORY);
        if (!writeFlushed(beside, from) || std::rename(beside.c_str(), place.c_str()) != 0 ||
            ::fsync(folder) != 0)
            state.SkipWithError("the file could not be replaced");
        ::close(folder);
    }
}

} // namespace

std::string baseline(Baseline kind, std::size_t bytes) {
    const struct {
        const char* name;
        void (*measure)(benchmark::State&, std::size_t);
    } kinds[] = {
        {"memset", measureMemset}, {"memcpy", measureMemcpy},       {"memcpy-fresh", measureMemcpyFresh},
        {"read", measureRead},     {"write-flushed", measureWrite}, {"replace-flushed", measureReplace}};
    static std::set<std::string> registered;
    const auto& chosen = kinds[static_cast<std::size_t>(kind)];
    const std::string name = std::string("base/") + chosen.name + "/" + std::to_string(bytes);
    if (!registered.insert(name).second)
        return name;
    auto* measured = benchmark::RegisterBenchmark(name.c_str(), chosen.measure, bytes);
    measured->Unit(benchmark::kMicrosecond);
    // Files are waited for; all else is work of the processor, whatever else it has to do meanwhile.
    if (kind == Baseline::Read || kind == Baseline::Write || kind == Baseline::Replace)
        measured->UseRealTime();
    return name;
}

} // namespace dyeworks
