#ifndef KVT_DRAW_DEPTH_H
#define KVT_DRAW_DEPTH_H

// Not part of kvt's API: installed only because the inline pixel functions
// of <kvt/draw/pixel.h> are built from it. Programs should not use it
// themselves; it may change in any release, and what it declares out of
// line is not exported by libkvt.so.
//
// The one place that knows how a pixel of 1, 2, 3 or 4 bytes is read and
// stored. Drawing code picks the accessor once with WithDepth and then
// runs its loop on it, so the 3-byte order is handled here and nowhere
// else. Multi-byte access goes through memcpy, which compiles to a plain
// load or store and never traps on an unaligned address.

#include <cstddef>
#include <cstring>

#include <SDL.h>

#include <kvt/draw/colour.h>

namespace kvt {

template <int Bytes>
struct PixelAccess;

template <>
struct PixelAccess<1> {
    static constexpr int kBytes = 1;
    explicit PixelAccess(const SDL_PixelFormat *) {}
    Uint32 Read(const Uint8 *p) const { return *p; }
    void Store(Uint8 *p, Uint32 v) const { *p = Uint8(v); }
    void StoreRGB(Uint8 *p, Uint8 r, Uint8 g, Uint8 b, const ColourForm &form) const
    {
        Store(p, form.Map(r, g, b));
    }
};

template <>
struct PixelAccess<2> {
    static constexpr int kBytes = 2;
    explicit PixelAccess(const SDL_PixelFormat *) {}
    Uint32 Read(const Uint8 *p) const
    {
        Uint16 v;
        std::memcpy(&v, p, 2);
        return v;
    }
    void Store(Uint8 *p, Uint32 v) const
    {
        Uint16 w = Uint16(v);
        std::memcpy(p, &w, 2);
    }
    void StoreRGB(Uint8 *p, Uint8 r, Uint8 g, Uint8 b, const ColourForm &form) const
    {
        Store(p, form.Map(r, g, b));
    }
};

// Three bytes, first byte lowest. A channel lives in byte shift / 8, which
// is the right byte on a little-endian host.
template <>
struct PixelAccess<3> {
    static constexpr int kBytes = 3;
    explicit PixelAccess(const SDL_PixelFormat *f)
        : rShift(f->Rshift), gShift(f->Gshift), bShift(f->Bshift),
          rByte(f->Rshift / 8), gByte(f->Gshift / 8), bByte(f->Bshift / 8)
    {
    }
    Uint32 Read(const Uint8 *p) const { return p[0] | (p[1] << 8) | (Uint32(p[2]) << 16); }
    void Store(Uint8 *p, Uint32 v) const
    {
        p[rByte] = Uint8(v >> rShift);
        p[gByte] = Uint8(v >> gShift);
        p[bByte] = Uint8(v >> bShift);
    }
    void StoreRGB(Uint8 *p, Uint8 r, Uint8 g, Uint8 b, const ColourForm &) const
    {
        p[rByte] = r;
        p[gByte] = g;
        p[bByte] = b;
    }
    Uint8 rShift, gShift, bShift;
    Uint8 rByte, gByte, bByte;
};

template <>
struct PixelAccess<4> {
    static constexpr int kBytes = 4;
    explicit PixelAccess(const SDL_PixelFormat *) {}
    Uint32 Read(const Uint8 *p) const
    {
        Uint32 v;
        std::memcpy(&v, p, 4);
        return v;
    }
    void Store(Uint8 *p, Uint32 v) const { std::memcpy(p, &v, 4); }
    void StoreRGB(Uint8 *p, Uint8 r, Uint8 g, Uint8 b, const ColourForm &form) const
    {
        Store(p, form.Map(r, g, b));
    }
};

// A 3-byte format whose channel shifts point past the pixel would write
// into its neighbour or past the surface: such a format is drawn like an
// unknown depth, that is, not at all.
inline bool HasInPixelChannels(const SDL_PixelFormat *f)
{
    return f->Rshift < 24 && f->Gshift < 24 && f->Bshift < 24;
}

// Calls fn(PixelAccess<N>) for the surface's depth; does nothing for a
// depth outside 1 to 4 bytes.
template <class Fn>
inline void WithDepth(const SDL_PixelFormat *format, Fn &&fn)
{
    switch (format->BytesPerPixel) {
    case 1: fn(PixelAccess<1>(format)); break;
    case 2: fn(PixelAccess<2>(format)); break;
    case 3:
        if (HasInPixelChannels(format))
            fn(PixelAccess<3>(format));
        break;
    case 4: fn(PixelAccess<4>(format)); break;
    default: break;
    }
}

// Calls fn(PixelAccess<Bytes>) only when the surface has that depth, for
// code that exists for one depth alone; answers whether it did.
template <int Bytes, class Fn>
inline bool WithDepthOf(const SDL_PixelFormat *format, Fn &&fn)
{
    if (format->BytesPerPixel != Bytes || (Bytes == 3 && !HasInPixelChannels(format)))
        return false;
    fn(PixelAccess<Bytes>(format));
    return true;
}

inline bool IsOnSurface(const SDL_Surface *surface, int x, int y)
{
    return x >= 0 && y >= 0 && x < surface->w && y < surface->h;
}

inline Uint8 *PixelAddress(const SDL_Surface *surface, int x, int y)
{
    return static_cast<Uint8 *>(surface->pixels) + ptrdiff_t(y) * surface->pitch +
           ptrdiff_t(x) * surface->format->BytesPerPixel;
}

// The blend of one channel: `alpha` weighs the pixel already there.
inline Uint8 BlendChannel(Uint32 colour, Uint32 old, Uint32 alpha)
{
    return Uint8((colour * (255 - alpha) + old * alpha) >> 8);
}

// Blends r, g, b over the pixel at p by the accessor's depth: the old value
// is split, each channel blended, and the result stored as blended
// channels (mapped at 1, 2 and 4 bytes, written as bytes at 3).
template <class Pixel>
inline void BlendPixel(const Pixel &pixel, Uint8 *p, Uint8 r, Uint8 g, Uint8 b, Uint8 alpha,
                       const ColourForm &form)
{
    Uint8 oldR, oldG, oldB;
    form.Split(pixel.Read(p), &oldR, &oldG, &oldB);
    pixel.StoreRGB(p, BlendChannel(r, oldR, alpha), BlendChannel(g, oldG, alpha),
                   BlendChannel(b, oldB, alpha), form);
}

} // namespace kvt

#endif
