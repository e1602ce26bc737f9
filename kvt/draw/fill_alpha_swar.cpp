// Portable forms of the translucent fill, for processors without a vector
// unit: several channels share one machine word (SIMD within a register).
// Each channel sits in a 16-bit lane of its own, and no step of the blend,
// (old * a + c * (255 - a)) >> 8, ever exceeds 255 * 255, so a lane never
// carries into its neighbour and every lane gets the bytes of the plain
// definition.
#include <cstring>
#include <type_traits>

#include <kvt/draw/internal/byte_channels.h>
#include <kvt/draw/internal/fill_alpha_paths.h>

namespace kvt {

namespace {

// 64 bits where the processor has them; 32 where 64-bit arithmetic would
// take two instructions a step.
using Word = std::conditional_t<sizeof(void *) >= 8, uint64_t, uint32_t>;
constexpr int kWordBytes = sizeof(Word);

// A 16-bit value in every lane of a word.
constexpr Word Lanes(Word value)
{
    Word word = 0;
    for (int i = 0; i < kWordBytes / 2; ++i)
        word |= value << (16 * i);
    return word;
}
constexpr Word kLowBytes = Lanes(0x00FF);

Word LoadWord(const Uint8 *p)
{
    Word w;
    std::memcpy(&w, p, sizeof w);
    return w;
}

void StoreWord(Uint8 *p, Word w) { std::memcpy(p, &w, sizeof w); }

// The weights of the byte-by-byte fill (see ByteLanes) as whole words.
// Every channel byte has the same multiplier `a`. The spare byte of a
// 4-byte pixel (multiplier 0, ending as its byte of Amask) is masked out
// of its lane, so that the same multiply leaves its lane holding just its add,
// that byte shifted up. The pattern repeats every `period` words: one for
// 4-byte pixels, three for 3-byte ones.
struct ByteWords {
    ByteWords(const ByteChannels &layout, const FillBlend &blend) : a(blend.a)
    {
        const int bytes = layout.bytes;
        // The add of each byte of a pixel: c * (255 - a) for a channel,
        // nothing for the spare byte, which is masked out and gets its Amask
        // byte back through its add alone.
        Word pixelAdd[4] = {0, 0, 0, 0};
        Word pixelKeep[4] = {0, 0, 0, 0};
        pixelAdd[layout.red / 8] = blend.red;
        pixelAdd[layout.green / 8] = blend.green;
        pixelAdd[layout.blue / 8] = blend.blue;
        for (int b = 0; b < bytes; ++b) {
            const bool channel = b == layout.red / 8 || b == layout.green / 8 || b == layout.blue / 8;
            pixelKeep[b] = channel ? 0xFF : 0;
            if (!channel)
                pixelAdd[b] = ((layout.amask >> (8 * b)) & 0xFF) << 8;
        }
        period = bytes == 4 ? 1 : 3;
        for (int k = 0, b = 0; k < period; ++k) {
            addEven[k] = addOdd[k] = keep[k] = 0;
            for (int i = 0; i < kWordBytes; ++i, b = b + 1 == bytes ? 0 : b + 1) {
                keep[k] |= pixelKeep[b] << (8 * i);
                (i % 2 == 0 ? addEven[k] : addOdd[k]) |= pixelAdd[b] << (16 * (i / 2));
            }
            keepEven[k] = keep[k] & kLowBytes;
            keepOdd[k] = (keep[k] >> 8) & kLowBytes;
        }
        spare = keep[0] != ~Word(0);
    }
    // The even bytes blend in the low halves of the lanes and shift down;
    // the odd ones blend in place, their results already in the high halves.
    // The spare byte, if any, is masked out on the way into its lane.
    template <bool Spare>
    Word Blend(Word w, int k) const
    {
        const Word evenIn = w & (Spare ? keepEven[k] : kLowBytes);
        const Word oddIn = (w >> 8) & (Spare ? keepOdd[k] : kLowBytes);
        const Word even = (((evenIn * a) + addEven[k]) >> 8) & kLowBytes;
        const Word odd = ((oddIn * a) + addOdd[k]) & ~kLowBytes;
        return even | odd;
    }

