#ifndef KVT_UI_CORE_REGION_SAVER_H
#define KVT_UI_CORE_REGION_SAVER_H

// A copy of what lies under a rectangle of a surface, to be put back later:
// how a focus frame disappears without a repaint, and how widgets repaint
// variable content over their own background.

#include <SDL.h>

#include <kvt/export.h>

class KVT_API KVT_RegionSaver {
public:
    // The rectangle last saved (16-bit fields); after a restore, the part
    // of it that the restoring blit put on the surface.
    SDL_Rect area;
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
    // back again. The blit clips `area` in place. False when nothing was
    // saved or the copy failed.
    bool RestaurRegion(SDL_Surface *surface);

private:
    // The rectangle as saved: every restore starts from it, since a
    // rectangle that hangs off the surface comes back from the blit cut,
    // and restoring through the cut one would shift the image.
    SDL_Rect saved_ = {0, 0, 0, 0};
};

#endif
