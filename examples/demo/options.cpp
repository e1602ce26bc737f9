#include "options.h"

#include <cstdio>
#include <cstring>
#include <string>

namespace kvt_demo {

static void PrintUsage(FILE *to, const char *program)
{
    std::fprintf(to,
                 "usage: %s [--out DIR] [--data DIR] [--fonts DIR] [--scene NAME]\n"
                 "          [--size WxH] [--depth BITS] [--window]\n"
                 "  --out DIR     write the pictures into DIR (default: demo-out)\n"
                 "  --data DIR    read default.theme from DIR\n"
                 "  --fonts DIR   read the sprite fonts demo-font.spr and\n"
                 "                demo-title-font.spr from DIR\n"
                 "  --scene NAME  only that scene's pictures (drawing, text, buttons,\n"
                 "                controls, lists, main); with --window, the scene\n"
                 "                shown first\n"
                 "  --size WxH    the screen's size (default: 640x480); on one smaller\n"
                 "                than 640x480, but at least 320x240, the scenes take\n"
                 "                their handheld layout, and those without one are\n"
                 "                left out\n"
                 "  --depth BITS  the screen's bits per pixel: 8, 16, 24 or 32\n"
                 "                (default: 32)\n"
                 "  --window      show the scenes in a window instead; Space or the\n"
                 "                arrow keys change scene, Escape or closing it ends\n",
                 program);
}

// WxH with both sides from 1 to 4096, nothing before or after.
static bool ParseSize(const char *text, int *width, int *height)
{
    char rest = '\0';
    const int read = std::sscanf(text, "%dx%d%c", width, height, &rest);
    return read == 2 && *width > 0 && *height > 0 && *width <= 4096 && *height <= 4096;
}

static bool ParseDepth(const char *text, int *depth)
{
    for (int bits : {8, 16, 24, 32})
        if (std::strcmp(text, std::to_string(bits).c_str()) == 0) {
            *depth = bits;
            return true;
        }
    return false;
}

static bool TakesValue(const char *arg)
{
    for (const char *name : {"--out", "--data", "--fonts", "--scene", "--size", "--depth"})
        if (std::strcmp(arg, name) == 0)
            return true;
    return false;
}

// Sets the option `arg`, one that TakesValue, to `value`; false when the
// value is not one it can have.
static bool SetValue(const char *arg, const char *value, Options *options)
{
    if (std::strcmp(arg, "--size") == 0)
        return ParseSize(value, &options->width, &options->height);
    if (std::strcmp(arg, "--depth") == 0)
        return ParseDepth(value, &options->depth);
    std::string *field = std::strcmp(arg, "--out") == 0     ? &options->outDir
                         : std::strcmp(arg, "--data") == 0  ? &options->dataDir
                         : std::strcmp(arg, "--fonts") == 0 ? &options->fontsDir
                                                            : &options->scene;
    *field = value;
    return true;
}

bool ParseOptions(int argc, char **argv, const char *defaultDataDir,
                  const char *defaultFontsDir, Options *options, int *exitCode)
{
    options->outDir = "demo-out";
    options->dataDir = defaultDataDir;
    options->fontsDir = defaultFontsDir;
    for (int i = 1; i < argc; ++i) {
        const char *arg = argv[i];
        if (std::strcmp(arg, "--window") == 0) {
            options->window = true;
            continue;
        }
        const bool valued = TakesValue(arg) && i + 1 < argc;
        if (valued && SetValue(arg, argv[i + 1], options)) {
            ++i;
            continue;
        }
        bool help = std::strcmp(arg, "--help") == 0 || std::strcmp(arg, "-h") == 0;
        if (valued)
            std::fprintf(stderr, "%s: bad value '%s' for %s\n", argv[0], argv[i + 1], arg);
        else if (!help)
            std::fprintf(stderr, "%s: unexpected argument '%s'\n", argv[0], arg);
        PrintUsage(help ? stdout : stderr, argv[0]);
        *exitCode = help ? 0 : 2;
        return false;
    }
    return true;
}

} // namespace kvt_demo
