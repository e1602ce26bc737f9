// A first kvt program: a window with two buttons. "Open..." shows the
// open-file dialog on the current folder and prints the name chosen;
// "Quit", Escape or closing the window ends it.
//
// usage: kvt-guide THEME FONT
//   e.g. kvt-guide data/default.theme build/data/demo-font.spr
#include <cstdio>

#include <kvt/kvt.h>

enum { kOpen, kQuit, kWidgets }; // a widget's index: Tab order and GetClicked

static int Run(SDL_Surface *display, const char *themePath, const char *fontPath)
{
    // The theme holds the colours of every frame (a 20-byte file); its
    // background tile is the application's, here one plain 8x8 surface.
    CUITheme theme;
    KVT_Sprite font; // a sprite font made with `kvt-sprite font`; freed by FreeFrames
    SDL_Surface *tile = SDL_CreateRGBSurface(SDL_SWSURFACE, 8, 8, 32, 0xFF0000, 0xFF00, 0xFF, 0);
    if (!tile || !theme.Load(themePath, display) || !font.Load(fontPath, display->format)) {
        std::fprintf(stderr, "cannot load %s or %s\n", themePath, fontPath);
        font.FreeFrames();
        SDL_FreeSurface(tile);
        return 1;
    }
    KVT_FillRect(tile, 0, 0, 8, 8, KVT_RGB(40, 48, 64, 0));
    theme.background = tile;

    // A screen holds pointers to widgets that the application owns.
    CUINormalButton open(20, 196, 130, 28, &theme, &font, "Open...", true);
    CUINormalButton quit(170, 196, 130, 28, &theme, &font, "Quit", true);
    CUIScreen screen(kWidgets);
    screen.widgets[kOpen] = &open;
    screen.widgets[kQuit] = &quit;

    SDL_Rect whole = {0, 0, Uint16(display->w), Uint16(display->h)};
    theme.DrawBackground(display, &whole);
    KVT_DisplayText(display, &font, 20, 20, "Hello from kvt");
    screen.DrawScreen(display);       // draws the widgets; the focus starts on Open...
    SDL_UpdateRect(display, 0, 0, 0, 0); // showing the pixels is the application's part

    // The application owns the event loop and hands each event to the
    // screen, which moves the focus, presses buttons and redraws them.
    SDL_Event event;
    while (SDL_WaitEvent(&event)) {
        if (event.type == SDL_QUIT ||
            (event.type == SDL_KEYDOWN && event.key.keysym.sym == SDLK_ESCAPE))
            break;
        screen.ProcessDefaultEvent(&event, display);
        if (screen.GetClicked() == kQuit)
            break;
        if (screen.GetClicked() == kOpen) {
            // Modal: takes every event until OK or Cancel, then puts the
            // pixels under it back. "" lists every name of the folder.
            char name[KVT_DIALOG_RESULT_SIZE];
            if (KVT_OpenFileDialog(display, 10, 10, 300, 220, &theme, &font, "Open a file", "OK",
                                   "Cancel", name, ""))
                std::printf("chosen: %s\n", name);
            else
                std::printf("no file chosen\n");
        }
    }
    font.FreeFrames();
    SDL_FreeSurface(tile);
    return 0;
}

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: kvt-guide THEME FONT\n");
        return 2;
    }
    if (SDL_Init(SDL_INIT_VIDEO) != 0)
        return 1;
    SDL_EnableUNICODE(1); // key presses carry their characters, for text fields
    SDL_Surface *display = SDL_SetVideoMode(320, 240, 32, SDL_SWSURFACE);
    int status = display ? Run(display, argv[1], argv[2]) : 1;
    SDL_Quit();
    return status;
}
