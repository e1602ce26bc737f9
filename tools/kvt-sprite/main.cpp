// kvt-sprite: makes and inspects the sprite files that KVT_Sprite::Load
// reads. Images become frames (pack), a TrueType font becomes a sprite
// font (font), and a sprite file can be checked (info) or turned back
// into images (unpack).
#include <cstdio>
#include <cstring>

#include "commands.h"

namespace {

const char kUsage[] =
    "usage: kvt-sprite COMMAND ARGUMENTS\n"
    "  pack OUT IMAGE[@HOTX,HOTY[,TAG]]...\n"
    "      one frame per PNG or BMP image, in order, anchored at (HOTX, HOTY)\n"
    "      (default 0, 0) and tagged TAG (default 0). Pixels of colour\n"
    "      (255, 0, 255), and fully transparent pixels, are transparent.\n"
    "  font OUT FONTFILE SIZE\n"
    "      the characters 32 to 126 of a TrueType font at SIZE points: frame 0\n"
    "      is the space, each frame as wide as its character's advance and as\n"
    "      tall as the font's line, white without antialiasing.\n"
    "  info FILE\n"
    "      checks FILE and prints each frame's size, anchor and tag.\n"
    "  unpack FILE DIR\n"
    "      writes each frame as DIR/frame-NNN.png and prints the pack argument\n"
    "      that gives it back with its anchor and tag.\n";

int RunCommand(const char *name, const kvt_sprite::Arguments &args, std::string *error)
{
    struct Command {
        const char *name;
        int (*run)(const kvt_sprite::Arguments &, std::string *);
    };
    static const Command commands[] = {{"pack", kvt_sprite::RunPack},
                                       {"font", kvt_sprite::RunFont},
                                       {"info", kvt_sprite::RunInfo},
                                       {"unpack", kvt_sprite::RunUnpack}};
    for (const Command &command : commands)
        if (std::strcmp(name, command.name) == 0)
            return command.run(args, error);
    *error = std::string("unknown command '") + name + "'";
    return kvt_sprite::kBadArguments;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc >= 2 && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0)) {
        std::fputs(kUsage, stdout);
        return 0;
    }
    std::string error = "a command is needed";
    const int status =
        argc < 2 ? kvt_sprite::kBadArguments
                 : RunCommand(argv[1], kvt_sprite::Arguments(argv + 2, argv + argc), &error);
    if (status == kvt_sprite::kBadArguments)
        error += " (kvt-sprite --help for usage)";
    if (status != 0)
        std::fprintf(stderr, "kvt-sprite: %s\n", error.c_str());
    return status;
}
