#ifndef KVT_DRAW_INTERNAL_BYTE_CHANNELS_H
#define KVT_DRAW_INTERNAL_BYTE_CHANNELS_H

// Formats whose red, green and blue are each one whole byte of a 3- or
// 4-byte pixel. For those, SDL's split gives the channel bytes unchanged
// and its mapping puts them back and ORs in Amask, so pixel values can be
// blended and averaged byte by byte without ever splitting them.

#include <SDL.h>

namespace kvt {

struct ByteChannels {
    int bytes;               // 3 or 4
    Uint8 red, green, blue;  // bit position of each channel's byte
    Uint32 channels;         // Rmask | Gmask | Bmask
    Uint32 amask;

    // SDL_MapRGB(SDL_GetRGB(v)) for a value of this format.
    Uint32 Normalise(Uint32 v) const { return (v & channels) | amask; }
};

// False unless the three channels are distinct whole bytes inside the
// pixel and Amask keeps clear of them.
inline bool FindByteChannels(const SDL_PixelFormat *f, ByteChannels *out)
{
    const int bytes = f->BytesPerPixel;
    if ((bytes != 3 && bytes != 4) || f->palette != nullptr)
        return false;
    auto whole = [bytes](Uint32 mask, Uint8 shift) {
        return shift % 8 == 0 && shift < 8 * bytes && mask == Uint32(0xFF) << shift;
    };
    if (!whole(f->Rmask, f->Rshift) || !whole(f->Gmask, f->Gshift) || !whole(f->Bmask, f->Bshift))
        return false;
    if (f->Rshift == f->Gshift || f->Rshift == f->Bshift || f->Gshift == f->Bshift)
        return false;
    const Uint32 channels = f->Rmask | f->Gmask | f->Bmask;
    if ((f->Amask & channels) != 0)
        return false;
    *out = {bytes, f->Rshift, f->Gshift, f->Bshift, channels, f->Amask};
    return true;
}

} // namespace kvt

#endif
