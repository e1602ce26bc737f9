// The memcpy blit against SDL_UpperBlit of the loaded SDL: the same
// pixels, result and written-back rectangle for random rectangles (null
// ones too), clip rectangles and positions near the ends of 16 bits, at
// every format; and blits that are more than a copy still go to SDL.
#include <random>
#include <string>

#include <gtest/gtest.h>

#include <kvt/draw/internal/copy_blit.h>

#include "support/expected.h"
#include "support/surfaces.h"

using kvt_test::FormatCase;
using kvt_test::GuardedSurface;

namespace {

int Between(std::mt19937 &rng, int low, int high)
{
    return std::uniform_int_distribution<int>(low, high)(rng);
}

SDL_Rect RandomRect(std::mt19937 &rng, int far)
{
    // Now and then a position near the ends of 16 bits.
    const int reach = Between(rng, 0, 9) == 0 ? 32767 : far;
    return kvt_test::Rect(Between(rng, -reach, reach), Between(rng, -reach, reach),
                          Between(rng, 0, 2 * far), Between(rng, 0, 2 * far));
}

std::string Describe(const SDL_Rect &r)
{
    return std::to_string(r.x) + "," + std::to_string(r.y) + " " + std::to_string(r.w) + "x" +
           std::to_string(r.h);
}

class CopyBlit : public ::testing::TestWithParam<FormatCase> {};

TEST_P(CopyBlit, MatchesSdlUpperBlit)
{
    std::mt19937 rng(23);
    for (int trial = 0; trial < 300; ++trial) {
        GuardedSurface source(GetParam(), Between(rng, 1, 40), Between(rng, 1, 30), 4);
        source.FillRandom(rng);
        SDL_SetAlpha(source.get(), 0, 255);
        const int kind = trial % 5; // 3: colour key, 4: surface alpha
        if (kind == 3)
            SDL_SetColorKey(source.get(), SDL_SRCCOLORKEY, kvt_test::ReadValue(source, 0, 0));
        if (kind == 4)
            SDL_SetAlpha(source.get(), SDL_SRCALPHA, 100);
        GuardedSurface ours(GetParam(), 50, 40, 4), sdls(GetParam(), 50, 40, 4);
        std::mt19937 fill{unsigned(trial)};
        ours.FillRandom(fill);
        fill.seed(unsigned(trial));
        sdls.FillRandom(fill);
        SDL_Rect clip = RandomRect(rng, 40);
        SDL_SetClipRect(ours.get(), &clip);
        SDL_SetClipRect(sdls.get(), &clip);

        SDL_Rect from = RandomRect(rng, 30), toOurs = RandomRect(rng, 50), toSdls = toOurs;
        const bool noFrom = kind == 1, noTo = kind == 2;
        const int ourResult = kvt::Blit(source, noFrom ? nullptr : &from, ours,
                                        noTo ? nullptr : &toOurs);
        const int sdlResult = SDL_UpperBlit(source, noFrom ? nullptr : &from, sdls,
                                            noTo ? nullptr : &toSdls);
        const std::string what = "trial " + std::to_string(trial) + ": from " + Describe(from) +
                                 " to " + Describe(toSdls) + " clip " + Describe(clip);
        EXPECT_EQ(ourResult, sdlResult) << what;
        EXPECT_EQ(Describe(toOurs), Describe(toSdls)) << what;
        ASSERT_EQ("", kvt_test::FirstDifference(ours, sdls)) << what;
        EXPECT_EQ(kvt::BlitIsPlainCopy(source, ours), kind < 3) << what;
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, CopyBlit, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
