#ifndef KVT_UI_LISTS_GENERIC_LIST_H
#define KVT_UI_LISTS_GENERIC_LIST_H

// The abstract scrolling list: a column of rows of equal height with a
// vertical scroll bar at its left. The list keeps no selection and no
// scroll position of its own: the scroll bar is its model, its val the
// selected element and its baseVal the first element in view. What a row
// looks like is the subclass's business, through DisplayListElement.

#include <cstdint>

#include <SDL.h>

#include <kvt/ui/bars/vert_scroll_bar.h>
#include <kvt/ui/core/object.h>
#include <kvt/ui/core/region_saver.h>
#include <kvt/export.h>

class KVT_API CUIGenericList : public CUIObject {
public:
    CUIVertScrollBar *scrollBar; // owned; in no screen, it hears only from the list
    int rowHeight;               // pixels; must not be 0
    int visibleRows;             // height / rowHeight: the rows that fit wholly
    int barWidth;
    KVT_RegionSaver rowsSaver; // the row area with its face and no row on it

    // Stores the arguments and allocates the scroll bar; draws nothing.
    CUIGenericList(int x, int y, int width, int height, CUITheme *theme, int nbEl,
                   int rowHeight, int barWidth);
    ~CUIGenericList() override;

    // A new scroll bar for nbEl elements: selection and view back at 0.
    // Draws nothing; the owner sends DRAW before any other message.
    void ResetNbEl(int nbEl);
    int GetSelectedElement() const { return scrollBar->GetVal(); }

    bool SendMessage(int message, intptr_t param1, intptr_t param2,
                     SDL_Surface *surface) override;

    // Paints element `element` with its top left corner at (left, top), on
    // a row whose face is already restored. No size is given; while it
    // runs, the surface's clip rectangle is narrowed to the list's face (and
    // the caller's own clip rectangle), so what spills over the face is cut.
    // The selection mark is the list's.
    virtual void DisplayListElement(int element, int left, int top, SDL_Surface *surface) = 0;

private:
    void NewScrollBar(int nbEl);
    bool Press(intptr_t param1, intptr_t param2, SDL_Surface *surface);
    bool ForwardToBar(int message, intptr_t param1, intptr_t param2, SDL_Surface *surface);
    bool Key(intptr_t key, SDL_Surface *surface);
    void Draw(SDL_Surface *surface);
    void Refresh(SDL_Surface *surface);
    void ShowHover(int message, SDL_Surface *surface);
    bool Redraw(SDL_Surface *surface) { return SendMessage(CUIMSG_REFRESH, 0, 0, surface); }
};

#endif
