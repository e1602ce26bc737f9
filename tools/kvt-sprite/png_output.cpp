#include "png_output.h"

#include <cstring>

#include <png.h>

namespace kvt_sprite {

namespace {

std::vector<Uint8> RgbaBytes(const Picture &picture)
{
    std::vector<Uint8> rgba;
    rgba.reserve(picture.pixels.size() * 4);
    for (Uint32 pixel : picture.pixels) {
        const bool clear = pixel == kClear;
        rgba.push_back(clear ? 0 : Uint8(pixel >> 16));
        rgba.push_back(clear ? 0 : Uint8(pixel >> 8));
        rgba.push_back(clear ? 0 : Uint8(pixel));
        rgba.push_back(clear ? 0 : 255);
    }
    return rgba;
}

} // namespace

bool PngBytes(const Picture &picture, std::vector<Uint8> *png, std::string *error)
{
    if (picture.width <= 0 || picture.height <= 0) {
        *error = "a PNG cannot hold an empty picture";
        return false;
    }
    const std::vector<Uint8> rgba = RgbaBytes(picture);
    png_image image;
    std::memset(&image, 0, sizeof image);
    image.version = PNG_IMAGE_VERSION;
    image.width = png_uint_32(picture.width);
    image.height = png_uint_32(picture.height);
    image.format = PNG_FORMAT_RGBA;
    // The first call measures, the second writes.
    png_alloc_size_t size = 0;
    bool written = png_image_write_to_memory(&image, nullptr, &size, 0, rgba.data(), 0, nullptr);
    if (written) {
        png->resize(size);
        written = png_image_write_to_memory(&image, png->data(), &size, 0, rgba.data(), 0,
                                            nullptr);
        png->resize(size);
    }
    if (!written)
        *error = std::string("cannot encode a PNG: ") + image.message;
    png_image_free(&image);
    return written;
}

} // namespace kvt_sprite
