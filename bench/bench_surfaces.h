#ifndef KVT_BENCH_SURFACES_H
#define KVT_BENCH_SURFACES_H

// Surfaces for the benchmarks: the four depths the project measures, with
// random content, owned by a small handle.

#include <memory>
#include <random>
#include <string>

#include <SDL.h>

namespace kvt_bench {

struct Depth {
    const char *name; // "32", "24", "16", "8"
    int bits;
    Uint32 rmask, gmask, bmask;
};

// 32-bit XRGB, 24-bit RGB, 16-bit 5-6-5 and 8-bit with a full palette.
const Depth &Depth32();
const Depth &Depth24();
const Depth &Depth16();
const Depth &Depth8();
const Depth *const *AllDepths(); // null-terminated

struct SurfaceFree {
    void operator()(SDL_Surface *s) const { SDL_FreeSurface(s); }
};
using Surface = std::unique_ptr<SDL_Surface, SurfaceFree>;

// The 256 colours of the 8-bit surfaces: 3-3-2 levels.
void SetFullPalette(SDL_Surface *s);

// A software surface of the depth, filled with random bytes from `seed`.
Surface MakeSurface(const Depth &depth, int w, int h, unsigned seed = 1);
// A surface of the same format and size, every pixel one colour.
Surface MakeSolid(const SDL_Surface *like, int w, int h, Uint8 r, Uint8 g, Uint8 b);
// Copies every pixel byte of `from` into `to` (same format and size).
void CopyPixels(const SDL_Surface *from, SDL_Surface *to);

// The display surface of SDL's dummy driver at this size and depth, 8
// bits with the full palette; null from get() when SDL refused it. The
// sprite benchmarks draw on whatever display there is, so the 640x480
// 32-bit one that they would make comes back when this ends.
class VideoMode {
public:
    VideoMode(int width, int height, int bits);
    ~VideoMode();
    VideoMode(const VideoMode &) = delete;
    VideoMode &operator=(const VideoMode &) = delete;
    SDL_Surface *get() const { return display_; }

private:
    SDL_Surface *display_;
};

// The sprite font (15 pixels, from KVT_BENCH_TTF) that the sprite
// benchmarks write when they are registered; "" before, or when that failed.
const std::string &FontFile();

// "family/variant/depth/size", the form that ratios.py reads.
std::string Name(const char *family, const char *variant, const char *depth, const char *size);

void RegisterFillBenchmarks();
void RegisterBlitBenchmarks();
void RegisterLineBenchmarks();
void RegisterSpriteBenchmarks();
// After the sprite benchmarks, whose font they use.
void RegisterWidgetBenchmarks();

} // namespace kvt_bench

#endif
