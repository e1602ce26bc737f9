// Theme files of any content (the loader reads at most 20 bytes; the rest
// of the input places the frames and the background area): the colours
// come from the file, drawing stays within the surface, and a saved theme
// loads back the same.
#include <cstring>

#include <kvt/ui/core/theme.h>

#include "fuzz_support.h"
#include "support/theme.h"

namespace {

constexpr int kWidth = 53, kHeight = 37;
constexpr size_t kFileBytes = 20;

bool SameColour(const KVT_RGBA &a, const KVT_RGBA &b) { return std::memcmp(&a, &b, 4) == 0; }

bool SameTheme(const CUITheme &a, const CUITheme &b)
{
    return SameColour(a.activeFirst, b.activeFirst) && SameColour(a.activeMid, b.activeMid) &&
           SameColour(a.activeLast, b.activeLast) && SameColour(a.restFirst, b.restFirst) &&
           SameColour(a.restMid, b.restMid) && SameColour(a.restLast, b.restLast) &&
           SameColour(a.faceColor, b.faceColor);
}

// The file's bytes are the channels of activeFirst, activeLast, restFirst,
// restLast and faceColor in turn; a short file leaves the rest alone.
void CheckLoaded(const CUITheme &loaded, const unsigned char *data, size_t size)
{
    CUITheme expected = kvt_test::DistinctTheme();
    KVT_RGBA *stored[] = {&expected.activeFirst, &expected.activeLast, &expected.restFirst,
                          &expected.restLast, &expected.faceColor};
    for (size_t k = 0; k < size && k < kFileBytes; ++k)
        reinterpret_cast<Uint8 *>(stored[k / 4])[k % 4] = data[k];
    expected.RepackColor(nullptr);
    kvt_fuzz::Require(SameTheme(loaded, expected), "the loaded colours are not the file's");
}

void Draw(const CUITheme &theme, SDL_Surface *surface, kvt_fuzz::ByteCycle *bytes)
{
    for (CUIFrame frame : {CUIFrame::Rest, CUIFrame::Active, CUIFrame::Sunken,
                           CUIFrame::SunkenRest}) {
        const int x = bytes->NextSigned16(), y = bytes->NextSigned16();
        theme.DrawFrame(surface, x % 80, y % 80, bytes->NextSigned16(), bytes->NextSigned16(),
                        frame);
    }
    // Areas somewhat larger than the surface, on it and off it: the tiles
    // are laid one blit at a time, and tiles of one pixel over a huge area
    // would make every input slow.
    SDL_Rect area;
    area.x = Sint16(Sint8(bytes->Next()));
    area.y = Sint16(Sint8(bytes->Next()));
    area.w = Uint16(bytes->Next() % 96);
    area.h = Uint16(bytes->Next() % 96);
    theme.DrawBackground(surface, &area);
}

SDL_Surface *MakeTile(SDL_Surface *like, kvt_fuzz::ByteCycle *bytes)
{
    const SDL_PixelFormat *f = like->format;
    SDL_Surface *tile = SDL_CreateRGBSurface(SDL_SWSURFACE, 1 + bytes->Next() % 16,
                                             1 + bytes->Next() % 16, f->BitsPerPixel, f->Rmask,
                                             f->Gmask, f->Bmask, f->Amask);
    kvt_fuzz::Require(tile != nullptr, "cannot make the background tile");
    SDL_FillRect(tile, nullptr, SDL_MapRGB(tile->format, 10, 200, 30));
    return tile;
}

void LoadDrawSave(const kvt_fuzz::ScratchFile &file, const kvt_fuzz::ScratchFile &copy,
                  const kvt_test::FormatCase &format, const unsigned char *data, size_t size)
{
    kvt_test::GuardedSurface surface(format, kWidth, kHeight);
    CUITheme theme = kvt_test::DistinctTheme();
    kvt_fuzz::Require(theme.Load(file.path(), surface), "the theme file did not open");
    CheckLoaded(theme, data, size);
    kvt_fuzz::ByteCycle bytes(data + (size < kFileBytes ? 0 : kFileBytes),
                              size < kFileBytes ? size : size - kFileBytes);
    theme.background = MakeTile(surface, &bytes);
    Draw(theme, surface, &bytes);
    SDL_FreeSurface(theme.background);
    kvt_fuzz::Require(surface.GuardsIntact(), "a byte outside the surface changed");

    kvt_fuzz::Require(theme.Save(copy.path(), surface), "the copy did not open");
    // Stored colours that differ from the saved ones would show a short
    // write; the middles' alpha is not stored and must start the same.
    CUITheme reloaded = kvt_test::DistinctTheme();
    reloaded.activeFirst = reloaded.activeLast = reloaded.restFirst = reloaded.restLast =
        reloaded.faceColor = KVT_RGB(Uint8(~theme.activeFirst.r), 1, 2, 3);
    kvt_fuzz::Require(reloaded.Load(copy.path(), surface), "the copy did not open again");
    kvt_fuzz::Require(SameTheme(theme, reloaded), "the saved theme loads back different");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    static const kvt_fuzz::ScratchFile file("theme"), copy("theme-copy");
    file.Write(data, size);
    LoadDrawSave(file, copy, kvt_fuzz::FormatNamed("Index8"), data, size);
    LoadDrawSave(file, copy, kvt_fuzz::FormatNamed("XRGB32"), data, size);
    return 0;
}
