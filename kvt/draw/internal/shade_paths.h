#ifndef KVT_DRAW_INTERNAL_SHADE_PATHS_H
#define KVT_DRAW_INTERNAL_SHADE_PATHS_H

// The plain shaded lines: three divisions and one SDL_MapRGB per pixel,
// as the ramp is defined. The public KVT_HorzLineShade/KVT_VertLineShade
// step the ramp without dividing and map inline; tests hold them to these.

#include <SDL.h>

#include <kvt/draw/rgba.h>

namespace kvt {

void HorzLineShadePlain(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, KVT_RGBA first,
                        KVT_RGBA last);
void VertLineShadePlain(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, KVT_RGBA first,
                        KVT_RGBA last);

} // namespace kvt

#endif
