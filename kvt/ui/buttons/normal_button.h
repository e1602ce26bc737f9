#ifndef KVT_UI_BUTTONS_NORMAL_BUTTON_H
#define KVT_UI_BUTTONS_NORMAL_BUTTON_H

// The text button: a translucent face, a bevel frame and a one-line caption
// in a sprite font. It remembers nothing about presses: each mouse message
// repaints the frame that fits, and the screen decides what a click is
// (a release over the button, or Return while it has the focus, since the
// button lets every key through).

#include <cstdint>

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/core/object.h>
#include <kvt/export.h>

class KVT_API CUINormalButton : public CUIObject {
public:
    KVT_Sprite *font;    // not owned
    const char *caption; // not copied: the caller keeps it alive and unchanged
    int textOffset;      // from x to the caption's left end; below 0 when a
                         // centred caption is wider than the button
    bool centered;       // false: the caption starts 2 pixels in from the left

    // Draws nothing.
    CUINormalButton(int x, int y, int width, int height, CUITheme *theme, KVT_Sprite *font,
                    const char *caption, bool centered);

    // Takes the new caption and places it again; it shows at the next draw.
    void SetCaption(const char *caption);

    bool SendMessage(int message, intptr_t param1, intptr_t param2,
                     SDL_Surface *surface) override;

private:
    void Draw(SDL_Surface *surface);
};

#endif
