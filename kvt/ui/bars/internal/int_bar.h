#ifndef KVT_UI_BARS_INTERNAL_INT_BAR_H
#define KVT_UI_BARS_INTERNAL_INT_BAR_H

// The one body of the two generic integer bars. The horizontal and the
// vertical bar are mirror images: they differ only in where their end
// buttons sit, which arrows those show and which keys step the value, so
// everything else is written here once, as templates over the bar class,
// and each bar passes its axis.
//
// How SendMessage forwards a message (the first row that matches wins;
// "dec" is tested before "inc"; "hook" is the virtual SendChildMessage;
// "refresh" is the hook with CUIMSG_REFRESH, 0, 0):
//   MOUSEDOWN  on a button: step (virtual Dec/Inc), refresh, the button -> true
//              elsewhere: the hook -> its answer
//   MOUSEUP    on a button: the button, then the hook -> true
//              elsewhere: the hook -> its answer
//   MOUSEMOVE  off the bar: the hook -> its answer
//              on the bar: both buttons get MOUSEENTER (the one under the
//              pointer with param2, the other with 0; dec first unless the
//              pointer is on inc); then, only off the buttons, the hook
//              gets the MOUSEMOVE -> true
//   KEYDOWN    the axis keys: step, refresh -> true; other keys: the hook
//   DRAW       DefaultSendMessage, dec, inc, the hook, all (DRAW, 0, 0) -> true
//   FOCUSOUT   the hook, then DefaultSendMessage -> true
//   MOUSEENTER both buttons as in MOUSEMOVE, then the hook -> true
//   MOUSELEAVE inc, dec, the hook -> true
//   the rest   DefaultSendMessage -> its answer

#include <cstdint>

#include <SDL.h>

#include <kvt/ui/buttons/sign_button.h>
#include <kvt/ui/core/object.h>

