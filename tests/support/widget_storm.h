#ifndef KVT_TESTS_SUPPORT_WIDGET_STORM_H
#define KVT_TESTS_SUPPORT_WIDGET_STORM_H

// The demo's board of every widget on a guarded surface, in a fresh
// current directory with a few files for the file widgets, drawn once and
// then fed script steps one at a time. After each step it checks what no
// event may break: the guard bytes around the surface's pixels and rows,
// the focus index, and the text field's length and terminator.

#include <memory>
#include <string>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/core/theme.h>

#include "support/event_script.h"
#include "support/surfaces.h"
#include "support/temp_dir.h"
#include "widget_board.h"

namespace kvt_test {

class WidgetStorm {
public:
    static const int kWidth = kvt_demo::WidgetBoard::kWidth + 6;
    static const int kHeight = kvt_demo::WidgetBoard::kHeight + 4;

    // False from ok() when the folder, the font or the theme failed.
    explicit WidgetStorm(const FormatCase &format);
    ~WidgetStorm();
    WidgetStorm(const WidgetStorm &) = delete;
    WidgetStorm &operator=(const WidgetStorm &) = delete;

    bool ok() const { return board_ != nullptr; }
    SDL_Surface *surface() const { return surface_.get(); }
    kvt_demo::WidgetBoard &board() const { return *board_; }

    // Handles the step's event; "" when every check holds afterwards,
    // otherwise what broke.
    std::string Step(const ScriptStep &step);
    // The checks alone.
    std::string Broken() const;

private:
    TempCurrentDir folder_; // first: the board scans it, and it goes last
    GuardedSurface surface_;
    CUITheme theme_;
    KVT_Sprite font_;
    std::unique_ptr<kvt_demo::WidgetBoard> board_;
};

} // namespace kvt_test

#endif
