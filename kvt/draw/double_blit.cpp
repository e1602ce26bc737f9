#include <kvt/draw/double_blit.h>

#include <cstdint>
#include <optional>

#include <kvt/draw/depth.h>
#include <kvt/draw/internal/byte_channels.h>
#include <kvt/draw/internal/double_blit_paths.h>
#include <kvt/draw/internal/palette_cache.h>

namespace kvt {

namespace {

struct Rgb {
    Uint8 r, g, b;
};

// Colours as split r, g, b: any pair of formats.
struct RgbColours {
    static bool IsTransparent(Rgb c) { return IsNearKeyColour(c.r, c.g, c.b); }
    static Rgb Mean(Rgb a, Rgb b)
    {
        return {Uint8((a.r + b.r) >> 1), Uint8((a.g + b.g) >> 1), Uint8((a.b + b.b) >> 1)};
    }
};

// Colours as pixel values of a target whose channels are whole bytes: a
// source colour arrives with its channel bytes moved into the target's
// places, so that the mean is taken on all bytes at once.
struct ByteColours {
    bool IsTransparent(Uint32 v) const
    {
        return IsNearKeyColour(Uint8(v >> to.red), Uint8(v >> to.green), Uint8(v >> to.blue));
    }
    // floor((a + b) / 2) in every byte; bytes outside the channels are the
    // same Amask byte in both, and stay so.
    static Uint32 Mean(Uint32 a, Uint32 b) { return (a & b) + (((a ^ b) & 0xFEFEFEFE) >> 1); }

    ByteChannels to;
};

// Pixels of one surface, each read and written on its own: bounds test,
// depth dispatch and a call of SDL_GetRGB or SDL_MapRGB every time.
class PixelsThroughSdl {
public:
    explicit PixelsThroughSdl(SDL_Surface *surface) : surface_(surface) {}
    Rgb Get(int x, int y) const
    {
        Rgb c = {0, 0, 0};
        if (!IsOnSurface(surface_, x, y))
            return c;
        const ColourForm form = ColourForm::ThroughSdl(surface_->format);
        const Uint8 *p = PixelAddress(surface_, x, y);
        WithDepth(surface_->format,
                  [&](auto pixel) { form.Split(pixel.Read(p), &c.r, &c.g, &c.b); });
        return c;
    }
    void Set(int x, int y, Rgb c) const
    {
        if (!IsOnSurface(surface_, x, y))
            return;
        const ColourForm form = ColourForm::ThroughSdl(surface_->format);
        Uint8 *p = PixelAddress(surface_, x, y);
        WithDepth(surface_->format, [&](auto pixel) { pixel.Store(p, form.Map(c.r, c.g, c.b)); });
    }

private:
    SDL_Surface *surface_;
};

enum class Access { Read, ReadWrite };

// Pixels of one surface whose depth is known: rows addressed directly,
// colours split and mapped inline. Callers keep to the surface.
template <class Pixel>
class PixelsInline {
public:
    PixelsInline(SDL_Surface *surface, Pixel pixel, Access access)
        : base_(static_cast<Uint8 *>(surface->pixels)), pitch_(surface->pitch), pixel_(pixel),
          form_(ColourForm::Learned(surface->format))
    {
        // Only a surface written to maps colours; a source read through its
        // palette needs no search.
        if (access == Access::ReadWrite && surface->format->palette != nullptr)
            palette_.emplace(surface->format);
    }
    Rgb Get(int x, int y) const
    {
        Rgb c;
        form_.Split(pixel_.Read(At(x, y)), &c.r, &c.g, &c.b);
        return c;
    }
    void Set(int x, int y, Rgb c) const
    {
        pixel_.Store(At(x, y), palette_ ? palette_->Map(c.r, c.g, c.b) : form_.Map(c.r, c.g, c.b));
    }

private:
    Uint8 *At(int x, int y) const
    {
        return base_ + ptrdiff_t(y) * pitch_ + ptrdiff_t(x) * Pixel::kBytes;
    }

    Uint8 *base_;
    int pitch_;
    Pixel pixel_;
    ColourForm form_;
    // Means of palette colours are searched for in the palette; the
    // answers are kept for the blit.
    mutable std::optional<PaletteCache> palette_;
};

// Pixels of a surface with whole-byte channels, as values of the target's
// format (ByteColours): reading a source pixel moves its channel bytes into
// the target's places, reading a target pixel keeps its channel bytes and
// Amask, which is what splitting and mapping it back would give.
template <class Pixel>
class PixelsAsBytes {
public:
    PixelsAsBytes(SDL_Surface *surface, Pixel pixel, const ByteChannels &own,
                  const ByteChannels &to)
        : base_(static_cast<Uint8 *>(surface->pixels)), pitch_(surface->pitch), pixel_(pixel),
          own_(own), to_(to),
          samePlaces_(own.red == to.red && own.green == to.green && own.blue == to.blue)
    {
    }
    Uint32 Get(int x, int y) const
    {
        const Uint32 v = pixel_.Read(At(x, y));
        if (samePlaces_)
            return to_.Normalise(v);
        return (((v >> own_.red) & 0xFF) << to_.red) | (((v >> own_.green) & 0xFF) << to_.green) |
               (((v >> own_.blue) & 0xFF) << to_.blue) | to_.amask;
    }
    void Set(int x, int y, Uint32 v) const { pixel_.Store(At(x, y), v); }

private:
    Uint8 *At(int x, int y) const
    {
        return base_ + ptrdiff_t(y) * pitch_ + ptrdiff_t(x) * Pixel::kBytes;
    }

