#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <kvt/sprite/internal/decode_paths.h>
#include <kvt/sprite/internal/sprite_file.h>
#include <kvt/sprite/sprite.h>

namespace {

// The frames built so far. The array grows as frames arrive, up to the
// count that the file announced, so that a count the file cannot hold
// fails at the end of the file rather than in one huge allocation. All
// that was built is released unless it is handed to a sprite.
class FrameArray {
public:
    explicit FrameArray(Uint32 total) : total_(total) {}
    ~FrameArray()
    {
        for (Uint32 i = 0; i < size_; ++i)
            SDL_FreeSurface(frames_[i].surface);
        std::free(frames_);
    }
    FrameArray(const FrameArray &) = delete;
    FrameArray &operator=(const FrameArray &) = delete;

    // Room for one more frame; null when memory runs out.
    KVT_SpriteFrame *Next()
    {
        if (size_ == capacity_ && !Grow())
            return nullptr;
        return &frames_[size_];
    }
    // The frame at Next() has its surface and now counts.
    void Commit() { ++size_; }

    void HandTo(KVT_Sprite *sprite)
    {
        sprite->frames = frames_;
        sprite->nbFrames = size_;
        frames_ = nullptr;
        size_ = 0;
    }

private:
    bool Grow()
    {
        const Uint64 doubled = std::max<Uint64>(16, 2 * Uint64(capacity_));
        const Uint32 wanted = Uint32(std::min<Uint64>(total_, doubled));
        if (size_t(wanted) > SIZE_MAX / sizeof(KVT_SpriteFrame))
            return false;
        void *grown = std::realloc(frames_, sizeof(KVT_SpriteFrame) * wanted);
        if (grown == nullptr)
            return false;
        frames_ = static_cast<KVT_SpriteFrame *>(grown);
        capacity_ = wanted;
        return true;
    }

    KVT_SpriteFrame *frames_ = nullptr;
    Uint32 size_ = 0;
    Uint32 capacity_ = 0;
    Uint32 total_;
};

// Pixels are written a whole number of bytes at a time, so formats of 1
// or 4 bits per pixel, whose rows are packed tighter, cannot be decoded.
bool HasWholeBytePixels(const SDL_PixelFormat *format)
{
    return format->BitsPerPixel >= 8 && format->BytesPerPixel >= 1 && format->BytesPerPixel <= 4;
}

// A new frame's palette must be the target's before any pixel is mapped.
void CopyPalette(const SDL_PixelFormat *from, SDL_Surface *to)
{
    const SDL_Palette *source = from->palette;
    SDL_Palette *target = to->format->palette;
    if (source == nullptr || target == nullptr)
        return;
    const int count = std::min(std::min(source->ncolors, target->ncolors), 256);
    std::memcpy(target->colors, source->colors, sizeof(SDL_Color) * size_t(count));
}

// An empty surface of the frame's size in the target format, keyed on
// (255, 0, 255) without run-length acceleration.
SDL_Surface *CreateFrameSurface(const kvt::FrameHeader &header, const SDL_PixelFormat *format)
{
    SDL_Surface *surface = SDL_CreateRGBSurface(
        SDL_SRCCOLORKEY | SDL_SRCALPHA, header.width, header.height, format->BitsPerPixel,
        format->Rmask, format->Gmask, format->Bmask, format->Amask);
    if (surface == nullptr)
        return nullptr;
    SDL_SetColorKey(surface, SDL_SRCCOLORKEY, SDL_MapRGB(format, 255, 0, 255));
    if (format->BitsPerPixel == 8)
        CopyPalette(format, surface);
    return surface;
}

// Reads the next frame record and builds its frame. On false, `frame`
// holds nothing that needs releasing.
bool BuildFrame(FILE *file, const SDL_PixelFormat *format, KVT_SpriteFrame *frame)
{
    kvt::FrameRecord record;
    if (!record.Read(file))
        return false;
    const kvt::FrameHeader &header = record.Header();
    SDL_Surface *surface = CreateFrameSurface(header, format);
    if (surface == nullptr)
        return false;
    // Only the low 16 bits of each count; the 16-bit fields wrap.
    frame->tag = Uint16(header.tag);
    frame->hotX = Sint16(Uint16(header.hotX));
    frame->hotY = Sint16(Uint16(header.hotY));
    frame->surface = surface;
    kvt::DecodeFrame(surface, record.Runs());
    return true;
}

bool ReadSprite(FILE *file, const SDL_PixelFormat *format, KVT_Sprite *sprite)
{
    Uint32 count;
    if (!kvt::ReadWord(file, &count))
        return false;
    FrameArray built(count);
    for (Uint32 i = 0; i < count; ++i) {
        KVT_SpriteFrame *frame = built.Next();
        if (frame == nullptr || !BuildFrame(file, format, frame))
            return false;
        built.Commit();
    }
    built.HandTo(sprite);
    return true;
}

} // namespace

bool KVT_Sprite::Load(const char *path, const SDL_PixelFormat *format)
{
    FILE *file = std::fopen(path, "rb");
    if (file == nullptr)
        return false;
    frames = nullptr;
    nbFrames = 0;
    const bool loaded = HasWholeBytePixels(format) && ReadSprite(file, format, this);
    std::fclose(file);
    return loaded;
}
