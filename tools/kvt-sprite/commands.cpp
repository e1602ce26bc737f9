#include "commands.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <sys/stat.h>

#include "args.h"
#include "font_render.h"
#include "image_input.h"
#include "output_file.h"
#include "png_output.h"
#include "sprite_reader.h"
#include "sprite_writer.h"

namespace kvt_sprite {

namespace {

// The largest point size `font` takes: its line stays far below the
// largest frame height.
constexpr long kMaxFontSize = 1000;

int Fail(int status, const std::string &reason, std::string *error)
{
    *error = reason;
    return status;
}

int WriteSprite(const std::string &path, const std::vector<Picture> &pictures,
                std::string *error)
{
    return WriteWholeFile(path, SpriteFileBytes(pictures), error) ? 0 : kFailed;
}

// DIR exists as a folder afterwards, or the answer is false.
bool MakeFolder(const std::string &path, std::string *error)
{
    struct stat info;
    if (mkdir(path.c_str(), 0777) == 0 || (stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode)))
        return true;
    *error = "cannot make the folder " + path + ": " + std::strerror(errno);
    return false;
}

std::string FrameFileName(size_t index, size_t count)
{
    // At least three digits, and as many as the last index needs, so that
    // the names sort in frame order.
    std::string digits = std::to_string(index);
    const size_t width = std::max<size_t>(3, std::to_string(count - 1).size());
    return "frame-" + std::string(width - std::min(width, digits.size()), '0') + digits + ".png";
}

} // namespace

int RunPack(const Arguments &args, std::string *error)
{
    if (args.size() < 2)
        return Fail(kBadArguments, "pack needs OUT and at least one IMAGE", error);
    std::vector<Picture> pictures;
    for (size_t i = 1; i < args.size(); ++i) {
        ImageArgument image;
        if (!ParseImageArgument(args[i], &image, error))
            return kBadArguments;
        pictures.emplace_back();
        if (!LoadImagePicture(image.path, &pictures.back(), error))
            return kFailed;
        pictures.back().hotX = image.hotX;
        pictures.back().hotY = image.hotY;
        pictures.back().tag = image.tag;
    }
    return WriteSprite(args[0], pictures, error);
}

int RunFont(const Arguments &args, std::string *error)
{
    if (args.size() != 3)
        return Fail(kBadArguments, "font needs OUT, FONTFILE and SIZE", error);
    long size;
    if (!ParseInteger(args[2], 1, kMaxFontSize, &size))
        return Fail(kBadArguments,
                    "SIZE '" + args[2] + "' must be from 1 to " + std::to_string(kMaxFontSize),
                    error);
    std::vector<Picture> glyphs;
    if (!RenderFont(args[1], int(size), &glyphs, error))
        return kFailed;
    return WriteSprite(args[0], glyphs, error);
}

int RunInfo(const Arguments &args, std::string *error)
{
    if (args.size() != 1)
        return Fail(kBadArguments, "info needs exactly one FILE", error);
    std::vector<FrameSummary> frames;
    long trailing;
    if (!CheckSpriteFile(args[0], &frames, &trailing, error))
        return kFailed;
    std::printf("%s: %zu frame%s\n", args[0].c_str(), frames.size(), frames.size() == 1 ? "" : "s");
    for (size_t i = 0; i < frames.size(); ++i) {
        const FrameSummary &f = frames[i];
        std::printf("frame %zu: %dx%d, anchor (%d, %d), tag %u\n", i, f.width, f.height, f.hotX,
                    f.hotY, unsigned(f.tag));
    }
    if (trailing > 0)
        std::printf("%ld bytes after the last frame, which are not read\n", trailing);
    return 0;
}

int RunUnpack(const Arguments &args, std::string *error)
{
    if (args.size() != 2)
        return Fail(kBadArguments, "unpack needs FILE and DIR", error);
    std::vector<Picture> pictures;
    if (!ReadSpritePictures(args[0], &pictures, error) || !MakeFolder(args[1], error))
        return kFailed;
    for (size_t i = 0; i < pictures.size(); ++i) {
        const Picture &p = pictures[i];
        if (p.width == 0 || p.height == 0) {
            std::fprintf(stderr, "kvt-sprite: frame %zu is empty (%dx%d); no picture written\n", i,
                         p.width, p.height);
            continue;
        }
        const std::string path = args[1] + "/" + FrameFileName(i, pictures.size());
        std::vector<Uint8> png;
        if (!PngBytes(p, &png, error) || !WriteWholeFile(path, png, error))
            return kFailed;
        std::printf("%s@%d,%d,%u\n", path.c_str(), p.hotX, p.hotY, unsigned(p.tag));
    }
    return 0;
}

} // namespace kvt_sprite
