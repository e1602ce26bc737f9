#ifndef KVT_UI_DIALOGS_INTERNAL_BODY_PARTS_H
#define KVT_UI_DIALOGS_INTERNAL_BODY_PARTS_H

// What the open and save bodies share: the names of the current directory,
// the list that shows them, the two buttons along the bottom edge, the
// frame and title, and the end of the widget set. The bodies differ only
// in the height of the list and in what a click means.

#include <SDL.h>

#include <kvt/ui/buttons/normal_button.h>
#include <kvt/ui/core/screen.h>
#include <kvt/ui/dialogs/sdb_template.h>
#include <kvt/ui/lists/string_list.h>
#include <kvt/util/list.h>

namespace kvt {

// Both bodies keep their list of names in the first slot of their screen.
constexpr int kBodyListSlot = 0;

// Layout inside the dialog rectangle, in pixels.
constexpr int kBodyMargin = 4;     // between the frame and every element
constexpr int kBodyListTop = 30;   // below the title
constexpr int kBodyRowHeight = 16; // of the list
constexpr int kBodyBarWidth = 21;  // the list's scroll bar
constexpr int kBodyButtonHeight = 28;
constexpr int kBodyButtonGap = 8;  // between OK and Cancel

// Both buttons share what is left after the margins and the gap; an odd
// remainder widens the right margin by one.
inline int BodyButtonWidth(int width) { return (width - 2 * kBodyMargin - kBodyButtonGap) >> 1; }

// Frees every name, then the list itself.
void DeleteNames(List *names);

// Replaces `names` by a malloc copy of each name of the current directory
// that ends in `extension` ("." and ".." left out, newest first), and the
// list widget of slot 0 by one `height` pixels high that shows them.
void ReplaceNameList(const CUISDBTemplate &body, int height, List *names,
                     const char *extension);

CUINormalButton *NewOkButton(const CUISDBTemplate &body, const char *label);
CUINormalButton *NewCancelButton(const CUISDBTemplate &body, const char *label);

// The active frame around the body, the title, then every widget; the focus
// goes to slot 0 at the first draw. The inside is the caller's background.
void DrawBody(const CUISDBTemplate &body, const char *title, SDL_Surface *surface);
// The left edge of the title: centred, then 4 more to the right.
int TitleLeft(const CUISDBTemplate &body, const char *title);

// Deletes every widget in the slots that is not null, then the screen.
void DeleteScreen(CUIScreen *screen);

} // namespace kvt

#endif
