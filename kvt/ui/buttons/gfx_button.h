#ifndef KVT_UI_BUTTONS_GFX_BUTTON_H
#define KVT_UI_BUTTONS_GFX_BUTTON_H

// A press button that shows one fixed frame of a sprite instead of a
// caption, at its own size (cut to the inside of the button) or at double
// size. It answers the mouse and the keys exactly as the text button does.

#include <cstdint>

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/core/object.h>
#include <kvt/export.h>

class KVT_API CUIGfxButton : public CUIObject {
public:
    KVT_Sprite *sprite; // not owned
    int frame;          // the frame shown; a frame the sprite lacks shows nothing
    bool doubleSize;

    // Draws nothing.
    CUIGfxButton(int x, int y, int width, int height, CUITheme *theme, KVT_Sprite *sprite,
                 int frame, bool doubleSize);

    bool SendMessage(int message, intptr_t param1, intptr_t param2,
                     SDL_Surface *surface) override;

private:
    void Draw(SDL_Surface *surface);
};

#endif
