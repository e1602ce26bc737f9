#ifndef KVT_UI_BUTTONS_INTERNAL_BUTTON_LOOK_H
#define KVT_UI_BUTTONS_INTERNAL_BUTTON_LOOK_H

// What the press buttons (text and graphic) have in common: a translucent
// face, and a bevel frame that answers the mouse. The frame carries no
// state: each mouse message repaints the frame that the situation calls
// for, over the button's own rectangle, never over the focus ring.

#include <cstdint>

#include <SDL.h>

#include <kvt/draw/double_blit.h>
#include <kvt/draw/pixel.h>
#include <kvt/sprite/sprite.h>
#include <kvt/ui/core/object.h>

namespace kvt {

inline void DrawButtonFace(const CUIObject &button, SDL_Surface *surface)
{
    KVT_FillRectAlpha(surface, button.x, button.y, button.width, button.height,
                      button.theme->faceColor);
}

inline void DrawButtonFrame(const CUIObject &button, SDL_Surface *surface, CUIFrame frame)
{
    button.theme->DrawFrame(surface, button.x, button.y, button.width, button.height, frame);
}

// A release over the button shows it lit; off it, at rest. The first row
// and column count as off, as everywhere in the hit test.
inline CUIFrame FrameAfterRelease(const CUIObject &button, intptr_t position)
{
    return button.IsPtOnObject(CUIPositionX(position), CUIPositionY(position)) ? CUIFrame::Active
                                                                                : CUIFrame::Rest;
}

// The screen sends a button mask only to the focused widget, so a mask
// here means the press that began on this button is still held.
inline CUIFrame FrameOnEnter(intptr_t buttonMask)
{
    return buttonMask != 0 ? CUIFrame::Sunken : CUIFrame::Active;
}

// One sprite frame inside the button, one pixel in from its corner: at
// double size it may spread past the button (the owner sizes the button
// for it); at its own size it is cut to the inside of the frame. A frame
// the sprite does not have draws nothing.
inline void DrawButtonImage(const CUIObject &button, KVT_Sprite *sprite, int frame,
                            bool doubleSize, SDL_Surface *surface)
{
    if (frame < 0 || Uint32(frame) >= sprite->GetNbFrames())
        return;
    if (doubleSize)
        KVT_DoubleSizeBlit(sprite->GetFrameSurface(frame), surface, button.x + 1, button.y + 1);
    else
        sprite->DisplayClipped(surface, Sint16(button.x + 1), Sint16(button.y + 1),
                               Uint16(button.width - 2), Uint16(button.height - 2), Uint32(frame));
}

// The frame that a press button shows for a mouse message: sunken while
// pressed, then active or rest on release depending on where the pointer
// is, and on entering or leaving. Answers true: the frame was painted.
inline bool ShowPressFrame(const CUIObject &button, int message, intptr_t param1,
                           intptr_t param2, SDL_Surface *surface)
{
    CUIFrame frame = CUIFrame::Rest; // CUIMSG_MOUSELEAVE
    if (message == CUIMSG_MOUSEDOWN)
        frame = CUIFrame::Sunken;
    else if (message == CUIMSG_MOUSEUP)
        frame = FrameAfterRelease(button, param1);
    else if (message == CUIMSG_MOUSEENTER)
        frame = FrameOnEnter(param2);
    DrawButtonFrame(button, surface, frame);
    return true;
}

} // namespace kvt

#endif
