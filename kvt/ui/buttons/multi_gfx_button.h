#ifndef KVT_UI_BUTTONS_MULTI_GFX_BUTTON_H
#define KVT_UI_BUTTONS_MULTI_GFX_BUTTON_H

// A selector among the frames of a sprite: each press, and Return while it
// has the focus, moves it on to the next frame, wrapping after the last.
// The value changes at the press, whatever happens at the release. It
// looks and answers the mouse like the text button, and keeps a copy of
// its inside (face without image) so that a new image replaces the old
// one without touching the frame.

#include <cstdint>

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/core/object.h>
#include <kvt/ui/core/region_saver.h>
#include <kvt/export.h>

class KVT_API CUIMultiGfxButton : public CUIObject {
public:
    KVT_RegionSaver innerRegion; // the inside, frame excluded, face but no image
    KVT_Sprite *sprite;          // not owned
    int frame;                   // the value: 0 to the sprite's frame count - 1
    bool doubleSize;

    // Starts at frame 0 and draws nothing.
    CUIMultiGfxButton(int x, int y, int width, int height, CUITheme *theme, KVT_Sprite *sprite,
                      bool doubleSize);

    int GetFrame() const { return frame; }
    // Takes an index the sprite has and ignores any other. Draws nothing:
    // the new image shows at the next draw or refresh.
    void SetFrame(int index);

    bool SendMessage(int message, intptr_t param1, intptr_t param2,
                     SDL_Surface *surface) override;

private:
    void Draw(SDL_Surface *surface);
    void Refresh(SDL_Surface *surface);
    void Advance();
};

#endif
