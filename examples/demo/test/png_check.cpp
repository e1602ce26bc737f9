// kvt-png-check FILE WIDTH HEIGHT MIN_COLOURS: exit code 0 when FILE is a
// PNG that libpng reads whole, of the given size, showing at least
// MIN_COLOURS different colours (so a blank or nearly blank picture fails).
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unordered_set>
#include <vector>

#include <png.h>

static bool ReadRgb(const char *path, png_image *image, std::vector<unsigned char> *pixels)
{
    std::memset(image, 0, sizeof *image);
    image->version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(image, path)) {
        std::fprintf(stderr, "%s: not a readable PNG: %s\n", path, image->message);
        return false;
    }
    image->format = PNG_FORMAT_RGB;
    pixels->resize(PNG_IMAGE_SIZE(*image));
    if (!png_image_finish_read(image, nullptr, pixels->data(), 0, nullptr)) {
        std::fprintf(stderr, "%s: pixels unreadable: %s\n", path, image->message);
        return false;
    }
    return true;
}

int main(int argc, char **argv)
{
    if (argc != 5) {
        std::fprintf(stderr, "usage: %s FILE WIDTH HEIGHT MIN_COLOURS\n", argv[0]);
        return 2;
    }
    const char *path = argv[1];
    unsigned width = unsigned(std::atoi(argv[2]));
    unsigned height = unsigned(std::atoi(argv[3]));
    size_t minColours = size_t(std::atoi(argv[4]));
    png_image image;
    std::vector<unsigned char> pixels;
    if (!ReadRgb(path, &image, &pixels))
        return 1;
    if (image.width != width || image.height != height) {
        std::fprintf(stderr, "%s: %ux%u, expected %ux%u\n", path, image.width, image.height,
                     width, height);
        return 1;
    }
    std::unordered_set<unsigned> colours;
    for (size_t i = 0; i + 2 < pixels.size(); i += 3)
        colours.insert(pixels[i] << 16 | pixels[i + 1] << 8 | pixels[i + 2]);
    if (colours.size() < minColours) {
        std::fprintf(stderr, "%s: only %zu colours, expected at least %zu\n", path,
                     colours.size(), minColours);
        return 1;
    }
    return 0;
}
