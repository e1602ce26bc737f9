#ifndef KVT_DEMO_SCENE_PARTS_H
#define KVT_DEMO_SCENE_PARTS_H

// What the widget scenes share: framed panels with a title, a status text
// wrapped to its panel, and the log of reports that each such scene
// prints on stdout and shows in a panel of its own.

#include <string>
#include <vector>

#include <SDL.h>

#include "assets.h"

namespace kvt_demo {

const int kReportLineHeight = 19;

// A translucent well on the background, framed, with its title.
void PaintPanel(SDL_Surface *screen, Assets &assets, const SDL_Rect &panel, const char *title);

// The panel titled "What happens" with `status` wrapped at spaces to its
// width.
void PaintStatusPanel(SDL_Surface *screen, Assets &assets, const SDL_Rect &panel,
                      const char *status);

// The latest reports of a scene, one line each, oldest first.
class ReportLog {
public:
    ReportLog(const SDL_Rect &panel, size_t lines) : panel_(panel), lines_(lines) {}

    // Prints the line on stdout at once, so that whoever reads the demo's
    // output sees each line as it happens, also through a pipe.
    void Log(const std::string &line);
    // Lines reported since the start.
    long Count() const { return logged_; }
    // The panel with the latest lines, each cut to the panel's width.
    void Paint(SDL_Surface *screen, Assets &assets) const;
    // Paint, then send the panel to the display.
    void Show(SDL_Surface *screen, Assets &assets) const;

private:
    SDL_Rect panel_;
    size_t lines_;
    std::vector<std::string> reports_;
    long logged_ = 0;
};

} // namespace kvt_demo

#endif