    Word a;
    int period;
    bool spare;
    Word addEven[3], addOdd[3], keep[3], keepEven[3], keepOdd[3];
};

// One row of n bytes from a pixel boundary, a whole period of words (or
// two words when the period is one) per step, so that the processor has
// independent work at every step. The last few bytes are blended in a
// copy, so that nothing past the row is read or written.
template <int Period, bool Spare>
[[gnu::always_inline]] inline void BlendByteRow(Uint8 *p, int n, const ByteWords &words)
{
    constexpr int kWords = Period == 1 ? 4 : 2 * Period;
    int j = 0;
    for (; j + kWords * kWordBytes <= n; j += kWords * kWordBytes)
#pragma GCC unroll 8
        for (int i = 0; i < kWords; ++i) {
            Uint8 *at = p + j + ptrdiff_t(i) * kWordBytes;
            StoreWord(at, words.Blend<Spare>(LoadWord(at), i % Period));
        }
    int k = 0;
    for (; j + kWordBytes <= n; j += kWordBytes, k = k + 1 == Period ? 0 : k + 1)
        StoreWord(p + j, words.Blend<Spare>(LoadWord(p + j), k));
    if (j < n) {
        Uint8 copy[kWordBytes] = {};
        std::memcpy(copy, p + j, size_t(n - j));
        StoreWord(copy, words.Blend<Spare>(LoadWord(copy), k));
        std::memcpy(p + j, copy, size_t(n - j));
    }
}

// The rows work from a copy of the weights that no store can reach, so
// that they stay in registers from row to row.
template <int Period, bool Spare>
void BlendByteRows(SDL_Surface *surface, const Area &area, int bytes, const ByteWords &weights)
{
    const ByteWords words = weights;
    const int rowBytes = area.Width() * bytes;
    for (int y = area.y0; y < area.y1; ++y)
        BlendByteRow<Period, Spare>(PixelAddress(surface, area.x0, y), rowBytes, words);
}

// The usual 4-byte layouts keep their spare byte on top of each pixel
// (in memory order), and those take one operation less a word. Their odd
// bytes blend where they stand, in lanes that start at the byte itself,
// so that every result, odd or even, lands one byte above its source and
// the word is stored one byte lower. The lowest byte of the stored word
// is the spare byte before the word: a constant, its Amask byte, given by
// the low byte of the odd add. The top lane, the word's own last spare
// byte, runs off the word; the next word's store, or the row's end, puts
// it back.
struct TopSpareWords {
    static bool Fits(const ByteChannels &layout)
    {
        return layout.bytes == 4 && layout.red != 24 && layout.green != 24 && layout.blue != 24;
    }
    explicit TopSpareWords(const ByteWords &words)
        : a(words.a), keepOdd(words.keep[0] & ~kLowBytes), addEven(words.addEven[0]),
          addOdd((words.addOdd[0] << 8) | (words.addOdd[0] >> 24 & 0xFF)),
          spare(Uint8(words.addOdd[0] >> 24))
    {
    }
    // The word at p, for the eight bytes from p - 1.
    Word Blend(Word w) const
    {
        const Word even = (((w & kLowBytes) * a) + addEven) & ~kLowBytes;
        const Word odd = (((w & keepOdd) * a) + addOdd) & kLowBytes;
        return even | odd;
    }

    Word a, keepOdd, addEven, addOdd;
    Uint8 spare;
};

// One row of such pixels, at least two words long. The first word is
// blended as any other, so that nothing before the row is written, and
// the row's last spare byte is put back after the shifted stores.
void BlendTopSpareRow(Uint8 *p, int n, const ByteWords &words, const TopSpareWords &top)
{
    StoreWord(p, words.Blend<true>(LoadWord(p), 0));
    int j = kWordBytes;
    for (; j + 4 * kWordBytes <= n; j += 4 * kWordBytes)
#pragma GCC unroll 4
        for (int i = 0; i < 4; ++i) {
            Uint8 *at = p + j + ptrdiff_t(i) * kWordBytes;
            StoreWord(at - 1, top.Blend(LoadWord(at)));
        }
    for (; j + kWordBytes <= n; j += kWordBytes)
        StoreWord(p + j - 1, top.Blend(LoadWord(p + j)));
    p[j - 1] = top.spare;
    BlendByteRow<1, true>(p + j, n - j, words);
}

// Short rows are blended in place: measured on x86 with the vector paths
// left out, below about 64 pixels the set-up of the shifted stores costs
// more than they save, while a 640x480 fill takes about a sixth less time.
constexpr int kShortRowBytes = 256;

void BlendTopSpareRows(SDL_Surface *surface, const Area &area, const ByteWords &words)
{
    const TopSpareWords top(words);
    for (int y = area.y0; y < area.y1; ++y)
        BlendTopSpareRow(PixelAddress(surface, area.x0, y), area.Width() * 4, words, top);
}

// One channel of 16-bit pixels, a pixel per lane: the field is widened as
// the loaded SDL widens it (see Widening), blended, and narrowed again.
// The place and width of the channel come from the format.
struct Channel16Words {
    Channel16Words(const ChannelForm &form, Uint32 product, Word alpha)
        : field(Lanes(0xFFu >> form.loss)), widenMask(Lanes(0xFFFFu >> form.widening.shift)),
          add(Lanes(product)), a(alpha), shift(form.shift), loss(form.loss),
          widenMul(form.widening.mul), widenShift(form.widening.shift)
    {
    }
    Word Blend(Word pixels) const
    {
        const Word f = (pixels >> shift) & field;
        const Word wide = (f << loss) + (((f * widenMul) >> widenShift) & widenMask);
        const Word mixed = ((wide * a + add) >> 8) & kLowBytes;
        return ((mixed >> loss) & field) << shift;
    }

