#ifndef KVT_DEMO_WINDOW_H
#define KVT_DEMO_WINDOW_H

#include <SDL.h>

#include "assets.h"

namespace kvt_demo {

// Shows the scenes on the display surface, one at a time, until the window
// is closed or Escape is pressed. Space, Right and Left change scene.
void RunWindow(SDL_Surface *screen, Assets &assets);

} // namespace kvt_demo

#endif
