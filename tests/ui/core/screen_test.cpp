#include <memory>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kvt/ui/core/screen.h>

#include "support/events.h"
#include "support/expected.h"
#include "support/recording_widget.h"
#include "support/surfaces.h"
#include "support/theme.h"

using kvt_test::ExpectedPixels;
using kvt_test::FormatCase;
using kvt_test::GuardedSurface;
using kvt_test::Message;
using kvt_test::RecordingWidget;

namespace {

// A packed mouse position, written out independently of the library.
intptr_t P(int x, int y) { return x + 65536 * y; }

// Widgets laid out in a row from the surface's corner; a screen of them,
// drawn, with the log cleared.
struct Bench {
    CUITheme theme = kvt_test::DistinctTheme();
    std::vector<Message> log;
    std::vector<std::unique_ptr<RecordingWidget>> owned;
    std::unique_ptr<CUIScreen> screen;

    Bench(SDL_Surface *surface, const std::vector<SDL_Rect> &places)
        : screen(new CUIScreen(int(places.size())))
    {
        for (const SDL_Rect &r : places) {
            int id = int(owned.size());
            owned.emplace_back(new RecordingWidget(id, &log, r.x, r.y, r.w, r.h, &theme));
            screen->widgets[id] = owned.back().get();
        }
        screen->DrawScreen(surface);
        log.clear();
    }
};

const std::vector<SDL_Rect> kRow = {{0, 0, 20, 20}, {30, 0, 20, 20}, {60, 10, 20, 20}};
const std::vector<SDL_Rect> kLone = {{5, 5, 20, 20}};
// Widgets 0 and 1 share the square from (10, 5) to (20, 20).
const std::vector<SDL_Rect> kOverlap = {{0, 0, 20, 20}, {10, 5, 20, 20}, {60, 10, 20, 20}};

// The log with each message checked to carry `surface`, then blanked so
// that tables need not name it.
std::vector<Message> Sent(std::vector<Message> log, SDL_Surface *surface)
{
    for (Message &m : log) {
        EXPECT_EQ(m.surface, surface) << kvt_test::Describe(m);
        m.surface = nullptr;
    }
    return log;
}

struct Scenario {
    const char *what;
    std::vector<SDL_Event> before; // brings the screen to the state tested
    SDL_Event event;
    std::vector<Message> sent;
    int clicked, focus;
    SDLKey held = SDLK_UNKNOWN;      // key held during the event
    int consumer = -1, consumed = 0; // widget answering true to a message
    const std::vector<SDL_Rect> *places = &kRow;
};

TEST(ScreenDispatch, EachEventSendsItsMessagesInOrderAndSetsClickAndFocus)
{
    using namespace kvt_test;
    int mx = 0, my = 0;
    intptr_t mb = SDL_GetMouseState(&mx, &my);
    intptr_t m = P(mx, my);
    const int DOWN = CUIMSG_MOUSEDOWN, UP = CUIMSG_MOUSEUP, MOVE = CUIMSG_MOUSEMOVE,
              IN = CUIMSG_FOCUSIN, OUT = CUIMSG_FOCUSOUT, ENTER = CUIMSG_MOUSEENTER,
              LEAVE = CUIMSG_MOUSELEAVE, KEY = CUIMSG_KEYDOWN, CHAR = CUIMSG_CHAR;
    const Scenario scenarios[] = {
        {"press on another widget: out, in, down", {}, ButtonDownEvent(35, 5),
         {{0, OUT, P(35, 5), 1}, {1, IN, P(35, 5), 1}, {1, DOWN, P(35, 5), 1}}, -1, 1},
        {"press on the focused widget", {}, ButtonDownEvent(5, 5), {{0, DOWN, P(5, 5), 1}}, -1, 0},
        {"press on empty space", {}, ButtonDownEvent(90, 35), {}, -1, 0},
        {"press on a widget's first column", {}, ButtonDownEvent(30, 5), {}, -1, 0},
        {"press where two widgets overlap goes to the earlier one", {ButtonDownEvent(65, 15)},
         ButtonDownEvent(15, 10),
         {{2, OUT, P(15, 10), 1}, {0, IN, P(15, 10), 1}, {0, DOWN, P(15, 10), 1}}, -1, 0,
         SDLK_UNKNOWN, -1, 0, &kOverlap},
        {"release over the focused widget clicks", {ButtonDownEvent(35, 5)}, ButtonUpEvent(36, 6),
         {{1, UP, P(36, 6), 0}}, 1, 1},
        {"release over another widget", {ButtonDownEvent(35, 5)}, ButtonUpEvent(65, 15),
         {{1, UP, P(65, 15), 0}}, -1, 1},
        {"press on empty space, release on focus", {ButtonDownEvent(90, 35)}, ButtonUpEvent(5, 5),
         {{0, UP, P(5, 5), 0}}, 0, 0},
        {"release clicks whatever the widget answers", {}, ButtonUpEvent(5, 5),
         {{0, UP, P(5, 5), 0}}, 0, 0, SDLK_UNKNOWN, 0, UP},
        {"motion to another widget: leave, enter, move", {MotionEvent(5, 5)}, MotionEvent(35, 5, 1),
         {{0, LEAVE, P(35, 5), 1}, {1, ENTER, P(35, 5), 0}, {0, MOVE, P(35, 5), 1}}, -1, 0},
        {"motion onto the focused widget", {MotionEvent(90, 35)}, MotionEvent(5, 5, 1),
         {{0, ENTER, P(5, 5), 1}, {0, MOVE, P(5, 5), 1}}, -1, 0},
        {"motion to empty space", {MotionEvent(35, 5)}, MotionEvent(90, 35),
         {{1, LEAVE, P(90, 35), 0}, {0, MOVE, P(90, 35), 0}}, -1, 0},
        {"motion within empty space", {MotionEvent(35, 5), MotionEvent(90, 35)},
         MotionEvent(91, 35), {{0, MOVE, P(91, 35), 0}}, -1, 0},
        {"motion within a widget", {MotionEvent(35, 5)}, MotionEvent(36, 6),
         {{0, MOVE, P(36, 6), 0}}, -1, 0},
        {"Tab", {}, KeyDownEvent(SDLK_TAB),
         {{0, KEY, SDLK_TAB, 0}, {0, OUT, 0, 0}, {1, IN, m, mb}, {1, CHAR, 0, 0}}, -1, 1},
        {"Tab from the last wraps", {ButtonDownEvent(65, 15)}, KeyDownEvent(SDLK_TAB, 9),
         {{2, KEY, SDLK_TAB, 0}, {2, OUT, 0, 0}, {0, IN, m, mb}, {0, CHAR, 9, 0}}, -1, 0},
        {"left Shift+Tab from the first wraps", {}, KeyDownEvent(SDLK_TAB),
         {{0, KEY, SDLK_TAB, 0}, {0, OUT, 0, 0}, {2, IN, m, mb}, {2, CHAR, 0, 0}}, -1, 2,
         SDLK_LSHIFT},
        {"right Shift+Tab goes forward", {}, KeyDownEvent(SDLK_TAB),
         {{0, KEY, SDLK_TAB, 0}, {0, OUT, 0, 0}, {1, IN, m, mb}, {1, CHAR, 0, 0}}, -1, 1,
         SDLK_RSHIFT},
        {"consumed Tab", {}, KeyDownEvent(SDLK_TAB),
         {{0, KEY, SDLK_TAB, 0}, {0, CHAR, 0, 0}}, -1, 0, SDLK_UNKNOWN, 0, KEY},
        {"Return clicks", {}, KeyDownEvent(SDLK_RETURN, 13),
         {{0, KEY, SDLK_RETURN, 0}, {0, CHAR, 13, 0}}, 0, 0},
        {"consumed Return", {}, KeyDownEvent(SDLK_RETURN, 13),
         {{0, KEY, SDLK_RETURN, 0}, {0, CHAR, 13, 0}}, -1, 0, SDLK_UNKNOWN, 0, KEY},
        {"key up after a click", {ButtonUpEvent(5, 5)}, KeyUpEvent(SDLK_RETURN), {}, -1, 0},
        {"Tab on a lone widget takes the focus away and gives it back", {},
         KeyDownEvent(SDLK_TAB),
         {{0, KEY, SDLK_TAB, 0}, {0, OUT, 0, 0}, {0, IN, m, mb}, {0, CHAR, 0, 0}}, -1, 0,
         SDLK_UNKNOWN, -1, 0, &kLone},
    };
    for (const Scenario &s : scenarios) {
        GuardedSurface surface(kvt_test::AllFormats()[5], 100, 40);
        Bench bench(surface, *s.places);
        CUIScreen &screen = *bench.screen;
        for (SDL_Event e : s.before)
            screen.ProcessDefaultEvent(&e, surface);
        bench.log.clear();
        if (s.consumer >= 0)
            bench.owned[s.consumer]->answers[s.consumed] = true;
        std::unique_ptr<HeldKey> held(s.held != SDLK_UNKNOWN ? new HeldKey(s.held) : nullptr);
        SDL_Event event = s.event;
        screen.ProcessDefaultEvent(&event, surface);
        EXPECT_EQ(Describe(Sent(bench.log, surface)), Describe(s.sent)) << s.what;
        EXPECT_EQ(screen.GetClicked(), s.clicked) << s.what;
        EXPECT_EQ(screen.focusWidget, s.focus) << s.what;
        EXPECT_EQ(screen.keyWidget, s.event.type == SDL_KEYDOWN ? s.focus : -1) << s.what;
    }
}

TEST(ScreenDispatch, CharCarriesTheLowByteOfUnicodeSignExtended)
{
    const struct { Uint16 unicode; intptr_t param1; } cases[] = {
        {0x41, 65}, {0x7F, 127}, {0x80, -128}, {0xE9, -23}, {0xFF, -1}, {0x20AC, -84}, {0x100, 0},
    };
    GuardedSurface surface(kvt_test::AllFormats()[5], 100, 40);
    Bench bench(surface, kRow);
    for (const auto &c : cases) {
        bench.log.clear();
        SDL_Event key = kvt_test::KeyDownEvent(SDLK_a, c.unicode);
        bench.screen->ProcessDefaultEvent(&key, surface);
        std::vector<Message> chars = kvt_test::WithMessage(bench.log, CUIMSG_CHAR);
        ASSERT_EQ(chars.size(), 1u) << kvt_test::Describe(bench.log);
        EXPECT_EQ(chars[0].param1, c.param1) << "unicode " << c.unicode;
    }
}

TEST(ScreenDraw, FirstDrawFocusesWidgetZeroAndLaterDrawsKeepTheFocus)
{
    GuardedSurface surface(kvt_test::AllFormats()[5], 100, 40);
    CUITheme theme = kvt_test::DistinctTheme();
    std::vector<Message> log;
    RecordingWidget a(0, &log, 0, 0, 20, 20, &theme), b(1, &log, 30, 0, 20, 20, &theme);
    CUIScreen screen(2);
    screen.widgets[0] = &a;
    screen.widgets[1] = &b;
    const std::string draws = "0:DRAW(0, 0) 1:DRAW(0, 0) ";
    for (const char *expected : {"0:FOCUSIN(0, 0)", "1:FOCUSIN(0, 0)"}) {
        screen.focusWidget = 1;
        log.clear();
        screen.DrawScreen(surface);
        EXPECT_EQ(kvt_test::Describe(Sent(log, surface)), draws + expected);
    }
}

class ScreenFocusFrameAtFormat : public ::testing::TestWithParam<FormatCase> {};

// Tab all the way round a screen whose widgets touch the surface's edges:
// each step shows exactly one frame, on the focused widget, and writes
// nothing outside the surface.
TEST_P(ScreenFocusFrameAtFormat, TabRoundTheEdgesShowsOneFrameAtATime)
{
    const int w = 80, h = 30;
    GuardedSurface surface(GetParam(), w, h), framed(GetParam(), w, h);
    std::mt19937 rng(5);
    surface.FillRandom(rng);
    ExpectedPixels background(surface);
    Bench bench(surface, kRow);
    for (int step = 0; step <= 3; ++step) {
        const SDL_Rect &r = kRow[step % 3];
        background.WriteTo(framed);
        bench.theme.DrawFrame(framed, r.x - 1, r.y - 1, r.w + 2, r.h + 2, CUIFrame::Active);
        EXPECT_EQ(kvt_test::FirstDifference(surface, framed), "") << "after " << step << " Tabs";
        EXPECT_TRUE(surface.GuardsIntact()) << "after " << step << " Tabs";
        SDL_Event tab = kvt_test::KeyDownEvent(SDLK_TAB);
        bench.screen->ProcessDefaultEvent(&tab, surface);
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, ScreenFocusFrameAtFormat,
                         ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
