#include <kvt/ui/core/theme.h>

#include <algorithm>
#include <cstdio>

#include <kvt/draw/shade.h>

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

// One tile of the background grid at (tx, ty), cut to the area
// [x0, x1) x [y0, y1) and copied to the same place on the surface.
void BlitTilePart(SDL_Surface *tile, SDL_Surface *surface, int tx, int ty, int x0, int y0, int x1,
                  int y1)
{
    int sx = std::max(x0 - tx, 0), sy = std::max(y0 - ty, 0);
    SDL_Rect source;
    source.x = Sint16(sx);
    source.y = Sint16(sy);
    source.w = Uint16(std::min(tile->w, x1 - tx) - sx);
    source.h = Uint16(std::min(tile->h, y1 - ty) - sy);
    SDL_Rect target;
    target.x = Sint16(tx + sx);
    target.y = Sint16(ty + sy);
    SDL_UpperBlit(tile, &source, surface, &target);
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
    const int tileW = background->w, tileH = background->h;
    const int x0 = area->x, y0 = area->y;
    const int x1 = x0 + area->w, y1 = y0 + area->h;
    // Divisions truncate: left of the origin the first tile starts at 0,
    // which leaves out only what lies off the surface anyway.
    for (int tx = (x0 / tileW) * tileW; tx < x1; tx += tileW)
        for (int ty = (y0 / tileH) * tileH; ty < y1; ty += tileH)
            BlitTilePart(background, surface, tx, ty, x0, y0, x1, y1);
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
