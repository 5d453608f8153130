#include "dyeworks/plugin.h"

#include <gtest/gtest.h>

#include <array>
#include <dlfcn.h>

namespace {

/// The template as it was built from the installed SDK.
class Mirror : public testing::Test {
protected:
    Mirror()
        : library_(dlopen(DYEWORKS_MIRROR, RTLD_NOW)) {
        EXPECT_NE(library_, nullptr) << dlerror();
    }
    ~Mirror() override {
        if (library_ != nullptr)
            dlclose(library_);
    }
    template <typename Function>
    Function* find(const char* name) {
        return library_ == nullptr ? nullptr : reinterpret_cast<Function*>(dlsym(library_, name));
    }

private:
    void* library_;
};

TEST_F(Mirror, TurnsEveryRowAround) {
    auto* const turn = find<decltype(DWPI_import)>("DWPI_import");
    ASSERT_NE(turn, nullptr);
    for (const int bits : {4, 8}) {
        TmfImage* const image = DW_newImage(3, 2, bits);
        constexpr std::array<std::array<std::uint8_t, 3>, 2> kTexels{{{1, 2, 3}, {4, 5, 15}}};
        for (int y = 0; y < 2; ++y) {
            for (int x = 0; x < 3; ++x)
                DW_setTexel(image, x, y,
                            kTexels.at(static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x)));
        }
        const PlugInPicture in{image, nullptr, 0, 0};
        PlugInPicture out{};
        EXPECT_EQ(turn(&in, &out), 1U);
        ASSERT_NE(out.image, nullptr);
        EXPECT_EQ(out.palette, nullptr);
        for (int y = 0; y < 2; ++y) {
            for (int x = 0; x < 3; ++x)
                EXPECT_EQ(DW_getTexel(out.image, x, y), DW_getTexel(image, 2 - x, y));
        }
        DW_freeImage(out.image);
        DW_freeImage(image);
    }
}

} // namespace
