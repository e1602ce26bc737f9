#ifndef KVT_UI_DIALOGS_SDB_SAVE_FILE_H
#define KVT_UI_DIALOGS_SDB_SAVE_FILE_H

// The body of the save dialog: the open body with a text field between the
// list and the buttons. Slots: 0 the list, 1 the field, 2 OK, 3 Cancel. The
// name is whatever the field holds; a click on a listed name copies it in.

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/core/theme.h>
#include <kvt/ui/dialogs/sdb_template.h>
#include <kvt/util/list.h>
#include <kvt/export.h>

class KVT_API CUISDBSaveFile : public CUISDBTemplate {
public:
    const char *title;       // not copied: must outlive the body
    const char *okLabel;     // not copied
    const char *cancelLabel; // not copied
    bool state;              // true after OK, false after Cancel
    List *fileNames;         // owned, and so is every name in it

    // Builds the screen, the field and both buttons; slot 0 stays null
    // until ScanDir. Draws nothing.
    CUISDBSaveFile(int x, int y, int width, int height, CUITheme *theme, KVT_Sprite *font,
                   const char *title, const char *okLabel, const char *cancelLabel);
    ~CUISDBSaveFile() override;

    // As CUISDBOpenFile::ScanDir, with this body's shorter list.
    void ScanDir(const char *extension);
    void FullDraw(SDL_Surface *surface) override;
    bool SendMessage(SDL_Event event, SDL_Surface *surface) override;
    // The field's text, never null and empty if nothing was typed; it is
    // the field's own buffer and dies with the body.
    char *GetFileName();
    // Whether the dialog ended by OK; meaningful only once SendMessage has
    // answered true.
    bool GetState() const { return state; }

private:
    void CopyChosenName(SDL_Surface *surface);
};

#endif
