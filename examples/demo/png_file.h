#ifndef KVT_DEMO_PNG_FILE_H
#define KVT_DEMO_PNG_FILE_H

#include <SDL.h>

namespace kvt_demo {

// Writes the whole surface, whatever its format, as an 8-bit RGB PNG. A
// palettised pixel gives its palette colour; a channel narrower than 8
// bits is widened by repeating its top bits below it (a 5-bit 4 gives 33,
// 25 gives 206), the same on every SDL, so that the pictures of two SDLs
// differ only where their surfaces do. Answers false, with a message on
// stderr, when it could not.
bool WritePng(SDL_Surface *surface, const char *path);

} // namespace kvt_demo

#endif
