#ifndef KVT_SPRITE_TOOL_OUTPUT_FILE_H
#define KVT_SPRITE_TOOL_OUTPUT_FILE_H

#include <string>
#include <vector>

#include <SDL.h>

namespace kvt_sprite {

// Writes `bytes` to `path` whole or not at all: they go to a temporary
// file beside it, which is renamed over `path` only once every byte is
// on disk, so a failure never leaves a half-written file behind. False,
// with the reason in `*error`, when that cannot be done.
bool WriteWholeFile(const std::string &path, const std::vector<Uint8> &bytes,
                    std::string *error);

} // namespace kvt_sprite

#endif
