#include <kvt/ui/buttons/normal_button.h>

#include <kvt/sprite/text.h>
#include <kvt/ui/buttons/internal/button_look.h>

CUINormalButton::CUINormalButton(int x, int y, int width, int height, CUITheme *theme,
                                 KVT_Sprite *font, const char *caption, bool centered)
    : font(font), caption(caption), textOffset(0), centered(centered)
{
    Place(x, y, width, height, theme);
    SetCaption(caption);
}

void CUINormalButton::SetCaption(const char *newCaption)
{
    caption = newCaption;
    // The shift of a negative difference rounds towards minus infinity, as
    // the text functions centre.
    textOffset = centered ? (width - KVT_GetTextWidth(font, caption)) >> 1 : 2;
}

bool CUINormalButton::SendMessage(int message, intptr_t param1, intptr_t param2,
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

// The ring around the button is saved before anything is painted, so the
// focus frame can later be taken away down to the background.
void CUINormalButton::Draw(SDL_Surface *surface)
{
    DefaultSendMessage(CUIMSG_DRAW, 0, 0, surface);
    kvt::DrawButtonFace(*this, surface);
    kvt::DrawButtonFrame(*this, surface, CUIFrame::Rest);
    // The caption sits 2 pixels below the top whatever the height.
    KVT_DisplayText(surface, font, x + textOffset, y + 2, caption);
}
