#ifndef KVT_UI_DIALOGS_FILE_DIALOGS_H
#define KVT_UI_DIALOGS_FILE_DIALOGS_H

// The two modal file dialogs. Each saves the rectangle it covers, paints
// the theme's background there (the theme's `background` must be set),
// lists the names of the current directory that end in `extension`, and
// then takes every SDL event until OK or Cancel: nothing reaches the
// application meanwhile, and events the dialog does not use, SDL_QUIT
// included, are dropped. On the way out the rectangle is put back pixel
// for pixel and the whole surface goes to the display.
//
// `title`, `okLabel` and `cancelLabel` need only live until the call
// returns. `result` is the caller's buffer; nothing checks its size, so it
// must hold KVT_DIALOG_RESULT_SIZE bytes, plus one more for every
// character of `extension` beyond KVT_DIALOG_EXTENSION_MAX. The call
// answers true when `result` holds a name to use.

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/core/theme.h>
#include <kvt/util/name_scan.h>
#include <kvt/export.h>

// The longest name either dialog can give before an extension is added:
// a directory entry's name, or the text field's whole content.
constexpr int KVT_DIALOG_NAME_MAX = 255;
// The longest `extension` that KVT_DIALOG_RESULT_SIZE allows for: the
// longest that the file widgets keep.
constexpr int KVT_DIALOG_EXTENSION_MAX = KVT_EXTENSION_MAX;
// A name, a dot, the extension and the terminator.
constexpr int KVT_DIALOG_RESULT_SIZE = KVT_DIALOG_NAME_MAX + 1 + KVT_DIALOG_EXTENSION_MAX + 1;

// OK on a listed name: `result` is that bare name, and the call is true.
// OK on an empty list, or Cancel: `result` is "", and false. When SDL
// cannot wait for an event: `result` is untouched, and false.
KVT_API bool KVT_OpenFileDialog(SDL_Surface *surface, int x, int y, int width, int height,
                                CUITheme *theme, KVT_Sprite *font, const char *title,
                                const char *okLabel, const char *cancelLabel, char *result,
                                const char *extension);

// OK with a name in the field: `result` is that name, followed by "." and
// `extension` unless the first occurrence of `extension` in it is at its
// very end (so "notes" becomes "notes.txt", "notes.txt" and "notestxt"
// stay, "txt.txt" becomes "txt.txt.txt"; an empty extension adds a lone
// dot), and the call is true. OK with an empty field: `result` is "", and
// false. Cancel, or SDL unable to wait: `result` is untouched, and false.
KVT_API bool KVT_SaveFileDialog(SDL_Surface *surface, int x, int y, int width, int height,
                                CUITheme *theme, KVT_Sprite *font, const char *title,
                                const char *okLabel, const char *cancelLabel, char *result,
                                const char *extension);

#endif
