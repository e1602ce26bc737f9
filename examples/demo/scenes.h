#ifndef KVT_DEMO_SCENES_H
#define KVT_DEMO_SCENES_H

// The demo is a list of scenes. Each paints one 640x480 picture from
// scratch; the headless run writes it to <name>.png, the window shows it.
// A new capability joins the demo by adding its paint function to the
// list in scenes.cpp.

#include <vector>

#include <SDL.h>

#include "assets.h"

namespace kvt_demo {

const int kSceneWidth = 640;
const int kSceneHeight = 480;

struct Scene {
    const char *name;
    void (*paint)(SDL_Surface *screen, Assets &assets);
    bool needsFonts = false; // left out when the demo has no sprite fonts
};

const std::vector<Scene> &AllScenes();
// The scenes that `assets` can paint.
std::vector<Scene> ScenesFor(const Assets &assets);

// The scene functions, one per file.
void PaintDrawingScene(SDL_Surface *screen, Assets &assets);
void PaintTextScene(SDL_Surface *screen, Assets &assets);

} // namespace kvt_demo

#endif
