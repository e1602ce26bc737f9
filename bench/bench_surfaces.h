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

// A software surface of the depth, filled with random bytes from `seed`.
Surface MakeSurface(const Depth &depth, int w, int h, unsigned seed = 1);
// A surface of the same format and size, every pixel one colour.
Surface MakeSolid(const SDL_Surface *like, int w, int h, Uint8 r, Uint8 g, Uint8 b);
// Copies every pixel byte of `from` into `to` (same format and size).
void CopyPixels(const SDL_Surface *from, SDL_Surface *to);

// "family/variant/depth/size", the form that ratios.py reads.
std::string Name(const char *family, const char *variant, const char *depth, const char *size);

void RegisterFillBenchmarks();
void RegisterBlitBenchmarks();
void RegisterLineBenchmarks();
void RegisterSpriteBenchmarks();

} // namespace kvt_bench

#endif
