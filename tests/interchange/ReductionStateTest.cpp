#include "interchange/ReductionState.h"

#include "platform/fake/FakeProfile.h"

#include <gtest/gtest.h>

namespace dyeworks {
namespace {

TEST(ReductionState, OffersWhatCanBeHadTogether) {
    using Target = ReductionTarget;
    struct Case {
        int palette; ///< Entries of the current one.
        int bits;
        Target wanted;
        Target had;
        std::size_t given;
    };
    for (const Case& c : {Case{0, 8, Target::CurrentPalette, Target::NewPalette, 0},
                          {0, 4, Target::CurrentBank, Target::NewPalette, 0},
                          {16, 4, Target::CurrentPalette, Target::CurrentPalette, 16},
                          {16, 4, Target::CurrentBank, Target::CurrentPalette, 16},
                          {16, 8, Target::CurrentPalette, Target::CurrentPalette, 16},
                          {256, 4, Target::CurrentPalette, Target::CurrentBank, 16},
                          {256, 8, Target::CurrentBank, Target::CurrentPalette, 256},
                          {256, 4, Target::NewPalette, Target::NewPalette, 0}}) {
        TlutData current;
        current.create(c.palette, ColourType::Rgba);
        ReductionState state(current, 0x30);
        ReductionChoices wanted = state.choices();
        wanted.bits = c.bits;
        wanted.target = c.wanted;
        wanted.kept = "0, 3-4";
        state.choose(wanted);
        SCOPED_TRACE(testing::Message() << c.palette << ' ' << c.bits << ' ' << static_cast<int>(c.wanted));
        EXPECT_EQ(state.choices().target, c.had);
        EXPECT_EQ(state.givenEntries().size(), c.given);
        EXPECT_EQ(state.choices().colours, c.bits == 4 ? 16 : 256);
        EXPECT_EQ(state.firstEntry(), c.had == Target::CurrentBank ? 0x30 : 0);
        EXPECT_EQ(state.options().locked.size(), state.offersKept() ? 3U : 0U);
        FakeProfile profile;
        state.save(profile);
        ReductionState again(current, 0x30);
        again.load(profile);
        EXPECT_EQ(again.choices(), state.choices());
        for (const auto& [bank, had] : {std::pair{-1, 0}, {16, 15}}) {
            wanted.bank = bank;
            state.choose(wanted);
            EXPECT_EQ(state.choices().bank, had);
        }
        for (const char* wrong : {"16-", "4-3", "x", "1 2", "256", "-1", "1,,2"}) {
            wanted.kept = wrong;
            state.choose(wanted);
            EXPECT_EQ(state.keptIsValid(), !state.offersKept()) << wrong;
        }
    }
}

} // namespace
} // namespace dyeworks
