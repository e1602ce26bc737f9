#ifndef KVT_DRAW_INTERNAL_FILL_ALPHA_PATHS_H
#define KVT_DRAW_INTERNAL_FILL_ALPHA_PATHS_H

// The ways of doing a translucent fill on an area already cut to the
// surface and not empty. KVT_FillRectAlpha picks the fastest one that
// applies; tests and benchmarks call each one directly to prove them equal
// to the plain one. The x86 vector forms live in fill_alpha_sse2.cpp and
// fill_alpha_avx2.cpp, the kernels that become NEON on ARM in
// fill_alpha_vector.cpp, and the portable ones, several channels to a
// machine word, in fill_alpha_swar.cpp.

#include <SDL.h>

#include <kvt/draw/depth.h>
#include <kvt/draw/internal/area.h>
#include <kvt/draw/internal/vector_units.h>
#include <kvt/draw/rgba.h>

namespace kvt {

// The weights of one fill, worked out once: `a` weighs the old channel,
// and each product is the colour's channel times 255 - a.
struct FillBlend {
    explicit FillBlend(KVT_RGBA colour)
        : a(colour.a), red(colour.r * (255u - colour.a)), green(colour.g * (255u - colour.a)),
          blue(colour.b * (255u - colour.a))
    {
    }
    Uint8 Channel(Uint32 old, Uint32 product) const { return Uint8((old * a + product) >> 8); }

    Uint32 a, red, green, blue;
};

// Blends `count` pixels from `p` on: split each through `form`, blend,
// store by the depth table. With ColourForm::ThroughSdl this is the
// definition itself; with an inline form it is the portable fast path.
template <class Pixel>
inline void BlendRun(const Pixel &pixel, Uint8 *p, int count, const ColourForm &form,
                     const FillBlend &blend)
{
    for (int i = 0; i < count; ++i, p += Pixel::kBytes) {
        Uint8 r, g, b;
        form.Split(pixel.Read(p), &r, &g, &b);
        pixel.StoreRGB(p, blend.Channel(r, blend.red), blend.Channel(g, blend.green),
                       blend.Channel(b, blend.blue), form);
    }
}

// When red, green and blue each fill one whole byte of a 3- or 4-byte
// pixel, the fill works byte by byte: byte j of a run of pixels becomes
// (old * mul[j] + add[j]) >> 8. A channel byte has mul = a and
// add = c * (255 - a); the spare byte of a 4-byte pixel has mul = 0 and
// add = (its byte of Amask) << 8, since the store ORs Amask in. The
// weights repeat every `bytes` entries; 16 are kept so that any 8 in a
// row can be loaded from the start of a pixel onwards.
struct ByteLanes {
    int bytes;
    Uint16 mul[16];
    Uint16 add[16];

    // Where the weights of byte 8 * block of a run start: vectors are
    // made of such 8-byte blocks.
    int BlockStart(int block) const { return bytes == 4 ? 0 : (2 * block) % 3; }
};

// False unless the format's channels are whole bytes (FindByteChannels).
bool MakeByteLanes(const SDL_PixelFormat *format, KVT_RGBA colour, ByteLanes *out);

// The definition: per pixel, split the old value through SDL, blend, store.
void FillAlphaPlain(SDL_Surface *surface, const Area &area, KVT_RGBA colour);

// The fast paths. Each answers false, having touched nothing, when the
// surface's format is not one that it handles.

// 1 byte per pixel: each old index is blended once, when first met, and
// the new index is remembered for the rest of the call.
bool FillAlphaIndexed(SDL_Surface *surface, const Area &area, KVT_RGBA colour);
// Any true-colour format whose channels fit in 8 bits: the split and the
// mapping are done inline, with no library call per pixel.
bool FillAlphaChannels(SDL_Surface *surface, const Area &area, KVT_RGBA colour);
// 3 and 4 bytes per pixel with whole-byte channels, byte by byte, several
// bytes to a machine word.
bool FillAlphaBytes(SDL_Surface *surface, const Area &area, KVT_RGBA colour);

// True for a learned form (ColourForm::Learned) of a 2-byte format that
// splits inline and whose channels are contiguous fields of 4 to 8 bits:
// every step of the split, the blend and the mapping then fits a 16-bit
// lane.
bool HasPacked16Channels(const ColourForm &form);

// The way into every packed 16-bit path: calls fill(form, pixel) with the
// format's learned colour form and its 2-byte accessor when the format has
// HasPacked16Channels, and answers whether it did.
template <class Fill>
bool WithPacked16(const SDL_PixelFormat *format, Fill &&fill)
{
    if (format->BytesPerPixel != 2)
        return false;
    const ColourForm form = ColourForm::Learned(format);
    if (!HasPacked16Channels(form))
        return false;
    return WithDepthOf<2>(format, [&](auto pixel) { fill(form, pixel); });
}

// Formats with HasPacked16Channels, several pixels to a machine word.
bool FillAlphaPacked16(SDL_Surface *surface, const Area &area, KVT_RGBA colour);

#if KVT_VECTOR_KERNELS
// FillAlphaBytes and FillAlphaPacked16 on 16 bytes at a time, written once
// with GCC's vector extensions. On 32-bit ARM they answer false when the
// processor has no NEON.
bool VectorKernelsRun();
bool FillAlphaBytesVector(SDL_Surface *surface, const Area &area, KVT_RGBA colour);
bool FillAlphaPacked16Vector(SDL_Surface *surface, const Area &area, KVT_RGBA colour);
#endif

#if KVT_X86_VECTORS
// FillAlphaBytes on 16 bytes at a time.
bool FillAlphaBytesSse2(SDL_Surface *surface, const Area &area, KVT_RGBA colour);
// Formats with HasPacked16Channels, 8 pixels at a time.
bool FillAlphaPacked16Sse2(SDL_Surface *surface, const Area &area, KVT_RGBA colour);
// The same two on 32 bytes at a time; they also answer false when the
// processor has no AVX2.
bool FillAlphaBytesAvx2(SDL_Surface *surface, const Area &area, KVT_RGBA colour);
bool FillAlphaPacked16Avx2(SDL_Surface *surface, const Area &area, KVT_RGBA colour);
#endif

} // namespace kvt

#endif
