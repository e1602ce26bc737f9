// Benchmark entry point: SDL on its dummy video driver, so that no display
// is needed, with the default signal handlers back in place (SDL turns
// SIGINT and SIGTERM into quit events, which would make ^C do nothing).
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <SDL.h>
#include <benchmark/benchmark.h>

#include "bench_surfaces.h"

int main(int argc, char **argv)
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    if (SDL_Init(SDL_INIT_VIDEO) != 0) {
        std::fprintf(stderr, "SDL_Init: %s\n", SDL_GetError());
        return 2;
    }
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    kvt_bench::RegisterFillBenchmarks();
    kvt_bench::RegisterBlitBenchmarks();
    kvt_bench::RegisterLineBenchmarks();
    kvt_bench::RegisterSpriteBenchmarks();
    kvt_bench::RegisterWidgetBenchmarks();
    // Classic SDL 1.2 or sdl12-compat: the references are SDL's own
    // blitters, so a result only means something with the SDL it ran on.
    const SDL_version *v = SDL_Linked_Version();
    benchmark::AddCustomContext("sdl_version", std::to_string(v->major) + "." +
                                                   std::to_string(v->minor) + "." +
                                                   std::to_string(v->patch));
#if defined(KVT_PORTABLE)
    benchmark::AddCustomContext("kvt_paths", "portable");
#else
    benchmark::AddCustomContext("kvt_paths", "vector");
#endif
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    SDL_Quit();
    return 0;
}
