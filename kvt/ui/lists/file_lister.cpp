#include <kvt/ui/lists/file_lister.h>

#include <cstdlib>
#include <cstring>

#include <kvt/sprite/text.h>
#include <kvt/util/dirlister.h>

CUIFileLister::CUIFileLister(int x, int y, int width, int height, CUITheme *theme,
                             int rowHeight, int barWidth, KVT_Sprite *font)
    : CUIGenericList(x, y, width, height, theme, 0, rowHeight, barWidth), font(font)
{
    extension[0] = '\0';
}

CUIFileLister::~CUIFileLister() { DeleteListContent(); }

void CUIFileLister::DeleteListContent()
{
    for (ListNode *node = names.GetHead(); node; node = node->next)
        free(node->element);
}

static bool IsDotEntry(const char *name)
{
    return strcmp(name, ".") == 0 || strcmp(name, "..") == 0;
}

void CUIFileLister::Scan(const char *suffix)
{
    DeleteListContent();
    names.Clear();
    // A longer suffix is cut rather than run past the field.
    strncpy(extension, suffix, sizeof extension - 1);
    extension[sizeof extension - 1] = '\0';
    {
        KVT_DirLister lister(extension);
        while (const char *name = lister.GetNextName()) {
            if (IsDotEntry(name))
                continue;
            const size_t size = strlen(name) + 1;
            char *copy = static_cast<char *>(malloc(size));
            if (copy == nullptr) // out of memory: the name is left out
                continue;
            memcpy(copy, name, size);
            names.AddElement(copy);
        }
    }
    ResetNbEl(names.GetNbElement());
}

void CUIFileLister::DisplayListElement(int element, int left, int top, SDL_Surface *surface)
{
    const char *text = static_cast<const char *>(names.GetElementN(element));
    KVT_DisplayText(surface, font, left, top, text);
}
