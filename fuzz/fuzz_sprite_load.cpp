// Sprite files of any content: loading must either give well-formed frames
// or refuse with the sprite left empty, and showing every frame, and text
// set in the sprite as a font, must stay within the target surface.
#include <string>

#include <kvt/sprite/sprite.h>
#include <kvt/sprite/text.h>

#include "fuzz_support.h"

namespace {

constexpr int kTargetWidth = 61, kTargetHeight = 43;

void ShowFrame(KVT_Sprite *sprite, SDL_Surface *target, Uint32 frame, kvt_fuzz::ByteCycle *bytes)
{
    const Sint16 x = Sint16(bytes->NextSigned16() % 128), y = Sint16(bytes->NextSigned16() % 128);
    sprite->Display(target, x, y, frame);
    sprite->Display(target, Sint16(kTargetWidth - 1), Sint16(kTargetHeight - 1), frame);
    sprite->DisplayClipped(target, x, y, Uint16(bytes->NextSigned16()),
                           Uint16(bytes->NextSigned16()), frame);
    sprite->DisplayAlpha(target, Sint16(-x), Sint16(-y), frame, bytes->Next());
}

void CheckFrame(const KVT_SpriteFrame &frame, const SDL_PixelFormat *format)
{
    const SDL_Surface *surface = frame.surface;
    kvt_fuzz::Require(surface != nullptr, "a loaded frame has no surface");
    kvt_fuzz::Require(surface->format->BitsPerPixel == format->BitsPerPixel,
                      "a frame is not in the format asked for");
    kvt_fuzz::Require(surface->w >= 0 && surface->h >= 0 && surface->w <= 16384 &&
                          surface->h <= 16384,
                      "a frame has a size that the loader should have refused");
}

void ShowText(KVT_Sprite *font, SDL_Surface *target, const unsigned char *data, size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size < 80 ? size : 80);
    const int width = KVT_GetTextWidth(font, text.c_str());
    kvt_fuzz::Require(width >= 0, "a text has a negative width");
    KVT_DisplayText(target, font, 0, 0, text.c_str());
    KVT_DisplayText(target, font, -width / 2, kTargetHeight / 2, text.c_str());
    KVT_DisplayTextCenter(target, font, 0, 10, kTargetWidth, text.c_str());
    KVT_DisplayTextCenter(target, font, kTargetWidth, -3, -width, text.c_str());
}

void LoadAndShow(const char *path, const kvt_test::FormatCase &format,
                 const unsigned char *data, size_t size)
{
    kvt_test::GuardedSurface target(format, kTargetWidth, kTargetHeight);
    KVT_Sprite sprite;
    if (!sprite.Load(path, target.get()->format)) {
        kvt_fuzz::Require(sprite.frames == nullptr && sprite.nbFrames == 0,
                          "a refused file left frames behind");
        return;
    }
    kvt_fuzz::ByteCycle bytes(data, size);
    for (Uint32 frame = 0; frame < sprite.nbFrames; ++frame) {
        CheckFrame(sprite.frames[frame], target.get()->format);
        ShowFrame(&sprite, target, frame, &bytes);
    }
    kvt_fuzz::Require(!sprite.Display(target, 0, 0, sprite.nbFrames),
                      "a frame past the last one was shown");
    ShowText(&sprite, target, data, size);
    kvt_fuzz::Require(target.GuardsIntact(), "a byte outside the target surface changed");
    sprite.FreeFrames();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    static const kvt_fuzz::ScratchFile file("sprite");
    file.Write(data, size);
    LoadAndShow(file.path(), kvt_fuzz::FormatNamed("Index8"), data, size);
    LoadAndShow(file.path(), kvt_fuzz::FormatNamed("RGBA32"), data, size);
    return 0;
}
