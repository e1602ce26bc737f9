#include "window.h"

#include "scenes.h"

namespace kvt_demo {

static void Show(SDL_Surface *screen, Assets &assets, const Scene &scene)
{
    scene.paint(screen, assets);
    SDL_UpdateRect(screen, 0, 0, 0, 0);
}

void RunWindow(SDL_Surface *screen, Assets &assets)
{
    const std::vector<Scene> scenes = ScenesFor(assets);
    const size_t count = scenes.size();
    size_t index = 0;
    Show(screen, assets, scenes[index]);
    SDL_Event event;
    while (SDL_WaitEvent(&event)) {
        if (event.type == SDL_QUIT)
            return;
        if (event.type == SDL_VIDEOEXPOSE) {
            SDL_UpdateRect(screen, 0, 0, 0, 0);
        } else if (event.type == SDL_KEYDOWN) {
            SDLKey key = event.key.keysym.sym;
            if (key == SDLK_ESCAPE)
                return;
            if (key == SDLK_SPACE || key == SDLK_RIGHT) {
                index = (index + 1) % count;
                Show(screen, assets, scenes[index]);
            } else if (key == SDLK_LEFT) {
                index = (index + count - 1) % count;
                Show(screen, assets, scenes[index]);
            }
        }
    }
}

} // namespace kvt_demo
