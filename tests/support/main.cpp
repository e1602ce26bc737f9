// Test entry point: SDL on its dummy video driver, so that every test runs
// without a display, with the default signal handlers back in place (SDL
// turns SIGINT and SIGTERM into quit events).
#include <csignal>
#include <cstdlib>

#include <SDL.h>
#include <gtest/gtest.h>

#include "support/surfaces.h"

namespace {

void FailRunningTest(const std::string &problem) { ADD_FAILURE() << problem; }

} // namespace

int main(int argc, char **argv)
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    if (SDL_Init(SDL_INIT_VIDEO) != 0)
        return 2;
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    ::testing::InitGoogleTest(&argc, argv);
    kvt_test::SetProblemReporter(FailRunningTest);
    int result = RUN_ALL_TESTS();
    SDL_Quit();
    return result;
}
