// The drawing scene: every immediate drawing function of the library on
// the theme's background, in six panels of two columns and three rows.
// The handheld layout is the desktop one at half the size, so that it
// shows every function too.
#include <algorithm>
#include <cmath>

#include <kvt/draw/double_blit.h>
#include <kvt/draw/lines.h>
#include <kvt/draw/pixel.h>
#include <kvt/draw/shade.h>
#include <kvt/ui/core/theme.h>

#include "scenes.h"

namespace kvt_demo {

namespace {

const double kPi = 3.14159265358979323846;

// Screen area of each panel in the desktop layout; the content sits
// inside a 1-pixel frame.
const SDL_Rect kFramesPanel = {16, 16, 296, 136};
const SDL_Rect kRampsPanel = {328, 16, 296, 136};
const SDL_Rect kFillsPanel = {16, 168, 296, 136};
const SDL_Rect kLinesPanel = {328, 168, 296, 136};
const SDL_Rect kRectsPanel = {16, 320, 296, 144};
const SDL_Rect kBlitPanel = {328, 320, 296, 144};

// A length of the desktop layout as the scene's layout has it: the same,
// or halved for the handheld one.
class Lengths {
public:
    explicit Lengths(Layout layout) : halved_(layout == Layout::kHandheld) {}
    int operator()(int length) const { return halved_ ? length / 2 : length; }
    SDL_Rect operator()(const SDL_Rect &r) const
    {
        return {Sint16((*this)(r.x)), Sint16((*this)(r.y)), Uint16((*this)(r.w)),
                Uint16((*this)(r.h))};
    }

private:
    bool halved_;
};

// A bright colour at `turn` (0 to 1) round the colour wheel, dimmed by
// `light` (1 is full brightness).
KVT_RGBA Hue(double turn, double light = 1.0)
{
    double r = 0.5 + 0.5 * std::cos(2 * kPi * turn);
    double g = 0.5 + 0.5 * std::cos(2 * kPi * (turn - 1.0 / 3));
    double b = 0.5 + 0.5 * std::cos(2 * kPi * (turn - 2.0 / 3));
    return KVT_RGB(Uint8(255 * r * light), Uint8(255 * g * light), Uint8(255 * b * light), 0);
}

// A sunken well darker than the background, for the panel's content.
void PaintPanel(SDL_Surface *screen, const CUITheme &theme, const SDL_Rect &panel)
{
    KVT_FillRectAlpha(screen, panel.x, panel.y, panel.w, panel.h, KVT_RGB(14, 18, 26, 120));
    theme.DrawFrame(screen, panel.x, panel.y, panel.w, panel.h, CUIFrame::SunkenRest);
}

// Raised buttons in the four frame kinds, then frames nested inside each
// other, then frames shrinking to a single pixel.
void PaintFrames(SDL_Surface *screen, const CUITheme &theme, const Lengths &l)
{
    const CUIFrame kinds[] = {CUIFrame::Rest, CUIFrame::Active, CUIFrame::Sunken,
                              CUIFrame::SunkenRest};
    const SDL_Rect panel = l(kFramesPanel);
    int x = panel.x + l(16), y = panel.y + l(14);
    for (int i = 0; i < 4; ++i) {
        int left = x + i * l(68);
        KVT_FillRectAlpha(screen, left + 1, y + 1, l(60) - 2, l(40) - 2, theme.faceColor);
        theme.DrawFrame(screen, left, y, l(60), l(40), kinds[i]);
    }
    int top = y + l(54);
    for (int ring = 0; ring < 8; ++ring) {
        int inset = ring * l(4);
        theme.DrawFrame(screen, x + inset, top + inset, l(128) - 2 * inset, l(60) - 2 * inset,
                        kinds[ring % 4]);
    }
    for (int i = 0, left = x + l(140); i < 8; ++i) {
        int size = std::max(1, l(22 - 3 * i));
        theme.DrawFrame(screen, left, top + l(30) - size / 2, size, size, kinds[i % 2]);
        left += size + l(4);
    }
}

// Horizontal ramps stacked into colour bands, a 2-D gradient built from
// horizontal ramps whose ends move, and vertical ramps side by side.
void PaintRamps(SDL_Surface *screen, const Lengths &l)
{
    const SDL_Rect panel = l(kRampsPanel);
    const int x = panel.x + l(12), y = panel.y + l(12), rows = l(112);
    for (int row = 0; row < rows; ++row) {
        KVT_RGBA first = Hue(row / double(rows), 0.9);
        KVT_RGBA last = KVT_RGB(20, 24, 34, 0);
        KVT_HorzLineShade(screen, Sint16(x), Sint16(y + row), Sint16(l(100)), first, last);
    }
    int gx = x + l(108);
    for (int row = 0; row < rows; ++row) {
        Uint8 t = Uint8(row * 255 / (rows - 1));
        KVT_HorzLineShade(screen, Sint16(gx), Sint16(y + row), Sint16(l(80)),
                          KVT_RGB(255 - t, t / 2, 40, 0), KVT_RGB(30, 255 - t, t, 0));
    }
    const int vx = gx + l(88), columns = l(80);
    for (int column = 0; column < columns; ++column) {
        KVT_RGBA top = column % l(20) < l(10) ? KVT_RGB(245, 245, 250, 0)
                                              : Hue(column / double(columns));
        KVT_VertLineShade(screen, Sint16(vx + column), Sint16(y), Sint16(rows), top,
                          KVT_RGB(0, 0, 0, 0));
    }
}

// Stripes, then the same white fill at alphas from 0 (the colour) up to
// 255 (the stripes), in bars and in a smooth row of steps.
void PaintFills(SDL_Surface *screen, const Lengths &l)
{
    const SDL_Rect panel = l(kFillsPanel);
    const int x = panel.x + l(12), y = panel.y + l(12), w = l(272), h = l(112);
    for (int stripe = 0; stripe * l(8) < w; ++stripe)
        KVT_FillRect(screen, x + stripe * l(8), y, l(8), h,
                     Hue(stripe / 34.0, stripe % 2 ? 0.55 : 0.95));
    const Uint8 alphas[] = {0, 64, 128, 192, 240};
    for (int i = 0; i < 5; ++i)
        KVT_FillRectAlpha(screen, x + l(8) + i * l(53), y + l(8), l(46), l(52),
                          KVT_RGB(250, 250, 255, alphas[i]));
    for (int step = 0; step < 32; ++step) {
        Uint8 alpha = Uint8(step * 255 / 31);
        const int left = x + l(8) + step * l(8);
        KVT_FillRectAlpha(screen, left, y + l(72), l(8), l(16), KVT_RGB(0, 0, 0, alpha));
        KVT_FillRectAlpha(screen, left, y + l(88), l(8), l(16), KVT_RGB(40, 90, 200, alpha));
    }
}

// A star of antialiased lines in every direction, and a curve enveloped
// by straight antialiased strings, over a grid of plain lines.
void PaintLines(SDL_Surface *screen, const Lengths &l)
{
    const SDL_Rect panel = l(kLinesPanel);
    const int x = panel.x + l(12), y = panel.y + l(12);
    for (int i = 0; i <= l(112); i += l(16)) {
        KVT_HorzLine(screen, Sint16(x), Sint16(y + i), Sint16(l(272)), KVT_RGB(52, 60, 78, 0));
        KVT_VertLine(screen, Sint16(x + i), Sint16(y), Sint16(l(112)), KVT_RGB(52, 60, 78, 0));
    }
    const int cx = x + l(56), cy = y + l(56);
    const int spokes = 48;
    for (int i = 0; i < spokes; ++i) {
        double angle = 2 * kPi * i / spokes;
        int length = i % 2 ? l(38) : l(54);
        KVT_Line(screen, cx, cy, cx + int(std::lround(length * std::cos(angle))),
                 cy + int(std::lround(length * std::sin(angle))), Hue(double(i) / spokes));
    }
    const int left = x + l(136), bottom = y + l(111);
    for (int i = 0; i <= 16; ++i)
        KVT_Line(screen, left, y + i * l(7), left + l(8) + i * l(8), bottom,
                 Hue(0.55 + i / 48.0, 0.95));
    KVT_HorzLine(screen, Sint16(left), Sint16(bottom), Sint16(l(136)), KVT_RGB(230, 236, 245, 0));
    KVT_VertLine(screen, Sint16(left), Sint16(y), Sint16(l(112)), KVT_RGB(230, 236, 245, 0));
}

// Solid swatches with outlines, and outlines nested to a target.
void PaintRects(SDL_Surface *screen, const Lengths &l)
{
    const SDL_Rect panel = l(kRectsPanel);
    const int x = panel.x + l(12), y = panel.y + l(12);
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 6; ++column) {
            int left = x + column * l(24), top = y + row * l(30);
            KVT_FillRect(screen, left, top, l(20), l(26),
                         Hue(column / 6.0 + row / 24.0, 1 - row * 0.2));
            KVT_Rect(screen, left, top, l(20), l(26), KVT_RGB(235, 240, 250, 0));
        }
    }
    const int cx = x + l(210), cy = y + l(58);
    for (int ring = 0; ring < 14; ++ring) {
        int half = l(56 - ring * 4);
        KVT_Rect(screen, cx - half, cy - half, 2 * half, 2 * half,
                 ring % 2 ? KVT_RGB(230, 70, 60, 0) : KVT_RGB(240, 240, 245, 0));
    }
    KVT_FillRect(screen, cx - l(2), cy - l(2), l(4), l(4), KVT_RGB(230, 70, 60, 0));
}

