// kvt-demo: paints every scene of the demo on a screen of the size and
// depth asked for. Without --window it runs on SDL's dummy video driver
// and writes each scene as a PNG; with --window it shows them on the
// display.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

#include <SDL.h>

#include "assets.h"
#include "options.h"
#include "png_file.h"
#include "scenes.h"
#include "window.h"

#ifndef KVT_DEMO_DATA_DIR
#define KVT_DEMO_DATA_DIR "data"
#endif
// Where the build put the sprite fonts; empty when it made none.
#ifndef KVT_DEMO_FONTS_DIR
#define KVT_DEMO_FONTS_DIR ""
#endif

namespace kvt_demo {

static bool WritePicture(SDL_Surface *screen, Assets &assets, const Scene &scene,
                         const std::string &outDir)
{
    if (scene.play)
        return scene.play(screen, assets, outDir);
    scene.paint(screen, assets);
    std::string path = outDir + "/" + scene.name + ".png";
    if (!WritePng(screen, path.c_str()))
        return false;
    std::printf("%s\n", path.c_str());
    return true;
}

// Every scene of the layout, or only the one named by --scene.
static bool WritePictures(SDL_Surface *screen, Assets &assets, const std::string &outDir,
                          const std::string &only)
{
    std::error_code error;
    std::filesystem::create_directories(outDir, error);
    if (error) {
        std::fprintf(stderr, "cannot create %s: %s\n", outDir.c_str(), error.message().c_str());
        return false;
    }
    for (const Scene &scene : ScenesFor(assets, LayoutOf(screen)))
        if ((only.empty() || only == scene.name) && !WritePicture(screen, assets, scene, outDir))
            return false;
    return true;
}

// A line for each scene that the layout leaves out, so that a missing
// picture or window scene is never a mystery.
static void TellLeftOut(const Assets &assets, Layout layout, const Options &options)
{
    for (const Scene &scene : AllScenes()) {
        if (scene.Fits(layout) || (scene.needsFonts && !assets.HasFonts()))
            continue;
        const LayoutSize needs = SizeOf(scene.smallest);
        std::fprintf(stderr, "the %s scene is left out: it needs a %dx%d screen, not %dx%d\n",
                     scene.name, needs.width, needs.height, options.width, options.height);
    }
}

// The named scene can run here; if not, says why.
static bool CanShow(const Assets &assets, Layout layout, const std::string &name)
{
    const Scene *scene = FindScene(name);
    if (!scene || (scene->needsFonts && !assets.HasFonts())) {
        std::fprintf(stderr, "no scene named '%s' in this demo\n", name.c_str());
        return false;
    }
    if (!scene->Fits(layout)) {
        const LayoutSize needs = SizeOf(scene->smallest);
        std::fprintf(stderr, "the %s scene needs a %dx%d screen\n", name.c_str(), needs.width,
                     needs.height);
        return false;
    }
    return true;
}

// The video surface at the depth asked for, so that the scenes are drawn
// by the library's paths for that depth: the PNG writer converts the
// pixels, and in a window SDL converts them for the display. A software
// surface never needs locking.
static SDL_Surface *OpenScreen(const Options &options)
{
    SDL_Surface *screen =
        SDL_SetVideoMode(options.width, options.height, options.depth, SDL_SWSURFACE);
    if (!screen) {
        std::fprintf(stderr, "SDL_SetVideoMode: %s\n", SDL_GetError());
        return nullptr;
    }
    if (screen->format->BitsPerPixel != options.depth) {
        std::fprintf(stderr, "SDL gave a screen of %d bits per pixel for --depth %d\n",
                     screen->format->BitsPerPixel, options.depth);
        return nullptr;
    }
    return screen;
}

static int Run(const Options &options)
{
    Layout layout;
    if (!LayoutFor(options.width, options.height, &layout)) {
        const LayoutSize smallest = SizeOf(Layout::kHandheld);
        std::fprintf(stderr, "no scene fits a %dx%d screen: the smallest layout takes %dx%d\n",
                     options.width, options.height, smallest.width, smallest.height);
        return 2;
    }
    SDL_Surface *screen = OpenScreen(options);
    if (!screen)
        return 1;
    Assets assets;
    if (!LoadAssets(options.dataDir, options.fontsDir, screen, &assets))
        return 1;
    if (!options.scene.empty() && !CanShow(assets, layout, options.scene))
        return 2;
    if (options.scene.empty())
        TellLeftOut(assets, layout, options);
    if (options.window) {
        RunWindow(screen, assets, options.scene);
        return 0;
    }
    return WritePictures(screen, assets, options.outDir, options.scene) ? 0 : 1;
}

} // namespace kvt_demo

int main(int argc, char **argv)
{
    kvt_demo::Options options;
    int exitCode = 0;
    if (!kvt_demo::ParseOptions(argc, argv, KVT_DEMO_DATA_DIR, KVT_DEMO_FONTS_DIR, &options,
                                &exitCode))
        return exitCode;
    if (!options.window)
        setenv("SDL_VIDEODRIVER", "dummy", 1);
    if (SDL_Init(SDL_INIT_VIDEO) != 0) {
        std::fprintf(stderr, "SDL_Init: %s\n", SDL_GetError());
        return 1;
    }
    // SDL turns these into quit events; a stuck run must stay killable.
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    SDL_WM_SetCaption("kvt demo", "kvt demo");
    // The library never turns on SDL's key translation; the demo's text
    // fields need it, so that every key press carries its character.
    SDL_EnableUNICODE(1);
    int result = kvt_demo::Run(options);
    SDL_Quit();
    return result;
}
