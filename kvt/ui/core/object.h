#ifndef KVT_UI_CORE_OBJECT_H
#define KVT_UI_CORE_OBJECT_H

// The base of every widget: a rectangle on a surface with a theme, driven
// through one virtual entry point, SendMessage. Widgets paint straight on
// the surface they are given as messages arrive; the four edge savers hold
// the one-pixel ring around the widget so that the focus frame, painted
// over that ring, can vanish again without a repaint.

#include <cstdint>

#include <SDL.h>

#include <kvt/ui/core/region_saver.h>
#include <kvt/ui/core/theme.h>
#include <kvt/export.h>

// Message numbers. A mouse position travels packed in param1, x in the low
// 16 bits and y in the high 16 bits: see CUIPackPosition.
enum {
    CUIMSG_MOUSEDOWN = 1,
    CUIMSG_MOUSEUP = 2,
    CUIMSG_MOUSEMOVE = 12,
    CUIMSG_KEYDOWN = 13,
    CUIMSG_CHAR = 15,
    CUIMSG_DRAW = 16,
    CUIMSG_FOCUSIN = 17,
    CUIMSG_FOCUSOUT = 18,
    CUIMSG_MOUSEENTER = 19,
    CUIMSG_MOUSELEAVE = 20,
    CUIMSG_REFRESH = 100,
    CUIMSG_SETTEXT = 101,
};

// (x & 0xffff) + (y << 16), formed without overflow for any y.
inline intptr_t CUIPackPosition(int x, int y)
{
    return intptr_t(int32_t(Uint32(x & 0xffff) + (Uint32(y) << 16)));
}
inline int CUIPositionX(intptr_t param1) { return int(param1 & 0xffff); }
// The arithmetic shift of the packed 32-bit value: y keeps its sign.
inline int CUIPositionY(intptr_t param1) { return int32_t(param1) >> 16; }

class KVT_API CUIObject {
public:
    KVT_RegionSaver topEdge;    // the row above the widget, corners included
    KVT_RegionSaver bottomEdge; // the row below, corners included
    KVT_RegionSaver leftEdge;   // the column to the left, corners excluded
    KVT_RegionSaver rightEdge;  // the column to the right, corners excluded
    bool focused;
    int x, y, width, height; // set by the subclass's constructor
    CUITheme *theme;         // not owned

    // The rectangle is left to the subclass's constructor, which calls Place.
    CUIObject() : focused(false), theme(nullptr) {} // cppcheck-suppress uninitMemberVar
    // Virtual so that deleting any widget through a CUIObject pointer
    // releases everything its class holds.
    virtual ~CUIObject() = default;
    CUIObject(const CUIObject &) = delete;
    CUIObject &operator=(const CUIObject &) = delete;

    // The widget's one entry point. True when the widget dealt with the
    // message: it consumed the key, or changed the surface or its state.
    virtual bool SendMessage(int message, intptr_t param1, intptr_t param2,
                             SDL_Surface *surface) = 0;

    // What every widget shares: DRAW saves the ring around the widget,
    // FOCUSIN paints the active frame over it, FOCUSOUT puts it back. True
    // for those three messages, false for every other.
    bool DefaultSendMessage(int message, intptr_t param1, intptr_t param2, SDL_Surface *surface);

protected:
    // What every widget's constructor sets: its rectangle and its theme.
    void Place(int left, int top, int w, int h, CUITheme *look)
    {
        x = left;
        y = top;
        width = w;
        height = h;
        theme = look;
    }

public:
    // Strictly inside the widget's rectangle: its first row and column do
    // not count, nor does anything past its last ones.
    bool IsPtOnObject(int px, int py) const
    {
        return px > x && px < x + width && py > y && py < y + height;
    }
};

#endif
