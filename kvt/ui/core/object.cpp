#include <kvt/ui/core/object.h>

#include <kvt/draw/shade.h>

bool CUIObject::DefaultSendMessage(int message, intptr_t, intptr_t, SDL_Surface *surface)
{
    switch (message) {
    case CUIMSG_DRAW:
        topEdge.SaveRegion(surface, x - 1, y - 1, width + 2, 1);
        bottomEdge.SaveRegion(surface, x - 1, y + height, width + 2, 1);
        leftEdge.SaveRegion(surface, x - 1, y, 1, height);
        rightEdge.SaveRegion(surface, x + width, y, 1, height);
        return true;
    case CUIMSG_FOCUSIN:
        theme->DrawFrame(surface, x - 1, y - 1, width + 2, height + 2, CUIFrame::Active);
        focused = true;
        return true;
    case CUIMSG_FOCUSOUT:
        topEdge.RestaurRegion(surface);
        bottomEdge.RestaurRegion(surface);
        leftEdge.RestaurRegion(surface);
        rightEdge.RestaurRegion(surface);
        focused = false;
        return true;
    default:
        return false;
    }
}
