#include "scenes.h"

namespace kvt_demo {

LayoutSize SizeOf(Layout layout)
{
    return layout == Layout::kDesktop ? LayoutSize{640, 480} : LayoutSize{320, 240};
}

bool LayoutFor(int width, int height, Layout *layout)
{
    for (Layout candidate : {Layout::kDesktop, Layout::kHandheld}) {
        const LayoutSize size = SizeOf(candidate);
        if (width >= size.width && height >= size.height) {
            *layout = candidate;
            return true;
        }
    }
    return false;
}

// The demo makes no screen that holds no layout, so the fallback is only
// for a caller that hands a scene a smaller surface.
Layout LayoutOf(const SDL_Surface *screen)
{
    Layout layout = Layout::kHandheld;
    LayoutFor(screen->w, screen->h, &layout);
    return layout;
}

const std::vector<Scene> &AllScenes()
{
    // The text scene's lines and sprites are laid out for 640 pixels
    // across, and half of that cannot hold them.
    static const std::vector<Scene> scenes = {
        {"drawing", PaintDrawingScene},
        {"text", PaintTextScene, true, nullptr, nullptr, Layout::kDesktop},
        {"buttons", PaintButtonsScene, true, PlayButtonsScene, StartButtonsScene},
        {"controls", PaintControlsScene, true, PlayControlsScene, StartControlsScene},
        {"lists", PaintListsScene, true, PlayListsScene, StartListsScene},
        {"main", PaintMainScene, true, PlayMainScene, StartMainScene},
    };
    return scenes;
}

std::vector<Scene> ScenesFor(const Assets &assets, Layout layout)
{
    std::vector<Scene> scenes;
    for (const Scene &scene : AllScenes())
        if ((!scene.needsFonts || assets.HasFonts()) && scene.Fits(layout))
            scenes.push_back(scene);
    return scenes;
}

const Scene *FindScene(const std::string &name)
{
    for (const Scene &scene : AllScenes())
        if (name == scene.name)
            return &scene;
    return nullptr;
}

} // namespace kvt_demo
