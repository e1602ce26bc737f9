#include <kvt/ui/edit/text_edit.h>

#include <cstring>

#include <kvt/draw/pixel.h>
#include <kvt/sprite/text.h>
#include <kvt/util/char_code.h>

namespace {

// The text and the caret sit 2 pixels in from the widget's top left
// corner: one for the frame, one of margin.
constexpr int kInset = 2;
const char kCaretGlyph[] = "_";

} // namespace

CUITextEdit::CUITextEdit(int x, int y, int width, int height, CUITheme *theme, KVT_Sprite *font,
                         const char *text, bool readOnly)
    : readOnly(readOnly), font(font), caret(0), length(0)
{
    Place(x, y, width, height, theme);
    CopyIn(text);
}

void CUITextEdit::SetText(const char *newText)
{
    CopyIn(newText);
    caret = length;
}

char *CUITextEdit::GetText()
{
    text[length] = '\0';
    return text;
}

bool CUITextEdit::SendMessage(int message, intptr_t param1, intptr_t param2,
                              SDL_Surface *surface)
{
    switch (message) {
    case CUIMSG_DRAW:
        Draw(surface);
        return true;
    case CUIMSG_REFRESH:
        Refresh(surface);
        return true;
    case CUIMSG_FOCUSIN:
    case CUIMSG_FOCUSOUT:
        // The focus frame comes and goes as for every widget; the caret
        // follows `focused`, which DefaultSendMessage has just changed.
        DefaultSendMessage(message, 0, 0, surface);
        SendMessage(CUIMSG_REFRESH, 0, 0, surface);
        return true;
    case CUIMSG_MOUSEENTER:
        theme->DrawFrame(surface, x, y, width, height, CUIFrame::Hover);
        return true;
    case CUIMSG_MOUSELEAVE:
        theme->DrawFrame(surface, x, y, width, height, CUIFrame::Rest);
        return true;
    case CUIMSG_KEYDOWN:
        return EditKey(param1, surface);
    case CUIMSG_CHAR:
        return TypeCharacter(param1, surface);
    case CUIMSG_SETTEXT:
        // NOLINTNEXTLINE(performance-no-int-to-ptr): messages carry the string as an integer
        SetText(reinterpret_cast<const char *>(param1));
        SendMessage(CUIMSG_REFRESH, 0, 0, surface);
        return true;
    default:
        return DefaultSendMessage(message, param1, param2, surface);
    }
}

// The inside of the frame is saved with face and frame painted and before
// any text, so that each refresh starts from a clean field.
void CUITextEdit::Draw(SDL_Surface *surface)
{
    DefaultSendMessage(CUIMSG_DRAW, 0, 0, surface);
    KVT_FillRectAlpha(surface, x, y, width, height, theme->faceColor);
    theme->DrawFrame(surface, x, y, width, height, CUIFrame::Rest);
    textArea.SaveRegion(surface, x + 1, y + 1, width - 2, height - 2);
    SendMessage(CUIMSG_REFRESH, 0, 0, surface);
}

// Before the first DRAW there is nothing to restore, and the text goes
// straight over whatever the surface holds.
void CUITextEdit::Refresh(SDL_Surface *surface)
{
    textArea.RestaurRegion(surface);
    text[length] = '\0';
    // Room for the caret is kept whether or not the field has the focus,
    // so that the tail shown does not jump when the focus comes or goes.
    const int caretWidth = readOnly ? 0 : KVT_GetTextWidth(font, kCaretGlyph);
    const int skip = TailStart(caretWidth);
    KVT_DisplayText(surface, font, x + kInset, y + kInset, text + skip);
    if (readOnly || !focused || caret < skip)
        return;
    char beforeCaret[kMaxLength + 1];
    std::memcpy(beforeCaret, text + skip, size_t(caret - skip));
    beforeCaret[caret - skip] = '\0';
    KVT_DisplayText(surface, font, x + kInset + KVT_GetTextWidth(font, beforeCaret), y + kInset,
                    kCaretGlyph);
}

// The index of the first character shown: leading characters go until
// the rest and one caret fit in the field's inner width, or none is left.
int CUITextEdit::TailStart(int caretWidth) const
{
    int skip = 0;
    int shownWidth = KVT_GetTextWidth(font, text);
    while (skip < length && shownWidth + caretWidth > width - 2 * kInset) {
        const char one[2] = {text[skip], '\0'};
        shownWidth -= KVT_GetTextWidth(font, one);
        ++skip;
    }
    return skip;
}

// The four editing keys answer true even when they change nothing, so
// that the screen never takes them for its own; only a change repaints.
// Every other key is left to the screen (Tab, Return). A read-only field
// still lets these keys edit its text.
bool CUITextEdit::EditKey(intptr_t key, SDL_Surface *surface)
{
    bool changed;
    switch (key) {
    case SDLK_BACKSPACE:
        changed = caret > 0;
        if (changed)
            RemoveAt(--caret);
        break;
    case SDLK_DELETE:
        // At the end of the text this removes the last character, and the
        // caret stays at the end.
        changed = length > 0;
        if (changed) {
            RemoveAt(caret < length ? caret : length - 1);
            if (caret > length)
                --caret;
        }
        break;
    case SDLK_LEFT:
        changed = caret > 0;
        if (changed)
            --caret;
        break;
    case SDLK_RIGHT:
        changed = caret < length;
        if (changed)
            ++caret;
        break;
    default:
        return false;
    }
    if (changed)
        SendMessage(CUIMSG_REFRESH, 0, 0, surface);
    return true;
}

// The low byte of param1 is a character read as signed 8 bits: control
// codes and codes 128 to 255 are dropped, 32 to 127 go in at the caret.
bool CUITextEdit::TypeCharacter(intptr_t character, SDL_Surface *surface)
{
    if (readOnly)
        return false;
    const int code = KVT_SignedCharCode(character);
    // A full field takes the character as dealt with and keeps its text.
    if (code < 32 || length == kMaxLength)
        return true;
    std::memmove(text + caret + 1, text + caret, size_t(length - caret));
    text[caret] = char(code);
    ++caret;
    ++length;
    text[length] = '\0';
    SendMessage(CUIMSG_REFRESH, 0, 0, surface);
    return true;
}

// At most kMaxLength characters are read, so a longer string cannot
// overrun the buffer; copying the field's own GetText() onto it is safe.
void CUITextEdit::CopyIn(const char *source)
{
    int count = 0;
    while (count < kMaxLength && source[count] != '\0') {
        text[count] = source[count];
        ++count;
    }
    text[count] = '\0';
    length = Uint8(count);
}

void CUITextEdit::RemoveAt(int position)
{
    std::memmove(text + position, text + position + 1, size_t(length - position - 1));
    --length;
    text[length] = '\0';
}
