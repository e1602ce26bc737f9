#include <kvt/ui/core/theme.h>

#include <algorithm>
#include <cstdio>

#include <kvt/draw/shade.h>
#include <kvt/ui/core/internal/background_tiles.h>

namespace {

constexpr int kStoredColours = 5;
constexpr size_t kFileBytes = size_t(kStoredColours) * 4;

// The colours of the file, in file order.
KVT_RGBA *StoredColour(CUITheme *theme, int index)
{
    KVT_RGBA *const order[kStoredColours] = {&theme->activeFirst, &theme->activeLast,
                                             &theme->restFirst, &theme->restLast,
                                             &theme->faceColor};
    return order[index];
}

Uint8 *Channel(KVT_RGBA *colour, int index)
{
    Uint8 *const channels[4] = {&colour->r, &colour->g, &colour->b, &colour->a};
    return channels[index];
}

// The middle of a ramp; its `a` is not part of the ramp and stays as it is.
void SetMean(KVT_RGBA *middle, const KVT_RGBA &first, const KVT_RGBA &last)
{
    middle->r = Uint8((first.r + last.r) >> 1);
    middle->g = Uint8((first.g + last.g) >> 1);
    middle->b = Uint8((first.b + last.b) >> 1);
}

} // namespace

bool CUITheme::Load(const char *path, SDL_Surface *surface)
{
    FILE *file = std::fopen(path, "rb");
    if (file == nullptr)
        return false;
    Uint8 bytes[kFileBytes];
    size_t got = std::fread(bytes, 1, kFileBytes, file);
    std::fclose(file);
    // Byte k of the file is channel k % 4 of stored colour k / 4; bytes the
    // file does not hold leave their channel as it was.
    for (size_t k = 0; k < got; ++k)
        *Channel(StoredColour(this, int(k / 4)), int(k % 4)) = bytes[k];
    RepackColor(surface);
    return true;
}

bool CUITheme::Save(const char *path, SDL_Surface *surface)
{
    FILE *file = std::fopen(path, "wb");
    if (file == nullptr)
        return false;
    Uint8 bytes[kFileBytes];
    for (size_t k = 0; k < kFileBytes; ++k)
        bytes[k] = *Channel(StoredColour(this, int(k / 4)), int(k % 4));
    // A short write is not reported: the answer says only that the file
    // could be opened.
    // cppcheck-suppress uninitvar ; the loop above fills every byte
    size_t written = std::fwrite(bytes, 1, kFileBytes, file);
    (void)written;
    std::fclose(file);
    RepackColor(surface);
    return true;
}

void CUITheme::RepackColor(SDL_Surface *)
{
    SetMean(&activeMid, activeFirst, activeLast);
    SetMean(&restMid, restFirst, restLast);
}

void CUITheme::DrawBackground(SDL_Surface *surface, SDL_Rect *area) const
{
    if (background == nullptr || background->w <= 0 || background->h <= 0)
        return;
    if (!kvt::TileByBands(background, surface, *area))
        kvt::TileByTile(background, surface, *area);
}

void CUITheme::DrawFrame(SDL_Surface *surface, int x, int y, int w, int h, CUIFrame frame) const
{
    switch (frame) {
    case CUIFrame::Rest:
        KVT_RectShade(surface, x, y, w, h, restFirst, restMid, restLast);
        break;
    case CUIFrame::Active:
        KVT_RectShade(surface, x, y, w, h, activeFirst, activeMid, activeLast);
        break;
    case CUIFrame::Sunken:
        KVT_RectShade(surface, x, y, w, h, activeLast, activeMid, activeFirst);
        break;
    case CUIFrame::SunkenRest:
        KVT_RectShade(surface, x, y, w, h, restLast, restMid, restFirst);
        break;
    case CUIFrame::Hover:
        KVT_RectShade(surface, x, y, w, h, activeFirst, restMid, activeLast);
        break;
    }
}