    Word field, widenMask, add, a;
    int shift, loss;
    Word widenMul;
    int widenShift;
};

// The same for a channel whose place, width and widening are known when
// compiling, as in the 5-6-5 and 5-5-5 formats of nearly every 16-bit
// screen: every shift is then by a constant, which costs a processor far
// less than a shift by a count held in a register.
template <int Shift, int Loss, bool Scaled>
struct FixedChannel16 {
    static constexpr Widening kWiden = Scaled ? kScaledWidening[Loss] : kReplicatedWidening[Loss];

    static bool Matches(const ChannelForm &form)
    {
        return form.shift == Shift && form.loss == Loss && form.widening.mul == kWiden.mul &&
               form.widening.shift == kWiden.shift;
    }
    FixedChannel16(const ChannelForm &, Uint32 product, Word alpha)
        : add(Lanes(product)), a(alpha)
    {
    }
    Word Blend(Word pixels) const
    {
        constexpr Word field = Lanes(0xFFu >> Loss), widenMask = Lanes(0xFFFFu >> kWiden.shift);
        const Word f = (pixels >> Shift) & field;
        const Word wide = (f << Loss) + (((f * kWiden.mul) >> kWiden.shift) & widenMask);
        const Word mixed = ((wide * a + add) >> 8) & kLowBytes;
        return ((mixed >> Loss) & field) << Shift;
    }

    Word add, a;
};

template <class Red, class Green, class Blue>
void FillPacked16(SDL_Surface *surface, const Area &area, KVT_RGBA colour, const ColourForm &form,
                  const PixelAccess<2> &pixel)
{
    const FillBlend blend(colour);
    const Red red(form.Red(), blend.red, blend.a);
    const Green green(form.Green(), blend.green, blend.a);
    const Blue blue(form.Blue(), blend.blue, blend.a);
    // SDL_MapRGB ORs Amask in; the 16-bit store keeps its low half.
    const Word amask = Lanes(surface->format->Amask & 0xFFFF);
    constexpr int kPixels = kWordBytes / 2;
    const int width = area.Width(), whole = width - width % kPixels;
    for (int y = area.y0; y < area.y1; ++y) {
        Uint8 *p = PixelAddress(surface, area.x0, y);
        for (int x = 0; x < whole; x += kPixels, p += kWordBytes) {
            const Word old = LoadWord(p);
            StoreWord(p, red.Blend(old) | green.Blend(old) | blue.Blend(old) | amask);
        }
        BlendRun(pixel, p, width - whole, form, blend);
    }
}

// 5-6-5 and 5-5-5 under either widening get their own loop; every other
// packed format the general one.
template <bool Scaled>
bool FillFixed16(SDL_Surface *surface, const Area &area, KVT_RGBA colour, const ColourForm &form,
                 const PixelAccess<2> &pixel)
{
    using Blue = FixedChannel16<0, 3, Scaled>;
    if (FixedChannel16<11, 3, Scaled>::Matches(form.Red()) &&
        FixedChannel16<5, 2, Scaled>::Matches(form.Green()) && Blue::Matches(form.Blue())) {
        FillPacked16<FixedChannel16<11, 3, Scaled>, FixedChannel16<5, 2, Scaled>, Blue>(
            surface, area, colour, form, pixel);
        return true;
    }
    if (FixedChannel16<10, 3, Scaled>::Matches(form.Red()) &&
        FixedChannel16<5, 3, Scaled>::Matches(form.Green()) && Blue::Matches(form.Blue())) {
        FillPacked16<FixedChannel16<10, 3, Scaled>, FixedChannel16<5, 3, Scaled>, Blue>(
            surface, area, colour, form, pixel);
        return true;
    }
    return false;
}

} // namespace

bool FillAlphaBytes(SDL_Surface *surface, const Area &area, KVT_RGBA colour)
{
    ByteChannels layout;
    if (!FindByteChannels(surface->format, &layout))
        return false;
    const ByteWords words(layout, FillBlend(colour));
    if (words.period == 3)
        BlendByteRows<3, false>(surface, area, layout.bytes, words);
    else if (TopSpareWords::Fits(layout) && area.Width() * 4 >= kShortRowBytes)
        BlendTopSpareRows(surface, area, words);
    else if (words.spare)
        BlendByteRows<1, true>(surface, area, layout.bytes, words);
    else
        BlendByteRows<1, false>(surface, area, layout.bytes, words);
    return true;
}

bool FillAlphaPacked16(SDL_Surface *surface, const Area &area, KVT_RGBA colour)
{
    return WithPacked16(surface->format, [&](const ColourForm &form, auto pixel) {
        if (!FillFixed16<false>(surface, area, colour, form, pixel) &&
            !FillFixed16<true>(surface, area, colour, form, pixel))
            FillPacked16<Channel16Words, Channel16Words, Channel16Words>(surface, area, colour,
                                                                         form, pixel);
    });
}

} // namespace kvt
