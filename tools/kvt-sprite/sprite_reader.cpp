#include "sprite_reader.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include <kvt/sprite/internal/sprite_file.h>
#include <kvt/sprite/sprite.h>

#include "image_input.h"

namespace kvt_sprite {

namespace {

struct FileCloser {
    void operator()(FILE *file) const { std::fclose(file); }
};
using File = std::unique_ptr<FILE, FileCloser>;

std::string FrameName(Uint32 index, Uint32 count)
{
    return "frame " + std::to_string(index) + " of " + std::to_string(count);
}

// Why a frame record was refused: the record reader answers only yes or
// no, but a file that ran out is told apart from one whose numbers
// disagree.
std::string DamageOf(FILE *file, const kvt::FrameHeader &header, Uint32 index, Uint32 count)
{
    if (std::feof(file))
        return "the file ends inside " + FrameName(index, count);
    return FrameName(index, count) + " (" + std::to_string(header.width) + "x" +
           std::to_string(header.height) + ", block size " + std::to_string(header.blockSize) +
           ") has a size out of range, a block size too small for its rows, or a row whose "
           "runs do not cover its width";
}

FrameSummary SummaryOf(const kvt::FrameHeader &header)
{
    // The loader keeps the low 16 bits of the anchor and the tag.
    return {header.width, header.height, Sint16(Uint16(header.hotX)),
            Sint16(Uint16(header.hotY)), Uint16(header.tag)};
}

long BytesLeft(FILE *file)
{
    long left = 0;
    while (std::fgetc(file) != EOF)
        ++left;
    return left;
}

} // namespace

bool CheckSpriteFile(const std::string &path, std::vector<FrameSummary> *frames,
                     long *trailingBytes, std::string *error)
{
    File file(std::fopen(path.c_str(), "rb"));
    if (!file) {
        *error = "cannot open " + path + ": " + std::strerror(errno);
        return false;
    }
    Uint32 count;
    if (!kvt::ReadWord(file.get(), &count)) {
        // A directory opens, and then fails on the first read.
        *error = std::ferror(file.get()) ? "cannot read " + path + ": " + std::strerror(errno)
                                         : path + " is damaged: it ends before the frame count";
        return false;
    }
    frames->clear();
    for (Uint32 i = 0; i < count; ++i) {
        kvt::FrameRecord record;
        if (!record.Read(file.get())) {
            *error = path + " is damaged: " + DamageOf(file.get(), record.Header(), i, count);
            return false;
        }
        frames->push_back(SummaryOf(record.Header()));
    }
    *trailingBytes = BytesLeft(file.get());
    return true;
}

bool ReadSpritePictures(const std::string &path, std::vector<Picture> *pictures,
                        std::string *error)
{
    std::vector<FrameSummary> frames;
    long trailing;
    if (!CheckSpriteFile(path, &frames, &trailing, error))
        return false;
    // 32-bit XRGB holds every colour of the file exactly.
    SDL_Surface *holder = SDL_CreateRGBSurface(SDL_SWSURFACE, 1, 1, 32, 0xFF0000, 0xFF00, 0xFF, 0);
    KVT_Sprite sprite;
    const bool loaded = holder != nullptr && sprite.Load(path.c_str(), holder->format);
    SDL_FreeSurface(holder);
    if (!loaded) {
        *error = "cannot load " + path + ": out of memory";
        return false;
    }
    pictures->assign(sprite.GetNbFrames(), Picture());
    for (Uint32 i = 0; i < sprite.GetNbFrames(); ++i) {
        Picture &picture = (*pictures)[i];
        SurfacePicture(sprite.GetFrameSurface(int(i)), &picture);
        picture.hotX = sprite.frames[i].hotX;
        picture.hotY = sprite.frames[i].hotY;
        picture.tag = sprite.frames[i].tag;
    }
    sprite.FreeFrames();
    return true;
}

} // namespace kvt_sprite
