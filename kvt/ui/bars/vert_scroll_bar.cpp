#include <kvt/ui/bars/vert_scroll_bar.h>

#include <algorithm>

#include <kvt/draw/pixel.h>
#include <kvt/ui/bars/internal/int_bar.h>

CUIVertScrollBar::CUIVertScrollBar(int x, int y, int width, int height, CUITheme *theme,
                                   int minVal, int maxVal, int val, int visibleCount,
                                   int buttonLength)
    : CUIGenericVertIntBar(x, y, width, height, theme, minVal, maxVal, val, buttonLength),
      thumbLength(-1), thumbOffset(0), trackLength(0), visibleCount(visibleCount), range(0),
      baseVal(minVal), grabOffset(-1), hovered(false)
{
    this->val = minVal;
}

void CUIVertScrollBar::SetBaseVal(int baseVal)
{
    if (baseVal >= minVal && baseVal <= LastBase())
        this->baseVal = baseVal;
}

void CUIVertScrollBar::Inc()
{
    if (baseVal < LastBase())
        ++baseVal;
}

void CUIVertScrollBar::Dec()
{
    if (baseVal > minVal)
        --baseVal;
}

bool CUIVertScrollBar::SendChildMessage(int message, intptr_t param1, intptr_t,
                                        SDL_Surface *surface)
{
    switch (message) {
    case CUIMSG_DRAW:
        Draw(surface);
        return true;
    case CUIMSG_REFRESH:
        return Refresh(surface);
    case CUIMSG_MOUSEDOWN:
        Press(CUIPositionY(param1), surface);
        return true;
    case CUIMSG_MOUSEUP:
        if (grabOffset < 0)
            return false;
        grabOffset = -1;
        return true;
    case CUIMSG_MOUSEMOVE:
        if (grabOffset < 0)
            return false;
        Drag(CUIPositionY(param1), surface);
        return true;
    case CUIMSG_FOCUSOUT:
        grabOffset = -1;
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

// The thumb's share of the track is the share of the items in view. A
// range equal to visibleCount shows no thumb although one item is hidden:
// the end buttons still reach it.
void CUIVertScrollBar::Draw(SDL_Surface *surface)
{
    trackLength = height - 2 * buttonLength;
    range = int(int64_t(maxVal) - minVal);
    trackSaver.SaveRegion(surface, x, y + buttonLength, width, trackLength);
    if (range > visibleCount && int64_t(range) + 1 > 0)
        thumbLength = kvt::ScaleOrZero(trackLength, visibleCount, int64_t(range) + 1);
    else
        thumbLength = -1;
    SendChildMessage(CUIMSG_REFRESH, 0, 0, surface);
}

// At the last first item the thumb's end touches the end of the track.
bool CUIVertScrollBar::Refresh(SDL_Surface *surface)
{
    if (thumbLength < 0)
        return false;
    trackSaver.RestaurRegion(surface);
    thumbOffset = kvt::ScaleOrZero(int64_t(baseVal) - minVal, trackLength - thumbLength,
                                   int64_t(range) - visibleCount + 1);
    const int top = y + buttonLength + thumbOffset;
    KVT_FillRectAlpha(surface, x, top, width, thumbLength, theme->faceColor);
    theme->DrawFrame(surface, x, top, width, thumbLength,
                     hovered ? CUIFrame::Active : CUIFrame::Rest);
    return true;
}

// Above the thumb pages up, below it pages down, on it grabs; the row just
// below the thumb's last one still counts as the thumb. Without a painted
// thumb there is nothing to measure against, and the press does nothing.
void CUIVertScrollBar::Press(int py, SDL_Surface *surface)
{
    if (thumbLength < 0)
        return;
    const int top = y + buttonLength + thumbOffset;
    if (py < top)
        baseVal = int(std::max<int64_t>(minVal, int64_t(baseVal) - visibleCount));
    else if (py > top + thumbLength)
        // With fewer items than fit in view the last first item lies below
        // minVal; the view then stays at minVal.
        baseVal = int(std::max<int64_t>(minVal,
                                        std::min(LastBase(), int64_t(baseVal) + visibleCount)));
    else
        grabOffset = py - top;
    SendChildMessage(CUIMSG_REFRESH, 0, 0, surface);
}

// The thumb's top follows the pointer, less the grab offset. The result is
// not clamped: a position past either end is dropped by SetBaseVal, so the
// thumb stays at the last value that fitted.
void CUIVertScrollBar::Drag(int py, SDL_Surface *surface)
{
    if (py <= y + buttonLength)
        py = y + buttonLength + 1;
    if (py >= y + height - buttonLength)
        py = y + height - buttonLength - 1;
    const int d = py - grabOffset - y - buttonLength;
    if (trackLength - thumbLength > 0)
        SetBaseVal(minVal + kvt::ScaleOrZero(int64_t(range) - visibleCount + 1, d,
                                             trackLength - thumbLength));
    SendChildMessage(CUIMSG_REFRESH, 0, 0, surface);
}
