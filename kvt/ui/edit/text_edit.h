#ifndef KVT_UI_EDIT_TEXT_EDIT_H
#define KVT_UI_EDIT_TEXT_EDIT_H

// A one-line text field: a translucent face in a bevel frame, the text in
// a sprite font, and a caret drawn as the glyph "_" before the character
// it stands at. Typed characters go in at the caret; Backspace, Delete
// and the left and right arrows edit and move. A text wider than the field
// shows its tail: the longest end of the text that leaves room for one
// caret, wherever the caret is, so the caret can move out of view to the
// left while the shown text stays put.

#include <cstdint>

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/core/object.h>
#include <kvt/ui/core/region_saver.h>
#include <kvt/export.h>

class KVT_API CUITextEdit : public CUIObject {
public:
    // The most characters the field holds: what fits `text` with its
    // terminator, and what `length` can count.
    static constexpr int kMaxLength = 255;

    char text[kMaxLength + 1]; // ends with a zero at `length`
    bool readOnly;             // no typing and no caret; the keys still act
    KVT_RegionSaver textArea;  // the inside of the frame without text
    KVT_Sprite *font;          // not owned
    Uint8 caret;               // the caret stands before text[caret]
    Uint8 length;

    // Copies `text` (its first 255 characters at most) with the caret at
    // the start. Draws nothing.
    CUITextEdit(int x, int y, int width, int height, CUITheme *theme, KVT_Sprite *font,
                const char *text, bool readOnly);

    // Copies `text` (its first 255 characters at most) with the caret at
    // the end. Draws nothing: the field shows it at the next refresh or
    // draw. CUIMSG_SETTEXT does the same and shows it at once.
    void SetText(const char *text);
    // The field's own buffer: valid until the next edit or the field's end.
    char *GetText();

    // Treats DRAW, REFRESH, FOCUSIN, FOCUSOUT, MOUSEENTER, MOUSELEAVE,
    // KEYDOWN, CHAR and SETTEXT (param1 a const char *); everything else
    // goes to DefaultSendMessage, so a click does not move the caret.
    bool SendMessage(int message, intptr_t param1, intptr_t param2,
                     SDL_Surface *surface) override;

private:
    void Draw(SDL_Surface *surface);
    void Refresh(SDL_Surface *surface);
    int TailStart(int caretWidth) const;
    bool EditKey(intptr_t key, SDL_Surface *surface);
    bool TypeCharacter(intptr_t character, SDL_Surface *surface);
    void CopyIn(const char *source);
    void RemoveAt(int position);
};

#endif
