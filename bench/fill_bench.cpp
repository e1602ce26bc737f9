// The translucent fill at every depth, 640x480 and 16x16, against its
// plain definition, SDL_gfx's boxRGBA, SDL's own surface-alpha blit and a
// plain memcpy of the same bytes.
#include <cstring>
#include <functional>
#include <memory>

#include <SDL_gfxPrimitives.h>
#include <benchmark/benchmark.h>

#include <kvt/draw/internal/fill_alpha_paths.h>
#include <kvt/draw/pixel.h>

#include "bench_surfaces.h"

namespace kvt_bench {

namespace {

// kvt's alpha weighs the old pixel; SDL and SDL_gfx weigh the new colour,
// so they get 255 - 127 = 128 for the same blend.
const Uint8 kAlpha = 127;
const KVT_RGBA kColour = KVT_RGB(200, 100, 50, kAlpha);

struct Size {
    const char *name;
    int x, y, w, h;
};
const Size kSizes[] = {{"640x480", 0, 0, 640, 480}, {"16x16", 100, 100, 16, 16}};

// Answers false when the variant cannot do this fill at all.
using Fill = std::function<bool(SDL_Surface *)>;

Fill KvtFill(SDL_Surface *, const Size &z)
{
    return [z](SDL_Surface *s) {
        KVT_FillRectAlpha(s, z.x, z.y, z.w, z.h, kColour);
        return true;
    };
}

Fill PlainFill(SDL_Surface *, const Size &z)
{
    const kvt::Area area = {z.x, z.y, z.x + z.w, z.y + z.h};
    return [area](SDL_Surface *s) {
        kvt::FillAlphaPlain(s, area, kColour);
        return true;
    };
}

Fill GfxBox(SDL_Surface *, const Size &z)
{
    return [z](SDL_Surface *s) {
        return boxRGBA(s, Sint16(z.x), Sint16(z.y), Sint16(z.x + z.w - 1), Sint16(z.y + z.h - 1),
                       kColour.r, kColour.g, kColour.b, Uint8(255 - kAlpha)) == 0;
    };
}

// A solid surface of the screen's format blitted with SDL's surface alpha.
// SDL 1.2 has no such blit from 8 bits to 8 bits; that run is skipped.
Fill SdlBlit(SDL_Surface *screen, const Size &z, Uint8 alpha)
{
    std::shared_ptr<SDL_Surface> solid(
        MakeSolid(screen, z.w, z.h, kColour.r, kColour.g, kColour.b).release(), SDL_FreeSurface);
    SDL_SetAlpha(solid.get(), SDL_SRCALPHA, alpha);
    return [z, solid](SDL_Surface *s) {
        SDL_Rect at = {Sint16(z.x), Sint16(z.y), Uint16(z.w), Uint16(z.h)};
        return SDL_BlitSurface(solid.get(), nullptr, s, &at) == 0;
    };
}
Fill SdlBlit127(SDL_Surface *screen, const Size &z) { return SdlBlit(screen, z, 127); }
Fill SdlBlit128(SDL_Surface *screen, const Size &z) { return SdlBlit(screen, z, 128); }

// The ceiling: copying the area's bytes, row by row, to another surface.
Fill Memcpy(SDL_Surface *screen, const Size &z)
{
    std::shared_ptr<SDL_Surface> copy(
        MakeSolid(screen, screen->w, screen->h, 0, 0, 0).release(), SDL_FreeSurface);
    return [z, copy](SDL_Surface *s) {
        const int bytes = s->format->BytesPerPixel;
        for (int y = z.y; y < z.y + z.h; ++y)
            std::memcpy(static_cast<Uint8 *>(copy->pixels) + y * copy->pitch + z.x * bytes,
                        static_cast<const Uint8 *>(s->pixels) + y * s->pitch + z.x * bytes,
                        size_t(z.w) * bytes);
        benchmark::ClobberMemory();
        return true;
    };
}

struct Variant {
    const char *name;
    Fill (*make)(SDL_Surface *screen, const Size &size);
    bool blends; // its speed may depend on the pixels already there
};
const Variant kVariants[] = {{"kvt", KvtFill, true},
                             {"plain", PlainFill, true},
                             {"boxRGBA", GfxBox, true},
                             {"sdl_blit_a127", SdlBlit127, true},
                             {"sdl_blit_a128", SdlBlit128, true},
                             {"memcpy", Memcpy, false}};

// On a palette the cost of a fill depends on how many different indices
// it meets, and repeated blending would soon leave only a few; so the
// random picture is put back before every 8-bit fill, outside the timing.
void RunFill(benchmark::State &state, const Depth &depth, const Size &size, const Variant &variant)
{
    Surface screen = MakeSurface(depth, 640, 480), original = MakeSurface(depth, 640, 480);
    const Fill fill = variant.make(screen.get(), size);
    if (!fill(screen.get())) {
        state.SkipWithError("not supported at this depth");
        return;
    }
    const bool restore = depth.bits == 8 && variant.blends;
    for (auto _ : state) {
        if (restore) {
            state.PauseTiming();
            CopyPixels(original.get(), screen.get());
            state.ResumeTiming();
        }
        fill(screen.get());
    }
    state.SetItemsProcessed(state.iterations() * size.w * size.h);
}

} // namespace

void RegisterFillBenchmarks()
{
    for (const Depth *const *depth = AllDepths(); *depth != nullptr; ++depth)
        for (const Size &size : kSizes)
            for (const Variant &variant : kVariants) {
                const Depth *d = *depth;
                const Size *z = &size;
                const Variant *v = &variant;
                benchmark::RegisterBenchmark(
                    Name("fill", v->name, d->name, z->name).c_str(),
                    [d, z, v](benchmark::State &state) { RunFill(state, *d, *z, *v); });
            }
}

} // namespace kvt_bench
