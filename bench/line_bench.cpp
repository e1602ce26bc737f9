// Straight lines against SDL_gfx's hlineRGBA/vlineRGBA (opaque), the
// antialiased line against aalineRGBA, and the colour ramp against its
// plain definition, all on a 640x480 32-bit surface.
#include <cmath>
#include <vector>

#include <SDL_gfxPrimitives.h>
#include <benchmark/benchmark.h>

#include <kvt/draw/internal/line_paths.h>
#include <kvt/draw/internal/shade_paths.h>
#include <kvt/draw/lines.h>
#include <kvt/draw/shade.h>

#include "bench_surfaces.h"

namespace kvt_bench {

namespace {

const KVT_RGBA kColour = KVT_RGB(200, 100, 50, 255);
const KVT_RGBA kFirst = KVT_RGB(250, 20, 30, 0), kLast = KVT_RGB(10, 200, 90, 0);

struct Segment {
    Sint16 x1, y1, x2, y2;
};

// 256 slanted lines of length 100 in random directions, the same every run.
const std::vector<Segment> &Segments()
{
    static const std::vector<Segment> segments = [] {
        std::vector<Segment> out;
        std::mt19937 rng(2024);
        std::uniform_real_distribution<double> angle(0, 2 * M_PI);
        while (out.size() < 256) {
            const int x1 = 100 + int(rng() % 440), y1 = 100 + int(rng() % 280);
            const double a = angle(rng);
            const int x2 = x1 + int(std::lround(100 * std::cos(a)));
            const int y2 = y1 + int(std::lround(100 * std::sin(a)));
            if (x2 != x1 && y2 != y1)
                out.push_back({Sint16(x1), Sint16(y1), Sint16(x2), Sint16(y2)});
        }
        return out;
    }();
    return segments;
}

// One screen for every line benchmark. A vertical line touches one cache
// line in each of 480 rows, and how those rows fall into the cache depends
// on where the pixels lie in physical memory; drawing kvt's lines and the
// reference's on the same pixels gives both the same luck. It lives as long
// as the process, past SDL_Quit.
SDL_Surface *SharedScreen()
{
    static SDL_Surface *const screen = MakeSurface(Depth32(), 640, 480).release();
    return screen;
}

// Calls draw(surface, i) with i counting up, one call per iteration.
template <class Draw>
void RunOn32(benchmark::State &state, int pixels, Draw draw)
{
    SDL_Surface *screen = SharedScreen();
    unsigned i = 0;
    for (auto _ : state)
        draw(screen, i++);
    state.SetItemsProcessed(state.iterations() * pixels);
}

template <class Draw>
void Register(const char *name, int pixels, Draw draw)
{
    benchmark::RegisterBenchmark(name, [pixels, draw](benchmark::State &state) {
        RunOn32(state, pixels, draw);
    });
}

} // namespace

void RegisterLineBenchmarks()
{
    const Uint8 r = kColour.r, g = kColour.g, b = kColour.b;
    Register("hline/kvt/32/640", 640, [](SDL_Surface *s, unsigned i) {
        KVT_HorzLine(s, 0, Sint16(i % 480), 640, kColour);
    });
    Register("hline/hlineRGBA/32/640", 640, [=](SDL_Surface *s, unsigned i) {
        hlineRGBA(s, 0, 639, Sint16(i % 480), r, g, b, 255);
    });
    Register("vline/kvt/32/480", 480, [](SDL_Surface *s, unsigned i) {
        KVT_VertLine(s, Sint16(i % 640), 0, 480, kColour);
    });
    Register("vline/vlineRGBA/32/480", 480, [=](SDL_Surface *s, unsigned i) {
        vlineRGBA(s, Sint16(i % 640), 0, 479, r, g, b, 255);
    });
    Register("line/kvt/32/100", 100, [](SDL_Surface *s, unsigned i) {
        const Segment &l = Segments()[i % 256];
        KVT_Line(s, l.x1, l.y1, l.x2, l.y2, kColour);
    });
    Register("line/plain/32/100", 100, [](SDL_Surface *s, unsigned i) {
        const Segment &l = Segments()[i % 256];
        kvt::LinePlain(s, l.x1, l.y1, l.x2, l.y2, kColour);
    });
    Register("line/aalineRGBA/32/100", 100, [=](SDL_Surface *s, unsigned i) {
        const Segment &l = Segments()[i % 256];
        aalineRGBA(s, l.x1, l.y1, l.x2, l.y2, r, g, b, 255);
    });
    Register("ramp/kvt/32/640", 640, [](SDL_Surface *s, unsigned i) {
        KVT_HorzLineShade(s, 0, Sint16(i % 480), 640, kFirst, kLast);
    });
    Register("ramp/plain/32/640", 640, [](SDL_Surface *s, unsigned i) {
        kvt::HorzLineShadePlain(s, 0, Sint16(i % 480), 640, kFirst, kLast);
    });
}

} // namespace kvt_bench