namespace kvt {

// What tells a horizontal bar from a vertical one.
struct IntBarAxis {
    bool vertical;
    int decKey, incKey;   // the keys that step the value down and up
    int decSign, incSign; // the arrows of the low and the high end button
};

constexpr IntBarAxis kHorizontalBar = {false, SDLK_LEFT, SDLK_RIGHT, CUISIGN_LEFT, CUISIGN_RIGHT};
constexpr IntBarAxis kVerticalBar = {true, SDLK_UP, SDLK_DOWN, CUISIGN_UP, CUISIGN_DOWN};

// a * b / c in 64 bits, truncated, and 0 when c is not positive: the bars
// scale values to pixels and back with intervals and lengths that the
// caller may leave empty or turn upside down, and must never divide by 0.
inline int ScaleOrZero(int64_t a, int64_t b, int64_t c)
{
    return c > 0 ? int(a * b / c) : 0;
}

template <class Bar> void SetValueIfInside(Bar &bar, int value)
{
    if (value >= bar.minVal && value <= bar.maxVal)
        bar.val = value;
}

template <class Bar> void StepValueUp(Bar &bar, bool wrap)
{
    if (bar.val < bar.maxVal)
        ++bar.val;
    else if (wrap)
        bar.val = bar.minVal;
}

template <class Bar> void StepValueDown(Bar &bar, bool wrap)
{
    if (bar.val > bar.minVal)
        --bar.val;
    else if (wrap)
        bar.val = bar.maxVal;
}

// Both constructor forms end here. The buttons are placed once and do not
// follow later changes of the bar's rectangle.
template <class Bar>
void SetUpIntBar(Bar &bar, const IntBarAxis &axis, int x, int y, int width, int height,
                 CUITheme *theme, int minVal, int maxVal, int val, int buttonLength)
{
    bar.x = x;
    bar.y = y;
    bar.width = width;
    bar.height = height;
    bar.theme = theme;
    bar.minVal = minVal;
    bar.maxVal = maxVal;
    // A value outside the interval is the caller's mistake; the bar then
    // starts at its low end rather than at an indeterminate value.
    bar.val = minVal;
    bar.buttonLength = buttonLength;
    bar.wrap = false;
    bar.SetVal(val);
    if (axis.vertical) {
        bar.decButton = new CUISignButton(x, y, width, buttonLength, theme, axis.decSign);
        bar.incButton = new CUISignButton(x, y + height - buttonLength, width, buttonLength,
                                          theme, axis.incSign);
    } else {
        bar.decButton = new CUISignButton(x, y, buttonLength, height, theme, axis.decSign);
        bar.incButton = new CUISignButton(x + width - buttonLength, y, buttonLength, height,
                                          theme, axis.incSign);
    }
}

template <class Bar> void TearDownIntBar(Bar &bar)
{
    delete bar.decButton;
    delete bar.incButton;
}

// The end button under the pointer, dec first, or null.
template <class Bar> CUISignButton *ButtonAt(const Bar &bar, intptr_t position)
{
    const int px = CUIPositionX(position), py = CUIPositionY(position);
    if (bar.decButton->IsPtOnObject(px, py))
        return bar.decButton;
    if (bar.incButton->IsPtOnObject(px, py))
        return bar.incButton;
    return nullptr;
}

// The button under the pointer shows the mouse state in param2 (sunken
// while held); the other one is lit, since the pointer is on the bar.
template <class Bar>
void EnterButtons(Bar &bar, CUISignButton *hit, intptr_t param1, intptr_t param2,
                  SDL_Surface *surface)
{
    if (hit == bar.incButton) {
        bar.incButton->SendMessage(CUIMSG_MOUSEENTER, param1, param2, surface);
        bar.decButton->SendMessage(CUIMSG_MOUSEENTER, param1, 0, surface);
    } else {
        bar.decButton->SendMessage(CUIMSG_MOUSEENTER, param1, hit ? param2 : 0, surface);
        bar.incButton->SendMessage(CUIMSG_MOUSEENTER, param1, 0, surface);
    }
}

// One step through the virtual Inc or Dec, shown by the hook. A step that
// cannot happen is still shown: the hook decides what a refresh costs.
template <class Bar> void StepAndRefresh(Bar &bar, bool up, SDL_Surface *surface)
{
    if (up)
        bar.Inc();
    else
        bar.Dec();
    bar.SendChildMessage(CUIMSG_REFRESH, 0, 0, surface);
}

template <class Bar>
bool PressIntBar(Bar &bar, intptr_t param1, intptr_t param2, SDL_Surface *surface)
{
    CUISignButton *hit = ButtonAt(bar, param1);
    if (hit == nullptr)
        return bar.SendChildMessage(CUIMSG_MOUSEDOWN, param1, param2, surface);
    StepAndRefresh(bar, hit == bar.incButton, surface);
    hit->SendMessage(CUIMSG_MOUSEDOWN, param1, param2, surface);
    return true;
}

template <class Bar>
bool ReleaseIntBar(Bar &bar, intptr_t param1, intptr_t param2, SDL_Surface *surface)
{
    CUISignButton *hit = ButtonAt(bar, param1);
    if (hit == nullptr)
        return bar.SendChildMessage(CUIMSG_MOUSEUP, param1, param2, surface);
    hit->SendMessage(CUIMSG_MOUSEUP, param1, param2, surface);
    bar.SendChildMessage(CUIMSG_MOUSEUP, param1, param2, surface);
    return true;
}

// Moves off the bar belong to the hook alone, so that a drag can go on
// outside; moves over an end button do not reach it at all.
template <class Bar>
bool MoveOverIntBar(Bar &bar, intptr_t param1, intptr_t param2, SDL_Surface *surface)
{
    if (!bar.IsPtOnObject(CUIPositionX(param1), CUIPositionY(param1)))
        return bar.SendChildMessage(CUIMSG_MOUSEMOVE, param1, param2, surface);
    CUISignButton *hit = ButtonAt(bar, param1);
    EnterButtons(bar, hit, param1, param2, surface);
    if (hit == nullptr)
        bar.SendChildMessage(CUIMSG_MOUSEMOVE, param1, param2, surface);
    return true;
}

template <class Bar>
bool KeyOnIntBar(Bar &bar, const IntBarAxis &axis, intptr_t param1, intptr_t param2,
                 SDL_Surface *surface)
{
    if (param1 != axis.decKey && param1 != axis.incKey)
        return bar.SendChildMessage(CUIMSG_KEYDOWN, param1, param2, surface);
    StepAndRefresh(bar, param1 == axis.incKey, surface);
    return true;
}

template <class Bar> void DrawIntBar(Bar &bar, SDL_Surface *surface)
{
    bar.DefaultSendMessage(CUIMSG_DRAW, 0, 0, surface);
    bar.decButton->SendMessage(CUIMSG_DRAW, 0, 0, surface);
    bar.incButton->SendMessage(CUIMSG_DRAW, 0, 0, surface);
    bar.SendChildMessage(CUIMSG_DRAW, 0, 0, surface);
}

template <class Bar>
bool SendIntBarMessage(Bar &bar, const IntBarAxis &axis, int message, intptr_t param1,
                       intptr_t param2, SDL_Surface *surface)
{
    switch (message) {
    case CUIMSG_MOUSEDOWN:
        return PressIntBar(bar, param1, param2, surface);
    case CUIMSG_MOUSEUP:
        return ReleaseIntBar(bar, param1, param2, surface);
    case CUIMSG_MOUSEMOVE:
        return MoveOverIntBar(bar, param1, param2, surface);
    case CUIMSG_KEYDOWN:
        return KeyOnIntBar(bar, axis, param1, param2, surface);
    case CUIMSG_DRAW:
        DrawIntBar(bar, surface);
        return true;
    case CUIMSG_FOCUSOUT:
        bar.SendChildMessage(message, param1, param2, surface);
        bar.DefaultSendMessage(message, param1, param2, surface);
        return true;
    case CUIMSG_MOUSEENTER:
        EnterButtons(bar, ButtonAt(bar, param1), param1, param2, surface);
        bar.SendChildMessage(message, param1, param2, surface);
        return true;
    case CUIMSG_MOUSELEAVE:
        bar.incButton->SendMessage(message, param1, param2, surface);
        bar.decButton->SendMessage(message, param1, param2, surface);
        bar.SendChildMessage(message, param1, param2, surface);
        return true;
    default:
        return bar.DefaultSendMessage(message, param1, param2, surface);
    }
}

} // namespace kvt

#endif
