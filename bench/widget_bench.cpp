// kvt's widgets against Guichan 0.8's on one screen (see widget_script.h)
// on the dummy driver's display: the cost of a scripted session of 10,000
// events, and of one full draw, at 640x480x32, 320x240x16 and 320x240x8;
// the event storm of the tests through kvt's screen at 16 and 8 bits;
// and the theme's background tiling against a memcpy of the same bytes.
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench_surfaces.h"
#include "guichan_widgets.h"
#include "kvt_widgets.h"
#include "support/event_script.h"

namespace kvt_bench {

namespace {

const int kScriptEvents = 10000;
const unsigned kScriptSeed = 20240611;
// The storm test's generator and seed, on the handheld screen.
const int kStormEvents = 100000;
const unsigned kStormSeed = 20261123;

struct Mode {
    const char *depth;
    int bits, width, height;
    const char *size;
};
const Mode kModes[] = {{"32", 32, 640, 480, "640x480"},
                       {"16", 16, 320, 240, "320x240"},
                       {"8", 8, 320, 240, "320x240"}};

// Each toolkit's screen, made the same way: kvt's draws with a look
// loaded once, Guichan's with its own colours and font.
struct KvtKit {
    static constexpr const char *kName = "kvt";
    KvtLook look;
    explicit KvtKit(SDL_Surface *display) : look(display) {}
    const char *Problem() const { return look.ok() ? nullptr : "the theme or the font failed"; }
    std::unique_ptr<KvtWidgets> Make(const Layout &layout, SDL_Surface *display)
    {
        return std::make_unique<KvtWidgets>(layout, look, display);
    }
};

struct GuichanKit {
    static constexpr const char *kName = "guichan";
    explicit GuichanKit(SDL_Surface *) {}
    const char *Problem() const { return nullptr; }
    std::unique_ptr<GuichanWidgets> Make(const Layout &layout, SDL_Surface *display)
    {
        return std::make_unique<GuichanWidgets>(layout, display);
    }
};

// One iteration is the whole session on a fresh screen, whose making and
// first draw are not timed; afterwards the screen must show what the
// script did.
template <class Kit>
void RunEvents(benchmark::State &state, SDL_Surface *display, Kit &kit, const Layout &layout)
{
    const Script script = MakeScript(layout, kScriptEvents, kScriptSeed);
    for (auto _ : state) {
        state.PauseTiming();
        auto screen = kit.Make(layout, display);
        state.ResumeTiming();
        for (const SDL_Event &event : script.events)
            screen->Handle(event);
        state.PauseTiming();
        const std::string wrong = Difference(screen->Seen(), script.expected);
        screen.reset();
        state.ResumeTiming();
        if (!wrong.empty()) {
            state.SkipWithError(wrong.c_str());
            break;
        }
    }
    state.SetItemsProcessed(state.iterations() * int64_t(script.events.size()));
}

template <class Kit>
void RunDraw(benchmark::State &state, SDL_Surface *display, Kit &kit, const Layout &layout)
{
    auto screen = kit.Make(layout, display);
    for (auto _ : state)
        screen->FullDraw();
}

// The storm's steps hold left Shift or not while they are handled.
void RunStorm(benchmark::State &state, SDL_Surface *display, KvtKit &kit, const Layout &layout)
{
    const std::vector<Uint8> bytes = kvt_test::StormBytes(kStormEvents, kStormSeed);
    const auto steps =
        kvt_test::DecodeEventScript(bytes.data(), bytes.size(), layout.width, layout.height);
    Uint8 &shift = SDL_GetKeyState(nullptr)[SDLK_LSHIFT];
    for (auto _ : state) {
        state.PauseTiming();
        auto screen = kit.Make(layout, display);
        state.ResumeTiming();
        for (const kvt_test::ScriptStep &step : steps) {
            shift = step.shiftHeld ? 1 : 0;
            screen->Handle(step.event);
        }
        state.PauseTiming();
        screen.reset();
        state.ResumeTiming();
    }
    shift = 0;
    state.SetItemsProcessed(state.iterations() * int64_t(steps.size()));
}

template <class Kit>
using Run = void (*)(benchmark::State &, SDL_Surface *, Kit &, const Layout &);

// The display in the mode, the kit on it, and Guichan's exceptions turned
// into a failed benchmark.
template <class Kit>
void OnDisplay(benchmark::State &state, const Mode &mode, Run<Kit> run)
{
    VideoMode video(mode.width, mode.height, mode.bits);
    if (video.get() == nullptr)
        return state.SkipWithError("SDL_SetVideoMode failed");
    try {
        Kit kit(video.get());
        if (kit.Problem() != nullptr)
            return state.SkipWithError(kit.Problem());
        run(state, video.get(), kit, MakeLayout(mode.width, mode.height));
    } catch (const gcn::Exception &e) {
        state.SkipWithError(("Guichan: " + e.getMessage()).c_str());
    }
}

template <class Kit>
void RegisterOn(const char *family, const Mode &mode, Run<Kit> run, const char *size)
{
    const Mode *m = &mode;
    benchmark::RegisterBenchmark(Name(family, Kit::kName, m->depth, size).c_str(),
                                 [m, run](benchmark::State &state) {
                                     OnDisplay<Kit>(state, *m, run);
                                 });
}

// The tile laid over the whole of a 640x480 32-bit surface, and the
// ceiling: a memcpy of as many bytes between two surfaces.
void Background(benchmark::State &state)
{
    Surface surface = MakeSurface(Depth32(), 640, 480);
    Surface tile = MakeSolid(surface.get(), 8, 8, 40, 48, 64);
    CUITheme theme;
    theme.background = tile.get();
    SDL_Rect whole = {0, 0, 640, 480};
    for (auto _ : state)
        theme.DrawBackground(surface.get(), &whole);
    state.SetBytesProcessed(state.iterations() * int64_t(surface->pitch) * surface->h);
}

void Memcpy(benchmark::State &state)
{
    Surface from = MakeSurface(Depth32(), 640, 480), to = MakeSurface(Depth32(), 640, 480);
    const size_t bytes = size_t(from->pitch) * from->h;
    for (auto _ : state) {
        std::memcpy(to->pixels, from->pixels, bytes);
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * int64_t(bytes));
}

} // namespace

void RegisterWidgetBenchmarks()
{
    for (const Mode &mode : kModes) {
        RegisterOn<KvtKit>("widgets_event", mode, RunEvents<KvtKit>, mode.size);
        RegisterOn<GuichanKit>("widgets_event", mode, RunEvents<GuichanKit>, mode.size);
        RegisterOn<KvtKit>("widgets_draw", mode, RunDraw<KvtKit>, mode.size);
        RegisterOn<GuichanKit>("widgets_draw", mode, RunDraw<GuichanKit>, mode.size);
    }
    const std::string storm = std::to_string(kStormEvents);
    for (const Mode &mode : kModes)
        if (mode.bits != 32)
            RegisterOn<KvtKit>("storm", mode, RunStorm, storm.c_str());
    benchmark::RegisterBenchmark("background/kvt/32/640x480", Background);
    benchmark::RegisterBenchmark("background/memcpy/32/640x480", Memcpy);
}

} // namespace kvt_bench
