#ifndef KVT_DEMO_SCENES_H
#define KVT_DEMO_SCENES_H

// The demo is a list of scenes. Each paints one picture of the whole
// screen from scratch; the headless run writes it to <name>.png, the
// window shows it. A new capability joins the demo by adding its paint
// function to the list in scenes.cpp. A scene of widgets also plays a
// script of events headless, writing several pictures, and reacts to
// input in the window.

#include <memory>
#include <string>
#include <vector>

#include <SDL.h>

#include "assets.h"

namespace kvt_demo {

// How a scene arranges itself. The desktop layout takes 640x480; the
// handheld one takes 320x240, the screen of the SDL 1.2 handhelds, where
// a scene shows less or smaller (and some scenes have no such layout).
// A scene lays itself out from the screen's top left corner, and its
// background covers whatever a larger screen has beyond that.
enum class Layout { kHandheld, kDesktop };

struct LayoutSize {
    int width, height;
};
LayoutSize SizeOf(Layout layout);
// The largest layout that a width x height screen holds; false when even
// the handheld one does not fit.
bool LayoutFor(int width, int height, Layout *layout);
// The layout of the screen that a scene is given.
Layout LayoutOf(const SDL_Surface *screen);

// A scene that lives in the window while it is shown: it painted itself
// when it was made, and hears every event that the window does not keep
// for itself (Escape and the scene keys).
class LiveScene {
public:
    virtual ~LiveScene() = default;
    virtual void HandleEvent(SDL_Event *event, SDL_Surface *screen) = 0;
    // True when the scene wants a scene key (Space, Left, Right) for its
    // focused widget at the moment, as a text field wants Space to type.
    virtual bool KeepsKey(SDLKey) const { return false; }
};

struct Scene {
    const char *name;
    void (*paint)(SDL_Surface *screen, Assets &assets);
    bool needsFonts = false; // left out when the demo has no sprite fonts
    // Headless, instead of one picture from `paint`: writes its own
    // pictures <name>-*.png into the folder, printing each path. False
    // when a picture could not be written.
    bool (*play)(SDL_Surface *screen, Assets &assets, const std::string &outDir) = nullptr;
    // In the window, instead of the still picture from `paint`.
    std::unique_ptr<LiveScene> (*start)(SDL_Surface *screen, Assets &assets) = nullptr;
    // The smallest layout that the scene has.
    Layout smallest = Layout::kHandheld;

    bool Fits(Layout layout) const { return layout >= smallest; }
};

const std::vector<Scene> &AllScenes();
// The scenes that `assets` can paint in `layout`.
std::vector<Scene> ScenesFor(const Assets &assets, Layout layout);
// The scene of that name among AllScenes, or null.
const Scene *FindScene(const std::string &name);

// The scene functions, one per file.
void PaintDrawingScene(SDL_Surface *screen, Assets &assets);
void PaintTextScene(SDL_Surface *screen, Assets &assets);
void PaintButtonsScene(SDL_Surface *screen, Assets &assets);
bool PlayButtonsScene(SDL_Surface *screen, Assets &assets, const std::string &outDir);
std::unique_ptr<LiveScene> StartButtonsScene(SDL_Surface *screen, Assets &assets);
void PaintControlsScene(SDL_Surface *screen, Assets &assets);
bool PlayControlsScene(SDL_Surface *screen, Assets &assets, const std::string &outDir);
std::unique_ptr<LiveScene> StartControlsScene(SDL_Surface *screen, Assets &assets);
void PaintListsScene(SDL_Surface *screen, Assets &assets);
bool PlayListsScene(SDL_Surface *screen, Assets &assets, const std::string &outDir);
std::unique_ptr<LiveScene> StartListsScene(SDL_Surface *screen, Assets &assets);
// Every widget and the file dialogs; the window starts on it.
void PaintMainScene(SDL_Surface *screen, Assets &assets);
bool PlayMainScene(SDL_Surface *screen, Assets &assets, const std::string &outDir);
std::unique_ptr<LiveScene> StartMainScene(SDL_Surface *screen, Assets &assets);

} // namespace kvt_demo

#endif
