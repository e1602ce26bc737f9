#ifndef KVT_UI_CORE_REGION_SAVER_H
#define KVT_UI_CORE_REGION_SAVER_H

// A copy of what lies under a rectangle of a surface, to be put back later:
// how a focus frame disappears without a repaint, and how widgets repaint
// variable content over their own background.

#include <SDL.h>

class KVT_RegionSaver {
public:
    SDL_Rect area;      // the rectangle last saved (16-bit fields)
    SDL_Surface *image; // the saved pixels, owned; null until the first save

    KVT_RegionSaver() : image(nullptr) {}
    ~KVT_RegionSaver();
    KVT_RegionSaver(const KVT_RegionSaver &) = delete;
    KVT_RegionSaver &operator=(const KVT_RegionSaver &) = delete;

    // Copies (x, y, width, height) of `surface` into a new image of the
    // surface's depth and masks, replacing any earlier one. True when the
    // copy succeeded.
    bool SaveRegion(SDL_Surface *surface, int x, int y, int width, int height);
    // Puts the image back where it was taken; it stays, so it can be put
    // back again. False when nothing was saved or the copy failed.
    bool RestaurRegion(SDL_Surface *surface);
};

#endif
