#include <kvt/ui/lists/file_chooser.h>

#include <cstring>

namespace {

const char kNoFile[] = "no file";

// Cuts at the last dot after the first character, so that a name made
// only of a leading dot and its stem (".profile") shows whole.
void CutExtension(char *name)
{
    for (size_t i = std::strlen(name); i-- > 1;) {
        if (name[i] == '.') {
            name[i] = '\0';
            return;
        }
    }
}

} // namespace

CUIFileChooser::CUIFileChooser(int x, int y, int width, int height, CUITheme *theme,
                               KVT_Sprite *font, bool hideExtension)
    : CUIGenericHorzIntBar(x, y, width, height, theme, 0, -1, 0),
      hideExtension(hideExtension), extension{},
      nameField(new CUITextEdit(x + buttonLength, y, width - 2 * buttonLength, height, theme,
                                font, kNoFile, false))
{
}

CUIFileChooser::~CUIFileChooser()
{
    DeleteListContent();
    delete nameField;
}

void CUIFileChooser::DeleteListContent() { KVT_FreeNameStrings(&names); }

void CUIFileChooser::Scan(const char *wanted)
{
    KVT_FreeNames(&names);
    KVT_KeepExtension(extension, wanted);
    KVT_ScanNames(&names, extension);
    ResetInterval(0, names.GetNbElement() - 1);
}

void CUIFileChooser::Inc()
{
    if (!names.IsEmpty())
        CUIGenericHorzIntBar::Inc();
}

void CUIFileChooser::Dec()
{
    if (!names.IsEmpty())
        CUIGenericHorzIntBar::Dec();
}

void CUIFileChooser::ShowName(SDL_Surface *surface)
{
    // An empty list has no element to give: GetElementN is not asked.
    const char *name = names.IsEmpty() ? kNoFile
                                       : static_cast<const char *>(names.GetElementN(val));
    if (!hideExtension || name == kNoFile) {
        nameField->SendMessage(CUIMSG_SETTEXT, reinterpret_cast<intptr_t>(name), 0, surface);
        return;
    }
    char shown[CUITextEdit::kMaxLength + 1];
    std::strncpy(shown, name, CUITextEdit::kMaxLength);
    shown[CUITextEdit::kMaxLength] = '\0';
    CutExtension(shown);
    nameField->SendMessage(CUIMSG_SETTEXT, reinterpret_cast<intptr_t>(shown), 0, surface);
}

bool CUIFileChooser::SendChildMessage(int message, intptr_t param1, intptr_t param2,
                                      SDL_Surface *surface)
{
    switch (message) {
    case CUIMSG_DRAW:
        nameField->SendMessage(CUIMSG_DRAW, param1, param2, surface);
        ShowName(surface);
        return true;
    case CUIMSG_REFRESH:
        ShowName(surface);
        return true;
    default:
        return nameField->SendMessage(message, param1, param2, surface);
    }
}
