#include "options.h"

#include <cstdio>
#include <cstring>

namespace kvt_demo {

static void PrintUsage(FILE *to, const char *program)
{
    std::fprintf(to,
                 "usage: %s [--out DIR] [--data DIR] [--fonts DIR] [--scene NAME] [--window]\n"
                 "  --out DIR     write the pictures into DIR (default: demo-out)\n"
                 "  --data DIR    read default.theme from DIR\n"
                 "  --fonts DIR   read the sprite fonts demo-font.spr and\n"
                 "                demo-title-font.spr from DIR\n"
                 "  --scene NAME  only that scene's pictures (drawing, text, buttons,\n"
                 "                controls); with --window, the scene shown first\n"
                 "  --window      show the scenes in a window instead; Space or the\n"
                 "                arrow keys change scene, Escape or closing it ends\n",
                 program);
}

bool ParseOptions(int argc, char **argv, const char *defaultDataDir,
                  const char *defaultFontsDir, Options *options, int *exitCode)
{
    options->outDir = "demo-out";
    options->dataDir = defaultDataDir;
    options->fontsDir = defaultFontsDir;
    for (int i = 1; i < argc; ++i) {
        const char *arg = argv[i];
        bool hasValue = i + 1 < argc;
        if (std::strcmp(arg, "--window") == 0) {
            options->window = true;
        } else if (std::strcmp(arg, "--out") == 0 && hasValue) {
            options->outDir = argv[++i];
        } else if (std::strcmp(arg, "--data") == 0 && hasValue) {
            options->dataDir = argv[++i];
        } else if (std::strcmp(arg, "--fonts") == 0 && hasValue) {
            options->fontsDir = argv[++i];
        } else if (std::strcmp(arg, "--scene") == 0 && hasValue) {
            options->scene = argv[++i];
        } else {
            bool help = std::strcmp(arg, "--help") == 0 || std::strcmp(arg, "-h") == 0;
            if (!help)
                std::fprintf(stderr, "%s: unexpected argument '%s'\n", argv[0], arg);
            PrintUsage(help ? stdout : stderr, argv[0]);
            *exitCode = help ? 0 : 2;
            return false;
        }
    }
    return true;
}

} // namespace kvt_demo
