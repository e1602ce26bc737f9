#include <kvt/ui/buttons/gfx_button.h>

#include <kvt/ui/buttons/internal/button_look.h>

CUIGfxButton::CUIGfxButton(int x, int y, int width, int height, CUITheme *theme,
                           KVT_Sprite *sprite, int frame, bool doubleSize)
    : sprite(sprite), frame(frame), doubleSize(doubleSize)
{
    Place(x, y, width, height, theme);
}

bool CUIGfxButton::SendMessage(int message, intptr_t param1, intptr_t param2,
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

// The image goes on last, over the frame: a double-size image may cover it.
void CUIGfxButton::Draw(SDL_Surface *surface)
{
    DefaultSendMessage(CUIMSG_DRAW, 0, 0, surface);
    kvt::DrawButtonFace(*this, surface);
    kvt::DrawButtonFrame(*this, surface, CUIFrame::Rest);
    kvt::DrawButtonImage(*this, sprite, frame, doubleSize, surface);
}
