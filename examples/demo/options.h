#ifndef KVT_DEMO_OPTIONS_H
#define KVT_DEMO_OPTIONS_H

#include <string>

namespace kvt_demo {

struct Options {
    bool window = false;   // open a real window instead of writing pictures
    std::string outDir;    // where the pictures go
    std::string dataDir;   // where default.theme is read from
    std::string fontsDir;  // where the sprite fonts are read from; empty: none
    std::string scene;     // only this scene headless, the first one shown
                           // in the window; empty: all, from the first
    int width = 640;       // the screen's size and bits per pixel
    int height = 480;
    int depth = 32;
};

// Fills `options` from the command line, starting from the defaults
// (pictures to "demo-out", data from `defaultDataDir`, sprite fonts from
// `defaultFontsDir`, which is empty when the build made none). On a bad or
// unknown argument, or --help, prints the usage and answers false;
// `*exitCode` then tells how the program should end.
bool ParseOptions(int argc, char **argv, const char *defaultDataDir,
                  const char *defaultFontsDir, Options *options, int *exitCode);

} // namespace kvt_demo

#endif
