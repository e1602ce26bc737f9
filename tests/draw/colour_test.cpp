#include <array>
#include <random>

#include <gtest/gtest.h>

#include <kvt/draw/colour.h>

#include "support/surfaces.h"

using kvt_test::FormatCase;

namespace {

using Channels = std::array<int, 3>;

// How a colour form and SDL each read pixel value v.
std::pair<Channels, Channels> Splits(const kvt::ColourForm &form, Uint32 v)
{
    Uint8 r, g, b, sr, sg, sb;
    form.Split(v, &r, &g, &b);
    SDL_GetRGB(v, form.Format(), &sr, &sg, &sb);
    return {{r, g, b}, {sr, sg, sb}};
}

class ColourFormTest : public ::testing::TestWithParam<FormatCase> {};

// Both colour forms against the loaded SDL itself: every pixel value and
// every colour where a format has 16 bits, a large random sample of values
// and colours where it has 24 or 32. The learned form must be wholly
// inline, so that the fast paths never fall back to SDL on these formats.
TEST_P(ColourFormTest, SplitAndMapMatchSdl)
{
    kvt_test::GuardedSurface surface(GetParam(), 1, 1);
    SDL_PixelFormat *format = surface.get()->format;
    const kvt::ColourForm forms[] = {kvt::ColourForm::Learned(format), kvt::ColourForm(format)};
    ASSERT_TRUE(forms[0].Direct()) << "no inline form for this format";
    const bool exhaustive = format->BytesPerPixel == 2;
    for (const kvt::ColourForm &form : forms) {
        const char *which = &form == &forms[0] ? "learned form: " : "unlearned form: ";
        std::mt19937 rng(99);
        for (Uint32 i = 0, count = exhaustive ? 0x10000 : 1u << 20; i < count; ++i) {
            const Uint32 v = exhaustive ? i : Uint32(rng());
            const auto split = Splits(form, v);
            ASSERT_EQ(split.second, split.first) << which << "split of 0x" << std::hex << v;
        }
        for (Uint32 i = 0, count = exhaustive ? 1u << 24 : 1u << 20; i < count; ++i) {
            const Uint32 rgb = exhaustive ? i : Uint32(rng());
            const Uint8 r = Uint8(rgb >> 16), g = Uint8(rgb >> 8), b = Uint8(rgb);
            ASSERT_EQ(SDL_MapRGB(format, r, g, b), form.Map(r, g, b))
                << which << "colour (" << int(r) << ", " << int(g) << ", " << int(b) << ")";
        }
    }
}

// The two widening rules for every channel width and field, whichever SDL
// is loaded, so that the rule of the other implementation is proven too:
// replication as classic SDL 1.2 computes it, and SDL 2's tables, which
// are floor(field * 255 / largest field). The telling field must tell the
// rules apart wherever they differ.
TEST(ColourFormWidening, BothRulesForEveryChannelWidth)
{
    for (Uint8 loss = 0; loss < 8; ++loss) {
        const Uint32 largest = 0xFFu >> loss;
        kvt::ChannelForm channel = {largest, 0, loss, {0, 0}};
        bool differ = false;
        for (Uint32 field = 0; field <= largest; ++field) {
            const Uint32 low = 2 * loss <= 8 ? field >> (8 - 2 * loss) : 0;
            const int replicated = int((field << loss) + low);
            const int scaled = int(field * 255 / largest);
            channel.widening = kvt::kReplicatedWidening[loss];
            ASSERT_EQ(replicated, channel.Widen(field)) << "replicated, loss " << int(loss)
                                                        << ", field " << field;
            channel.widening = kvt::kScaledWidening[loss];
            ASSERT_EQ(scaled, channel.Widen(field)) << "scaled, loss " << int(loss) << ", field "
                                                    << field;
            differ = differ || replicated != scaled;
        }
        EXPECT_EQ(differ, kvt::WideningDiffers(loss)) << "loss " << int(loss);
        const Uint32 tell = kvt::kTellingField[loss];
        channel.widening = kvt::kReplicatedWidening[loss];
        const int byReplication = channel.Widen(tell);
        channel.widening = kvt::kScaledWidening[loss];
        EXPECT_EQ(differ, byReplication != channel.Widen(tell))
            << "telling field, loss " << int(loss);
    }
}

std::vector<FormatCase> ColourFormats()
{
    std::vector<FormatCase> formats = kvt_test::TrueColourFormats();
    formats.insert(formats.end(), kvt_test::MoreFormats().begin(), kvt_test::MoreFormats().end());
    return formats;
}

INSTANTIATE_TEST_SUITE_P(Formats, ColourFormTest, ::testing::ValuesIn(ColourFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

// A palette index reads as its palette entry, as SDL reads it.
TEST(ColourFormPalette, SplitReadsThePaletteEntry)
{
    kvt_test::GuardedSurface surface(kvt_test::AllFormats()[0], 1, 1);
    const kvt::ColourForm form(surface.get()->format);
    for (Uint32 index = 0; index < 256; ++index) {
        const auto split = Splits(form, index);
        ASSERT_EQ(split.second, split.first) << "palette index " << index;
    }
}

} // namespace
