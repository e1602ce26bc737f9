#ifndef KVT_BENCH_GUICHAN_WIDGETS_H
#define KVT_BENCH_GUICHAN_WIDGETS_H

// The benchmarks' screen in Guichan 0.8, the reference for kvt's widgets:
// an opaque top container the size of the display with the same widgets
// at the same places, drawn by Guichan's SDL graphics in its own colours
// and its built-in font. Guichan redraws the whole screen to show any
// change, so every event costs logic(), draw() and the display's update.

#include <memory>
#include <string>

#include <SDL.h>
#include <guichan.hpp>
#include <guichan/sdl.hpp>

#include "widget_script.h"

namespace kvt_bench {

class GuichanWidgets : private gcn::ActionListener, private gcn::SelectionListener {
public:
    // Builds the widgets and draws the whole screen once. Guichan reports
    // its failures by throwing gcn::Exception.
    GuichanWidgets(const Layout &layout, SDL_Surface *display);
    GuichanWidgets(const GuichanWidgets &) = delete;
    GuichanWidgets &operator=(const GuichanWidgets &) = delete;

    void FullDraw();
    void Handle(const SDL_Event &event);
    Outcome Seen() const;

private:
    // The list's rows, as Guichan asks for them.
    struct Rows : gcn::ListModel {
        int getNumberOfElements() override { return Layout::kRows; }
        std::string getElementAt(int i) override { return RowText(i); }
    };

    SDL_Surface *display_;
    int track_;
    Rows rows_;
    gcn::SDLGraphics graphics_;
    gcn::SDLInput input_;
    gcn::Container top_;
    std::unique_ptr<gcn::Button> buttons_[Layout::kButtons];
    gcn::CheckBox onOff_;
    gcn::TextField field_;
    gcn::Slider bar_;
    gcn::ListBox list_;
    gcn::ScrollArea listArea_;
    gcn::Gui gui_; // last, so that it goes first
    int clicks_[Layout::kButtons] = {};
    int listChanges_ = 0;

    void Place(const Layout &layout);
    void action(const gcn::ActionEvent &event) override;
    void valueChanged(const gcn::SelectionEvent &event) override;
};

} // namespace kvt_bench

#endif
