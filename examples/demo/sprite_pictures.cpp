#include "sprite_pictures.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>

#include <kvt/draw/pixel.h>

#include "pictures.h"

namespace kvt_demo {

namespace {

// Colour of a pixel centre, or false where the picture is transparent.
using Shader = std::function<bool(double x, double y, Uint8 *r, Uint8 *g, Uint8 *b)>;

Uint8 Clamp(double value) { return Uint8(std::min(255.0, std::max(0.0, value))); }

// A w x h picture painted by `shade`, magenta and colour-keyed elsewhere.
SDL_Surface *Paint(int w, int h, const Shader &shade)
{
    SDL_Surface *s = SDL_CreateRGBSurface(SDL_SWSURFACE, w, h, 32, 0xFF0000, 0xFF00, 0xFF, 0);
    if (!s)
        return nullptr;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            Uint8 r = 255, g = 0, b = 255;
            if (!shade(x + 0.5, y + 0.5, &r, &g, &b))
                r = 255, g = 0, b = 255;
            KVT_SetPixel(s, Sint16(x), Sint16(y), r, g, b);
        }
    SDL_SetColorKey(s, SDL_SRCCOLORKEY, SDL_MapRGB(s->format, 255, 0, 255));
    return s;
}

// A map pin: a round head with a hole, narrowing to a point at the bottom.
bool ShadePin(double x, double y, Uint8 *r, Uint8 *g, Uint8 *b)
{
    const double dx = x - 14, dy = y - 14, d = std::sqrt(dx * dx + dy * dy);
    const bool head = d <= 13;
    const bool tail = y > 14 && std::fabs(dx) <= 11.5 * (40 - y) / 26;
    if ((!head && !tail) || d < 4.5)
        return false;
    const double light = 1 - 0.5 * std::max(0.0, (dx + dy) / 26);
    *r = Clamp(235 * light + (d < 7 ? 20 : 0));
    *g = Clamp(70 * light);
    *b = Clamp(64 * light);
    return true;
}

// A flag on a pole, rippling, in two bands.
bool ShadeFlag(double x, double y, Uint8 *r, Uint8 *g, Uint8 *b)
{
    if (x < 4) {
        *r = *g = *b = Clamp(x < 2 ? 220 : 150);
        return true;
    }
    const double wave = 2.5 * std::sin(x / 5.0);
    const double top = 3 + wave, bottom = 24 + wave;
    if (y < top || y > bottom)
        return false;
    const double shade = 0.8 + 0.2 * std::cos(x / 5.0);
    const bool upper = y < (top + bottom) / 2;
    *r = Clamp((upper ? 70 : 245) * shade);
    *g = Clamp((upper ? 170 : 245) * shade);
    *b = Clamp((upper ? 240 : 250) * shade);
    return true;
}

// A cut gem: a diamond whose four facets catch the light differently.
bool ShadeGem(double x, double y, Uint8 *r, Uint8 *g, Uint8 *b)
{
    const double dx = x - 16, dy = y - 16;
    if (std::fabs(dx) + std::fabs(dy) > 15.5)
        return false;
    const double facet = (dx < 0 ? 0.0 : 0.35) + (dy < 0 ? 0.0 : 0.3);
    const bool table = std::fabs(dx) + std::fabs(dy) < 6;
    *r = Clamp(table ? 230 : 90 - 60 * facet);
    *g = Clamp(table ? 255 : 230 - 120 * facet);
    *b = Clamp(table ? 250 : 220 - 80 * facet);
    return true;
}

// A blue speech bubble with a light rim; its tail points down to the left.
bool ShadeBubble(double x, double y, Uint8 *r, Uint8 *g, Uint8 *b)
{
    const double cx = std::min(std::max(x, 8.0), 64.0), cy = std::min(std::max(y, 8.0), 20.0);
    const double corner = std::hypot(x - cx, y - cy);
    const bool body = corner <= 8;
    const bool tail = y > 27 && y < 36 && x > 4 + (y - 28) * 0.2 && x < 18 - (y - 28) * 1.6;
    if (!body && !tail)
        return false;
    const bool edge = body && corner > 6.5;
    *r = edge ? 214 : 52;
    *g = edge ? 222 : 86;
    *b = edge ? 238 : 142;
    return true;
}

struct Shape {
    SDL_Surface *surface;
    Sint16 hotX, hotY;
};

// Hands `count` pictures over to an empty sprite as its frames, or frees
// them all when one is missing or the frame table cannot be allocated.
bool Fill(KVT_Sprite *sprite, const Shape *shapes, int count)
{
    auto *frames = static_cast<KVT_SpriteFrame *>(std::malloc(sizeof(KVT_SpriteFrame) * count));
    bool complete = frames != nullptr;
    for (int i = 0; i < count; ++i)
        complete = complete && shapes[i].surface != nullptr;
    if (!complete) {
        for (int i = 0; i < count; ++i)
            SDL_FreeSurface(shapes[i].surface);
        std::free(frames);
        return false;
    }
    for (int i = 0; i < count; ++i)
        frames[i] = {Uint16(i), shapes[i].hotX, shapes[i].hotY, shapes[i].surface};
    sprite->frames = frames;
    sprite->nbFrames = Uint32(count);
    return true;
}

// The anchor that centres a w x h picture in a box whose top left corner
// is the anchor point: a negative anchor moves the picture right and down.
Shape Centred(SDL_Surface *surface, int w, int h, int box)
{
    return {surface, Sint16(-(box - w) / 2), Sint16(-(box - h) / 2)};
}

} // namespace

bool CreateShapeSprite(KVT_Sprite *sprite)
{
    const Shape shapes[kShapeFrames] = {
        {CreateBall(), 20, 20},
        {Paint(28, 40, ShadePin), 14, 39},
        {Paint(36, 44, ShadeFlag), 2, 43},
        {Paint(32, 32, ShadeGem), 0, 0},
        {Paint(72, 36, ShadeBubble), -6, 42},
    };
    return Fill(sprite, shapes, kShapeFrames);
}

bool CreateIconSprite(KVT_Sprite *sprite)
{
    const Shape icons[kIconFrames] = {
        Centred(CreateBall(), 40, 40, kIconBox),
        Centred(Paint(28, 40, ShadePin), 28, 40, kIconBox),
        Centred(Paint(36, 44, ShadeFlag), 36, 44, kIconBox),
        Centred(Paint(32, 32, ShadeGem), 32, 32, kIconBox),
    };
    return Fill(sprite, icons, kIconFrames);
}

} // namespace kvt_demo
