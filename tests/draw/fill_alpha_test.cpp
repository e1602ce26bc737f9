#include <climits>
#include <sstream>

#include <gtest/gtest.h>

#include <kvt/draw/internal/byte_channels.h>
#include <kvt/draw/internal/fill_alpha_paths.h>
#include <kvt/draw/internal/vector_units.h>
#include <kvt/draw/pixel.h>

#include "support/surface_pair.h"

using kvt_test::FormatCase;
using kvt_test::GuardedSurface;

namespace {

// Which formats each path takes, judged by the surface SDL made (which on
// sdl12-compat is not always the format asked for).
bool Everywhere(const SDL_PixelFormat *) { return true; }
bool Paletted(const SDL_PixelFormat *f) { return f->BytesPerPixel == 1; }
bool TrueColour(const SDL_PixelFormat *f) { return f->BytesPerPixel > 1; }
bool TwoBytes(const SDL_PixelFormat *f) { return f->BytesPerPixel == 2; }
bool IsWholeByte(Uint32 mask)
{
    return mask == 0xFF || mask == 0xFF00 || mask == 0xFF0000 || mask == 0xFF000000;
}
bool ThreeOrFourBytes(const SDL_PixelFormat *f)
{
    return f->BytesPerPixel >= 3 && IsWholeByte(f->Rmask) && IsWholeByte(f->Gmask) &&
           IsWholeByte(f->Bmask);
}

#if KVT_VECTOR_KERNELS
bool ThreeOrFourBytesOnVectors(const SDL_PixelFormat *f)
{
    return ThreeOrFourBytes(f) && kvt::VectorKernelsRun();
}
bool TwoBytesOnVectors(const SDL_PixelFormat *f) { return TwoBytes(f) && kvt::VectorKernelsRun(); }
#endif

#if KVT_X86_VECTORS
bool ThreeOrFourBytesOnAvx2(const SDL_PixelFormat *f)
{
    return ThreeOrFourBytes(f) && __builtin_cpu_supports("avx2");
}
bool TwoBytesOnAvx2(const SDL_PixelFormat *f)
{
    return TwoBytes(f) && __builtin_cpu_supports("avx2");
}
#endif

// Every fill path, and the formats of the test set that it must accept.
// The public call has no area function: it is given the uncut rectangle.
struct FillPath {
    const char *name;
    bool (*fill)(SDL_Surface *, const kvt::Area &, KVT_RGBA);
    bool (*handles)(const SDL_PixelFormat *);
};

const FillPath kPaths[] = {
    {"KVT_FillRectAlpha", nullptr, Everywhere},
    {"Indexed", kvt::FillAlphaIndexed, Paletted},
    {"Channels", kvt::FillAlphaChannels, TrueColour},
    {"Bytes", kvt::FillAlphaBytes, ThreeOrFourBytes},
    {"Packed16", kvt::FillAlphaPacked16, TwoBytes},
#if KVT_VECTOR_KERNELS
    {"BytesVector", kvt::FillAlphaBytesVector, ThreeOrFourBytesOnVectors},
    {"Packed16Vector", kvt::FillAlphaPacked16Vector, TwoBytesOnVectors},
#endif
#if KVT_X86_VECTORS
    {"BytesSse2", kvt::FillAlphaBytesSse2, ThreeOrFourBytes},
    {"Packed16Sse2", kvt::FillAlphaPacked16Sse2, TwoBytes},
    {"BytesAvx2", kvt::FillAlphaBytesAvx2, ThreeOrFourBytesOnAvx2},
    {"Packed16Avx2", kvt::FillAlphaPacked16Avx2, TwoBytesOnAvx2},
#endif
};

// The byte paths take a format only when red, green and blue are distinct
// whole bytes inside the pixel and Amask keeps clear of them.
TEST(ByteChannels, AcceptsOnlyWholeChannelBytesInsideThePixel)
{
    struct Layout {
        const char *name;
        Uint8 bytes;
        Uint32 r, g, b, a;
        bool accepted;
    };
    const Layout layouts[] = {
        {"RGB24", 3, 0xFF0000, 0xFF00, 0xFF, 0, true},
        {"BGR24", 3, 0xFF, 0xFF00, 0xFF0000, 0, true},
        {"ARGB32", 4, 0xFF0000, 0xFF00, 0xFF, 0xFF000000, true},
        {"3 bytes, red in a fourth byte", 3, 0xFF000000, 0xFF00, 0xFF, 0, false},
        {"3 bytes, blue in a fourth byte", 3, 0xFF0000, 0xFF00, 0xFF000000, 0, false},
        {"red and green in one byte", 4, 0xFF0000, 0xFF0000, 0xFF, 0, false},
        {"red of 7 bits", 4, 0x7F0000, 0xFF00, 0xFF, 0, false},
        {"alpha over blue", 4, 0xFF0000, 0xFF00, 0xFF, 0xFF, false},
        {"RGB565", 2, 0xF800, 0x07E0, 0x001F, 0, false},
    };
    const auto shiftOf = [](Uint32 mask) {
        Uint8 shift = 0;
        while (mask != 0 && (mask & 1) == 0)
            mask >>= 1, ++shift;
        return shift;
    };
    for (const Layout &l : layouts) {
        SDL_PixelFormat f = {};
        f.BitsPerPixel = Uint8(8 * l.bytes);
        f.BytesPerPixel = l.bytes;
        f.Rmask = l.r, f.Gmask = l.g, f.Bmask = l.b, f.Amask = l.a;
        f.Rshift = shiftOf(l.r), f.Gshift = shiftOf(l.g), f.Bshift = shiftOf(l.b);
        f.Ashift = shiftOf(l.a);
        kvt::ByteChannels found = {};
        ASSERT_EQ(l.accepted, kvt::FindByteChannels(&f, &found)) << l.name;
        if (l.accepted) {
            EXPECT_EQ(l.bytes, found.bytes) << l.name;
            EXPECT_EQ(f.Rshift, found.red) << l.name;
            EXPECT_EQ(f.Gshift, found.green) << l.name;
            EXPECT_EQ(f.Bshift, found.blue) << l.name;
            EXPECT_EQ(l.r | l.g | l.b, found.channels) << l.name;
            EXPECT_EQ(l.a, found.amask) << l.name;
        }
    }
}

class FillAlphaTest : public ::testing::TestWithParam<FormatCase> {};

// Random surfaces, colours, alphas and areas (unaligned starts, widths
// that leave every kind of tail): each path must give the plain path's
// bytes, and a path that declines a format must leave it untouched. One
// trial in ten covers at least 1024 pixels, where a fill may work out
// its colours for the whole area before it starts.
TEST_P(FillAlphaTest, EveryPathGivesThePlainBytes)
{
    const int kAlphas[] = {0, 1, 127, 128, 254, 255};
    std::mt19937 rng(1234);
    std::uniform_int_distribution<int> byte(0, 255);
    for (const FillPath &path : kPaths) {
        for (int trial = 0; trial < 300; ++trial) {
            const bool large = trial % 10 == 0;
            const int w = large ? 48 + int(rng() % 60) : 1 + int(rng() % 80);
            const int h = large ? 32 + int(rng() % 8) : 1 + int(rng() % 5), pad = int(rng() % 8);
            kvt_test::SurfacePair pair(GetParam(), w, h, unsigned(rng()), pad);
            GuardedSurface &want = pair.expected, &got = pair.actual;
            // Rectangles that hang off any side or miss the surface too;
            // a large one cut by at most three pixels on each side.
            int x = int(rng() % unsigned(w + 12)) - 10, y = int(rng() % unsigned(h + 5)) - 3;
            int rw = int(rng() % 75) - 2, rh = int(rng() % 9) - 1;
            if (large) {
                x = int(rng() % 7) - 3, y = int(rng() % 7) - 3;
                rw = w - int(rng() % 9), rh = h;
            }
            kvt::Area area;
            const bool onSurface = kvt::ClipToSurface(want, x, y, rw, rh, &area);
            const int a = rng() % 2 ? kAlphas[rng() % 6] : byte(rng);
            const KVT_RGBA colour = KVT_RGB(Uint8(byte(rng)), Uint8(byte(rng)), Uint8(byte(rng)),
                                            Uint8(a));
            const std::vector<Uint8> before = got.PixelBytes();
            if (onSurface)
                kvt::FillAlphaPlain(want, area, colour);
            bool applied = true;
            if (path.fill == nullptr)
                KVT_FillRectAlpha(got, x, y, rw, rh, colour);
            else if (onSurface)
                applied = path.fill(got, area, colour);
            std::ostringstream what;
            what << path.name << " on " << w << "x" << h << ", rectangle (" << x << ", " << y
                 << ", " << rw << ", " << rh << "), alpha " << a;
            if (onSurface) {
                ASSERT_EQ(path.handles(want.get()->format), applied)
                    << what.str() << ": wrong formats";
            }
            if (applied) {
                ASSERT_EQ("", pair.Difference()) << what.str();
            } else {
                ASSERT_TRUE(before == got.PixelBytes() && got.GuardsIntact()) << what.str();
            }
        }
    }
}

// The public call cuts the rectangle to the surface; what it leaves must
// be blended exactly as KVT_SetPixelAlpha blends each pixel, and nothing
// else may change.
TEST_P(FillAlphaTest, CutsTheRectangleToTheSurface)
{
    const int W = 12, H = 8;
    struct Case {
        const char *what;
        int x, y, w, h;
        SDL_Rect filled; // w == 0: nothing
    };
    const Case cases[] = {
        {"x = -3, w = 10 fills columns 0 to 6", -3, 1, 10, 2, {0, 1, 7, 2}},
        {"y + h == surface h reaches the last row", 2, 3, 4, H - 3, {2, 3, 4, H - 3}},
        {"x + w == surface w reaches the last column", W - 4, 1, 4, 2, {W - 4, 1, 4, 2}},
        {"larger on every side fills everything", -5, -6, W + 11, H + 13, {0, 0, W, H}},
        {"sizes whose sums overflow 32 bits", 1, 2, INT_MAX, INT_MAX, {1, 2, W - 1, H - 2}},
        {"x == surface w does nothing", W, 0, 5, 5, {0, 0, 0, 0}},
        {"y == surface h does nothing", 0, H, 5, 5, {0, 0, 0, 0}},
        {"zero width does nothing", 2, 2, 0, 3, {0, 0, 0, 0}},
        {"zero height does nothing", 2, 2, 3, 0, {0, 0, 0, 0}},
        {"negative width does nothing", 5, 2, -3, 3, {0, 0, 0, 0}},
        {"negative height does nothing", 2, 5, 3, -2, {0, 0, 0, 0}},
        {"wholly left of the surface does nothing", -10, 0, 10, 3, {0, 0, 0, 0}},
        {"wholly above the surface does nothing", 0, -4, 3, 4, {0, 0, 0, 0}},
    };
    const KVT_RGBA colour = KVT_RGB(200, 90, 30, 100);
    for (const Case &c : cases) {
        kvt_test::SurfacePair pair(GetParam(), W, H, 5);
        for (int y = c.filled.y; y < c.filled.y + c.filled.h; ++y)
            for (int x = c.filled.x; x < c.filled.x + c.filled.w; ++x)
                KVT_SetPixelAlpha(pair.expected, Sint16(x), Sint16(y), colour.r, colour.g,
                                  colour.b, colour.a);
        KVT_FillRectAlpha(pair.actual, c.x, c.y, c.w, c.h, colour);
        EXPECT_EQ("", pair.Difference()) << c.what;
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, FillAlphaTest, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });
INSTANTIATE_TEST_SUITE_P(MoreFormats, FillAlphaTest,
                         ::testing::ValuesIn(kvt_test::MoreFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
