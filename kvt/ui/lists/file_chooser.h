#ifndef KVT_UI_LISTS_FILE_CHOOSER_H
#define KVT_UI_LISTS_FILE_CHOOSER_H

// Picks one name out of the current directory with two arrows: a
// horizontal bar whose value is a position in `names`, and whose middle is
// a text field showing the name there (cut at its last dot when
// `hideExtension` is set). The field never has the focus: Left and Right
// step the name, Backspace and Delete edit only the shown text until the
// next step or draw. While `names` is empty the field shows "no file" and
// stepping does nothing.

#include <cstdint>

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/bars/generic_horz_int_bar.h>
#include <kvt/ui/edit/text_edit.h>
#include <kvt/util/list.h>
#include <kvt/util/name_scan.h>
#include <kvt/export.h>

class KVT_API CUIFileChooser : public CUIGenericHorzIntBar {
public:
    bool hideExtension;
    char extension[KVT_EXTENSION_MAX + 1]; // the suffix of the last Scan, cut to fit
    List names;                            // strings from malloc, owned
    CUITextEdit *nameField;                // owned; between the end buttons

    // Square end buttons; the field fills the rest of the bar and says
    // "no file" until a Scan finds something. Draws nothing.
    CUIFileChooser(int x, int y, int width, int height, CUITheme *theme, KVT_Sprite *font,
                   bool hideExtension);
    ~CUIFileChooser() override;
    CUIFileChooser(const CUIFileChooser &) = delete;
    CUIFileChooser &operator=(const CUIFileChooser &) = delete;

    // Replaces `names` with the entries of the current directory that end
    // in `extension` ("." and ".." left out), in the reverse of reading
    // order, and puts the choice on the first. Draws nothing.
    void Scan(const char *extension);
    // Frees every name but keeps the nodes: Clear or destroy `names` next.
    void DeleteListContent();

    bool SendChildMessage(int message, intptr_t param1, intptr_t param2,
                          SDL_Surface *surface) override;
    // The generic steps, except that an empty chooser has nothing to step.
    void Inc() override;
    void Dec() override;

private:
    void ShowName(SDL_Surface *surface);
};

#endif
