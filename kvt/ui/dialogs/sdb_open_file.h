#ifndef KVT_UI_DIALOGS_SDB_OPEN_FILE_H
#define KVT_UI_DIALOGS_SDB_OPEN_FILE_H

// The body of the open dialog: a title, the names of the current directory
// in a string list (slot 0), and OK (slot 1) and Cancel (slot 2) buttons.
// OK chooses the list's selected name; Cancel chooses nothing.

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/core/theme.h>
#include <kvt/ui/dialogs/sdb_template.h>
#include <kvt/util/list.h>
#include <kvt/export.h>

class KVT_API CUISDBOpenFile : public CUISDBTemplate {
public:
    const char *title;       // not copied: must outlive the body
    const char *okLabel;     // not copied
    const char *cancelLabel; // not copied
    List *fileNames;         // owned, and so is every name in it
    int selected;            // position in fileNames chosen by OK, -1 for none

    // Builds the screen and both buttons; slot 0 stays null until ScanDir.
    // Draws nothing.
    CUISDBOpenFile(int x, int y, int width, int height, CUITheme *theme, KVT_Sprite *font,
                   const char *title, const char *okLabel, const char *cancelLabel);
    ~CUISDBOpenFile() override;

    // Lists the names of the current directory that end in `extension` (a
    // plain suffix, "" for all), "." and ".." left out, and creates the
    // list of slot 0. Call it once, before FullDraw and SendMessage.
    void ScanDir(const char *extension);
    void FullDraw(SDL_Surface *surface) override;
    bool SendMessage(SDL_Event event, SDL_Surface *surface) override;
    // The chosen name, or null; it belongs to the body and dies with it.
    char *GetFileName();
};

#endif
