#include <kvt/ui/dialogs/internal/body_parts.h>

#include <cstdlib>
#include <cstring>

#include <kvt/draw/shade.h>
#include <kvt/sprite/text.h>
#include <kvt/util/dirlister.h>

namespace kvt {

namespace {

bool IsDotEntry(const char *name) { return strcmp(name, ".") == 0 || strcmp(name, "..") == 0; }

int ButtonTop(const CUISDBTemplate &body)
{
    return body.y + body.height - kBodyMargin - kBodyButtonHeight;
}

} // namespace

void ScanNames(List *names, const char *extension)
{
    KVT_DirLister lister(extension);
    while (const char *name = lister.GetNextName()) {
        if (IsDotEntry(name))
            continue;
        // The lister's buffer lives only until its next call.
        const size_t size = strlen(name) + 1;
        char *copy = static_cast<char *>(malloc(size));
        if (copy == nullptr) // out of memory: the name is left out of the list
            continue;
        memcpy(copy, name, size);
        names->AddElement(copy);
    }
}

void DeleteNames(List *names)
{
    for (ListNode *node = names->GetHead(); node; node = node->next)
        free(node->element);
    delete names;
}

CUIStringList *NewNameList(const CUISDBTemplate &body, int height, List *names)
{
    CUIStringList *list = new CUIStringList(body.x + kBodyMargin, body.y + kBodyListTop,
                                            body.width - 2 * kBodyMargin, height, body.theme,
                                            names->GetNbElement(), kBodyRowHeight,
                                            kBodyBarWidth);
    list->SetFont(body.font);
    list->SetStringList(names);
    return list;
}

CUINormalButton *NewOkButton(const CUISDBTemplate &body, const char *label)
{
    return new CUINormalButton(body.x + kBodyMargin, ButtonTop(body),
                               BodyButtonWidth(body.width), kBodyButtonHeight, body.theme,
                               body.font, label, true);
}

CUINormalButton *NewCancelButton(const CUISDBTemplate &body, const char *label)
{
    const int buttonWidth = BodyButtonWidth(body.width);
    return new CUINormalButton(body.x + kBodyMargin + buttonWidth + kBodyButtonGap,
                               ButtonTop(body), buttonWidth, kBodyButtonHeight, body.theme,
                               body.font, label, true);
}

int TitleLeft(const CUISDBTemplate &body, const char *title)
{
    return body.x + kBodyMargin + ((body.width - KVT_GetTextWidth(body.font, title)) >> 1);
}

void DrawBody(const CUISDBTemplate &body, const char *title, SDL_Surface *surface)
{
    const CUITheme &theme = *body.theme;
    KVT_RectShade(surface, body.x, body.y, body.width, body.height, theme.activeFirst,
                  theme.activeMid, theme.activeLast);
    KVT_DisplayText(surface, body.font, TitleLeft(body, title), body.y + kBodyMargin, title);
    body.screen->DrawScreen(surface);
}

void DeleteScreen(CUIScreen *screen)
{
    for (int i = 0; i < screen->nbWidgets; ++i)
        delete screen->widgets[i];
    delete screen;
}

} // namespace kvt
