#include <kvt/ui/dialogs/file_dialogs.h>

#include <climits>
#include <cstring>

#include <kvt/ui/core/region_saver.h>
#include <kvt/ui/dialogs/sdb_open_file.h>
#include <kvt/ui/dialogs/sdb_save_file.h>
#include <kvt/ui/edit/text_edit.h>

// The documented size of `result` has to cover both sources of a name.
static_assert(CUITextEdit::kMaxLength <= KVT_DIALOG_NAME_MAX, "a typed name may not fit");
#if defined(NAME_MAX)
static_assert(NAME_MAX <= KVT_DIALOG_NAME_MAX, "a directory entry's name may not fit");
#endif

namespace {

// SDL_UpdateRect reaches into SDL's video device, which is gone once the
// application has shut video down (the one way SDL_WaitEvent fails); there
// is no display to update then, and the call would crash inside SDL.
void ShowWholeSurface(SDL_Surface *surface)
{
    if (SDL_WasInit(SDL_INIT_VIDEO) != 0)
        SDL_UpdateRect(surface, 0, 0, 0, 0);
}

// Keeps what lies under the dialog and paints the theme's tiles over it.
void CoverArea(KVT_RegionSaver &under, SDL_Surface *surface, int x, int y, int width, int height,
               const CUITheme *theme)
{
    under.SaveRegion(surface, x, y, width, height);
    SDL_Rect area = {Sint16(x), Sint16(y), Uint16(width), Uint16(height)};
    theme->DrawBackground(surface, &area);
}

// Draws the scanned body, then hands it every event until it is finished.
// False when SDL could not wait for an event. Only 1 means an event came:
// classic SDL reports a failed wait with 0, sdl12-compat with -1.
bool RunBody(CUISDBTemplate &body, SDL_Surface *surface)
{
    body.FullDraw(surface);
    ShowWholeSurface(surface);
    SDL_Event event;
    while (SDL_WaitEvent(&event) == 1)
        if (body.SendMessage(event, surface))
            return true;
    return false;
}

// The pixels go back before the body and the saver go.
void UncoverArea(KVT_RegionSaver &under, CUISDBTemplate *body, SDL_Surface *surface)
{
    under.RestaurRegion(surface);
    ShowWholeSurface(surface);
    delete body;
}

// The open dialog's outcome: a chosen name, or "" when there is none.
bool TakeChosenName(const char *name, char *result)
{
    if (name == nullptr) {
        result[0] = '\0';
        return false;
    }
    memcpy(result, name, strlen(name) + 1);
    return true;
}

// Only the first occurrence of the extension counts: it spares the name
// only when it closes the name. Every other name gets a dot and the
// extension, so an empty extension adds a lone dot.
void ApplyExtension(const char *text, const char *extension, char *result)
{
    const size_t length = strlen(text), extensionLength = strlen(extension);
    memcpy(result, text, length + 1);
    const char *found = strstr(result, extension);
    if (found != nullptr && size_t(found - result) + extensionLength == length)
        return;
    result[length] = '.';
    memcpy(result + length + 1, extension, extensionLength + 1);
}

// The save dialog's outcome; Cancel leaves `result` as the caller had it.
bool TakeTypedName(CUISDBSaveFile &body, const char *extension, char *result)
{
    if (!body.GetState())
        return false;
    const char *text = body.GetFileName();
    if (text[0] == '\0') {
        result[0] = '\0';
        return false;
    }
    ApplyExtension(text, extension, result);
    return true;
}

} // namespace

bool KVT_OpenFileDialog(SDL_Surface *surface, int x, int y, int width, int height,
                        CUITheme *theme, KVT_Sprite *font, const char *title,
                        const char *okLabel, const char *cancelLabel, char *result,
                        const char *extension)
{
    KVT_RegionSaver under;
    CoverArea(under, surface, x, y, width, height, theme);
    auto *body = new CUISDBOpenFile(x, y, width, height, theme, font, title, okLabel,
                                    cancelLabel);
    body->ScanDir(extension);
    bool named = RunBody(*body, surface) && TakeChosenName(body->GetFileName(), result);
    UncoverArea(under, body, surface);
    return named;
}

bool KVT_SaveFileDialog(SDL_Surface *surface, int x, int y, int width, int height,
                        CUITheme *theme, KVT_Sprite *font, const char *title,
                        const char *okLabel, const char *cancelLabel, char *result,
                        const char *extension)
{
    KVT_RegionSaver under;
    CoverArea(under, surface, x, y, width, height, theme);
    auto *body = new CUISDBSaveFile(x, y, width, height, theme, font, title, okLabel,
                                    cancelLabel);
    body->ScanDir(extension);
    bool named = RunBody(*body, surface) && TakeTypedName(*body, extension, result);
    UncoverArea(under, body, surface);
    return named;
}
