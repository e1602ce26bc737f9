#ifndef KVT_DEMO_SCENE_PARTS_H
#define KVT_DEMO_SCENE_PARTS_H

// What the widget scenes share: their heading, framed panels with a
// title, a status text wrapped to its panel, and the log of reports that
// each such scene prints on stdout and shows in a panel of its own.

#include <string>
#include <vector>

#include <SDL.h>

#include "assets.h"
#include "scenes.h"

namespace kvt_demo {

const int kReportLineHeight = 19;

// The scene's title at the top left and, in the desktop layout, `note`
// (if any) at the top right; the handheld layout has no room for it.
void PaintHeading(SDL_Surface *screen, Assets &assets, Layout layout, const char *title,
                  const char *note);

// A section title in the accent font, above a row of widgets.
struct Label {
    int x, y;
    const char *text;
};
void PaintLabels(SDL_Surface *screen, Assets &assets, const std::vector<Label> &labels);

// A translucent well on the background, framed, with its title ("" for
// none).
void PaintPanel(SDL_Surface *screen, Assets &assets, const SDL_Rect &panel, const char *title);

// The panel titled "What happens" with `status` wrapped at spaces to its
// width. The handheld layouts have no room for it: an empty panel paints
// nothing.
void PaintStatusPanel(SDL_Surface *screen, Assets &assets, const SDL_Rect &panel,
                      const char *status);
// Paints it again with `status` and sends it to the display.
void ShowStatusPanel(SDL_Surface *screen, Assets &assets, const SDL_Rect &panel,
                     const char *status);

// The latest reports of a scene, one line each, oldest first: in a panel
// with a title, or, where room is short, in an untitled strip (`title`
// null).
class ReportLog {
public:
    static constexpr const char *kTitle = "Reports (also on stdout)";

    ReportLog(const SDL_Rect &panel, size_t lines, const char *title = kTitle)
        : panel_(panel), lines_(lines), title_(title)
    {
    }

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
    const char *title_;
    std::vector<std::string> reports_;
    long logged_ = 0;
};

} // namespace kvt_demo

#endif
