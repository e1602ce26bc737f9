#ifndef KVT_DEMO_ASSETS_H
#define KVT_DEMO_ASSETS_H

#include <string>

#include <SDL.h>

#include <kvt/sprite/sprite.h>
#include <kvt/ui/core/theme.h>

namespace kvt_demo {

// What every scene may draw with: the theme read from default.theme, with
// the procedural tile as its background, the small ball picture, the
// sprite fonts and a sprite of the demo's own shapes.
struct Assets {
    CUITheme theme;
    SDL_Surface *tile = nullptr;
    // 40 pixels across in the desktop layout, 20 in the handheld one,
    // whose drawing scene is the desktop one at half the size.
    SDL_Surface *ball = nullptr;
    // Made at build time by `kvt-sprite font`: body text in white, the
    // same glyphs in amber for labels, and a larger font for titles. All
    // three are empty when the demo was built without fonts.
    KVT_Sprite font;
    KVT_Sprite accentFont;
    KVT_Sprite titleFont;
    // Frames drawn by the demo, each with its anchor somewhere else.
    KVT_Sprite shapes;
    // The same pictures centred in equal squares, for buttons.
    KVT_Sprite icons;

    bool HasFonts() const { return font.GetNbFrames() > 0; }

    Assets() = default;
    Assets(const Assets &) = delete;
    Assets &operator=(const Assets &) = delete;
    ~Assets();
};

// Loads dataDir/default.theme, the sprite fonts of fontsDir (none when it
// is empty) and makes the pictures. On failure prints what went wrong and
// answers false.
bool LoadAssets(const std::string &dataDir, const std::string &fontsDir, SDL_Surface *screen,
                Assets *assets);

} // namespace kvt_demo

#endif
