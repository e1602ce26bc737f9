#ifndef KVT_DRAW_INTERNAL_FILL_ALPHA_SSE2_H
#define KVT_DRAW_INTERNAL_FILL_ALPHA_SSE2_H

// The 16-byte steps of the byte-by-byte fill, shared by the SSE2 path and
// the tails of the AVX2 one. The blend (d * a + c * (255 - a)) >> 8 never
// exceeds 255 * 255, so it is exact in unsigned 16-bit lanes.

#include <kvt/draw/internal/vector_units.h>
#if KVT_X86_VECTORS

#include <emmintrin.h>

#include <cstring>

#include <kvt/draw/internal/fill_alpha_paths.h>

namespace kvt {
namespace sse2 {

// Vectors go through memcpy, which makes a plain unaligned load or store.
inline __m128i Load(const void *p)
{
    __m128i v;
    std::memcpy(&v, p, sizeof v);
    return v;
}

inline void Store(void *p, __m128i v) { std::memcpy(p, &v, sizeof v); }

// The weights of the 16 bytes that start at byte 8 * block of a run, as
// 16-bit lanes: the low half for the first 8 bytes, the high for the rest.
struct Weights16 {
    Weights16() = default;
    Weights16(const ByteLanes &lanes, int block)
        : mulLo(Load(lanes.mul + lanes.BlockStart(block))),
          mulHi(Load(lanes.mul + lanes.BlockStart(block + 1))),
          addLo(Load(lanes.add + lanes.BlockStart(block))),
          addHi(Load(lanes.add + lanes.BlockStart(block + 1)))
    {
    }
    __m128i mulLo, mulHi, addLo, addHi;
};

// The three 16-byte steps of the 48-byte period of 3- and 4-byte pixels.
struct Period48 {
    explicit Period48(const ByteLanes &lanes) : step{{lanes, 0}, {lanes, 2}, {lanes, 4}} {}
    Weights16 step[3];
};

inline void BlendSixteen(Uint8 *p, const Weights16 &w)
{
    const __m128i zero = _mm_setzero_si128();
    const __m128i bytes = Load(p);
    __m128i lo = _mm_unpacklo_epi8(bytes, zero);
    __m128i hi = _mm_unpackhi_epi8(bytes, zero);
    lo = _mm_srli_epi16(_mm_add_epi16(_mm_mullo_epi16(lo, w.mulLo), w.addLo), 8);
    hi = _mm_srli_epi16(_mm_add_epi16(_mm_mullo_epi16(hi, w.mulHi), w.addHi), 8);
    Store(p, _mm_packus_epi16(lo, hi));
}

// Bytes `start` to n - 1 of a row that begins on a pixel boundary, with
// `start` a multiple of 16. The last few bytes are blended in a copy, so
// that nothing past the row is read or written.
inline void BlendByteRowFrom(Uint8 *p, int start, int n, const Period48 &period)
{
    int j = start, k = (start / 16) % 3;
    for (; j + 16 <= n; j += 16, k = k == 2 ? 0 : k + 1)
        BlendSixteen(p + j, period.step[k]);
    if (j < n) {
        Uint8 copy[16] = {};
        std::memcpy(copy, p + j, size_t(n - j));
        BlendSixteen(copy, period.step[k]);
        std::memcpy(p + j, copy, size_t(n - j));
    }
}

} // namespace sse2
} // namespace kvt

#endif

#endif
