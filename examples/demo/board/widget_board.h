#ifndef KVT_DEMO_WIDGET_BOARD_H
#define KVT_DEMO_WIDGET_BOARD_H

// One widget of every class the library has, placed on one CUIScreen: the
// demo's main screen shows it, and the event storm test and the event
// fuzzer drive it. The file lister and the file chooser scan the current
// directory when the board is made.

#include <memory>
#include <string>
#include <vector>

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/core/screen.h>
#include <kvt/ui/core/theme.h>
#include <kvt/util/list.h>

namespace kvt_demo {

// What the widgets draw with. `icon` is the picture frame of the graphic
// button; the graphic buttons are `iconBox` + 2 pixels square.
struct BoardLook {
    CUITheme *theme;
    KVT_Sprite *font;
    KVT_Sprite *icons;
    Uint32 icon;
    int iconBox;
};

class WidgetBoard {
public:
    // The widgets by index in the screen's array, which is also the Tab order.
    enum Index {
        kOpenButton, kSaveButton, kGfxButton, kMultiGfxButton, kLeftSign, kRightSign,
        kBoolChooser, kTextField, kValueBar, kStringList, kScrollBar, kFileLister, kFileChooser,
        kWidgets
    };

    // Where the widgets stand: spread over 410x460, or packed into a
    // handheld's 320x240 screen with less room for each.
    enum class Size { kDesktop, kHandheld };

    // The extension that the file chooser lists.
    static constexpr const char *kExtension = "txt";
    // In the desktop arrangement everything lies inside this rectangle,
    // from the origin.
    static const int kWidth = 410, kHeight = 460;

    explicit WidgetBoard(const BoardLook &look, Size size = Size::kDesktop);
    WidgetBoard(const WidgetBoard &) = delete;
    WidgetBoard &operator=(const WidgetBoard &) = delete;

    SDL_Rect Place(int widget) const;
    CUIObject *Widget(int widget) const { return widgets_[widget].get(); }

    // The screen only frees its array: the widgets belong to the board.
    CUIScreen screen;

private:
    BoardLook look_;
    const SDL_Rect *places_;
    std::vector<std::string> entryTexts_;
    List entries_; // points into entryTexts_
    std::unique_ptr<CUIObject> widgets_[kWidgets];

    CUIObject *MakeWidget(int widget);
};

} // namespace kvt_demo

#endif
