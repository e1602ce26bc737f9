#ifndef KVT_BENCH_KVT_WIDGETS_H
#define KVT_BENCH_KVT_WIDGETS_H

// The benchmarks' screen in kvt: one CUIScreen over the default theme,
// whose background is a plain 8x8 tile of the display's format, with
// text in the benchmarks' sprite font.

#include <memory>
#include <string>
#include <vector>

#include <SDL.h>

#include <kvt/kvt.h>

#include "bench_surfaces.h"
#include "widget_script.h"

namespace kvt_bench {

// The theme, its tile and the font, in the display's format.
struct KvtLook {
    CUITheme theme;
    KVT_Sprite font;
    Surface tile;

    explicit KvtLook(SDL_Surface *display);
    ~KvtLook() { font.FreeFrames(); }
    KvtLook(const KvtLook &) = delete;
    KvtLook &operator=(const KvtLook &) = delete;
    bool ok() const { return ok_; }

private:
    bool ok_ = false;
};

class KvtWidgets {
public:
    // Builds the widgets and draws the whole screen once.
    KvtWidgets(const Layout &layout, KvtLook &look, SDL_Surface *display);
    KvtWidgets(const KvtWidgets &) = delete;
    KvtWidgets &operator=(const KvtWidgets &) = delete;

    // The background, the widgets, and the display updated.
    void FullDraw();
    // One event as the application's loop hands it over; what a click
    // did is read from the screen right after.
    void Handle(const SDL_Event &event);
    Outcome Seen() const;

private:
    enum { kOnOff = Layout::kButtons, kField, kBar, kList, kWidgets };

    SDL_Surface *display_;
    KvtLook &look_;
    int track_;
    std::vector<std::string> rowTexts_;
    List rows_; // points into rowTexts_
    std::unique_ptr<CUIObject> widgets_[kWidgets];
    CUIScreen screen_;
    int clicks_[Layout::kButtons] = {};
    int selected_ = 0, listChanges_ = 0;

    void Make(const Layout &layout);
    const CUIStringList &ListWidget() const
    {
        return static_cast<const CUIStringList &>(*widgets_[kList]);
    }
};

} // namespace kvt_bench

#endif
