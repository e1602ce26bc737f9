// Event scripts through the board of every widget: the first byte picks
// the pixel format, the rest are script steps. No step may write outside
// the surface, lose the focus or break the text field.
#include <algorithm>
#include <csignal>
#include <cstdlib>

#include <SDL.h>

#include "fuzz_support.h"
#include "support/event_script.h"
#include "support/widget_storm.h"

namespace {

// Enough to reach deep widget states, few enough that one input stays fast.
constexpr size_t kMaxSteps = 2000;

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    if (SDL_Init(SDL_INIT_VIDEO) != 0)
        kvt_fuzz::Fail("SDL does not start on the dummy video driver");
    // The keyboard state array that the widgets read is SDL's and lives
    // with the video mode.
    if (SDL_SetVideoMode(8, 8, 32, SDL_SWSURFACE) == nullptr)
        kvt_fuzz::Fail("SDL gives no video mode");
    // SDL turns these into quit events; libFuzzer needs them to stop.
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size == 0)
        return 0;
    const auto &formats = kvt_test::AllFormats();
    kvt_test::WidgetStorm storm(formats[data[0] % formats.size()]);
    kvt_fuzz::Require(storm.ok(), "the board could not be set up");
    kvt_fuzz::Require(storm.Broken().empty(), "the first drawing broke an invariant");
    const size_t scriptBytes = std::min(size - 1, kMaxSteps * kvt_test::kStepBytes);
    const auto steps = kvt_test::DecodeEventScript(data + 1, scriptBytes, storm.kWidth,
                                                   storm.kHeight);
    for (const kvt_test::ScriptStep &step : steps) {
        const std::string broken = storm.Step(step);
        if (!broken.empty())
            kvt_fuzz::Fail(broken.c_str());
    }
    return 0;
}
