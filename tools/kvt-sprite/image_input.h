#ifndef KVT_SPRITE_TOOL_IMAGE_INPUT_H
#define KVT_SPRITE_TOOL_IMAGE_INPUT_H

#include <string>

#include <SDL.h>

#include "picture.h"

namespace kvt_sprite {

// The pixels of a surface of any depth as a picture. A pixel is clear
// when its colour is (255, 0, 255), when the surface has an alpha channel
// and the pixel's alpha is 0, or when it is the surface's colour key;
// any other alpha is dropped, since a frame has none. The anchor and tag
// are left at 0.
void SurfacePicture(SDL_Surface *surface, Picture *picture);

// Reads a PNG or BMP file (or whatever else SDL_image reads) into
// `picture`. False, with the reason in `*error`, when the file cannot be
// read or is larger than a frame may be.
bool LoadImagePicture(const std::string &path, Picture *picture, std::string *error);

} // namespace kvt_sprite

#endif
