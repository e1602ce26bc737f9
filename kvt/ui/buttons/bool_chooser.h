#ifndef KVT_UI_BUTTONS_BOOL_CHOOSER_H
#define KVT_UI_BUTTONS_BOOL_CHOOSER_H

// An on/off box with a caption: a 20 x 20 box at the widget's top left
// corner, solid green when on and solid red when off, and the caption to
// its right. A press anywhere on the widget, or Return, toggles it. Its
// frame shows the value too: on looks pressed in, under the pointer or not.

#include <cstdint>

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/core/object.h>
#include <kvt/export.h>

class KVT_API CUIBoolChooser : public CUIObject {
public:
    bool value;          // true is on
    KVT_Sprite *font;    // the caption's font; not owned
    const char *caption; // not owned and not copied

    // Stores its arguments; draws nothing. The rectangle is the area that
    // reacts to the mouse and that the focus frame surrounds: the owner
    // makes it wide enough for box and caption, which are placed from x
    // and y alone.
    CUIBoolChooser(int x, int y, int width, int height, CUITheme *theme, KVT_Sprite *font,
                   const char *caption, bool value);

    bool GetValue() const { return value; }
    // Changes the value without drawing; the box shows it at the next
    // CUIMSG_REFRESH or CUIMSG_DRAW.
    void SetValue(bool value) { this->value = value; }

    // Treats DRAW, REFRESH, MOUSEDOWN, KEYDOWN (Return only), MOUSEENTER
    // and MOUSELEAVE; everything else goes to DefaultSendMessage, so a
    // release is no business of this widget.
    bool SendMessage(int message, intptr_t param1, intptr_t param2,
                     SDL_Surface *surface) override;

private:
    void Draw(SDL_Surface *surface);
    void Refresh(SDL_Surface *surface) const;
    void Toggle(SDL_Surface *surface);
    void BoxFrame(SDL_Surface *surface, bool pointerOver) const;
};

#endif
