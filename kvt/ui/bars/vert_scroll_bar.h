#ifndef KVT_UI_BARS_VERT_SCROLL_BAR_H
#define KVT_UI_BARS_VERT_SCROLL_BAR_H

// A vertical bar with a draggable thumb between its end buttons. The
// interval counts items of which visibleCount are in view; baseVal is the
// first item in view, and it is what the buttons, the arrow keys, the
// track and the thumb move. The inherited val (a selection, for a list)
// is never moved by the bar. The track itself is not painted: the thumb
// is drawn over whatever lay there.

#include <cstdint>

#include <SDL.h>

#include <kvt/ui/bars/generic_vert_int_bar.h>
#include <kvt/ui/core/region_saver.h>
#include <kvt/export.h>

class KVT_API CUIVertScrollBar : public CUIGenericVertIntBar {
public:
    int thumbLength;  // pixels, or -1 when no thumb is shown; set on DRAW
    int thumbOffset;  // from the top of the track to the thumb; set when painted
    int trackLength;  // height - 2 * buttonLength; set on DRAW
    int visibleCount; // items in view at once, and the page step
    int range;        // maxVal - minVal; set on DRAW
    int baseVal;      // the first item in view
    int grabOffset;   // during a drag, from the thumb's top to the grab point; else -1
    bool hovered;     // the thumb shows the active frame
    KVT_RegionSaver trackSaver; // the track as it was at DRAW, without a thumb

    // The bar starts at minVal whatever `val` says. Draws nothing.
    CUIVertScrollBar(int x, int y, int width, int height, CUITheme *theme, int minVal,
                     int maxVal, int val, int visibleCount, int buttonLength);

    int GetBaseVal() const { return baseVal; }
    // Taken if it lies from minVal to the last first item (the one that
    // shows the last item last); otherwise dropped, no clamp. Draws nothing.
    void SetBaseVal(int baseVal);

    bool SendChildMessage(int message, intptr_t param1, intptr_t param2,
                          SDL_Surface *surface) override;
    // Scroll by one item, never past either end and never wrapping.
    void Inc() override;
    void Dec() override;

private:
    // The first item that shows the last item last; in 64 bits, so that no
    // interval or visibleCount overflows it.
    int64_t LastBase() const { return int64_t(maxVal) - visibleCount + 1; }
    void Draw(SDL_Surface *surface);
    bool Refresh(SDL_Surface *surface);
    void Press(int py, SDL_Surface *surface);
    void Drag(int py, SDL_Surface *surface);
};

#endif
