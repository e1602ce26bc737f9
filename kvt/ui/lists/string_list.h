#ifndef KVT_UI_LISTS_STRING_LIST_H
#define KVT_UI_LISTS_STRING_LIST_H

// A list whose rows are the strings of somebody else's List, one line of
// sprite-font text each. The widget does not watch the List: after the
// caller changes it, it calls ResetNbEl and sends DRAW again.

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/lists/generic_list.h>
#include <kvt/util/list.h>
#include <kvt/export.h>

class KVT_API CUIStringList : public CUIGenericList {
public:
    List *strings;    // each element a char *; not owned
    KVT_Sprite *font; // not owned

    // The number of rows is fixed by nbEl, not by the List; set both the
    // font and the List before the first DRAW.
    CUIStringList(int x, int y, int width, int height, CUITheme *theme, int nbEl, int rowHeight,
                  int barWidth);

    // Neither draws nor changes the number of rows.
    void SetFont(KVT_Sprite *font) { this->font = font; }
    void SetStringList(List *strings) { this->strings = strings; }

    void DisplayListElement(int element, int left, int top, SDL_Surface *surface) override;
};

#endif
