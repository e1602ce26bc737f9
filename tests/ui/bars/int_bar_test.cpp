#include <gtest/gtest.h>

#include <memory>
#include <string>

#include <kvt/ui/bars/generic_horz_int_bar.h>
#include <kvt/ui/bars/generic_vert_int_bar.h>

#include "support/recording_widget.h"
#include "support/surfaces.h"
#include "support/theme.h"

namespace {

// What a bar sends, as "who:MESSAGE(param1,param2)", with the parameters
// the test sent written p and q: H the hook, D and I the end buttons.
// Steps through the virtual Dec and Inc appear as "Dec" and "Inc".
struct Probe {
    std::string log;
    intptr_t param1 = 0, param2 = 0;
    bool hookAnswer = false;
    void Note(const std::string &entry) { log += (log.empty() ? "" : " ") + entry; }
    void Note(char who, int message, intptr_t p1, intptr_t p2)
    {
        auto show = [](intptr_t v, intptr_t sent, const char *mark) {
            return v == sent ? std::string(mark) : std::to_string(v);
        };
        Note(std::string(1, who) + ":" + kvt_test::MessageName(message) + "(" +
             show(p1, param1, "p") + "," + show(p2, param2, "q") + ")");
    }
};

class LoggingButton : public CUISignButton {
public:
    LoggingButton(const CUISignButton &b, char id, Probe *probe)
        : CUISignButton(b.x, b.y, b.width, b.height, b.theme, b.sign), id_(id), probe_(probe) {}
    bool SendMessage(int message, intptr_t param1, intptr_t param2, SDL_Surface *s) override
    {
        probe_->Note(id_, message, param1, param2);
        return CUISignButton::SendMessage(message, param1, param2, s);
    }

private:
    char id_;
    Probe *probe_;
};

// A bar whose hook and steps report to the probe, with logging end
// buttons put where the bar placed its own.
template <class Base> class ProbeBar : public Base {
public:
    template <class... Args> ProbeBar(Probe *probe, Args... args) : Base(args...), probe_(probe)
    {
        Swap(this->decButton, 'D');
        Swap(this->incButton, 'I');
    }
    bool SendChildMessage(int message, intptr_t param1, intptr_t param2, SDL_Surface *) override
    {
        probe_->Note('H', message, param1, param2);
        return probe_->hookAnswer;
    }
    void Inc() override { probe_->Note("Inc"), Base::Inc(); }
    void Dec() override { probe_->Note("Dec"), Base::Dec(); }

private:
    void Swap(CUISignButton *&button, char id)
    {
        CUISignButton *logging = new LoggingButton(*button, id, probe_);
        delete button;
        button = logging;
    }
    Probe *probe_;
};

// The horizontal bar lies at (10, 10), 100 x 16; the vertical one is its
// mirror image, 16 x 100. Points are given along and across the bar.
struct Orientation {
    const char *name;
    bool vertical;
    SDLKey decKey, incKey, crossKey;
    CUIObject *(*make)(Probe *, CUITheme *);
};

const Orientation kOrientations[] = {
    {"horizontal", false, SDLK_LEFT, SDLK_RIGHT, SDLK_UP,
     [](Probe *p, CUITheme *t) -> CUIObject * {
         return new ProbeBar<CUIGenericHorzIntBar>(p, 10, 10, 100, 16, t, 0, 10, 5);
     }},
    {"vertical", true, SDLK_UP, SDLK_DOWN, SDLK_LEFT,
     [](Probe *p, CUITheme *t) -> CUIObject * {
         return new ProbeBar<CUIGenericVertIntBar>(p, 10, 10, 16, 100, t, 0, 10, 5);
     }},
};

// The rim is the outermost row of the low button, and of the bar.
enum Where { kOnDec, kOnInc, kMiddle, kOffBar, kDecRim, kDecKey, kIncKey, kCrossKey, kTab };
const int kAlong[] = {15, 100, 50, 50, 15}, kAcross[] = {15, 15, 15, 40, 10};

struct Row {
    const char *what;
    int message;
    Where where;
    bool hookAnswer, result;
    const char *sent;
};

const Row kRows[] = {
    {"press on dec", CUIMSG_MOUSEDOWN, kOnDec, false, true, "Dec H:REFRESH(0,0) D:MOUSEDOWN(p,q)"},
    {"press on inc", CUIMSG_MOUSEDOWN, kOnInc, false, true, "Inc H:REFRESH(0,0) I:MOUSEDOWN(p,q)"},
    {"press in the middle", CUIMSG_MOUSEDOWN, kMiddle, true, true, "H:MOUSEDOWN(p,q)"},
    {"press on dec's rim", CUIMSG_MOUSEDOWN, kDecRim, false, false, "H:MOUSEDOWN(p,q)"},
    {"release on dec", CUIMSG_MOUSEUP, kOnDec, false, true, "D:MOUSEUP(p,q) H:MOUSEUP(p,q)"},
    {"release on inc", CUIMSG_MOUSEUP, kOnInc, false, true, "I:MOUSEUP(p,q) H:MOUSEUP(p,q)"},
    {"release off the bar", CUIMSG_MOUSEUP, kOffBar, false, false, "H:MOUSEUP(p,q)"},
    {"move off the bar", CUIMSG_MOUSEMOVE, kOffBar, true, true, "H:MOUSEMOVE(p,q)"},
    {"move on dec", CUIMSG_MOUSEMOVE, kOnDec, false, true,
     "D:MOUSEENTER(p,q) I:MOUSEENTER(p,0)"},
    {"move on inc", CUIMSG_MOUSEMOVE, kOnInc, false, true,
     "I:MOUSEENTER(p,q) D:MOUSEENTER(p,0)"},
    {"move in the middle", CUIMSG_MOUSEMOVE, kMiddle, false, true,
     "D:MOUSEENTER(p,0) I:MOUSEENTER(p,0) H:MOUSEMOVE(p,q)"},
    {"dec key", CUIMSG_KEYDOWN, kDecKey, false, true, "Dec H:REFRESH(0,0)"},
    {"inc key", CUIMSG_KEYDOWN, kIncKey, false, true, "Inc H:REFRESH(0,0)"},
    {"arrow across the bar", CUIMSG_KEYDOWN, kCrossKey, false, false, "H:KEYDOWN(p,q)"},
    {"Tab taken by the hook", CUIMSG_KEYDOWN, kTab, true, true, "H:KEYDOWN(p,q)"},
    {"draw", CUIMSG_DRAW, kMiddle, false, true, "D:DRAW(0,0) I:DRAW(0,0) H:DRAW(0,0)"},
    {"focus out", CUIMSG_FOCUSOUT, kMiddle, false, true, "H:FOCUSOUT(p,q)"},
    {"enter on dec", CUIMSG_MOUSEENTER, kOnDec, false, true,
     "D:MOUSEENTER(p,q) I:MOUSEENTER(p,0) H:MOUSEENTER(p,q)"},
    {"enter on inc", CUIMSG_MOUSEENTER, kOnInc, false, true,
     "I:MOUSEENTER(p,q) D:MOUSEENTER(p,0) H:MOUSEENTER(p,q)"},
    {"enter in the middle", CUIMSG_MOUSEENTER, kMiddle, false, true,
     "D:MOUSEENTER(p,0) I:MOUSEENTER(p,0) H:MOUSEENTER(p,q)"},
    {"leave", CUIMSG_MOUSELEAVE, kOffBar, false, true,
     "I:MOUSELEAVE(p,q) D:MOUSELEAVE(p,q) H:MOUSELEAVE(p,q)"},
    {"focus in is not the hook's", CUIMSG_FOCUSIN, kMiddle, true, true, ""},
    {"refresh from outside shows nothing", CUIMSG_REFRESH, kMiddle, true, false, ""},
    {"char", CUIMSG_CHAR, kMiddle, true, false, ""},
};

intptr_t Param1(const Orientation &o, Where where)
{
    const SDLKey keys[] = {o.decKey, o.incKey, o.crossKey, SDLK_TAB};
    if (where >= kDecKey)
        return keys[where - kDecKey];
    const int along = kAlong[where], across = kAcross[where];
    return o.vertical ? CUIPackPosition(across, along) : CUIPackPosition(along, across);
}

class IntBars : public ::testing::TestWithParam<Orientation> {};

TEST_P(IntBars, EachMessageGoesWhereItsRowSays)
{
    CUITheme theme = kvt_test::DistinctTheme();
    kvt_test::GuardedSurface surface(kvt_test::AllFormats()[5], 130, 130);
    for (const Row &row : kRows) {
        Probe probe;
        std::unique_ptr<CUIObject> bar(GetParam().make(&probe, &theme));
        probe.hookAnswer = row.hookAnswer;
        probe.param1 = Param1(GetParam(), row.where);
        probe.param2 = SDL_BUTTON_LMASK;
        EXPECT_EQ(row.result, bar->SendMessage(row.message, probe.param1, probe.param2, surface))
            << row.what;
        EXPECT_EQ(row.sent, probe.log) << row.what;
    }
}

INSTANTIATE_TEST_SUITE_P(BothBars, IntBars, ::testing::ValuesIn(kOrientations),
                         [](const auto &info) { return std::string(info.param.name); });

// Each case starts a bar on [lo, hi] at `start`, applies one operation
// ('i' Inc, 'd' Dec, 's' SetVal(a), 'r' ResetInterval(a, b)) and reads the value.
struct ValueCase {
    const char *what;
    int lo, hi, start;
    bool wrap;
    char op;
    int a, b, expected;
};

const ValueCase kValueCases[] = {
    {"inc at the top", 0, 10, 10, false, 'i', 0, 0, 10},
    {"inc at the top, wrapping", 0, 10, 10, true, 'i', 0, 0, 0},
    {"dec at the bottom", -3, 4, -3, false, 'd', 0, 0, -3},
    {"dec at the bottom, wrapping", -3, 4, -3, true, 'd', 0, 0, 4},
    {"wrapping on a single value", 7, 7, 7, true, 'i', 0, 0, 7},
    {"set at the top end", 0, 10, 5, false, 's', 10, 0, 10},
    {"set past the top: dropped", 0, 10, 5, false, 's', 11, 0, 5},
    {"reset goes to the new bottom although 5 fits", 0, 10, 5, false, 'r', 2, 20, 2},
    {"reset upside down keeps the value", 0, 10, 5, false, 'r', 9, 3, 5},
};

template <class Bar> void CheckValueRules(const char *name)
{
    CUITheme theme = kvt_test::DistinctTheme();
    for (const ValueCase &c : kValueCases) {
        Probe probe;
        ProbeBar<Bar> bar(&probe, 0, 0, 40, 40, &theme, c.lo, c.hi, c.start);
        bar.wrap = c.wrap;
        if (c.op == 'i')
            bar.Inc();
        else if (c.op == 'd')
            bar.Dec();
        else if (c.op == 's')
            bar.SetVal(c.a);
        else
            bar.ResetInterval(c.a, c.b);
        EXPECT_EQ(c.expected, bar.GetVal()) << name << ": " << c.what;
    }
}

TEST(IntBarValues, StepSetAndResetFollowTheInterval)
{
    CheckValueRules<CUIGenericHorzIntBar>("horizontal");
    CheckValueRules<CUIGenericVertIntBar>("vertical");
    Probe probe;
    CUITheme theme = kvt_test::DistinctTheme();
    ProbeBar<CUIGenericVertIntBar> bar(&probe, 0, 0, 20, 90, &theme, -4, 6, 0);
    EXPECT_EQ(10, bar.GetInterval());
}

} // namespace
