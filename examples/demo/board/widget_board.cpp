#include "widget_board.h"

#include <kvt/kvt.h>

namespace kvt_demo {

namespace {

const int kBar = 20; // scroll bars' width and their end buttons' length
const int kRow = 18; // the string list's and the lister's rows
const Uint16 kIconSlot = 0; // stands for the graphic buttons' size

const SDL_Rect kDesktopPlaces[WidgetBoard::kWidgets] = {
    {32, 102, 110, 26},  {154, 102, 110, 26},                     // Open..., Save...
    {32, 158, kIconSlot, kIconSlot}, {92, 158, kIconSlot, kIconSlot}, // graphic buttons
    {152, 169, 24, 24},  {182, 169, 24, 24},                      // sign buttons
    {222, 170, 150, 22},                                          // bool chooser
    {32, 236, 172, 24},  {220, 237, 180, 22},                     // field, value bar
    {32, 294, 140, 126}, {180, 294, kBar, 126}, {212, 294, 188, 126}, // lists, bar
    {32, 430, 368, 22},                                           // file chooser
};

// The same rows, closer together and narrower, under a 28-pixel heading;
// the lists show five rows.
const SDL_Rect kHandheldPlaces[WidgetBoard::kWidgets] = {
    {10, 34, 74, 24},    {88, 34, 74, 24},                        // Open..., Save...
    {10, 62, kIconSlot, kIconSlot}, {60, 62, kIconSlot, kIconSlot}, // graphic buttons
    {254, 34, 24, 24},   {282, 34, 24, 24},                       // sign buttons
    {168, 35, 82, 22},                                            // bool chooser
    {112, 62, 198, 24},  {112, 90, 198, 20},                      // field, value bar
    {10, 114, 112, 94},  {126, 114, kBar, 94}, {150, 114, 160, 94}, // lists, bar
    {10, 212, 300, 22},                                           // file chooser
};

const char *const kEntryWords[] = {"level", "save", "map", "sprite", "theme", "font", "sound"};

} // namespace

WidgetBoard::WidgetBoard(const BoardLook &look, Size size)
    : screen(kWidgets), look_(look),
      places_(size == Size::kDesktop ? kDesktopPlaces : kHandheldPlaces)
{
    for (const char *word : kEntryWords)
        entryTexts_.push_back(std::string("a ") + word);
    // The list shows its elements last added first.
    for (auto text = entryTexts_.rbegin(); text != entryTexts_.rend(); ++text)
        entries_.AddElement(&(*text)[0]);
    for (int i = 0; i < kWidgets; ++i) {
        widgets_[i].reset(MakeWidget(i));
        screen.widgets[i] = widgets_[i].get();
    }
}

SDL_Rect WidgetBoard::Place(int widget) const
{
    SDL_Rect place = places_[widget];
    if (place.w == kIconSlot)
        place.w = place.h = Uint16(look_.iconBox + 2);
    return place;
}

CUIObject *WidgetBoard::MakeWidget(int widget)
{
    const SDL_Rect r = Place(widget);
    CUITheme *theme = look_.theme;
    switch (widget) {
    case kOpenButton:
    case kSaveButton:
        return new CUINormalButton(r.x, r.y, r.w, r.h, theme, look_.font,
                                   widget == kOpenButton ? "Open..." : "Save...", true);
    case kGfxButton:
        return new CUIGfxButton(r.x, r.y, r.w, r.h, theme, look_.icons, look_.icon, false);
    case kMultiGfxButton:
        return new CUIMultiGfxButton(r.x, r.y, r.w, r.h, theme, look_.icons, false);
    case kLeftSign:
    case kRightSign:
        return new CUISignButton(r.x, r.y, r.w, r.h, theme,
                                 widget == kLeftSign ? CUISIGN_LEFT : CUISIGN_RIGHT);
    case kBoolChooser:
        return new CUIBoolChooser(r.x, r.y, r.w, r.h, theme, look_.font, " Sound", true);
    case kTextField:
        return new CUITextEdit(r.x, r.y, r.w, r.h, theme, look_.font, "Player one", false);
    case kValueBar:
        return new CUIHorzValueBar(r.x, r.y, r.w, r.h, theme, 0, 100, 60);
    case kStringList: {
        auto *list = new CUIStringList(r.x, r.y, r.w, r.h, theme, int(entryTexts_.size()), kRow,
                                       kBar);
        list->SetFont(look_.font);
        list->SetStringList(&entries_);
        return list;
    }
    case kScrollBar:
        return new CUIVertScrollBar(r.x, r.y, r.w, r.h, theme, 0, 40, 0, 8, kBar);
    case kFileLister: {
        auto *lister = new CUIFileLister(r.x, r.y, r.w, r.h, theme, kRow, kBar, look_.font);
        lister->Scan("");
        return lister;
    }
    default: {
        auto *chooser = new CUIFileChooser(r.x, r.y, r.w, r.h, theme, look_.font, false);
        chooser->Scan(kExtension);
        return chooser;
    }
    }
}

} // namespace kvt_demo
