// The double-size blit of a 64x64 sprite against its plain form and SDL's
// own SDL_SoftStretch to 128x128.
#include <benchmark/benchmark.h>

#include <kvt/draw/double_blit.h>
#include <kvt/draw/internal/double_blit_paths.h>
#include <kvt/draw/pixel.h>

#include "bench_surfaces.h"

namespace kvt_bench {

namespace {

const int kAt = 100;

// A 64x64 sprite of random colours with a transparent border and a
// transparent hole, as button images have.
Surface MakeSprite(const Depth &depth)
{
    Surface sprite = MakeSurface(depth, 64, 64, 7);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) {
            const bool border = x < 4 || y < 4 || x >= 60 || y >= 60;
            const bool hole = x >= 24 && x < 40 && y >= 24 && y < 40;
            if (border || hole)
                KVT_SetPixel(sprite.get(), Sint16(x), Sint16(y), 255, 0, 255);
        }
    return sprite;
}

template <class Blit>
void RunBlit(benchmark::State &state, Blit blit)
{
    Surface screen = MakeSurface(Depth32(), 640, 480);
    Surface sprite = MakeSprite(Depth32());
    for (auto _ : state)
        blit(sprite.get(), screen.get());
    state.SetItemsProcessed(state.iterations() * 128 * 128);
}

} // namespace

void RegisterBlitBenchmarks()
{
    benchmark::RegisterBenchmark("double/kvt/32/64x64", [](benchmark::State &state) {
        RunBlit(state,
                [](SDL_Surface *src, SDL_Surface *dst) { KVT_DoubleSizeBlit(src, dst, kAt, kAt); });
    });
    benchmark::RegisterBenchmark("double/plain/32/64x64", [](benchmark::State &state) {
        RunBlit(state, [](SDL_Surface *src, SDL_Surface *dst) {
            kvt::DoubleSizeBlitPlain(src, dst, kAt, kAt);
        });
    });
    benchmark::RegisterBenchmark("double/SDL_SoftStretch/32/64x64", [](benchmark::State &state) {
        RunBlit(state, [](SDL_Surface *src, SDL_Surface *dst) {
            SDL_Rect to = {kAt, kAt, 128, 128};
            SDL_SoftStretch(src, nullptr, dst, &to);
        });
    });
}

} // namespace kvt_bench
