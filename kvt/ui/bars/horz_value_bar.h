#ifndef KVT_UI_BARS_HORZ_VALUE_BAR_H
#define KVT_UI_BARS_HORZ_VALUE_BAR_H

// A horizontal bar that shows its value as a fill growing from the left
// of the track between the end buttons, like a slider. Besides the end
// buttons and the left and right keys, the right end of the fill can be
// dragged with the mouse. A press elsewhere on the track does nothing.

#include <cstdint>

#include <SDL.h>

#include <kvt/ui/bars/generic_horz_int_bar.h>
#include <kvt/ui/core/region_saver.h>
#include <kvt/export.h>

class KVT_API CUIHorzValueBar : public CUIGenericHorzIntBar {
public:
    int trackLength; // width - 2 * buttonLength; set on DRAW
    int fillLength;  // width of the filled part; set when painted
    bool dragging;   // the end of the fill follows the pointer
    bool hovered;    // the fill shows the active frame
    KVT_RegionSaver trackSaver; // the track as it was at DRAW, with no fill

    // The two forms of the generic horizontal bar: square end buttons, or
    // end buttons of the given length. Draws nothing.
    CUIHorzValueBar(int x, int y, int width, int height, CUITheme *theme, int minVal,
                    int maxVal, int val);
    CUIHorzValueBar(int x, int y, int width, int height, CUITheme *theme, int minVal,
                    int maxVal, int val, int buttonLength);

    bool SendChildMessage(int message, intptr_t param1, intptr_t param2,
                          SDL_Surface *surface) override;
    // One step, never past either end: these ignore `wrap`.
    void Inc() override;
    void Dec() override;

private:
    void Draw(SDL_Surface *surface);
    void Refresh(SDL_Surface *surface);
    void Drag(int px, SDL_Surface *surface);
};

#endif
