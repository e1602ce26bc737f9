#ifndef KVT_SPRITE_TOOL_ARGS_H
#define KVT_SPRITE_TOOL_ARGS_H

#include <string>

#include <SDL.h>

namespace kvt_sprite {

// An image named on the command line of `pack`: IMAGE[@HOTX,HOTY[,TAG]].
struct ImageArgument {
    std::string path;
    Sint16 hotX = 0;
    Sint16 hotY = 0;
    Uint16 tag = 0;
};

// A decimal integer from min to max, the whole of `text`.
bool ParseInteger(const std::string &text, long min, long max, long *value);

// Splits at the last '@': what follows it is the anchor, two integers from
// -32768 to 32767, and an optional tag from 0 to 65535, separated by
// commas. False, with the reason in `*error`, when it is malformed.
bool ParseImageArgument(const std::string &text, ImageArgument *image, std::string *error);

} // namespace kvt_sprite

#endif
