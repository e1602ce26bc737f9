#include <kvt/ui/buttons/multi_gfx_button.h>

#include <kvt/ui/buttons/internal/button_look.h>

CUIMultiGfxButton::CUIMultiGfxButton(int x, int y, int width, int height, CUITheme *theme,
                                     KVT_Sprite *sprite, bool doubleSize)
    : sprite(sprite), frame(0), doubleSize(doubleSize)
{
    Place(x, y, width, height, theme);
}

void CUIMultiGfxButton::SetFrame(int index)
{
    if (index >= 0 && Uint32(index) < sprite->GetNbFrames())
        frame = index;
}

bool CUIMultiGfxButton::SendMessage(int message, intptr_t param1, intptr_t param2,
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
        Advance();
        kvt::DrawButtonFrame(*this, surface, CUIFrame::Sunken);
        SendMessage(CUIMSG_REFRESH, 0, 0, surface);
        return true;
    case CUIMSG_MOUSEUP:
    case CUIMSG_MOUSEENTER:
    case CUIMSG_MOUSELEAVE:
        return kvt::ShowPressFrame(*this, message, param1, param2, surface);
    case CUIMSG_KEYDOWN:
        // Return turns the selector like a press and is consumed, so the
        // screen does not count it as a click; the frame stays as it is.
        if (param1 != SDLK_RETURN)
            return DefaultSendMessage(message, param1, param2, surface);
        Advance();
        SendMessage(CUIMSG_REFRESH, 0, 0, surface);
        return true;
    default:
        return DefaultSendMessage(message, param1, param2, surface);
    }
}

// The inside is saved between the face and the frame, so a refresh puts
// back the bare face and leaves the frame alone.
void CUIMultiGfxButton::Draw(SDL_Surface *surface)
{
    DefaultSendMessage(CUIMSG_DRAW, 0, 0, surface);
    kvt::DrawButtonFace(*this, surface);
    innerRegion.SaveRegion(surface, x + 1, y + 1, width - 2, height - 2);
    kvt::DrawButtonFrame(*this, surface, CUIFrame::Rest);
    SendMessage(CUIMSG_REFRESH, 0, 0, surface);
}

// Before any draw there is nothing to put back, and the image simply goes
// over what is there.
void CUIMultiGfxButton::Refresh(SDL_Surface *surface)
{
    innerRegion.RestaurRegion(surface);
    kvt::DrawButtonImage(*this, sprite, frame, doubleSize, surface);
}

// A sprite without frames has nothing to move on to: frame stays 0.
void CUIMultiGfxButton::Advance()
{
    const Uint32 count = sprite->GetNbFrames();
    if (count != 0)
        frame = int((Uint32(frame) + 1) % count);
}
