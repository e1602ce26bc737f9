#include <kvt/ui/dialogs/sdb_save_file.h>

#include <kvt/ui/dialogs/internal/body_parts.h>
#include <kvt/ui/edit/text_edit.h>

namespace {

enum SaveSlot { kListSlot = kvt::kBodyListSlot, kFieldSlot, kOkSlot, kCancelSlot, kSaveSlots };

// Room for the title above the list, and the field and buttons below it.
constexpr int kListHeightCut = 110;
// The field's top, up from the bottom edge of the dialog.
constexpr int kFieldRise = 70;

} // namespace

CUISDBSaveFile::CUISDBSaveFile(int x, int y, int width, int height, CUITheme *theme,
                               KVT_Sprite *font, const char *title, const char *okLabel,
                               const char *cancelLabel)
    : CUISDBTemplate(x, y, width, height, theme, font), title(title), okLabel(okLabel),
      cancelLabel(cancelLabel), state(false), fileNames(new List)
{
    screen = new CUIScreen(kSaveSlots);
    screen->widgets[kListSlot] = nullptr;
    screen->widgets[kFieldSlot] =
        new CUITextEdit(x + kvt::kBodyMargin, y + height - kFieldRise,
                        width - 2 * kvt::kBodyMargin, kvt::kBodyButtonHeight, theme, font, "",
                        false);
    screen->widgets[kOkSlot] = kvt::NewOkButton(*this, okLabel);
    screen->widgets[kCancelSlot] = kvt::NewCancelButton(*this, cancelLabel);
}

CUISDBSaveFile::~CUISDBSaveFile()
{
    kvt::DeleteNames(fileNames);
    kvt::DeleteScreen(screen);
}

void CUISDBSaveFile::ScanDir(const char *extension)
{
    // Meant to run once; a second scan replaces the first without a leak.
    kvt::ReplaceNameList(*this, height - kListHeightCut, fileNames, extension);
}

void CUISDBSaveFile::FullDraw(SDL_Surface *surface) { kvt::DrawBody(*this, title, surface); }

bool CUISDBSaveFile::SendMessage(SDL_Event event, SDL_Surface *surface)
{
    screen->ProcessDefaultEvent(&event, surface);
    switch (screen->GetClicked()) {
    case kOkSlot:
        state = true;
        return true;
    case kCancelSlot:
        state = false;
        return true;
    case kListSlot:
        CopyChosenName(surface);
        return false;
    default:
        // Nothing clicked, or a click or Return on the field, which does
        // not confirm the dialog.
        return false;
    }
}

// The name under the list's selection replaces the field's text; an empty
// list has none to give. The dialog shows either way.
void CUISDBSaveFile::CopyChosenName(SDL_Surface *surface)
{
    const int chosen =
        static_cast<CUIStringList *>(screen->widgets[kListSlot])->GetSelectedElement();
    if (chosen >= 0 && chosen < fileNames->GetNbElement())
        screen->widgets[kFieldSlot]->SendMessage(
            CUIMSG_SETTEXT, reinterpret_cast<intptr_t>(fileNames->GetElementN(chosen)), 0,
            surface);
    SDL_UpdateRect(surface, x, y, Uint32(width), Uint32(height));
}

char *CUISDBSaveFile::GetFileName()
{
    return static_cast<CUITextEdit *>(screen->widgets[kFieldSlot])->GetText();
}
