#ifndef KVT_DEMO_WINDOW_H
#define KVT_DEMO_WINDOW_H

#include <string>

#include <SDL.h>

#include "assets.h"

namespace kvt_demo {

// Shows the scenes on the display surface, one at a time, until the window
// is closed or Escape is pressed. Space, Right and Left change scene, unless
// the live scene keeps the key for its focused widget; a live scene hears
// every other event. Starts on the scene named
// `firstScene`, or on the first when no scene has that name.
void RunWindow(SDL_Surface *screen, Assets &assets, const std::string &firstScene);

} // namespace kvt_demo

#endif
