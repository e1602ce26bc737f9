// A program that knows kvt only as an installed package: it includes the
// umbrella header, draws on a small surface and reads the result back.
// Exit code 0 means the headers, the shared library and SDL all fitted.
#include <cstdio>
#include <cstdlib>

#include <kvt/kvt.h>

static bool DrawAndCheck(SDL_Surface *surface)
{
    // Grey 100 under a translucent fill: (200 * 127 + 100 * 128) >> 8 = 149.
    SDL_FillRect(surface, nullptr, SDL_MapRGB(surface->format, 100, 100, 100));
    KVT_FillRectAlpha(surface, 2, 2, 4, 4, KVT_RGB(200, 200, 200, 128));
    Uint8 r = 0, g = 0, b = 0;
    KVT_GetPixel(surface, 3, 3, &r, &g, &b);
    if (r != 149 || g != 149 || b != 149) {
        std::fprintf(stderr, "blended pixel is (%d, %d, %d), expected (149, 149, 149)\n", r, g, b);
        return false;
    }
    KVT_GetPixel(surface, 7, 7, &r, &g, &b);
    if (r != 100) {
        std::fprintf(stderr, "pixel outside the fill changed to red %d\n", r);
        return false;
    }
    return true;
}

int main(int, char **)
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    if (SDL_Init(SDL_INIT_VIDEO) != 0) {
        std::fprintf(stderr, "SDL_Init: %s\n", SDL_GetError());
        return 2;
    }
    SDL_Surface *surface =
        SDL_CreateRGBSurface(SDL_SWSURFACE, 8, 8, 32, 0xFF0000, 0x00FF00, 0x0000FF, 0);
    bool ok = surface && DrawAndCheck(surface);
    SDL_FreeSurface(surface);
    SDL_Quit();
    return ok ? 0 : 1;
}
