#ifndef KVT_SPRITE_TEXT_H
#define KVT_SPRITE_TEXT_H

// Text set in a sprite font: frame 0 is the space, and a character of
// value c, read as a signed 8-bit number, is frame c - 32. Control
// characters and every code of 128 or more have no frame: they draw
// nothing and add nothing to the advance or to the measured width. Glyphs
// sit side by side, each advancing the pen by its frame's width; anchors
// shift a glyph without changing the advance.

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/export.h>

// Draws `text` with the first glyph's anchor at (x, y), and stops at the
// end of the string or at the first pen position at or beyond the
// surface's right edge.
KVT_API void KVT_DisplayText(SDL_Surface *surface, KVT_Sprite *font, int x, int y,
                             const char *text);
// Draws `text` centred in the span of `width` pixels from x: it starts at
// x + (width - text width) / 2, rounded towards minus infinity.
KVT_API void KVT_DisplayTextCenter(SDL_Surface *surface, KVT_Sprite *font, int x, int y, int width,
                                   const char *text);
// The sum of the frame widths of the characters of `text`.
KVT_API int KVT_GetTextWidth(const KVT_Sprite *font, const char *text);

#endif
