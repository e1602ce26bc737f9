#include <kvt/draw/lines.h>

#include <cstring>

#include <kvt/draw/depth.h>

#include <kvt/draw/internal/byte_channels.h>
#include <kvt/draw/internal/line_paths.h>
#include <kvt/draw/internal/palette_cache.h>
#include <kvt/draw/internal/span.h>

namespace kvt {
namespace {

// A contiguous row of one value. Single bytes go to memset; 2- and 4-byte
// pixels go two or four to a 64-bit store of the pixel's own bytes
// repeated, which a processor without a vector unit needs to keep up with
// SDL_FillRect; 3-byte pixels one by one.
template <class Pixel>
void StoreRow(const Pixel &pixel, Uint8 *p, int count, Uint32 value)
{
    if constexpr (Pixel::kBytes == 1) {
        std::memset(p, int(value & 0xFF), size_t(count));
    } else if constexpr (8 % Pixel::kBytes == 0) {
        constexpr int kPerWord = 8 / Pixel::kBytes;
        Uint8 word[8] = {};
        for (int k = 0; k < kPerWord; ++k)
            pixel.Store(word + k * Pixel::kBytes, value);
        int i = 0;
        for (; i + kPerWord <= count; i += kPerWord, p += 8)
            std::memcpy(p, word, 8);
        for (; i < count; ++i, p += Pixel::kBytes)
            pixel.Store(p, value);
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

// The surface's pixel memory and bounds copied into values, so that a loop
// of plots keeps them in registers instead of reading the surface again
// after every store.
class Canvas {
public:
    explicit Canvas(const SDL_Surface *surface)
        : pixels_(static_cast<Uint8 *>(surface->pixels)), pitch_(surface->pitch),
          w_(surface->w), h_(surface->h)
    {
    }

    // The address of a plot narrowed to 16 bits, or null when it falls off
    // the surface.
    Uint8 *At(int x, int y, int bytes) const
    {
        int sx = Narrow16(x), sy = Narrow16(y);
        if (sx < 0 || sy < 0 || sx >= w_ || sy >= h_)
            return nullptr;
        return pixels_ + ptrdiff_t(sy) * pitch_ + ptrdiff_t(sx) * bytes;
    }

private:
    Uint8 *pixels_;
    int pitch_, w_, h_;
};

// The blend of one colour over pixel values whose channels are whole
// bytes: each channel byte becomes (c * (255 - a) + d * a) >> 8, written
// as (c * 255 + (d - c) * a) >> 8 to need one product, and the other bits
// become Amask, which is what splitting, blending and mapping give.
class ByteBlend {
public:
    ByteBlend(const ByteChannels &bytes, KVT_RGBA colour)
        : rShift_(bytes.red), gShift_(bytes.green), bShift_(bytes.blue), r_(colour.r),
          g_(colour.g), b_(colour.b), amask_(bytes.amask)
    {
    }

    Uint32 Apply(Uint32 old, Uint8 a) const
    {
        return amask_ | Channel(r_, old >> rShift_, a) << rShift_ |
               Channel(g_, old >> gShift_, a) << gShift_ | Channel(b_, old >> bShift_, a) << bShift_;
    }

private:
    static Uint32 Channel(int c, Uint32 old, int a)
    {
        int d = int(old & 0xFF);
        return Uint32((c * 255 + (d - c) * a) >> 8);
    }

    int rShift_, gShift_, bShift_;
    int r_, g_, b_;
    Uint32 amask_;
};

// The antialiased line at 8 bits: each plot blends the line's colour over
// a palette entry and searches the palette for the result, so the answers
// are kept for the line.
void BlendIndexedLine(SDL_Surface *surface, const Canvas &canvas, const LineWalk &walk,
                      KVT_RGBA colour)
{
    const ColourForm form(surface->format);
    PaletteCache cache(surface->format);
    walk.Run([&](int x, int y, Uint8 a) {
        Uint8 *p = canvas.At(x, y, 1);
        if (p == nullptr)
            return;
        Uint8 r, g, b;
        form.Split(*p, &r, &g, &b);
        *p = cache.Map(BlendChannel(colour.r, r, a), BlendChannel(colour.g, g, a),
                       BlendChannel(colour.b, b, a));
    });
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
    // The same blend as KVT_SetPixelAlpha, with the format examined and the
    // depth chosen once for the whole line instead of at every plot.
    const kvt::Canvas canvas(surface);
    kvt::ByteChannels bytes;
    if (kvt::FindByteChannels(surface->format, &bytes)) {
        const kvt::ByteBlend blend(bytes, colour);
        kvt::WithDepth(surface->format, [&](auto pixel) {
            walk.Run([=](int x, int y, Uint8 a) {
                Uint8 *p = canvas.At(x, y, pixel.kBytes);
                if (p != nullptr)
                    pixel.Store(p, blend.Apply(pixel.Read(p), a));
            });
        });
        return;
    }
    if (surface->format->palette != nullptr) {
        kvt::BlendIndexedLine(surface, canvas, walk, colour);
        return;
    }
    const kvt::ColourForm form = kvt::ColourForm::Learned(surface->format);
    kvt::WithDepth(surface->format, [&](auto pixel) {
        walk.Run([&](int x, int y, Uint8 a) {
            Uint8 *p = canvas.At(x, y, pixel.kBytes);
            if (p != nullptr)
                kvt::BlendPixel(pixel, p, colour.r, colour.g, colour.b, a, form);
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
