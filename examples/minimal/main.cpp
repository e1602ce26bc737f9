// The smallest useful kvt program: draws on a surface of its own and saves
// it as minimal.bmp. Plain surfaces need no display and no SDL_Init.
#include <kvt/kvt.h>

int main()
{
    SDL_Surface *surface =
        SDL_CreateRGBSurface(SDL_SWSURFACE, 160, 120, 32, 0xFF0000, 0x00FF00, 0x0000FF, 0);
    if (!surface)
        return 1;
    KVT_FillRect(surface, 0, 0, 160, 120, KVT_RGB(40, 48, 64, 0));
    // A bevel from light (top left) to dark (bottom right) round a
    // translucent face, and an antialiased line across it.
    KVT_RectShade(surface, 10, 10, 140, 100, KVT_RGB(214, 228, 248, 0),
                  KVT_RGB(126, 147, 180, 0), KVT_RGB(38, 66, 112, 0));
    KVT_FillRectAlpha(surface, 11, 11, 138, 98, KVT_RGB(122, 138, 162, 72));
    KVT_Line(surface, 20, 100, 140, 20, KVT_RGB(255, 200, 60, 0));
    int saved = SDL_SaveBMP(surface, "minimal.bmp");
    SDL_FreeSurface(surface);
    return saved == 0 ? 0 : 1;
}