// The ball at its own size through SDL's colour key, and twice as large
// through KVT_DoubleSizeBlit, all letting the background show through.
void PaintBlits(SDL_Surface *screen, const CUITheme &theme, SDL_Surface *ball, const Lengths &l)
{
    const SDL_Rect panel = l(kBlitPanel);
    const int x = panel.x + l(12), y = panel.y + l(12);
    SDL_Rect well = {Sint16(x), Sint16(y), Uint16(l(272)), Uint16(l(120))};
    theme.DrawBackground(screen, &well);
    // Stripes under the first two, the plain tile under the third: the
    // enlarged one softens what shows through, which only stripes reveal.
    for (int stripe = 0; stripe < 8; ++stripe)
        KVT_FillRectAlpha(screen, x, y + stripe * l(15), l(172), l(7),
                          KVT_RGB(200, 170, 90, 150));
    SDL_Rect small = {Sint16(x + l(20)), Sint16(y + l(40)), 0, 0};
    SDL_BlitSurface(ball, nullptr, screen, &small);
    KVT_DoubleSizeBlit(ball, screen, x + l(90), y + l(20));
    KVT_DoubleSizeBlit(ball, screen, x + l(180), y + l(20));
    theme.DrawFrame(screen, x + l(180) - 1, y + l(20) - 1, 2 * ball->w + 1, 2 * ball->h + 1,
                    CUIFrame::Active);
}

} // namespace

void PaintDrawingScene(SDL_Surface *screen, Assets &assets)
{
    const CUITheme &theme = assets.theme;
    const Lengths l(LayoutOf(screen));
    SDL_Rect whole = {0, 0, Uint16(screen->w), Uint16(screen->h)};
    theme.DrawBackground(screen, &whole);
    for (const SDL_Rect &panel :
         {kFramesPanel, kRampsPanel, kFillsPanel, kLinesPanel, kRectsPanel, kBlitPanel})
        PaintPanel(screen, theme, l(panel));
    PaintFrames(screen, theme, l);
    PaintRamps(screen, l);
    PaintFills(screen, l);
    PaintLines(screen, l);
    PaintRects(screen, l);
    PaintBlits(screen, theme, assets.ball, l);
}

} // namespace kvt_demo
