#include <kvt/ui/buttons/sign_button.h>

#include <algorithm>

#include <kvt/draw/lines.h>
#include <kvt/ui/buttons/internal/button_look.h>

CUISignButton::CUISignButton(int x, int y, int width, int height, CUITheme *theme, int sign)
    : sign(sign)
{
    Place(x, y, width, height, theme);
}

bool CUISignButton::SendMessage(int message, intptr_t param1, intptr_t param2,
                                SDL_Surface *surface)
{
    switch (message) {
    case CUIMSG_DRAW:
        Draw(surface);
        return true;
    case CUIMSG_MOUSEDOWN:
    case CUIMSG_MOUSEUP:
    case CUIMSG_MOUSEENTER:
    case CUIMSG_MOUSELEAVE:
        return kvt::ShowPressFrame(*this, message, param1, param2, surface);
    default:
        return DefaultSendMessage(message, param1, param2, surface);
    }
}

void CUISignButton::Draw(SDL_Surface *surface)
{
    // The ring around the button is saved before anything covers it; the
    // frames of the mouse messages lie on the edge and never reach the arrow.
    DefaultSendMessage(CUIMSG_DRAW, 0, 0, surface);
    kvt::DrawButtonFace(*this, surface);
    kvt::DrawButtonFrame(*this, surface, CUIFrame::Rest);
    DrawArrow(surface);
}

// A solid triangle of n one-pixel lines across the arrow's axis; line k,
// counted from the tip, is 2k + 1 pixels long and centred on the button's
// middle row (or column). n follows the button's size across the axis and
// is held to leave at least 4 pixels of margin along it.
void CUISignButton::DrawArrow(SDL_Surface *surface) const
{
    const KVT_RGBA colour = theme->activeFirst;
    const bool horizontal = sign == CUISIGN_RIGHT || sign == CUISIGN_LEFT;
    if (!horizontal && sign != CUISIGN_UP && sign != CUISIGN_DOWN)
        return;
    const int across = horizontal ? height : width;
    const int along = horizontal ? width : height;
    const int n = std::min(((across - 8) >> 1) + 1, along - 8);
    const int first = (horizontal ? x : y) + ((along - n) >> 1);
    const int centre = horizontal ? y + (height >> 1) : x + (width >> 1);
    // Right and down have their tip at the far end of the span.
    const bool tipLast = sign == CUISIGN_RIGHT || sign == CUISIGN_DOWN;
    for (int k = 0; k < n; ++k) {
        const int at = tipLast ? first + n - 1 - k : first + k;
        if (horizontal)
            KVT_VertLine(surface, Sint16(at), Sint16(centre - k), Sint16(2 * k + 1), colour);
        else
            KVT_HorzLine(surface, Sint16(centre - k), Sint16(at), Sint16(2 * k + 1), colour);
    }
}