    Uint8 *base_;
    int pitch_;
    Pixel pixel_;
    ByteChannels own_, to_;
    bool samePlaces_;
};

// Pass 1: each source row lands on an even target row, every other column,
// with the mean of each pair of neighbours between them. A transparent
// source pixel takes the target's pixel at its own position instead.
template <class Source, class Target, class Colours>
void EvenRows(const Source &source, const Target &target, const Colours &colours, int x, int y,
              int w, int h)
{
    for (int j = 0; j < h; ++j) {
        const int row = y + 2 * j;
        auto first = source.Get(0, j);
        if (colours.IsTransparent(first))
            first = target.Get(x, row);
        target.Set(x, row, first);
        for (int i = 1; i < w; ++i) {
            const int odd = x + 2 * i - 1, even = x + 2 * i;
            auto left = source.Get(i - 1, j);
            auto right = source.Get(i, j);
            if (colours.IsTransparent(left))
                left = target.Get(odd, row);
            if (colours.IsTransparent(right))
                right = target.Get(even, row);
            target.Set(odd, row, colours.Mean(left, right));
            target.Set(even, row, right);
        }
    }
}

// Pass 2, on the target alone: each odd row takes the mean of the rows
// above and below, and the row below is written back as it reads.
template <class Target, class Colours>
void OddRows(const Target &target, const Colours &colours, int x, int y, int w, int h)
{
    for (int j = 1; j < h; ++j) {
        const int above = y + 2 * (j - 1), below = y + 2 * j;
        for (int c = 0; c <= 2 * w - 2; ++c) {
            const auto top = target.Get(x + c, above);
            const auto bottom = target.Get(x + c, below);
            target.Set(x + c, below - 1, colours.Mean(top, bottom));
            target.Set(x + c, below, bottom);
        }
    }
}

// Both surfaces with whole-byte channels: the blit on pixel values.
template <class TargetPixel>
void DoubleAsBytes(SDL_Surface *source, SDL_Surface *target, int x, int y, const ByteChannels &from,
                   const ByteChannels &to, TargetPixel targetPixel)
{
    const ByteColours colours = {to};
    const PixelsAsBytes<TargetPixel> onto(target, targetPixel, to, to);
    WithDepth(source->format, [&](auto sourcePixel) {
        if constexpr (decltype(sourcePixel)::kBytes >= 3) {
            const PixelsAsBytes<decltype(sourcePixel)> read(source, sourcePixel, from, to);
            EvenRows(read, onto, colours, x, y, source->w, source->h);
        }
    });
    OddRows(onto, colours, x, y, source->w, source->h);
}

} // namespace

bool CanDoubleSize(const SDL_Surface *source, const SDL_Surface *target, int x, int y)
{
    bool readable = false;
    WithDepth(source->format, [&](auto) { readable = true; });
    return readable && source->w > 0 && source->h > 0 && x >= 0 && y >= 0 &&
           x + 2 * int64_t(source->w) <= target->w && y + 2 * int64_t(source->h) <= target->h;
}

void DoubleSizeBlitPlain(SDL_Surface *source, SDL_Surface *target, int x, int y)
{
    if (!CanDoubleSize(source, target, x, y))
        return;
    const PixelsThroughSdl from(source), to(target);
    EvenRows(from, to, RgbColours(), x, y, source->w, source->h);
    OddRows(to, RgbColours(), x, y, source->w, source->h);
}

} // namespace kvt

void KVT_DoubleSizeBlit(SDL_Surface *source, SDL_Surface *target, int x, int y)
{
    if (!kvt::CanDoubleSize(source, target, x, y))
        return;
    const int w = source->w, h = source->h;
    kvt::ByteChannels from, to;
    const bool bytes = kvt::FindByteChannels(source->format, &from) &&
                       kvt::FindByteChannels(target->format, &to);
    kvt::WithDepth(target->format, [&](auto targetPixel) {
        using TargetPixel = decltype(targetPixel);
        if constexpr (TargetPixel::kBytes >= 3) {
            if (bytes) {
                kvt::DoubleAsBytes(source, target, x, y, from, to, targetPixel);
                return;
            }
        }
        const kvt::PixelsInline<TargetPixel> onto(target, targetPixel, kvt::Access::ReadWrite);
        kvt::WithDepth(source->format, [&](auto sourcePixel) {
            const kvt::PixelsInline<decltype(sourcePixel)> read(source, sourcePixel,
                                                               kvt::Access::Read);
            kvt::EvenRows(read, onto, kvt::RgbColours(), x, y, w, h);
        });
        kvt::OddRows(onto, kvt::RgbColours(), x, y, w, h);
    });
}
