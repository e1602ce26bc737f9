// kvt-sdl-version [classic|compat]: prints the version of the SDL 1.2 that
// the dynamic loader picked, and the file it came from. Classic SDL 1.2
// stops at 1.2.15; sdl12-compat (SDL 1.2 on SDL 2) numbers itself from
// 1.2.50 on. Both install libSDL-1.2.so.0, so which one a program runs on
// is up to LD_LIBRARY_PATH, and a test meant for one of them checks with
// this program first. Given the kind expected, it fails (exit code 1)
// with a message when the loaded SDL is the other one.
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <SDL.h>
#include <dlfcn.h>

namespace {

// The first version that sdl12-compat reports.
constexpr int kFirstCompatVersion = SDL_VERSIONNUM(1, 2, 50);

// The file that the loader mapped SDL_Linked_Version from.
const char *LoadedFrom()
{
    Dl_info info;
    if (dladdr(reinterpret_cast<void *>(&SDL_Linked_Version), &info) && info.dli_fname)
        return info.dli_fname;
    return "an unknown file";
}

} // namespace

int main(int argc, char **argv)
{
    const char *expected = argc == 2 ? argv[1] : nullptr;
    if (argc > 2 || (expected && std::strcmp(expected, "classic") != 0 &&
                     std::strcmp(expected, "compat") != 0)) {
        std::fprintf(stderr, "usage: %s [classic|compat]\n", argv[0]);
        return 2;
    }
    const SDL_version *v = SDL_Linked_Version();
    const bool compat = SDL_VERSIONNUM(v->major, v->minor, v->patch) >= kFirstCompatVersion;
    const char *kind = compat ? "sdl12-compat" : "classic SDL 1.2";
    std::printf("%d.%d.%d (%s, from %s)\n", v->major, v->minor, v->patch, kind, LoadedFrom());
    if (expected && compat != (std::strcmp(expected, "compat") == 0)) {
        const char *path = std::getenv("LD_LIBRARY_PATH");
        std::fprintf(stderr,
                     "%s: expected %s, but the loader picked %s (%d.%d.%d) from %s "
                     "(LD_LIBRARY_PATH=%s)\n",
                     argv[0], compat ? "classic SDL 1.2 (before 1.2.50)"
                                     : "sdl12-compat (1.2.50 or later)",
                     kind, v->major, v->minor, v->patch, LoadedFrom(), path ? path : "");
        return 1;
    }
    return 0;
}
