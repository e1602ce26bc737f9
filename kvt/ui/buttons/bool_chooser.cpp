#include <kvt/ui/buttons/bool_chooser.h>

#include <kvt/draw/lines.h>
#include <kvt/sprite/text.h>

namespace {

// The box is a fixed 20 x 20 frame around an 18 x 18 fill; the caption
// starts right of it, two pixels down.
constexpr int kBoxSize = 20;
constexpr int kCaptionDown = 2;

} // namespace

CUIBoolChooser::CUIBoolChooser(int x, int y, int width, int height, CUITheme *theme,
                               KVT_Sprite *font, const char *caption, bool value)
    : value(value), font(font), caption(caption)
{
    Place(x, y, width, height, theme);
}

bool CUIBoolChooser::SendMessage(int message, intptr_t param1, intptr_t param2,
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
        // The press toggles and the pointer is on the widget: the frame
        // follows the new value at once.
        Toggle(surface);
        SendMessage(CUIMSG_MOUSEENTER, 0, 0, surface);
        return true;
    case CUIMSG_KEYDOWN:
        // Return changes the fill only; the frame catches up at the next
        // enter or leave. Answering true keeps the screen from counting
        // Return as a click.
        if (param1 != SDLK_RETURN)
            return false;
        Toggle(surface);
        return true;
    case CUIMSG_MOUSEENTER:
        BoxFrame(surface, true);
        return true;
    case CUIMSG_MOUSELEAVE:
        BoxFrame(surface, false);
        return true;
    default:
        return DefaultSendMessage(message, param1, param2, surface);
    }
}

// Box and frame go through the widget's own messages, so that a subclass
// sees them; a fresh widget shows the frame for the pointer elsewhere,
// wherever the pointer is. The caption has no background of its own.
void CUIBoolChooser::Draw(SDL_Surface *surface)
{
    DefaultSendMessage(CUIMSG_DRAW, 0, 0, surface);
    SendMessage(CUIMSG_REFRESH, 0, 0, surface);
    SendMessage(CUIMSG_MOUSELEAVE, 0, 0, surface);
    KVT_DisplayText(surface, font, x + kBoxSize, y + kCaptionDown, caption);
}

// The fill is opaque and covers the whole inside of the box, so it needs
// no saved background to repaint over.
void CUIBoolChooser::Refresh(SDL_Surface *surface) const
{
    const KVT_RGBA on = KVT_RGB(0, 255, 0, 0), off = KVT_RGB(255, 0, 0, 0);
    KVT_FillRect(surface, x + 1, y + 1, kBoxSize - 2, kBoxSize - 2, value ? on : off);
}

void CUIBoolChooser::Toggle(SDL_Surface *surface)
{
    value = !value;
    SendMessage(CUIMSG_REFRESH, 0, 0, surface);
}

// Off: rest or active frame. On: the pressed-in pair of the same ramps.
void CUIBoolChooser::BoxFrame(SDL_Surface *surface, bool pointerOver) const
{
    CUIFrame frame;
    if (pointerOver)
        frame = value ? CUIFrame::Sunken : CUIFrame::Active;
    else
        frame = value ? CUIFrame::SunkenRest : CUIFrame::Rest;
    theme->DrawFrame(surface, x, y, kBoxSize, kBoxSize, frame);
}
