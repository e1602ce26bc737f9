#include <kvt/ui/core/screen.h>

#include <cstdlib>

#include <kvt/util/char_code.h>

namespace {

// Widgets draw straight on the surface; this is the one moment it goes to
// the display, always whole.
void Update(SDL_Surface *surface) { SDL_UpdateRect(surface, 0, 0, 0, 0); }

} // namespace

CUIScreen::CUIScreen(int nbWidgets)
    : lastOverWidget(-1), overWidget(-1), hitWidget(-1), focusWidget(0), clickedWidget(-1),
      keyWidget(-1), firstDraw(true),
      // NOLINTNEXTLINE(bugprone-sizeof-expression): an array of pointers
      widgets(static_cast<CUIObject **>(malloc(sizeof(CUIObject *) * size_t(nbWidgets)))),
      nbWidgets(nbWidgets)
{
}

CUIScreen::~CUIScreen() { free(widgets); }

int CUIScreen::GetMouseOverWidget(int x, int y)
{
    hitWidget = -1;
    for (int i = 0; i < nbWidgets && hitWidget < 0; ++i)
        if (widgets[i]->IsPtOnObject(x, y))
            hitWidget = i;
    return hitWidget;
}

void CUIScreen::DrawScreen(SDL_Surface *surface)
{
    for (int i = 0; i < nbWidgets; ++i)
        widgets[i]->SendMessage(CUIMSG_DRAW, 0, 0, surface);
    // Whatever the owner wrote before the first draw, widget 0 starts with
    // the focus; later draws repaint the frame where the focus is.
    if (firstDraw) {
        firstDraw = false;
        focusWidget = 0;
    }
    Focused()->SendMessage(CUIMSG_FOCUSIN, 0, 0, surface);
}

void CUIScreen::ProcessDefaultEvent(SDL_Event *event, SDL_Surface *surface)
{
    clickedWidget = -1;
    keyWidget = -1;
    switch (event->type) {
    case SDL_KEYDOWN:
        OnKeyDown(event->key, surface);
        break;
    case SDL_MOUSEMOTION:
        OnMouseMotion(event->motion, surface);
        break;
    case SDL_MOUSEBUTTONDOWN:
        OnMouseButtonDown(event->button, surface);
        break;
    case SDL_MOUSEBUTTONUP:
        OnMouseButtonUp(event->button, surface);
        break;
    default:
        break;
    }
}

// The widget losing the focus hears of it before the one gaining it.
void CUIScreen::MoveFocus(int to, intptr_t param1, intptr_t param2, SDL_Surface *surface)
{
    Focused()->SendMessage(CUIMSG_FOCUSOUT, param1, param2, surface);
    focusWidget = to;
    Focused()->SendMessage(CUIMSG_FOCUSIN, param1, param2, surface);
}

void CUIScreen::OnKeyDown(const SDL_KeyboardEvent &key, SDL_Surface *surface)
{
    // The screen acts on a key only when the focused widget did not.
    if (!Focused()->SendMessage(CUIMSG_KEYDOWN, key.keysym.sym, 0, surface)) {
        if (key.keysym.sym == SDLK_TAB)
            OnTab(surface);
        else if (key.keysym.sym == SDLK_RETURN)
            clickedWidget = focusWidget;
    }
    keyWidget = focusWidget;
    // Only the low byte travels, codes of 128 and above arriving negative.
    Focused()->SendMessage(CUIMSG_CHAR, KVT_SignedCharCode(key.keysym.unicode), 0, surface);
    Update(surface);
}

void CUIScreen::OnTab(SDL_Surface *surface)
{
    int px = 0, py = 0;
    Uint8 buttons = SDL_GetMouseState(&px, &py);
    Uint8 *keys = SDL_GetKeyState(nullptr);
    // Only the left Shift key turns Tab backwards.
    int step = keys[SDLK_LSHIFT] == 1 ? nbWidgets - 1 : 1;
    int next = (focusWidget + step) % nbWidgets;
    Focused()->SendMessage(CUIMSG_FOCUSOUT, 0, 0, surface);
    focusWidget = next;
    Focused()->SendMessage(CUIMSG_FOCUSIN, CUIPackPosition(px, py), buttons & 0xff, surface);
}

void CUIScreen::OnMouseMotion(const SDL_MouseMotionEvent &motion, SDL_Surface *surface)
{
    intptr_t pos = CUIPackPosition(motion.x, motion.y);
    overWidget = GetMouseOverWidget(motion.x, motion.y);
    if (overWidget == lastOverWidget) {
        // Motions come in numbers: they reach the display only when the
        // focused widget changed something.
        if (Focused()->SendMessage(CUIMSG_MOUSEMOVE, pos, motion.state, surface))
            Update(surface);
        return;
    }
    if (lastOverWidget >= 0)
        widgets[lastOverWidget]->SendMessage(CUIMSG_MOUSELEAVE, pos, motion.state, surface);
    if (overWidget >= 0) {
        // A held button counts only on the focused widget: the return to
        // the widget where a press began.
        intptr_t held = overWidget == focusWidget ? motion.state : 0;
        widgets[overWidget]->SendMessage(CUIMSG_MOUSEENTER, pos, held, surface);
    }
    lastOverWidget = overWidget;
    Focused()->SendMessage(CUIMSG_MOUSEMOVE, pos, motion.state, surface);
    Update(surface);
}

void CUIScreen::OnMouseButtonDown(const SDL_MouseButtonEvent &button, SDL_Surface *surface)
{
    int hit = GetMouseOverWidget(button.x, button.y);
    if (hit < 0)
        return; // a press on empty space changes nothing, the focus included
    intptr_t pos = CUIPackPosition(button.x, button.y);
    if (hit != focusWidget)
        MoveFocus(hit, pos, button.state, surface);
    Focused()->SendMessage(CUIMSG_MOUSEDOWN, pos, button.state, surface);
    Update(surface);
}

void CUIScreen::OnMouseButtonUp(const SDL_MouseButtonEvent &button, SDL_Surface *surface)
{
    // A click is a release over the focused widget, wherever the press was,
    // and whatever the widget answers.
    if (GetMouseOverWidget(button.x, button.y) == focusWidget)
        clickedWidget = focusWidget;
    if (Focused()->SendMessage(CUIMSG_MOUSEUP, CUIPackPosition(button.x, button.y), button.state,
                               surface))
        Update(surface);
}
