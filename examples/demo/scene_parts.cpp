#include "scene_parts.h"

#include <cstdio>

#include <kvt/draw/pixel.h>
#include <kvt/sprite/text.h>

namespace kvt_demo {

void PaintHeading(SDL_Surface *screen, Assets &assets, Layout layout, const char *title,
                  const char *note)
{
    if (layout == Layout::kHandheld) {
        KVT_DisplayText(screen, &assets.titleFont, 8, 2, title);
        return;
    }
    KVT_DisplayText(screen, &assets.titleFont, 16, 12, title);
    if (note)
        KVT_DisplayText(screen, &assets.font, 624 - KVT_GetTextWidth(&assets.font, note), 20,
                        note);
}

void PaintLabels(SDL_Surface *screen, Assets &assets, const std::vector<Label> &labels)
{
    for (const Label &label : labels)
        KVT_DisplayText(screen, &assets.accentFont, label.x, label.y, label.text);
}

void PaintPanel(SDL_Surface *screen, Assets &assets, const SDL_Rect &panel, const char *title)
{
    SDL_Rect area = panel;
    assets.theme.DrawBackground(screen, &area);
    KVT_FillRectAlpha(screen, panel.x, panel.y, panel.w, panel.h, KVT_RGB(14, 18, 26, 120));
    assets.theme.DrawFrame(screen, panel.x, panel.y, panel.w, panel.h, CUIFrame::SunkenRest);
    KVT_DisplayText(screen, &assets.accentFont, panel.x + 10, panel.y + 6, title);
}

void PaintStatusPanel(SDL_Surface *screen, Assets &assets, const SDL_Rect &panel,
                      const char *status)
{
    if (panel.w == 0)
        return;
    PaintPanel(screen, assets, panel, "What happens");
    const int left = panel.x + 10, room = panel.w - 20;
    int y = panel.y + 32;
    std::string line, word;
    for (const char *c = status;; ++c) {
        if (*c != ' ' && *c != '\0') {
            word += *c;
            continue;
        }
        const std::string longer = line.empty() ? word : line + " " + word;
        if (!line.empty() && KVT_GetTextWidth(&assets.font, longer.c_str()) > room) {
            KVT_DisplayText(screen, &assets.font, left, y, line.c_str());
            y += kReportLineHeight;
            line = word;
        } else {
            line = longer;
        }
        word.clear();
        if (*c == '\0')
            break;
    }
    KVT_DisplayText(screen, &assets.font, left, y, line.c_str());
}

void ShowStatusPanel(SDL_Surface *screen, Assets &assets, const SDL_Rect &panel,
                     const char *status)
{
    if (panel.w == 0)
        return; // a zero-sized update would send the whole screen
    PaintStatusPanel(screen, assets, panel, status);
    SDL_UpdateRect(screen, panel.x, panel.y, panel.w, panel.h);
}

void ReportLog::Log(const std::string &line)
{
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
    ++logged_;
    reports_.push_back(line);
    if (reports_.size() > lines_)
        reports_.erase(reports_.begin());
}

namespace {

// A line too long for the room loses its middle to "...": the start of a
// "what = value" line and the end of its value, which is where a text
// changes as it is typed, stay in view. Without " = ", the end goes.
std::string Shortened(Assets &assets, const std::string &line, int room)
{
    auto fits = [&](const std::string &s) {
        return KVT_GetTextWidth(&assets.font, s.c_str()) <= room;
    };
    if (fits(line))
        return line;
    const size_t equals = line.find(" = ");
    if (equals == std::string::npos) {
        std::string head = line;
        while (!head.empty() && !fits(head + "..."))
            head.pop_back();
        return head + "...";
    }
    const std::string head = line.substr(0, equals + 3) + "...";
    size_t start = equals + 3;
    while (start < line.size() && !fits(head + line.substr(start)))
        ++start;
    return head + line.substr(start);
}

} // namespace

void ReportLog::Paint(SDL_Surface *screen, Assets &assets) const
{
    PaintPanel(screen, assets, panel_, title_ ? title_ : "");
    int y = panel_.y + (title_ ? 32 : 4);
    for (const std::string &line : reports_) {
        const std::string shown = Shortened(assets, line, panel_.w - 20);
        KVT_DisplayText(screen, &assets.font, panel_.x + 10, y, shown.c_str());
        y += kReportLineHeight;
    }
}

void ReportLog::Show(SDL_Surface *screen, Assets &assets) const
{
    Paint(screen, assets);
    SDL_UpdateRect(screen, panel_.x, panel_.y, panel_.w, panel_.h);
}

} // namespace kvt_demo
