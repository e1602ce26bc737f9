#ifndef KVT_UI_DIALOGS_SDB_TEMPLATE_H
#define KVT_UI_DIALOGS_SDB_TEMPLATE_H

// The content of a modal file dialog: a framed rectangle with a title and
// a widget set of its own. The modal loop builds a body, draws it once,
// hands it every SDL event until it answers true, reads the outcome and
// deletes it through this base.

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/core/screen.h>
#include <kvt/ui/core/theme.h>
#include <kvt/export.h>

class KVT_API CUISDBTemplate {
public:
    CUIScreen *screen; // created and deleted by the derived body
    int x, y, width, height; // the dialog rectangle, in surface pixels
    CUITheme *theme;   // not owned
    KVT_Sprite *font;  // title, buttons and list; not owned

    // Stores its arguments; screen stays null for the derived body to fill.
    CUISDBTemplate(int x, int y, int width, int height, CUITheme *theme, KVT_Sprite *font)
        : screen(nullptr), x(x), y(y), width(width), height(height), theme(theme), font(font)
    {
    }
    // A body owns its screen and widgets, and the loop deletes it by this type.
    virtual ~CUISDBTemplate() = default;
    CUISDBTemplate(const CUISDBTemplate &) = delete;
    CUISDBTemplate &operator=(const CUISDBTemplate &) = delete;

    // Draws the whole body over a background the caller has already painted.
    virtual void FullDraw(SDL_Surface *surface) = 0;
    // Takes one SDL event; true once the dialog is finished (OK or Cancel).
    virtual bool SendMessage(SDL_Event event, SDL_Surface *surface) = 0;
};

#endif
