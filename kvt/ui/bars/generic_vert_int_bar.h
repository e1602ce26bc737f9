#ifndef KVT_UI_BARS_GENERIC_VERT_INT_BAR_H
#define KVT_UI_BARS_GENERIC_VERT_INT_BAR_H

// The abstract base of the vertical bars: one integer in a closed interval,
// stepped by two end buttons (top and bottom) and by the up and down arrow
// keys. The value grows downwards: the top button lowers it.
// What lies between the buttons is the subclass's: the bar draws only its
// buttons and hands everything about the middle to SendChildMessage.

#include <cstdint>

#include <SDL.h>

#include <kvt/ui/buttons/sign_button.h>
#include <kvt/ui/core/object.h>
#include <kvt/export.h>

class KVT_API CUIGenericVertIntBar : public CUIObject {
public:
    int minVal, maxVal; // both ends belong to the interval
    int val;
    int buttonLength; // size of each end button along the bar
    bool wrap;        // Inc and Dec wrap at the ends; false unless the owner sets it
    CUISignButton *decButton; // top end, owned
    CUISignButton *incButton; // bottom end, owned

    // Square end buttons: buttonLength is the bar's width.
    CUIGenericVertIntBar(int x, int y, int width, int height, CUITheme *theme, int minVal,
                         int maxVal, int val);
    // Stores its arguments, takes `val` if it lies in the interval, and
    // places the end buttons; draws nothing.
    CUIGenericVertIntBar(int x, int y, int width, int height, CUITheme *theme, int minVal,
                         int maxVal, int val, int buttonLength);
    ~CUIGenericVertIntBar() override;

    // New bounds, and the value back at the new low end. Draws nothing.
    void ResetInterval(int minVal, int maxVal);
    int GetVal() const { return val; }
    // maxVal - minVal: one less than the number of values.
    int GetInterval() const { return maxVal - minVal; }
    // A value outside the interval is dropped: no clamp. Draws nothing.
    void SetVal(int val);

    bool SendMessage(int message, intptr_t param1, intptr_t param2,
                     SDL_Surface *surface) override;
    // The middle's share of the messages: DRAW (draw the middle from
    // nothing), REFRESH (the value may have changed), the mouse messages,
    // FOCUSOUT and the keys the bar does not use (answer false for a key
    // that is not taken).
    virtual bool SendChildMessage(int message, intptr_t param1, intptr_t param2,
                                  SDL_Surface *surface) = 0;
    // One step up or down; at an end, to the other end if `wrap` is set.
    // They draw nothing.
    virtual void Inc();
    virtual void Dec();
};

#endif
