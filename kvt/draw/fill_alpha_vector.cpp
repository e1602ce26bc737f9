// The translucent fill written once with GCC's vector extensions: the
// compiler makes NEON of it on ARM and SSE2 on x86. The arithmetic is that
// of the other forms, (old * mul + add) >> 8 in unsigned 16-bit lanes,
// which is exact because no step exceeds 255 * 255.
#include <kvt/draw/internal/vector_units.h>
#if KVT_VECTOR_KERNELS

#include <cstdint>
#include <cstring>

#include <kvt/draw/internal/fill_alpha_paths.h>

#if defined(__arm__) && !defined(__aarch64__)
#include <sys/auxv.h>
// 32-bit ARM: the kernels are compiled for NEON, and only run once the
// processor has said that it has it.
#define KVT_KERNEL __attribute__((target("fpu=neon")))
#else
#define KVT_KERNEL
#endif

namespace kvt {

namespace {

using U8x8 = uint8_t __attribute__((vector_size(8)));
using U16x8 = uint16_t __attribute__((vector_size(16)));

KVT_KERNEL U16x8 LoadLanes(const Uint16 *weights)
{
    U16x8 v;
    std::memcpy(&v, weights, sizeof v);
    return v;
}

// Eight bytes of a run, blended with the weights of their places.
KVT_KERNEL void BlendEight(Uint8 *p, U16x8 mul, U16x8 add)
{
    U8x8 bytes;
    std::memcpy(&bytes, p, sizeof bytes);
    const U16x8 wide = __builtin_convertvector(bytes, U16x8);
    const U8x8 out = __builtin_convertvector((wide * mul + add) >> 8, U8x8);
    std::memcpy(p, &out, sizeof out);
}

// One row of n bytes from a pixel boundary, eight bytes at a time; the
// weights of block b start at ByteLanes::BlockStart(b). The last few bytes
// are blended in a copy, so that nothing past the row is touched.
KVT_KERNEL void BlendByteRow(Uint8 *p, int n, const ByteLanes &lanes)
{
    U16x8 mul[3], add[3];
    for (int b = 0; b < 3; ++b) {
        mul[b] = LoadLanes(lanes.mul + lanes.BlockStart(b));
        add[b] = LoadLanes(lanes.add + lanes.BlockStart(b));
    }
    int j = 0, b = 0;
    for (; j + 8 <= n; j += 8, b = b == 2 ? 0 : b + 1)
        BlendEight(p + j, mul[b], add[b]);
    if (j < n) {
        Uint8 copy[8] = {};
        std::memcpy(copy, p + j, size_t(n - j));
        BlendEight(copy, mul[b], add[b]);
        std::memcpy(p + j, copy, size_t(n - j));
    }
}

// One channel of 16-bit pixels, a pixel per lane, widened as the loaded
// SDL widens it (see Widening), blended and narrowed again.
struct Channel16 {
    KVT_KERNEL U16x8 Blend(U16x8 pixels, U16x8 alpha) const
    {
        const U16x8 f = (pixels >> shift) & field;
        const U16x8 wide = (f << loss) + ((f * widenMul) >> widenShift);
        const U16x8 mixed = (wide * alpha + product) >> 8;
        return (mixed >> loss) << shift;
    }

    U16x8 field, widenMul, product;
    int shift, loss, widenShift;
};

KVT_KERNEL Channel16 MakeChannel16(const ChannelForm &form, Uint32 product)
{
    const Uint16 field = Uint16(0xFF >> form.loss);
    return {U16x8{} + field, U16x8{} + form.widening.mul, U16x8{} + Uint16(product),
            form.shift, form.loss, form.widening.shift};
}

KVT_KERNEL void FillPacked16(SDL_Surface *surface, const Area &area, KVT_RGBA colour,
                             const ColourForm &form, const PixelAccess<2> &pixel)
{
    const FillBlend blend(colour);
    const Channel16 red = MakeChannel16(form.Red(), blend.red),
                    green = MakeChannel16(form.Green(), blend.green),
                    blue = MakeChannel16(form.Blue(), blend.blue);
    const U16x8 alpha = U16x8{} + Uint16(blend.a);
    // SDL_MapRGB ORs Amask in; the 16-bit store keeps its low half.
    const U16x8 amask = U16x8{} + Uint16(surface->format->Amask & 0xFFFF);
    const int width = area.Width(), whole = width & ~7;
    for (int y = area.y0; y < area.y1; ++y) {
        Uint8 *p = PixelAddress(surface, area.x0, y);
        for (int x = 0; x < whole; x += 8, p += 16) {
            U16x8 old;
            std::memcpy(&old, p, sizeof old);
            const U16x8 out = red.Blend(old, alpha) | green.Blend(old, alpha) |
                              blue.Blend(old, alpha) | amask;
            std::memcpy(p, &out, sizeof out);
        }
        BlendRun(pixel, p, width - whole, form, blend);
    }
}

} // namespace

bool VectorKernelsRun()
{
#if defined(__arm__) && !defined(__aarch64__)
    const unsigned long kHwcapNeon = 1ul << 12; // HWCAP_NEON of the ARM Linux kernel
    return (getauxval(AT_HWCAP) & kHwcapNeon) != 0;
#else
    return true;
#endif
}

bool FillAlphaBytesVector(SDL_Surface *surface, const Area &area, KVT_RGBA colour)
{
    ByteLanes lanes;
    if (!VectorKernelsRun() || !MakeByteLanes(surface->format, colour, &lanes))
        return false;
    const int rowBytes = area.Width() * lanes.bytes;
    for (int y = area.y0; y < area.y1; ++y)
        BlendByteRow(PixelAddress(surface, area.x0, y), rowBytes, lanes);
    return true;
}

bool FillAlphaPacked16Vector(SDL_Surface *surface, const Area &area, KVT_RGBA colour)
{
    if (!VectorKernelsRun())
        return false;
    return WithPacked16(surface->format, [&](const ColourForm &form, auto pixel) {
        FillPacked16(surface, area, colour, form, pixel);
    });
}

} // namespace kvt

#endif
