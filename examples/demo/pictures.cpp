#include "pictures.h"

#include <algorithm>
#include <cmath>

#include <kvt/draw/pixel.h>

namespace kvt_demo {

static const double kPi = 3.14159265358979323846;

static SDL_Surface *CreateRgbSurface(int width, int height)
{
    return SDL_CreateRGBSurface(SDL_SWSURFACE, width, height, 32, 0xFF0000, 0x00FF00, 0x0000FF,
                                0);
}

static Uint8 ClampByte(double value)
{
    return Uint8(std::min(255.0, std::max(0.0, value)));
}

// A small integer hash: the same grain on every run, and no state.
static int Grain(int x, int y)
{
    unsigned h = unsigned(x) * 374761393u + unsigned(y) * 668265263u;
    h = (h ^ (h >> 13)) * 1274126177u;
    return int((h ^ (h >> 16)) & 7u);
}

SDL_Surface *CreateBackgroundTile()
{
    const int size = 64;
    SDL_Surface *tile = CreateRgbSurface(size, size);
    if (!tile)
        return nullptr;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            double relief = std::sin(2 * kPi * x / size) * std::cos(2 * kPi * y / size);
            double weave = ((x + y) % 16 == 0 || (x - y + size) % 16 == 0) ? 5 : 0;
            double light = relief * 7 + weave + Grain(x, y) - 4;
            KVT_SetPixel(tile, Sint16(x), Sint16(y), ClampByte(52 + light), ClampByte(60 + light),
                         ClampByte(74 + light * 1.2));
        }
    }
    return tile;
}

// The ball's colour at a point of the unit disc (nx, ny): diffuse light
// from the top left, a specular spot, and a cool rim.
static void ShadeBall(double nx, double ny, Uint8 *r, Uint8 *g, Uint8 *b)
{
    double nz = std::sqrt(std::max(0.0, 1 - nx * nx - ny * ny));
    double diffuse = std::max(0.0, -0.45 * nx - 0.55 * ny + 0.70 * nz);
    double spot = std::pow(std::max(0.0, -0.30 * nx - 0.40 * ny + 0.87 * nz), 40);
    double rim = std::pow(1 - nz, 3);
    *r = ClampByte(40 + 150 * diffuse + 255 * spot + 30 * rim);
    *g = ClampByte(70 + 140 * diffuse + 255 * spot + 90 * rim);
    *b = ClampByte(110 + 130 * diffuse + 255 * spot + 140 * rim);
}

SDL_Surface *CreateBall(int size)
{
    const double radius = size / 2.0 - 1;
    SDL_Surface *ball = CreateRgbSurface(size, size);
    if (!ball)
        return nullptr;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            double nx = (x + 0.5 - size / 2.0) / radius;
            double ny = (y + 0.5 - size / 2.0) / radius;
            bool inSlot = std::fabs(ny - 0.25) < 0.12 && std::fabs(nx) < 0.6;
            Uint8 r = 255, g = 0, b = 255;
            if (nx * nx + ny * ny <= 1 && !inSlot)
                ShadeBall(nx, ny, &r, &g, &b);
            KVT_SetPixel(ball, Sint16(x), Sint16(y), r, g, b);
        }
    }
    SDL_SetColorKey(ball, SDL_SRCCOLORKEY, SDL_MapRGB(ball->format, 255, 0, 255));
    return ball;
}

} // namespace kvt_demo
