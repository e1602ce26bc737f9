#include <kvt/ui/dialogs/internal/body_parts.h>

#include <kvt/sprite/text.h>
#include <kvt/util/name_scan.h>

namespace kvt {

namespace {

int ButtonTop(const CUISDBTemplate &body)
{
    return body.y + body.height - kBodyMargin - kBodyButtonHeight;
}

// The list of `names` below the title, `height` pixels high, already
// holding as many rows as `names` has elements.
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

} // namespace

void DeleteNames(List *names)
{
    KVT_FreeNames(names);
    delete names;
}

void ReplaceNameList(const CUISDBTemplate &body, int height, List *names,
                     const char *extension)
{
    // The old list widget points at the old names, so it goes first.
    delete body.screen->widgets[kBodyListSlot];
    KVT_FreeNames(names);
    KVT_ScanNames(names, extension);
    body.screen->widgets[kBodyListSlot] = NewNameList(body, height, names);
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
    body.theme->DrawFrame(surface, body.x, body.y, body.width, body.height, CUIFrame::Active);
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
