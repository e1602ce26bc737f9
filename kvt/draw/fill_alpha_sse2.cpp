// SSE2 forms of the translucent fill. Each gives the same bytes as
// FillAlphaPlain: the blend (d * a + c * (255 - a)) >> 8 never exceeds
// 255 * 255, so it is done exactly in unsigned 16-bit lanes.
#include <kvt/draw/internal/vector_units.h>
#if KVT_X86_VECTORS

#include <emmintrin.h>

#include <kvt/draw/internal/fill_alpha_paths.h>
#include <kvt/draw/internal/fill_alpha_sse2.h>

namespace kvt {

namespace {

using sse2::Load;
using sse2::Store;

// One channel of a 16-bit pixel, as the loaded SDL splits and maps it:
// the field is widened to 8 bits by (f << loss) + ((f * mul) >> shift)
// (see Widening), blended, and narrowed by dropping `loss` bits again.
struct Channel16 {
    Channel16(const ChannelForm &form, Uint32 product)
        : mask(_mm_set1_epi16(Sint16(form.mask))), shift(_mm_cvtsi32_si128(form.shift)),
          loss(_mm_cvtsi32_si128(form.loss)), widenMul(_mm_set1_epi16(Sint16(form.widening.mul))),
          widenShift(_mm_cvtsi32_si128(form.widening.shift)),
          product(_mm_set1_epi16(Sint16(product)))
    {
    }
    __m128i Blend(__m128i pixels, __m128i alpha) const
    {
        const __m128i field = _mm_srl_epi16(_mm_and_si128(pixels, mask), shift);
        const __m128i extra = _mm_srl_epi16(_mm_mullo_epi16(field, widenMul), widenShift);
        const __m128i wide = _mm_add_epi16(_mm_sll_epi16(field, loss), extra);
        const __m128i mixed =
            _mm_srli_epi16(_mm_add_epi16(_mm_mullo_epi16(wide, alpha), product), 8);
        return _mm_sll_epi16(_mm_srl_epi16(mixed, loss), shift);
    }
    __m128i mask, shift, loss, widenMul, widenShift, product;
};

void FillPacked16(SDL_Surface *surface, const Area &area, KVT_RGBA colour, const ColourForm &form,
                  const PixelAccess<2> &pixel)
{
    const FillBlend blend(colour);
    const Channel16 red(form.Red(), blend.red), green(form.Green(), blend.green),
        blue(form.Blue(), blend.blue);
    const __m128i alpha = _mm_set1_epi16(Sint16(blend.a));
    // SDL_MapRGB ORs Amask in; the 16-bit store keeps its low half.
    const __m128i amask = _mm_set1_epi16(Sint16(surface->format->Amask & 0xFFFF));
    const int width = area.Width(), whole = width & ~7;
    for (int y = area.y0; y < area.y1; ++y) {
        Uint8 *p = PixelAddress(surface, area.x0, y);
        for (int x = 0; x < whole; x += 8, p += 16) {
            const __m128i old = Load(p);
            const __m128i rg = _mm_or_si128(red.Blend(old, alpha), green.Blend(old, alpha));
            Store(p, _mm_or_si128(rg, _mm_or_si128(blue.Blend(old, alpha), amask)));
        }
        BlendRun(pixel, p, width - whole, form, blend);
    }
}

} // namespace

bool FillAlphaBytesSse2(SDL_Surface *surface, const Area &area, KVT_RGBA colour)
{
    ByteLanes lanes;
    if (!MakeByteLanes(surface->format, colour, &lanes))
        return false;
    const sse2::Period48 period(lanes);
    const int rowBytes = area.Width() * lanes.bytes;
    for (int y = area.y0; y < area.y1; ++y)
        sse2::BlendByteRowFrom(PixelAddress(surface, area.x0, y), 0, rowBytes, period);
    return true;
}

bool FillAlphaPacked16Sse2(SDL_Surface *surface, const Area &area, KVT_RGBA colour)
{
    return WithPacked16(surface->format, [&](const ColourForm &form, auto pixel) {
        FillPacked16(surface, area, colour, form, pixel);
    });
}

} // namespace kvt

#endif
