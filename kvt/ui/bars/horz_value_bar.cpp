#include <kvt/ui/bars/horz_value_bar.h>

#include <cstdlib>

#include <kvt/draw/pixel.h>
#include <kvt/ui/bars/internal/int_bar.h>

namespace {

// How far from the end of the fill a press still grabs it, either way.
constexpr int kGrabReach = 3;

} // namespace

CUIHorzValueBar::CUIHorzValueBar(int x, int y, int width, int height, CUITheme *theme,
                                 int minVal, int maxVal, int val)
    : CUIGenericHorzIntBar(x, y, width, height, theme, minVal, maxVal, val), trackLength(0),
      fillLength(0), dragging(false), hovered(false)
{
}

CUIHorzValueBar::CUIHorzValueBar(int x, int y, int width, int height, CUITheme *theme,
                                 int minVal, int maxVal, int val, int buttonLength)
    : CUIGenericHorzIntBar(x, y, width, height, theme, minVal, maxVal, val, buttonLength),
      trackLength(0), fillLength(0), dragging(false), hovered(false)
{
}

void CUIHorzValueBar::Inc()
{
    kvt::StepValueUp(*this, false);
}

void CUIHorzValueBar::Dec()
{
    kvt::StepValueDown(*this, false);
}

bool CUIHorzValueBar::SendChildMessage(int message, intptr_t param1, intptr_t,
                                       SDL_Surface *surface)
{
    switch (message) {
    case CUIMSG_DRAW:
        Draw(surface);
        return true;
    case CUIMSG_REFRESH:
        Refresh(surface);
        return true;
    case CUIMSG_MOUSEDOWN:
        // Grabbing changes neither the value nor the look.
        if (std::abs(CUIPositionX(param1) - (x + buttonLength + fillLength)) <= kGrabReach)
            dragging = true;
        return true;
    case CUIMSG_MOUSEUP:
        dragging = false;
        return false;
    case CUIMSG_MOUSEMOVE:
        if (!dragging)
            return false;
        Drag(CUIPositionX(param1), surface);
        return true;
    case CUIMSG_FOCUSOUT:
        dragging = false;
        return true;
    case CUIMSG_MOUSEENTER:
    case CUIMSG_MOUSELEAVE:
        hovered = message == CUIMSG_MOUSEENTER;
        SendChildMessage(CUIMSG_REFRESH, 0, 0, surface);
        return true;
    default:
        return false;
    }
}

void CUIHorzValueBar::Draw(SDL_Surface *surface)
{
    trackLength = width - 2 * buttonLength;
    trackSaver.SaveRegion(surface, x + buttonLength, y, trackLength, height);
    SendChildMessage(CUIMSG_REFRESH, 0, 0, surface);
}

// An interval of one value has no proportion to show: its fill is empty.
void CUIHorzValueBar::Refresh(SDL_Surface *surface)
{
    trackSaver.RestaurRegion(surface);
    fillLength = kvt::ScaleOrZero(int64_t(val) - minVal, trackLength, int64_t(maxVal) - minVal);
    KVT_FillRectAlpha(surface, x + buttonLength, y, fillLength, height, theme->faceColor);
    theme->DrawFrame(surface, x + buttonLength, y, fillLength, height,
                     hovered ? CUIFrame::Active : CUIFrame::Rest);
}

// The pointer is held inside the track, so d runs from 1 to trackLength - 1
// and a drag never reaches maxVal: the buttons and keys reach both ends.
void CUIHorzValueBar::Drag(int px, SDL_Surface *surface)
{
    if (px <= x + buttonLength)
        px = x + buttonLength + 1;
    if (px >= x + width - buttonLength)
        px = x + width - buttonLength - 1;
    const int d = px - x - buttonLength;
    if (trackLength > 0)
        SetVal(kvt::ScaleOrZero(int64_t(maxVal) - minVal, d, trackLength) + minVal);
    SendChildMessage(CUIMSG_REFRESH, 0, 0, surface);
}
