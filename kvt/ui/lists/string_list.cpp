#include <kvt/ui/lists/string_list.h>

#include <kvt/sprite/text.h>

CUIStringList::CUIStringList(int x, int y, int width, int height, CUITheme *theme, int nbEl,
                             int rowHeight, int barWidth)
    : CUIGenericList(x, y, width, height, theme, nbEl, rowHeight, barWidth), strings(nullptr),
      font(nullptr)
{
}

void CUIStringList::DisplayListElement(int element, int left, int top, SDL_Surface *surface)
{
    const char *text = static_cast<const char *>(strings->GetElementN(element));
    KVT_DisplayText(surface, font, left, top, text);
}
