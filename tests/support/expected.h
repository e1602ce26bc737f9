#ifndef KVT_TESTS_SUPPORT_EXPECTED_H
#define KVT_TESTS_SUPPORT_EXPECTED_H

// The picture a test expects: a copy of a surface's pixels taken before
// drawing, edited where the drawing should land, then compared byte for
// byte with the surface (guards included).

#include <string>
#include <vector>

#include <SDL.h>

#include "support/surfaces.h"

namespace kvt_test {

// Formats with eight bits in every channel, where a worked colour value
// reads back exactly.
std::vector<FormatCase> EightBitChannelFormats();

// An SDL_Rect from ints, narrowed as SDL stores them.
SDL_Rect Rect(int x, int y, int w, int h);

class ExpectedPixels {
public:
    explicit ExpectedPixels(const GuardedSurface &surface);

    // Pixel values are written as the depth stores them: the low
    // BytesPerPixel bytes, lowest first (little-endian host).
    void Set(int x, int y, Uint32 value);
    // The part of `area` on the surface.
    void Fill(SDL_Rect area, Uint32 value);
    Uint32 Get(int x, int y) const;
    // Puts the picture into a surface of the same format and size, for
    // tests that need a source with chosen pixel values.
    void WriteTo(const GuardedSurface &surface) const;

    // "" when the surface holds exactly the expected pixels and its guards;
    // otherwise the first pixel that differs, with both values.
    std::string Differences(const GuardedSurface &surface) const;

private:
    size_t Offset(int x, int y) const;
    int width_, height_, bytes_;
    std::vector<Uint8> pixels_;
};

} // namespace kvt_test

#endif
