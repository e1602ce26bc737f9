#include "scenes.h"

namespace kvt_demo {

const std::vector<Scene> &AllScenes()
{
    static const std::vector<Scene> scenes = {
        {"drawing", PaintDrawingScene},
        {"text", PaintTextScene, true},
        {"buttons", PaintButtonsScene, true, PlayButtonsScene, StartButtonsScene},
        {"controls", PaintControlsScene, true, PlayControlsScene, StartControlsScene},
        {"lists", PaintListsScene, true, PlayListsScene, StartListsScene},
        {"main", PaintMainScene, true, PlayMainScene, StartMainScene},
    };
    return scenes;
}

std::vector<Scene> ScenesFor(const Assets &assets)
{
    std::vector<Scene> scenes;
    for (const Scene &scene : AllScenes())
        if (!scene.needsFonts || assets.HasFonts())
            scenes.push_back(scene);
    return scenes;
}

bool HasScene(const Assets &assets, const std::string &name)
{
    for (const Scene &scene : ScenesFor(assets))
        if (name == scene.name)
            return true;
    return false;
}

} // namespace kvt_demo
