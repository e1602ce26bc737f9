#ifndef KVT_UI_LISTS_FILE_LISTER_H
#define KVT_UI_LISTS_FILE_LISTER_H

// A list of the names in the current directory that end in a suffix, one
// line of sprite-font text each. It owns its names. Element 0 is the name
// the directory gave last: names are not sorted.

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/lists/generic_list.h>
#include <kvt/util/list.h>
#include <kvt/util/name_scan.h>
#include <kvt/export.h>

class KVT_API CUIFileLister : public CUIGenericList {
public:
    char extension[KVT_EXTENSION_MAX + 1]; // the suffix of the last Scan, cut to fit
    List names;                            // each element a string from malloc, owned
    KVT_Sprite *font;                      // not owned

    // Empty until the first Scan; draws nothing.
    CUIFileLister(int x, int y, int width, int height, CUITheme *theme, int rowHeight,
                  int barWidth, KVT_Sprite *font);
    ~CUIFileLister() override;

    // Replaces the names by those of the current directory that end in
    // `extension`, "." and ".." left out; selection and view back at 0.
    // Draws nothing: the owner sends DRAW afterwards.
    void Scan(const char *extension);
    // Frees every name but keeps the nodes, which still point to the freed
    // names: only Clear or the lister's end may follow.
    void DeleteListContent();

    void DisplayListElement(int element, int left, int top, SDL_Surface *surface) override;
};

#endif
