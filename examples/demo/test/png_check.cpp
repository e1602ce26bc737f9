// kvt-png-check FILE WIDTH HEIGHT MIN_COLOURS [DEPTH]: exit code 0 when
// FILE is a PNG that libpng reads whole, of the given size, showing at
// least MIN_COLOURS different colours (so a blank or nearly blank picture
// fails). With DEPTH, the picture must also be what the demo's PNG writer
// makes of a surface of that many bits per pixel: at 16, every colour is
// a 5-6-5 one whose channels were widened by repeating their top bits; at
// 8, there are at most 256 colours. A picture drawn at a greater depth
// fails either.
//
// kvt-png-check --compare FILE_A FILE_B: compares two PNGs pixel for pixel
// and prints one line, "identical" or how many pixels differ, the first of
// them (in reading order) with both colours, the box holding them all and
// the largest difference in any channel. Exit code 0 when identical, 1
// when pixels differ, 2 when a file is unreadable or the sizes differ.
#include <algorithm>
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

// True when each channel's low bits repeat its top ones, as a 5-bit red
// and blue and a 6-bit green widen to 8 bits.
static bool IsWidened565(unsigned rgb)
{
    const unsigned r = rgb >> 16, g = (rgb >> 8) & 0xFF, b = rgb & 0xFF;
    return (r & 7) == r >> 5 && (g & 3) == g >> 6 && (b & 7) == b >> 5;
}

// The colours fit a surface of `depth` bits per pixel, as far as that can
// be told from them.
static bool FitsDepth(const char *path, const std::unordered_set<unsigned> &colours, int depth)
{
    if (depth == 8 && colours.size() > 256) {
        std::fprintf(stderr, "%s: %zu colours, more than 8 bits per pixel hold\n", path,
                     colours.size());
        return false;
    }
    if (depth != 16)
        return true;
    for (unsigned rgb : colours)
        if (!IsWidened565(rgb)) {
            std::fprintf(stderr, "%s: colour %u,%u,%u is not a widened 5-6-5 one\n", path,
                         rgb >> 16, (rgb >> 8) & 0xFF, rgb & 0xFF);
            return false;
        }
    return true;
}

static int CheckPicture(const char *path, unsigned width, unsigned height, size_t minColours,
                        int depth)
{
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
    return FitsDepth(path, colours, depth) ? 0 : 1;
}

static int ComparePictures(const char *pathA, const char *pathB)
{
    png_image a, b;
    std::vector<unsigned char> pixelsA, pixelsB;
    if (!ReadRgb(pathA, &a, &pixelsA) || !ReadRgb(pathB, &b, &pixelsB))
        return 2;
    if (a.width != b.width || a.height != b.height) {
        std::printf("sizes differ: %ux%u against %ux%u\n", a.width, a.height, b.width, b.height);
        return 2;
    }
    // Reading order makes the first difference the top-most, then left-most.
    unsigned long count = 0;
    unsigned firstX = 0, firstY = 0;
    unsigned left = a.width, top = a.height, right = 0, bottom = 0;
    int largest = 0;
    for (unsigned y = 0; y < a.height; ++y) {
        for (unsigned x = 0; x < a.width; ++x) {
            size_t at = (size_t(y) * a.width + x) * 3;
            if (std::memcmp(&pixelsA[at], &pixelsB[at], 3) == 0)
                continue;
            if (count++ == 0) {
                firstX = x;
                firstY = y;
            }
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
            for (int c = 0; c < 3; ++c)
                largest = std::max(largest, std::abs(pixelsA[at + c] - pixelsB[at + c]));
        }
    }
    if (count == 0) {
        std::printf("identical\n");
        return 0;
    }
    size_t first = (size_t(firstY) * a.width + firstX) * 3;
    std::printf("%lu pixels differ, first at (%u,%u): %d,%d,%d against %d,%d,%d; all within "
                "(%u,%u)-(%u,%u), channels off by at most %d\n",
                count, firstX, firstY, pixelsA[first], pixelsA[first + 1], pixelsA[first + 2],
                pixelsB[first], pixelsB[first + 1], pixelsB[first + 2], left, top, right, bottom,
                largest);
    return 1;
}

int main(int argc, char **argv)
{
    if (argc == 4 && std::strcmp(argv[1], "--compare") == 0)
        return ComparePictures(argv[2], argv[3]);
    if (argc != 5 && argc != 6) {
        std::fprintf(stderr,
                     "usage: %s FILE WIDTH HEIGHT MIN_COLOURS [DEPTH]\n"
                     "       %s --compare FILE_A FILE_B\n",
                     argv[0], argv[0]);
        return 2;
    }
    return CheckPicture(argv[1], unsigned(std::atoi(argv[2])), unsigned(std::atoi(argv[3])),
                        size_t(std::atoi(argv[4])), argc == 6 ? std::atoi(argv[5]) : 0);
}
