#ifndef KVT_DRAW_PIXEL_H
#define KVT_DRAW_PIXEL_H

// Single-pixel access at any depth. A pixel outside the surface is left
// alone: nothing is mapped, read or written for it. The surface's clip
// rectangle plays no part, and nothing here locks the surface.

#include <SDL.h>

#include <kvt/draw/depth.h>
#include <kvt/draw/rgba.h>
#include <kvt/export.h>

inline void KVT_SetPixel(SDL_Surface *surface, Sint16 x, Sint16 y, Uint8 r, Uint8 g, Uint8 b)
{
    if (!kvt::IsOnSurface(surface, x, y))
        return;
    kvt::ColourForm form(surface->format);
    Uint8 *p = kvt::PixelAddress(surface, x, y);
    kvt::WithDepth(surface->format, [&](auto pixel) { pixel.Store(p, form.Map(r, g, b)); });
}

// Blends r, g, b over the pixel; `a` weighs the old pixel, so 0 gives the
// new colour (one step darker, as the blend divides by 256) and 255 the old.
inline void KVT_SetPixelAlpha(SDL_Surface *surface, Sint16 x, Sint16 y, Uint8 r, Uint8 g, Uint8 b,
                              Uint8 a)
{
    if (!kvt::IsOnSurface(surface, x, y))
        return;
    kvt::ColourForm form(surface->format);
    Uint8 *p = kvt::PixelAddress(surface, x, y);
    kvt::WithDepth(surface->format,
                   [&](auto pixel) { kvt::BlendPixel(pixel, p, r, g, b, a, form); });
}

// Outside the surface the three outputs keep what they held.
inline void KVT_GetPixel(SDL_Surface *surface, Sint16 x, Sint16 y, Uint8 *r, Uint8 *g, Uint8 *b)
{
    if (!kvt::IsOnSurface(surface, x, y))
        return;
    kvt::ColourForm form(surface->format);
    const Uint8 *p = kvt::PixelAddress(surface, x, y);
    kvt::WithDepth(surface->format, [&](auto pixel) { form.Split(pixel.Read(p), r, g, b); });
}

// Translucent fill of the part of (x, y, w, h) that lies on the surface;
// the colour's `a` weighs the old pixels as in KVT_SetPixelAlpha.
KVT_API void KVT_FillRectAlpha(SDL_Surface *surface, int x, int y, int w, int h, KVT_RGBA colour);

#endif
