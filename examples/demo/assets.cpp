#include "assets.h"

#include <cstdio>

#include <kvt/draw/pixel.h>

#include "pictures.h"
#include "scenes.h"
#include "sprite_pictures.h"

namespace kvt_demo {

Assets::~Assets()
{
    SDL_FreeSurface(tile);
    SDL_FreeSurface(ball);
    font.FreeFrames();
    accentFont.FreeFrames();
    titleFont.FreeFrames();
    shapes.FreeFrames();
    icons.FreeFrames();
}

// The fonts' glyphs are white; this paints every pixel that is not the
// colour key in `colour`, giving the same font in another ink.
static void Tint(KVT_Sprite *font, Uint8 r, Uint8 g, Uint8 b)
{
    for (Uint32 i = 0; i < font->GetNbFrames(); ++i) {
        SDL_Surface *glyph = font->GetFrameSurface(int(i));
        Uint8 kr, kg, kb, pr, pg, pb;
        SDL_GetRGB(glyph->format->colorkey, glyph->format, &kr, &kg, &kb);
        for (int y = 0; y < glyph->h; ++y)
            for (int x = 0; x < glyph->w; ++x) {
                KVT_GetPixel(glyph, Sint16(x), Sint16(y), &pr, &pg, &pb);
                if (pr != kr || pg != kg || pb != kb)
                    KVT_SetPixel(glyph, Sint16(x), Sint16(y), r, g, b);
            }
    }
}

static bool LoadFont(const std::string &path, SDL_Surface *screen, KVT_Sprite *font)
{
    if (font->Load(path.c_str(), screen->format))
        return true;
    std::fprintf(stderr, "cannot read the sprite font %s (use --fonts DIR)\n", path.c_str());
    return false;
}

static bool LoadFonts(const std::string &fontsDir, SDL_Surface *screen, Assets *assets)
{
    if (fontsDir.empty()) {
        std::fprintf(stderr, "the demo was built without sprite fonts: no text scene\n");
        return true;
    }
    const std::string body = fontsDir + "/demo-font.spr";
    if (!LoadFont(body, screen, &assets->font) || !LoadFont(body, screen, &assets->accentFont) ||
        !LoadFont(fontsDir + "/demo-title-font.spr", screen, &assets->titleFont))
        return false;
    Tint(&assets->accentFont, 250, 196, 92);
    Tint(&assets->titleFont, 250, 196, 92);
    return true;
}

bool LoadAssets(const std::string &dataDir, const std::string &fontsDir, SDL_Surface *screen,
                Assets *assets)
{
    std::string themePath = dataDir + "/default.theme";
    if (!assets->theme.Load(themePath.c_str(), screen)) {
        std::fprintf(stderr, "cannot read the theme %s (use --data DIR)\n", themePath.c_str());
        return false;
    }
    if (!LoadFonts(fontsDir, screen, assets))
        return false;
    assets->tile = CreateBackgroundTile();
    assets->ball = CreateBall(LayoutOf(screen) == Layout::kDesktop ? 40 : 20);
    if (!assets->tile || !assets->ball || !CreateShapeSprite(&assets->shapes) ||
        !CreateIconSprite(&assets->icons)) {
        std::fprintf(stderr, "cannot make the demo's pictures: %s\n", SDL_GetError());
        return false;
    }
    assets->theme.background = assets->tile;
    return true;
}

} // namespace kvt_demo
