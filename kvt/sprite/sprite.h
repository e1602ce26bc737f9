#ifndef KVT_SPRITE_SPRITE_H
#define KVT_SPRITE_SPRITE_H

// A numbered set of frames read from a run-length packed sprite file. Each
// frame is an ordinary surface in the format given to Load, with the colour
// (255, 0, 255) as its colour key, and an anchor point (hotX, hotY) that
// lands on the position given to the display operations. A sprite is also
// the font of the text functions in <kvt/sprite/text.h>.

#include <SDL.h>

#include <kvt/export.h>

struct KVT_SpriteFrame {
    Uint16 tag;  // kept from the file; nothing in the library reads it
    Sint16 hotX; // anchor column; arithmetic on it wraps at 16 bits
    Sint16 hotY; // anchor row, likewise
    SDL_Surface *surface;
};

// Plain data with no constructor logic: a sprite starts empty, and the
// application calls FreeFrames when it is done with a loaded one.
class KVT_API KVT_Sprite {
public:
    KVT_SpriteFrame *frames = nullptr; // nbFrames records from malloc
    Uint32 nbFrames = 0;

    // Reads the file and builds every frame in `format` (only read during
    // the call). False, with the sprite untouched, when the file cannot be
    // opened. False, with the sprite left empty and everything it built
    // released, when the file is damaged (it ends early, a row's runs need
    // more words than the row holds, a frame's block size is too small for
    // its rows, a size is negative, over 16384 or a zero width with rows),
    // when memory or a surface cannot be had, or when `format` has pixels
    // smaller than a byte. Frames already held are not released: a caller
    // that reloads calls FreeFrames first.
    bool Load(const char *path, const SDL_PixelFormat *format);
    // Releases every surface and the array, and leaves the sprite empty.
    void FreeFrames();

    // The frame index is not tested: it must be below nbFrames.
    int GetW(int frame) const { return frames[frame].surface->w; }
    SDL_Surface *GetFrameSurface(int frame) const { return frames[frame].surface; }
    Uint32 GetNbFrames() const { return nbFrames; }

    // Blit one frame with its anchor on (x, y), keyed, without blending.
    // False when `frame` is not below nbFrames or the blit fails.
    bool Display(SDL_Surface *surface, Sint16 x, Sint16 y, Uint32 frame);
    // Only the top left w x h pixels of the frame, anchored as Display.
    bool DisplayClipped(SDL_Surface *surface, Sint16 x, Sint16 y, Uint16 w, Uint16 h,
                        Uint32 frame);
    // Display blended with SDL's surface alpha: 255 is opaque, 0 invisible.
    bool DisplayAlpha(SDL_Surface *surface, Sint16 x, Sint16 y, Uint32 frame, Uint8 alpha);
};

#endif
