#include <kvt/draw/pixel.h>

#include <kvt/draw/internal/fill_alpha_paths.h>

namespace kvt {

void FillAlphaPlain(SDL_Surface *surface, const Area &area, KVT_RGBA colour)
{
    const Uint32 a = colour.a;
    const Uint32 pr = colour.r * (255 - a), pg = colour.g * (255 - a), pb = colour.b * (255 - a);
    const ColourForm form = ColourForm::ThroughSdl(surface->format);
    WithDepth(surface->format, [&](auto pixel) {
        for (int y = area.y0; y < area.y1; ++y) {
            Uint8 *p = PixelAddress(surface, area.x0, y);
            for (int x = area.x0; x < area.x1; ++x, p += pixel.kBytes) {
                Uint8 r, g, b;
                form.Split(pixel.Read(p), &r, &g, &b);
                pixel.StoreRGB(p, Uint8((r * a + pr) >> 8), Uint8((g * a + pg) >> 8),
                               Uint8((b * a + pb) >> 8), form);
            }
        }
    });
}

} // namespace kvt

void KVT_FillRectAlpha(SDL_Surface *surface, int x, int y, int w, int h, KVT_RGBA colour)
{
    kvt::Area area;
    if (!kvt::ClipToSurface(surface, x, y, w, h, &area))
        return;
    kvt::FillAlphaPlain(surface, area, colour);
}
