#include <kvt/ui/dialogs/sdb_open_file.h>

#include <kvt/ui/dialogs/internal/body_parts.h>

namespace {

enum OpenSlot { kListSlot = kvt::kBodyListSlot, kOkSlot, kCancelSlot, kOpenSlots };

// Room for the title above the list and the buttons below it.
constexpr int kListHeightCut = 70;

} // namespace

CUISDBOpenFile::CUISDBOpenFile(int x, int y, int width, int height, CUITheme *theme,
                               KVT_Sprite *font, const char *title, const char *okLabel,
                               const char *cancelLabel)
    : CUISDBTemplate(x, y, width, height, theme, font), title(title), okLabel(okLabel),
      cancelLabel(cancelLabel), fileNames(new List), selected(-1)
{
    screen = new CUIScreen(kOpenSlots);
    screen->widgets[kListSlot] = nullptr;
    screen->widgets[kOkSlot] = kvt::NewOkButton(*this, okLabel);
    screen->widgets[kCancelSlot] = kvt::NewCancelButton(*this, cancelLabel);
}

CUISDBOpenFile::~CUISDBOpenFile()
{
    // The list widget only points at the names, so they may go first.
    kvt::DeleteNames(fileNames);
    kvt::DeleteScreen(screen);
}

void CUISDBOpenFile::ScanDir(const char *extension)
{
    // Meant to run once; a second scan replaces the first without a leak.
    kvt::ReplaceNameList(*this, height - kListHeightCut, fileNames, extension);
}

void CUISDBOpenFile::FullDraw(SDL_Surface *surface) { kvt::DrawBody(*this, title, surface); }

bool CUISDBOpenFile::SendMessage(SDL_Event event, SDL_Surface *surface)
{
    screen->ProcessDefaultEvent(&event, surface);
    switch (screen->GetClicked()) {
    case kOkSlot:
        // The list reports position 0 even when empty: GetFileName checks.
        selected = static_cast<CUIStringList *>(screen->widgets[kListSlot])->GetSelectedElement();
        return true;
    case kCancelSlot:
        selected = -1;
        return true;
    default:
        // Nothing clicked, or a click or Return on the list: choosing a
        // name takes OK in this dialog.
        return false;
    }
}

char *CUISDBOpenFile::GetFileName()
{
    if (selected < 0 || selected >= fileNames->GetNbElement())
        return nullptr;
    return static_cast<char *>(fileNames->GetElementN(selected));
}
