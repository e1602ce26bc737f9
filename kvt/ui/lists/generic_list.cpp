#include <kvt/ui/lists/generic_list.h>

#include <algorithm>

#include <kvt/draw/pixel.h>

// What the scroll bar hears from the list, and when: DRAW right after the
// list's own ring is saved and before the row face is painted; a press in
// its column only when some element lies out of view, and before the rows
// are refreshed; every release and move, before any refresh; MOUSEENTER and
// MOUSELEAVE after the list has painted its own frame. Nothing else, not
// the focus: a drag of the thumb ends only with the next release.

CUIGenericList::CUIGenericList(int x, int y, int width, int height, CUITheme *theme, int nbEl,
                               int rowHeight, int barWidth)
    : scrollBar(nullptr), rowHeight(rowHeight), visibleRows(height / rowHeight),
      barWidth(barWidth)
{
    Place(x, y, width, height, theme);
    NewScrollBar(nbEl);
}

CUIGenericList::~CUIGenericList() { delete scrollBar; }

void CUIGenericList::ResetNbEl(int nbEl)
{
    delete scrollBar;
    NewScrollBar(nbEl);
}

// End buttons four fifths of the bar's width long: 21 gives 21 x 16.
void CUIGenericList::NewScrollBar(int nbEl)
{
    scrollBar = new CUIVertScrollBar(x, y, barWidth, height, theme, 0, nbEl - 1, 0,
                                     height / rowHeight, barWidth * 4 / 5);
}

bool CUIGenericList::SendMessage(int message, intptr_t param1, intptr_t param2,
                                 SDL_Surface *surface)
{
    switch (message) {
    case CUIMSG_MOUSEDOWN:
        return Press(param1, param2, surface);
    case CUIMSG_MOUSEUP:
    case CUIMSG_MOUSEMOVE:
        return ForwardToBar(message, param1, param2, surface);
    case CUIMSG_KEYDOWN:
        return Key(param1, surface);
    case CUIMSG_DRAW:
        Draw(surface);
        return true;
    case CUIMSG_REFRESH:
        Refresh(surface);
        return true;
    case CUIMSG_MOUSEENTER:
    case CUIMSG_MOUSELEAVE:
        ShowHover(message, surface);
        return true;
    default:
        return DefaultSendMessage(message, param1, param2, surface);
    }
}

// A press in the rows moves the selection, one in the bar's column the
// view; the row is counted from y, without the 1 pixel the rows sit lower.
bool CUIGenericList::Press(intptr_t param1, intptr_t param2, SDL_Surface *surface)
{
    int px = CUIPositionX(param1), py = CUIPositionY(param1);
    if (px - x >= barWidth)
        scrollBar->SetVal(scrollBar->GetBaseVal() + (py - y) / rowHeight);
    else if (scrollBar->GetInterval() >= visibleRows)
        scrollBar->SendMessage(CUIMSG_MOUSEDOWN, param1, param2, surface);
    Redraw(surface);
    return true;
}

bool CUIGenericList::ForwardToBar(int message, intptr_t param1, intptr_t param2,
                                  SDL_Surface *surface)
{
    bool answer = scrollBar->SendMessage(message, param1, param2, surface);
    if (answer)
        Redraw(surface);
    return answer;
}

// Only the up and down keys are taken: the screen acts on the others. A
// key moves the view by one at most, and only when the selection has left
// it on the side the key points to; a far-away selection is not chased.
bool CUIGenericList::Key(intptr_t key, SDL_Surface *surface)
{
    if (key != SDLK_UP && key != SDLK_DOWN)
        return false;
    const bool up = key == SDLK_UP;
    scrollBar->SetVal(scrollBar->GetVal() + (up ? -1 : 1));
    const int val = scrollBar->GetVal(), base = scrollBar->GetBaseVal();
    if (up ? val < base : val >= base + visibleRows) {
        if (up)
            scrollBar->Dec();
        else
            scrollBar->Inc();
        scrollBar->SendChildMessage(CUIMSG_REFRESH, 0, 0, surface);
    }
    Redraw(surface);
    return true;
}

// The frame of the rows is left alone here: it first shows on MOUSEENTER
// or MOUSELEAVE.
void CUIGenericList::Draw(SDL_Surface *surface)
{
    DefaultSendMessage(CUIMSG_DRAW, 0, 0, surface);
    scrollBar->SendMessage(CUIMSG_DRAW, 0, 0, surface);
    int left = x + barWidth + 1, w = width - barWidth - 2;
    KVT_FillRectAlpha(surface, left, y + 1, w, height - 2, theme->faceColor);
    rowsSaver.SaveRegion(surface, left, y + 1, w, height - 2);
    Redraw(surface);
}

namespace {

// Narrows the surface's clip rectangle to `area` for the object's life and
// then puts the caller's back, so that drawing inside a widget cannot reach
// pixels beside it.
class ClipInside {
public:
    ClipInside(SDL_Surface *surface, SDL_Rect area) : surface_(surface)
    {
        SDL_GetClipRect(surface, &before_);
        const int left = std::max(int(area.x), int(before_.x));
        const int top = std::max(int(area.y), int(before_.y));
        const int right = std::min(area.x + area.w, before_.x + before_.w);
        const int bottom = std::min(area.y + area.h, before_.y + before_.h);
        SDL_Rect inside = {Sint16(left), Sint16(top), Uint16(std::max(right - left, 0)),
                           Uint16(std::max(bottom - top, 0))};
        SDL_SetClipRect(surface, &inside);
    }
    ~ClipInside() { SDL_SetClipRect(surface_, &before_); }
    ClipInside(const ClipInside &) = delete;
    ClipInside &operator=(const ClipInside &) = delete;

private:
    SDL_Surface *surface_;
    SDL_Rect before_;
};

} // namespace

// Restoring the face wipes the old rows and the old mark; the mark is the
// active frame around the selected row, only while that row is in view.
// A row's text is cut at the face: a long name would otherwise draw over
// whatever lies right of or below the list, which nothing puts back.
void CUIGenericList::Refresh(SDL_Surface *surface)
{
    rowsSaver.RestaurRegion(surface);
    int left = x + barWidth + 1, base = scrollBar->GetBaseVal();
    int nbEl = scrollBar->GetInterval() + 1;
    {
        const SDL_Rect face = {Sint16(left), Sint16(y + 1), Uint16(width - barWidth - 2),
                               Uint16(height - 2)};
        ClipInside clip(surface, face);
        for (int i = 0; i < visibleRows && i < nbEl; ++i)
            DisplayListElement(base + i, left, y + i * rowHeight + 1, surface);
    }
    int d = scrollBar->GetVal() - base;
    if (d >= 0 && d < visibleRows)
        theme->DrawFrame(surface, left, y + d * rowHeight + 1, width - barWidth - 2,
                         rowHeight, CUIFrame::Active);
}

void CUIGenericList::ShowHover(int message, SDL_Surface *surface)
{
    bool enter = message == CUIMSG_MOUSEENTER;
    theme->DrawFrame(surface, x + barWidth, y, width - barWidth, height,
                     enter ? CUIFrame::Active : CUIFrame::Rest);
    scrollBar->SendMessage(message, 0, 0, surface);
}
