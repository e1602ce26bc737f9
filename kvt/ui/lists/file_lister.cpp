#include <kvt/ui/lists/file_lister.h>

#include <kvt/sprite/text.h>

CUIFileLister::CUIFileLister(int x, int y, int width, int height, CUITheme *theme,
                             int rowHeight, int barWidth, KVT_Sprite *font)
    : CUIGenericList(x, y, width, height, theme, 0, rowHeight, barWidth), font(font)
{
    extension[0] = '\0';
}

CUIFileLister::~CUIFileLister() { DeleteListContent(); }

void CUIFileLister::DeleteListContent() { KVT_FreeNameStrings(&names); }

void CUIFileLister::Scan(const char *suffix)
{
    KVT_FreeNames(&names);
    KVT_KeepExtension(extension, suffix);
    KVT_ScanNames(&names, extension);
    ResetNbEl(names.GetNbElement());
}

void CUIFileLister::DisplayListElement(int element, int left, int top, SDL_Surface *surface)
{
    const char *text = static_cast<const char *>(names.GetElementN(element));
    KVT_DisplayText(surface, font, left, top, text);
}
