#ifndef KVT_DRAW_RGBA_H
#define KVT_DRAW_RGBA_H

#include <SDL.h>

// A colour of four bytes, passed by value as one 32-bit word. Only the
// translucent fill reads `a`; everything else draws r, g, b.
struct KVT_RGBA {
    Uint8 r;
    Uint8 g;
    Uint8 b;
    Uint8 a;
};

inline KVT_RGBA KVT_RGB(Uint8 r, Uint8 g, Uint8 b, Uint8 a)
{
    KVT_RGBA colour = {r, g, b, a};
    return colour;
}

#endif
