#pragma once

#include "platform/Files.h"
#include "platform/Library.h"

namespace dyeworks {

/// Libraries by the host's dynamic loader.
class PosixLibrary final : public Library {
public:
    /// `files` turns paths into the host's form and must outlive this object.
    explicit PosixLibrary(const Files& files)
        : files_(files) {}

    [[nodiscard]] std::unique_ptr<LoadedLibrary> load(const std::string& path) override;
    [[nodiscard]] std::string extension() const override { return ".so"; }

private:
    const Files& files_;
};

} // namespace dyeworks
