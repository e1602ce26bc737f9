#ifndef KVT_TESTS_SUPPORT_SURFACES_H
#define KVT_TESTS_SUPPORT_SURFACES_H

// Surfaces at every pixel format the library must handle, each placed in
// a larger buffer so that a test can prove nothing was written outside the
// surface: guard bytes before and after the pixel memory, and padding
// bytes at the end of every row (pitch is wider than the pixels).

#include <cstdint>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include <SDL.h>

#include <kvt/draw/rgba.h>

namespace kvt_test {

struct FormatCase {
    const char *name;
    int bitsPerPixel;
    Uint32 rmask, gmask, bmask, amask;
};

// 8 bpp with a full 256-colour palette; 16 bpp 5-6-5 and 5-5-5; 24 bpp in
// both byte orders; 32 bpp in two channel orders plus one with alpha.
const std::vector<FormatCase> &AllFormats();
// The true-colour subset (no palette).
std::vector<FormatCase> TrueColourFormats();
// Rarer formats that the fast paths must still get right: 4-4-4-4 with
// alpha, alpha in the top byte of 32 bits, 6-6-6 channels in 32 bits.
const std::vector<FormatCase> &MoreFormats();

// True when the loaded SDL is sdl12-compat (1.2.50 and later) rather than
// classic SDL 1.2 (1.2.15): the two differ where SDL itself decides
// (formats, blits, waits), and tests check the library against what the
// loaded one did.
bool LoadedSdlIsCompat();

// Where the kit reports a problem that must fail the running test, such
// as a surface that SDL would not make; the test main sends it to
// GoogleTest. Without a reporter the problem goes to stderr.
void SetProblemReporter(void (*report)(const std::string &problem));

// For INSTANTIATE_TEST_SUITE_P names, and for GoogleTest's printing.
std::string FormatName(const FormatCase &pixelFormat);
void PrintTo(const FormatCase &pixelFormat, std::ostream *out);

// A surface of the format asked for, or, where the loaded SDL does not
// make that format (sdl12-compat refuses masks that SDL 2 has no name
// for), of the format that SDL_CreateRGBSurface gives for the same
// request, as an application asking for it would get. When SDL gives
// nothing at all, the problem is reported and the surface is 32-bit
// XRGB, so that the test fails with a message instead of crashing.
class GuardedSurface {
public:
    GuardedSurface(const FormatCase &pixelFormat, int width, int height, int rowPadding = 5);
    ~GuardedSurface();
    GuardedSurface(const GuardedSurface &) = delete;
    GuardedSurface &operator=(const GuardedSurface &) = delete;

    SDL_Surface *get() const { return surface_; }
    operator SDL_Surface *() const { return surface_; }

    // True when no guard byte and no row padding byte has changed.
    bool GuardsIntact() const;
    // Random bytes in every pixel (padding and guards untouched).
    void FillRandom(std::mt19937 &rng);
    // Every pixel set to one colour through SDL_MapRGB.
    void FillColour(Uint8 r, Uint8 g, Uint8 b);
    // Copy of the pixel bytes, row by row, without padding.
    std::vector<Uint8> PixelBytes() const;

private:
    // The surface over fresh guarded memory; null when SDL refuses.
    SDL_Surface *Make(const FormatCase &pixelFormat, int width, int height, int rowPadding);

    static constexpr Uint8 kGuard = 0xA5;
    static constexpr int kGuardBytes = 64;
    SDL_Surface *surface_;
    std::vector<Uint8> memory_;
    int rowBytes_;
};

// The colour at (x, y) as SDL splits it, and the raw pixel value.
KVT_RGBA ReadColour(SDL_Surface *surface, int x, int y);
Uint32 ReadValue(SDL_Surface *surface, int x, int y);

// Describes the first pixel outside `area` whose bytes differ from
// `before` (a PixelBytes() copy), or returns "" when there is none.
std::string ChangedOutside(const GuardedSurface &surface, const std::vector<Uint8> &before,
                           SDL_Rect area);
// Describes the first pixel that differs between two surfaces of the same
// format and size, or "" when they are byte for byte the same.
std::string FirstDifference(const GuardedSurface &a, const GuardedSurface &b);

} // namespace kvt_test

#endif
