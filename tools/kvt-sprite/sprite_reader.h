#ifndef KVT_SPRITE_TOOL_SPRITE_READER_H
#define KVT_SPRITE_TOOL_SPRITE_READER_H

// Reading sprite files back: the library's own record reader checks them,
// so that the tool refuses exactly the files that KVT_Sprite::Load
// refuses, and Load itself decodes them.

#include <string>
#include <vector>

#include <SDL.h>

#include "picture.h"

namespace kvt_sprite {

// A frame as Load would build it, without its pixels.
struct FrameSummary {
    int width;
    int height;
    Sint16 hotX;
    Sint16 hotY;
    Uint16 tag;
};

// Reads every frame record of the file. False, with a one-line reason in
// `*error`, when it cannot be opened or is damaged. `*trailingBytes` is
// what follows the last frame, which no reader looks at.
bool CheckSpriteFile(const std::string &path, std::vector<FrameSummary> *frames,
                     long *trailingBytes, std::string *error);

// Loads the file with KVT_Sprite::Load and gives each frame as a picture:
// clear where the frame shows its colour key, anchor and tag included.
bool ReadSpritePictures(const std::string &path, std::vector<Picture> *pictures,
                        std::string *error);

} // namespace kvt_sprite

#endif
