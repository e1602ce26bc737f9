#ifndef KVT_DEMO_PNG_FILE_H
#define KVT_DEMO_PNG_FILE_H

#include <SDL.h>

namespace kvt_demo {

// Writes the whole surface, whatever its format, as an 8-bit RGB PNG.
// Answers false, with a message on stderr, when it could not.
bool WritePng(SDL_Surface *surface, const char *path);

} // namespace kvt_demo

#endif
