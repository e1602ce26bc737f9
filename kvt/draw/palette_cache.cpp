#include <kvt/draw/internal/palette_cache.h>

#include <cstring>

#include <kvt/draw/internal/vector_units.h>

namespace kvt {
namespace {

// Each key is the distance above the index, so the least key holds the
// least distance and, among equals, the first index. Entries past the
// palette repeat entry 0 and lose every tie to it. The loop has no
// branch, so that it runs in vector lanes.
template <int Entries>
inline Uint8 LeastKey(const Sint32 *red, const Sint32 *green, const Sint32 *blue, Uint8 r,
                      Uint8 g, Uint8 b)
{
    Sint32 best = 0x7FFFFFFF;
    for (int i = 0; i < Entries; ++i) {
        const Sint32 dr = red[i] - r, dg = green[i] - g, db = blue[i] - b;
        const Sint32 key = ((dr * dr + dg * dg + db * db) << 8) | i;
        best = key < best ? key : best;
    }
    return Uint8(best & 0xFF);
}

#if KVT_X86_VECTORS
// The same loop eight lanes wide, where the processor has AVX2.
__attribute__((target("avx2"))) Uint8 LeastKeyAvx2(const Sint32 *red, const Sint32 *green,
                                                   const Sint32 *blue, Uint8 r, Uint8 g, Uint8 b)
{
    return LeastKey<256>(red, green, blue, r, g, b);
}
#endif

// The length of the first run of entries from `stride` to `stride` whose
// channels above the one counted stay as in entry 0.
int RunLength(const SDL_Palette *palette, int stride, bool sameRed, bool sameGreen)
{
    const SDL_Color &first = palette->colors[0];
    int count = 1;
    for (int i = stride; i < palette->ncolors; i += stride, ++count) {
        const SDL_Color &c = palette->colors[i];
        if ((sameRed && c.r != first.r) || (sameGreen && c.g != first.g))
            break;
    }
    return count;
}

// A palette entry as one word, red to the fourth byte in memory order,
// so that a whole entry compares at once.
static_assert(sizeof(SDL_Color) == 4, "an SDL_Color is four bytes");
inline Uint32 EntryWord(const SDL_Color &c)
{
    Uint32 word;
    std::memcpy(&word, &c, sizeof word);
    return word;
}

} // namespace

bool LevelGrid::Channel::Rising() const
{
    for (int d = 1; d < count; ++d)
        if (level[d] <= level[d - 1])
            return false;
    return true;
}

// With rising levels, level d + 1 is nearer than level d exactly when the
// value lies above their midpoint; at the midpoint the first one wins. So
// level d takes the values from just above one midpoint to the next.
void LevelGrid::Channel::Tabulate(int weight)
{
    int from = 0;
    for (int d = 0; d < count; ++d) {
        const int to = d + 1 < count ? (level[d] + level[d + 1]) / 2 + 1 : 256;
        std::memset(part + from, d * weight, size_t(to - from));
        from = to;
    }
}

bool LevelGrid::Build(const SDL_Palette *palette)
{
    const int n = palette->ncolors;
    blue_.count = RunLength(palette, 1, true, true);
    green_.count = RunLength(palette, blue_.count, true, false);
    red_.count = n / (green_.count * blue_.count);
    if (red_.count * green_.count * blue_.count != n)
        return false;
    const SDL_Color *c = palette->colors;
    const ptrdiff_t redStride = ptrdiff_t(green_.count) * blue_.count, greenStride = blue_.count;
    for (int r = 0; r < red_.count; ++r)
        red_.level[r] = c[r * redStride].r;
    for (int g = 0; g < green_.count; ++g)
        green_.level[g] = c[g * greenStride].g;
    for (int b = 0; b < blue_.count; ++b)
        blue_.level[b] = c[b].b;
    if (!red_.Rising() || !green_.Rising() || !blue_.Rising())
        return false;
    // Every entry as its levels make it, with entry 0's fourth byte; the
    // blue levels are the blue bytes of the first entries.
    const Uint32 blueBits = EntryWord(SDL_Color{0, 0, 0xFF, 0});
    const Uint8 spare = c[0].unused;
    for (int r = 0; r < red_.count; ++r)
        for (int g = 0; g < green_.count; ++g) {
            const Uint32 redGreen = EntryWord(SDL_Color{red_.level[r], green_.level[g], 0, spare});
            for (int b = 0; b < blue_.count; ++b, ++c)
                if (EntryWord(*c) != (redGreen | (EntryWord(palette->colors[b]) & blueBits)))
                    return false;
        }
    red_.Tabulate(green_.count * blue_.count);
    green_.Tabulate(blue_.count);
    blue_.Tabulate(1);
    return true;
}

NearestColour::NearestColour(const SDL_Palette *palette)
    : usable_(palette != nullptr && palette->ncolors > 0 && palette->ncolors <= kEntries),
      grid_(false), avx2_(false)
{
    if (!usable_)
        return;
    // A grid has the same fourth byte throughout; other palettes are
    // checked for it as they are copied, so the palette is walked once.
    grid_ = levels_.Build(palette);
    if (grid_)
        return;
    const Uint8 spare = palette->colors[0].unused;
    for (int i = 0; i < kEntries; ++i) {
        const SDL_Color &c = palette->colors[i < palette->ncolors ? i : 0];
        usable_ = usable_ && c.unused == spare;
        red_[i] = c.r;
        green_[i] = c.g;
        blue_[i] = c.b;
    }
#if KVT_X86_VECTORS
    avx2_ = __builtin_cpu_supports("avx2");
#endif
}

Uint8 NearestColour::Search(Uint8 r, Uint8 g, Uint8 b) const
{
#if KVT_X86_VECTORS
    if (avx2_)
        return LeastKeyAvx2(red_, green_, blue_, r, g, b);
#endif
    return LeastKey<kEntries>(red_, green_, blue_, r, g, b);
}

} // namespace kvt
