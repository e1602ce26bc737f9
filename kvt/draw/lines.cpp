#include <kvt/draw/lines.h>

#include <cstring>

#include <kvt/draw/depth.h>

#include <kvt/draw/internal/line_paths.h>
#include <kvt/draw/internal/span.h>

namespace kvt {
namespace {

// A contiguous row of one value. Single bytes go to memset; wider pixels
// use a fixed stride that the compiler can unroll or vectorise.
template <class Pixel>
void StoreRow(const Pixel &pixel, Uint8 *p, int count, Uint32 value)
{
    if constexpr (Pixel::kBytes == 1) {
        std::memset(p, int(value & 0xFF), size_t(count));
    } else {
        for (int i = 0; i < count; ++i, p += Pixel::kBytes)
            pixel.Store(p, value);
    }
}

template <class Pixel>
void StoreColumn(const Pixel &pixel, Uint8 *p, int count, int pitch, Uint32 value)
{
    for (int i = 0; i < count; ++i, p += pitch)
        pixel.Store(p, value);
}

} // namespace
} // namespace kvt

void KVT_HorzLine(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, KVT_RGBA colour)
{
    kvt::Span span;
    if (y < 0 || y >= surface->h ||
        !kvt::ClipSpan(x, length, surface->w, kvt::SpanSums::Exact, &span))
        return;
    Uint32 value = kvt::ColourForm(surface->format).Map(colour.r, colour.g, colour.b);
    Uint8 *p = kvt::PixelAddress(surface, span.start, y);
    kvt::WithDepth(surface->format,
                   [&](auto pixel) { kvt::StoreRow(pixel, p, span.count, value); });
}

void KVT_VertLine(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, KVT_RGBA colour)
{
    kvt::Span span;
    if (x < 0 || x >= surface->w ||
        !kvt::ClipSpan(y, length, surface->h, kvt::SpanSums::Exact, &span))
        return;
    Uint32 value = kvt::ColourForm(surface->format).Map(colour.r, colour.g, colour.b);
    Uint8 *p = kvt::PixelAddress(surface, x, span.start);
    int pitch = surface->pitch;
    kvt::WithDepth(surface->format,
                   [&](auto pixel) { kvt::StoreColumn(pixel, p, span.count, pitch, value); });
}

void KVT_Line(SDL_Surface *surface, int x1, int y1, int x2, int y2, KVT_RGBA colour)
{
    kvt::LineWalk walk;
    if (!kvt::PrepareLine(surface, x1, y1, x2, y2, colour, &walk))
        return;
    // The same blend as KVT_SetPixelAlpha, with the colour form and the
    // depth chosen once for the whole line instead of at every plot.
    const kvt::ColourForm form(surface->format);
    kvt::WithDepth(surface->format, [&](auto pixel) {
        walk.Run([&](int x, int y, Uint8 a) {
            Sint16 sx = kvt::Narrow16(x), sy = kvt::Narrow16(y);
            if (!kvt::IsOnSurface(surface, sx, sy))
                return;
            kvt::BlendPixel(pixel, kvt::PixelAddress(surface, sx, sy), colour.r, colour.g,
                            colour.b, a, form);
        });
    });
}

void KVT_Rect(SDL_Surface *surface, int x, int y, int w, int h, KVT_RGBA colour)
{
    // Sums in unsigned 32 bits: they wrap instead of overflowing, and only
    // their low 16 bits are used.
    Sint16 left = Sint16(x), top = Sint16(y);
    Sint16 right = Sint16(Uint32(x) + Uint32(w) - 1u);
    Sint16 bottom = Sint16(Uint32(y) + Uint32(h) - 1u);
    KVT_HorzLine(surface, left, top, Sint16(w), colour);
    KVT_HorzLine(surface, left, bottom, Sint16(w), colour);
    KVT_VertLine(surface, left, top, Sint16(h), colour);
    KVT_VertLine(surface, right, top, Sint16(h), colour);
}

void KVT_FillRect(SDL_Surface *surface, int x, int y, int w, int h, KVT_RGBA colour)
{
    SDL_Rect rect;
    rect.x = Sint16(x);
    rect.y = Sint16(y);
    rect.w = Uint16(w);
    rect.h = Uint16(h);
    Uint32 value = kvt::ColourForm(surface->format).Map(colour.r, colour.g, colour.b);
    SDL_FillRect(surface, &rect, value);
}
