#ifndef KVT_SPRITE_TOOL_COMMANDS_H
#define KVT_SPRITE_TOOL_COMMANDS_H

// The four commands of kvt-sprite. Each takes the arguments that follow
// its name and answers the exit status: 0 when done, kBadArguments for a
// command line it cannot use, kFailed when an input cannot be read or an
// output cannot be written. On failure `*error` holds one line that says
// why, and no output file has been left half-written.

#include <string>
#include <vector>

namespace kvt_sprite {

constexpr int kFailed = 1;
constexpr int kBadArguments = 2;

using Arguments = std::vector<std::string>;

// pack OUT IMAGE[@HOTX,HOTY[,TAG]]...: one frame per image, in order.
int RunPack(const Arguments &args, std::string *error);
// font OUT FONTFILE SIZE: the characters 32 to 126 as a sprite font.
int RunFont(const Arguments &args, std::string *error);
// info FILE: checks the file, prints its frames.
int RunInfo(const Arguments &args, std::string *error);
// unpack FILE DIR: each frame as DIR/frame-NNN.png; prints for each the
// argument that packs it again with its anchor and tag.
int RunUnpack(const Arguments &args, std::string *error);

} // namespace kvt_sprite

#endif
