#ifndef KVT_DEMO_PICTURES_H
#define KVT_DEMO_PICTURES_H

// Pictures the demo makes itself, pixel by pixel, so that it needs no
// image files besides the theme.

#include <SDL.h>

namespace kvt_demo {

// A 64x64 slate tile with a soft woven relief and a fine grain. Every
// pattern in it repeats every 64 pixels, so tiles laid side by side meet
// without a seam.
SDL_Surface *CreateBackgroundTile();

// A shaded glass ball with a slot cut through it, `size` pixels square.
// Everything that is not ball is magenta (255, 0, 255), the colour the
// enlarging blit and colour-keyed blits treat as transparent; the colour
// key is set.
SDL_Surface *CreateBall(int size = 40);

} // namespace kvt_demo

#endif
