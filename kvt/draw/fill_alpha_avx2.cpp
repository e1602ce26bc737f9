// AVX2 forms of the translucent fill, 32 bytes at a time, chosen at run
// time: the library is built for plain x86-64, and these functions alone
// are compiled for AVX2 and only called once the processor has said that
// it has it. The arithmetic is that of fill_alpha_sse2.cpp on twice the
// width.
#include <kvt/draw/internal/vector_units.h>
#if KVT_X86_VECTORS

#include <immintrin.h>

#include <cstring>

#include <kvt/draw/internal/fill_alpha_paths.h>
#include <kvt/draw/internal/fill_alpha_sse2.h>

#define KVT_AVX2 __attribute__((target("avx2")))

namespace kvt {

namespace {

KVT_AVX2 __m256i Load(const void *p)
{
    __m256i v;
    std::memcpy(&v, p, sizeof v);
    return v;
}

KVT_AVX2 void Store(void *p, __m256i v) { std::memcpy(p, &v, sizeof v); }

bool HasAvx2() { return __builtin_cpu_supports("avx2"); }

// The weights of the 32 bytes that start at byte 8 * block of a run. AVX2
// unpacks within each 16-byte half, so the low 16-bit lanes take bytes
// 0-7 and 16-23 of the vector, the high ones bytes 8-15 and 24-31.
struct Weights32 {
    Weights32() = default;
    KVT_AVX2 Weights32(const ByteLanes &lanes, int block)
        : mulLo(Pair(lanes.mul, lanes, block, block + 2)),
          mulHi(Pair(lanes.mul, lanes, block + 1, block + 3)),
          addLo(Pair(lanes.add, lanes, block, block + 2)),
          addHi(Pair(lanes.add, lanes, block + 1, block + 3))
    {
    }
    KVT_AVX2 static __m256i Pair(const Uint16 *w, const ByteLanes &lanes, int low, int high)
    {
        return _mm256_set_m128i(sse2::Load(w + lanes.BlockStart(high)),
                                sse2::Load(w + lanes.BlockStart(low)));
    }
    __m256i mulLo, mulHi, addLo, addHi;
};

// The three 32-byte steps of the 96-byte period of 3- and 4-byte pixels.
struct Period96 {
    KVT_AVX2 explicit Period96(const ByteLanes &lanes)
        : step{{lanes, 0}, {lanes, 4}, {lanes, 8}}
    {
    }
    Weights32 step[3];
};

KVT_AVX2 inline void BlendThirtyTwo(Uint8 *p, const Weights32 &w)
{
    const __m256i zero = _mm256_setzero_si256();
    const __m256i bytes = Load(p);
    __m256i lo = _mm256_unpacklo_epi8(bytes, zero);
    __m256i hi = _mm256_unpackhi_epi8(bytes, zero);
    lo = _mm256_srli_epi16(_mm256_add_epi16(_mm256_mullo_epi16(lo, w.mulLo), w.addLo), 8);
    hi = _mm256_srli_epi16(_mm256_add_epi16(_mm256_mullo_epi16(hi, w.mulHi), w.addHi), 8);
    Store(p, _mm256_packus_epi16(lo, hi));
}

// One row of n bytes that starts on a pixel boundary; what is left after
// the 32-byte steps goes to the 16-byte ones.
KVT_AVX2 void BlendByteRow(Uint8 *p, int n, const Period96 &wide, const sse2::Period48 &narrow)
{
    int j = 0;
    for (int k = 0; j + 32 <= n; j += 32, k = k == 2 ? 0 : k + 1)
        BlendThirtyTwo(p + j, wide.step[k]);
    sse2::BlendByteRowFrom(p, j, n, narrow);
}

// One channel of a 16-bit pixel; see Channel16 in fill_alpha_sse2.cpp.
struct Channel16 {
    KVT_AVX2 Channel16(const ChannelForm &form, Uint32 product)
        : mask(_mm256_set1_epi16(Sint16(form.mask))), shift(_mm_cvtsi32_si128(form.shift)),
          loss(_mm_cvtsi32_si128(form.loss)),
          widenMul(_mm256_set1_epi16(Sint16(form.widening.mul))),
          widenShift(_mm_cvtsi32_si128(form.widening.shift)),
          product(_mm256_set1_epi16(Sint16(product)))
    {
    }
    KVT_AVX2 __m256i Blend(__m256i pixels, __m256i alpha) const
    {
        const __m256i field = _mm256_srl_epi16(_mm256_and_si256(pixels, mask), shift);
        const __m256i extra =
            _mm256_srl_epi16(_mm256_mullo_epi16(field, widenMul), widenShift);
        const __m256i wide = _mm256_add_epi16(_mm256_sll_epi16(field, loss), extra);
        const __m256i mixed =
            _mm256_srli_epi16(_mm256_add_epi16(_mm256_mullo_epi16(wide, alpha), product), 8);
        return _mm256_sll_epi16(_mm256_srl_epi16(mixed, loss), shift);
    }
    __m256i mask;
    __m128i shift, loss;
    __m256i widenMul;
    __m128i widenShift;
    __m256i product;
};

KVT_AVX2 void FillPacked16(SDL_Surface *surface, const Area &area, KVT_RGBA colour,
                           const ColourForm &form, const PixelAccess<2> &pixel)
{
    const FillBlend blend(colour);
    const Channel16 red(form.Red(), blend.red), green(form.Green(), blend.green),
        blue(form.Blue(), blend.blue);
    const __m256i alpha = _mm256_set1_epi16(Sint16(blend.a));
    const __m256i amask = _mm256_set1_epi16(Sint16(surface->format->Amask & 0xFFFF));
    const int width = area.Width(), whole = width & ~15;
    for (int y = area.y0; y < area.y1; ++y) {
        Uint8 *p = PixelAddress(surface, area.x0, y);
        for (int x = 0; x < whole; x += 16, p += 32) {
            const __m256i old = Load(p);
            const __m256i rg = _mm256_or_si256(red.Blend(old, alpha), green.Blend(old, alpha));
            Store(p, _mm256_or_si256(rg, _mm256_or_si256(blue.Blend(old, alpha), amask)));
        }
        BlendRun(pixel, p, width - whole, form, blend);
    }
}

KVT_AVX2 void FillBytes(SDL_Surface *surface, const Area &area, const ByteLanes &lanes)
{
    const Period96 wide(lanes);
    const sse2::Period48 narrow(lanes);
    const int rowBytes = area.Width() * lanes.bytes;
    for (int y = area.y0; y < area.y1; ++y)
        BlendByteRow(PixelAddress(surface, area.x0, y), rowBytes, wide, narrow);
}

} // namespace

bool FillAlphaBytesAvx2(SDL_Surface *surface, const Area &area, KVT_RGBA colour)
{
    ByteLanes lanes;
    if (!HasAvx2() || !MakeByteLanes(surface->format, colour, &lanes))
        return false;
    FillBytes(surface, area, lanes);
    return true;
}

bool FillAlphaPacked16Avx2(SDL_Surface *surface, const Area &area, KVT_RGBA colour)
{
    if (!HasAvx2())
        return false;
    return WithPacked16(surface->format, [&](const ColourForm &form, auto pixel) {
        FillPacked16(surface, area, colour, form, pixel);
    });
}

} // namespace kvt

#endif
