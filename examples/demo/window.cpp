#include "window.h"

#include <memory>

#include "scenes.h"

namespace kvt_demo {

namespace {

// The scene on show: a still picture, or a live scene that hears events.
class Shown {
public:
    Shown(SDL_Surface *screen, Assets &assets) : screen_(screen), assets_(assets) {}

    void Show(const Scene &scene)
    {
        live_.reset(); // its widgets go before the next scene paints
        if (scene.start) {
            live_ = scene.start(screen_, assets_);
            return;
        }
        scene.paint(screen_, assets_);
        SDL_UpdateRect(screen_, 0, 0, 0, 0);
    }
    bool Keeps(SDLKey key) const { return live_ && live_->KeepsKey(key); }
    void Pass(SDL_Event *event)
    {
        if (live_)
            live_->HandleEvent(event, screen_);
    }

private:
    SDL_Surface *screen_;
    Assets &assets_;
    std::unique_ptr<LiveScene> live_;
};

size_t IndexOf(const std::vector<Scene> &scenes, const std::string &name)
{
    for (size_t i = 0; i < scenes.size(); ++i)
        if (name == scenes[i].name)
            return i;
    return 0;
}

} // namespace

void RunWindow(SDL_Surface *screen, Assets &assets, const std::string &firstScene)
{
    const std::vector<Scene> scenes = ScenesFor(assets, LayoutOf(screen));
    const size_t count = scenes.size();
    // The main screen first, unless a scene is named.
    size_t index = IndexOf(scenes, firstScene.empty() ? "main" : firstScene);
    Shown shown(screen, assets);
    shown.Show(scenes[index]);
    SDL_Event event;
    while (SDL_WaitEvent(&event)) {
        if (event.type == SDL_QUIT)
            return;
        if (event.type == SDL_VIDEOEXPOSE) {
            SDL_UpdateRect(screen, 0, 0, 0, 0);
            continue;
        }
        if (event.type == SDL_KEYDOWN) {
            SDLKey key = event.key.keysym.sym;
            if (key == SDLK_ESCAPE)
                return;
            const bool sceneKey = key == SDLK_SPACE || key == SDLK_RIGHT || key == SDLK_LEFT;
            if (sceneKey && !shown.Keeps(key)) {
                index = (key == SDLK_LEFT ? index + count - 1 : index + 1) % count;
                shown.Show(scenes[index]);
                continue;
            }
        }
        shown.Pass(&event);
    }
}

} // namespace kvt_demo
