// The text scene: sprite-font text placed left, centred and running past
// the right edge; the frames of a sprite with their anchors marked; and
// frames shown cut by DisplayClipped and blended by DisplayAlpha.
#include <string>

#include <kvt/draw/lines.h>
#include <kvt/draw/pixel.h>
#include <kvt/draw/shade.h>
#include <kvt/sprite/sprite.h>
#include <kvt/sprite/text.h>
#include <kvt/ui/core/theme.h>

#include "scenes.h"
#include "sprite_pictures.h"

namespace kvt_demo {

namespace {

const SDL_Rect kTextPanel = {16, 50, 608, 152};
const SDL_Rect kEdgeBand = {0, 212, 640, 32};
const SDL_Rect kFramesPanel = {16, 254, 296, 210};
const SDL_Rect kBlendPanel = {328, 254, 296, 210};

const KVT_RGBA kMarker = KVT_RGB(255, 84, 72, 0);
const KVT_RGBA kGuide = KVT_RGB(120, 134, 160, 0);

int FontHeight(KVT_Sprite &font) { return font.GetFrameSurface(0)->h; }

// Text whose right end lands on `right`.
void DisplayTextRight(SDL_Surface *screen, KVT_Sprite &font, int right, int y, const char *text)
{
    KVT_DisplayText(screen, &font, right - KVT_GetTextWidth(&font, text), y, text);
}

// A sunken well with its title in the accent font.
void PaintPanel(SDL_Surface *screen, Assets &assets, const SDL_Rect &panel, const char *title)
{
    KVT_FillRectAlpha(screen, panel.x, panel.y, panel.w, panel.h, KVT_RGB(14, 18, 26, 120));
    assets.theme.DrawFrame(screen, panel.x, panel.y, panel.w, panel.h, CUIFrame::SunkenRest);
    KVT_DisplayText(screen, &assets.accentFont, panel.x + 10, panel.y + 6, title);
}

// A line of text with its measured width drawn under it, a span with
// the text centred between two marks, and buttons whose captions are
// centred in faces of several widths, the last one too narrow for it.
void PaintTextPanel(SDL_Surface *screen, Assets &assets)
{
    KVT_Sprite &font = assets.font;
    const int x = kTextPanel.x + 12, right = kTextPanel.x + kTextPanel.w - 12;
    int y = kTextPanel.y + 30;
    const char *sample = "Left: pack my box with five dozen liquor jugs.";
    KVT_DisplayText(screen, &font, x, y, sample);
    const int width = KVT_GetTextWidth(&font, sample);
    KVT_HorzLineShade(screen, Sint16(x), Sint16(y + FontHeight(font)), Sint16(width),
                      KVT_RGB(250, 196, 92, 0), KVT_RGB(90, 70, 40, 0));
    const std::string measure = "KVT_GetTextWidth: " + std::to_string(width) + " pixels";
    DisplayTextRight(screen, assets.accentFont, right, y, measure.c_str());

    y += 34;
    KVT_VertLine(screen, Sint16(x), Sint16(y - 2), Sint16(FontHeight(font) + 4), kMarker);
    KVT_VertLine(screen, Sint16(right - 1), Sint16(y - 2), Sint16(FontHeight(font) + 4), kMarker);
    KVT_HorzLine(screen, Sint16(x), Sint16(y + FontHeight(font) / 2), Sint16(right - x), kGuide);
    const std::string centred =
        " Centred in a span of " + std::to_string(right - x) + " pixels between the marks ";
    const int textWidth = KVT_GetTextWidth(&font, centred.c_str());
    KVT_FillRect(screen, x + (right - x - textWidth) / 2, y, textWidth, FontHeight(font),
                 KVT_RGB(30, 36, 50, 0));
    KVT_DisplayTextCenter(screen, &font, x, y, right - x, centred.c_str());

    y += 34;
    const struct {
        int left, width;
        const char *caption;
    } buttons[] = {{0, 100, "OK"}, {112, 100, "Cancel"}, {224, 150, "Apply to all files"},
                   {452, 80, "Far too long for this"}};
    for (const auto &button : buttons) {
        const int left = x + button.left;
        KVT_FillRectAlpha(screen, left + 1, y + 1, button.width - 2, 26, assets.theme.faceColor);
        assets.theme.DrawFrame(screen, left, y, button.width, 28, CUIFrame::Rest);
        KVT_DisplayTextCenter(screen, &font, left, y + (28 - FontHeight(font)) / 2, button.width,
                              button.caption);
    }
}

// A dark band across the whole picture whose text starts in the middle
// and runs off the right edge: the last glyph is cut, the rest not drawn.
void PaintEdgeBand(SDL_Surface *screen, Assets &assets)
{
    KVT_FillRectAlpha(screen, kEdgeBand.x, kEdgeBand.y, kEdgeBand.w, kEdgeBand.h,
                      KVT_RGB(6, 8, 12, 90));
    KVT_HorzLine(screen, 0, Sint16(kEdgeBand.y), Sint16(kEdgeBand.w), KVT_RGB(90, 102, 126, 0));
    KVT_HorzLine(screen, 0, Sint16(kEdgeBand.y + kEdgeBand.h - 1), Sint16(kEdgeBand.w),
                 KVT_RGB(90, 102, 126, 0));
    const int y = kEdgeBand.y + (kEdgeBand.h - FontHeight(assets.font)) / 2;
    KVT_DisplayText(screen, &assets.accentFont, 28, y, "Past the right edge:");
    KVT_DisplayText(screen, &assets.font, 212, y,
                    "this line runs on past the edge of the surface, which cuts "
                    "the last glyph, and what follows is never drawn at all");
}

// A small red cross on the point where a frame's anchor landed.
void MarkAnchor(SDL_Surface *screen, int x, int y)
{
    KVT_HorzLine(screen, Sint16(x - 5), Sint16(y), 11, kMarker);
    KVT_VertLine(screen, Sint16(x), Sint16(y - 5), 11, kMarker);
}

// One frame shown with its anchor on (x, y): the frame's box outlined,
// the anchor crossed, and the anchor's coordinates written below.
void ShowAnchored(SDL_Surface *screen, Assets &assets, int frame, int x, int y, int labelY)
{
    KVT_Sprite &shapes = assets.shapes;
    const KVT_SpriteFrame &f = shapes.frames[frame];
    KVT_Rect(screen, x - f.hotX - 1, y - f.hotY - 1, f.surface->w + 2, f.surface->h + 2, kGuide);
    shapes.Display(screen, Sint16(x), Sint16(y), Uint32(frame));
    MarkAnchor(screen, x, y);
    const std::string label = std::to_string(f.hotX) + "," + std::to_string(f.hotY);
    KVT_DisplayTextCenter(screen, &assets.font, x - 30, labelY, 60, label.c_str());
}

void PaintFramesPanel(SDL_Surface *screen, Assets &assets)
{
    const int x = kFramesPanel.x, y = kFramesPanel.y;
    const int line = y + 96;
    KVT_HorzLine(screen, Sint16(x + 10), Sint16(line), Sint16(kFramesPanel.w - 20), kGuide);
    ShowAnchored(screen, assets, kBallFrame, x + 38, line, line + 24);
    ShowAnchored(screen, assets, kPinFrame, x + 104, line, line + 24);
    ShowAnchored(screen, assets, kFlagFrame, x + 162, line, line + 24);
    ShowAnchored(screen, assets, kGemFrame, x + 222, line - 48, line + 24);
    ShowAnchored(screen, assets, kBubbleFrame, x + 38, y + 196, y + 150);
    const KVT_SpriteFrame &bubble = assets.shapes.frames[kBubbleFrame];
    KVT_DisplayTextCenter(screen, &assets.font, x + 38 - bubble.hotX, y + 196 - bubble.hotY + 6,
                          bubble.surface->w, "Hello!");
    KVT_DisplayText(screen, &assets.accentFont, x + 128, y + 150, "An anchor may lie");
    KVT_DisplayText(screen, &assets.accentFont, x + 128, y + 168, "outside its frame.");
}

// Stripes behind the blended frames, so that what shows through is plain.
void PaintStripes(SDL_Surface *screen, int x, int y, int w, int h)
{
    for (int stripe = 0; stripe * 8 < w; ++stripe)
        KVT_FillRect(screen, x + stripe * 8, y, 4, h, KVT_RGB(200, 170, 90, 0));
}

void PaintBlendPanel(SDL_Surface *screen, Assets &assets)
{
    KVT_Sprite &shapes = assets.shapes;
    const int x = kBlendPanel.x + 12, y = kBlendPanel.y + 30;
    const Uint16 clips[][2] = {{40, 40}, {40, 26}, {26, 40}, {20, 20}, {40, 8}};
    for (int i = 0; i < 5; ++i) {
        const int cx = x + 24 + i * 56, cy = y + 24;
        KVT_Rect(screen, cx - 21, cy - 21, clips[i][0] + 2, clips[i][1] + 2, kGuide);
        shapes.DisplayClipped(screen, Sint16(cx), Sint16(cy), clips[i][0], clips[i][1], kBallFrame);
        const std::string label = std::to_string(clips[i][0]) + "x" + std::to_string(clips[i][1]);
        KVT_DisplayTextCenter(screen, &assets.font, cx - 28, cy + 24, 56, label.c_str());
    }
    const int by = y + 100;
    PaintStripes(screen, x, by, kBlendPanel.w - 24, 48);
    const Uint8 alphas[] = {255, 192, 128, 64, 24};
    for (int i = 0; i < 5; ++i) {
        const int cx = x + 24 + i * 56;
        shapes.DisplayAlpha(screen, Sint16(cx), Sint16(by + 24), kBallFrame, alphas[i]);
        const std::string label = std::to_string(alphas[i]);
        KVT_DisplayTextCenter(screen, &assets.font, cx - 28, by + 54, 56, label.c_str());
    }
}

} // namespace

void PaintTextScene(SDL_Surface *screen, Assets &assets)
{
    SDL_Rect whole = {0, 0, Uint16(screen->w), Uint16(screen->h)};
    assets.theme.DrawBackground(screen, &whole);
    KVT_DisplayText(screen, &assets.titleFont, 16, 12, "Sprites and sprite-font text");
    DisplayTextRight(screen, assets.font, 624, 20, "fonts made by kvt-sprite");
    PaintPanel(screen, assets, kTextPanel, "KVT_DisplayText, KVT_DisplayTextCenter");
    PaintPanel(screen, assets, kFramesPanel, "Display: frames on their anchors");
    PaintPanel(screen, assets, kBlendPanel, "DisplayClipped and DisplayAlpha");
    PaintTextPanel(screen, assets);
    PaintEdgeBand(screen, assets);
    PaintFramesPanel(screen, assets);
    PaintBlendPanel(screen, assets);
}

} // namespace kvt_demo
