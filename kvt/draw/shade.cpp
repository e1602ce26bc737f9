#include <kvt/draw/shade.h>

#include <cstdint>
#include <optional>

#include <kvt/draw/colour.h>
#include <kvt/draw/depth.h>

#include <kvt/draw/internal/palette_cache.h>
#include <kvt/draw/internal/shade_paths.h>
#include <kvt/draw/internal/span.h>

namespace kvt {
namespace {

// A shaded line cut to the surface: its first byte, its pixel count, and
// the bytes from one pixel to the next.
struct ShadeRun {
    Uint8 *start;
    int count;
    int step;
};

bool ClipHorz(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, ShadeRun *run)
{
    Span span;
    if (y < 0 || y >= surface->h || !ClipSpan(x, length, surface->w, SpanSums::Wrap16, &span))
        return false;
    *run = {PixelAddress(surface, span.start, y), span.count, surface->format->BytesPerPixel};
    return true;
}

bool ClipVert(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, ShadeRun *run)
{
    Span span;
    if (x < 0 || x >= surface->w || !ClipSpan(y, length, surface->h, SpanSums::Wrap16, &span))
        return false;
    *run = {PixelAddress(surface, x, span.start), span.count, surface->pitch};
    return true;
}

// The ramp as defined: three divisions and one SDL_MapRGB per pixel.
void RampPlain(SDL_Surface *surface, const ShadeRun &run, KVT_RGBA first, KVT_RGBA last)
{
    const ColourForm form = ColourForm::ThroughSdl(surface->format);
    const Uint32 n = Uint32(run.count);
    WithDepth(surface->format, [&](auto pixel) {
        Uint8 *p = run.start;
        for (Uint32 i = 0; i < n; ++i, p += run.step) {
            Uint8 r = Uint8((first.r * (n - i) + last.r * i) / n);
            Uint8 g = Uint8((first.g * (n - i) + last.g * i) / n);
            Uint8 b = Uint8((first.b * (n - i) + last.b * i) / n);
            pixel.Store(p, form.Map(r, g, b));
        }
    });
}

// One channel of the ramp without a division per pixel. The numerator
// N(i) = first * n + (last - first) * i stays below 2^23 and is never
// negative, and n is below 2^15; for such numbers the product with the
// reciprocal M = ceil(2^40 / n), shifted down by 40, is exactly the
// truncating division by n (M's excess adds less than 2^-17 to a quotient
// whose fraction is at most 1 - 1/n). N(i) * M itself is then stepped by
// adding (last - first) * M, so the loop neither divides nor multiplies;
// unsigned arithmetic keeps the sums exact, as each true N(i) * M lies in
// [0, 2^63).
class RampChannel {
public:
    RampChannel(Uint8 first, Uint8 last, Uint32 n, uint64_t reciprocal)
        : scaled_(uint64_t(first) * n * reciprocal),
          step_(uint64_t(int64_t(int(last) - int(first)) * int64_t(reciprocal)))
    {
    }

    // The value at pixel i, as Next would give it there.
    Uint32 At(Uint32 i) const { return Uint32((scaled_ + step_ * i) >> 40); }

    // The current value; then moves on to the next pixel.
    Uint32 Next()
    {
        Uint32 value = Uint32(scaled_ >> 40);
        scaled_ += step_;
        return value;
    }

private:
    uint64_t scaled_;
    uint64_t step_;
};

struct Ramp {
    RampChannel r, g, b;
};

// Channels of eight bits are placed by a multiplication rather than a
// shift by a variable count, which the loop can keep in registers.
bool HasWholeChannels(const ColourForm &form)
{
    return form.Direct() && form.Red().loss == 0 && form.Green().loss == 0 &&
           form.Blue().loss == 0;
}

template <class Pixel>
void StoreRamp(const Pixel &pixel, const ShadeRun &run, Ramp ramp, const ColourForm &form)
{
    Uint8 *p = run.start;
    const int count = run.count, step = run.step;
    if (HasWholeChannels(form)) {
        const Uint32 red = 1u << form.Red().shift, green = 1u << form.Green().shift;
        const Uint32 blue = 1u << form.Blue().shift, amask = form.Format()->Amask;
        for (int i = 0; i < count; ++i, p += step)
            pixel.Store(p, (ramp.r.Next() * red + ramp.g.Next() * green + ramp.b.Next() * blue) |
                               amask);
        return;
    }
    for (int i = 0; i < count; ++i, p += step) {
        Uint8 r = Uint8(ramp.r.Next()), g = Uint8(ramp.g.Next()), b = Uint8(ramp.b.Next());
        pixel.Store(p, form.Map(r, g, b));
    }
}

// At 8 bits a ramp's cost is SDL_MapRGB's search of the palette for the
// nearest colour (least squared distance, the first index on ties). The
// colours that such a search sends to one index form a convex set, cut
// out by one plane per other palette entry, so when every corner of the
// box spanned by two ramp colours maps to one index, so does every colour
// in the box, and with it every ramp pixel between the two, as each
// channel of the ramp runs monotonically. The ramp is split in halves
// until its ends agree with their box's corners; only the pixels at the
// cuts and the corners are searched, each colour once.
class IndexedRamp {
public:
    IndexedRamp(PaletteCache &cache, const ShadeRun &run, const Ramp &ramp)
        : cache_(cache), run_(run), ramp_(ramp)
    {
    }

    void Draw()
    {
        if (cache_.Search().Cheap()) {
            StoreEach();
            return;
        }
        const int last = run_.count - 1;
        const Uint8 first = Store(0);
        Between(0, first, last, last == 0 ? first : Store(last));
    }

private:
    struct Rgb {
        Uint8 r, g, b;
    };

    // Where a search costs no more than remembering it, every pixel is
    // searched.
    void StoreEach()
    {
        const NearestColour &search = cache_.Search();
        Ramp ramp = ramp_;
        Uint8 *p = run_.start;
        for (int i = 0; i < run_.count; ++i, p += run_.step)
            *p = search.Find(Uint8(ramp.r.Next()), Uint8(ramp.g.Next()), Uint8(ramp.b.Next()));
    }

    Rgb ColourAt(int i) const
    {
        const Uint32 k = Uint32(i);
        return {Uint8(ramp_.r.At(k)), Uint8(ramp_.g.At(k)), Uint8(ramp_.b.At(k))};
    }
    Uint8 Store(int i)
    {
        const Rgb c = ColourAt(i);
        const Uint8 index = cache_.Map(c.r, c.g, c.b);
        run_.start[ptrdiff_t(i) * run_.step] = index;
        return index;
    }
    bool BoxMapsTo(Rgb a, Rgb b, Uint8 index)
    {
        for (int corner = 0; corner < 8; ++corner)
            if (cache_.Map(corner & 1 ? b.r : a.r, corner & 2 ? b.g : a.g,
                           corner & 4 ? b.b : a.b) != index)
                return false;
        return true;
    }
    // Pixels lo and hi hold their indices; paints the ones between.
    void Between(int lo, Uint8 atLo, int hi, Uint8 atHi)
    {
        if (hi - lo < 2)
            return;
        // A box check costs up to six searches: short runs are searched
        // pixel by pixel instead.
        if (hi - lo > 8 && atLo == atHi && BoxMapsTo(ColourAt(lo), ColourAt(hi), atLo)) {
            for (int i = lo + 1; i < hi; ++i)
                run_.start[ptrdiff_t(i) * run_.step] = atLo;
            return;
        }
        if (hi - lo <= 8) {
            for (int i = lo + 1; i < hi; ++i)
                Store(i);
            return;
        }
        const int mid = lo + (hi - lo) / 2;
        const Uint8 atMid = Store(mid);
        Between(lo, atLo, mid, atMid);
        Between(mid, atMid, hi, atHi);
    }

    PaletteCache &cache_;
    ShadeRun run_;
    Ramp ramp_;
};

bool IsIndexed(const SDL_PixelFormat *format)
{
    return format->palette != nullptr && format->BytesPerPixel == 1;
}

// `palette` serves the ramps of an 8-bit surface; null elsewhere, and for
// a line drawn on its own, which makes its own.
void RampFast(SDL_Surface *surface, const ShadeRun &run, KVT_RGBA first, KVT_RGBA last,
              PaletteCache *palette)
{
    const Uint32 n = Uint32(run.count);
    const uint64_t reciprocal = ((uint64_t(1) << 40) + n - 1) / n;
    const Ramp ramp = {RampChannel(first.r, last.r, n, reciprocal),
                       RampChannel(first.g, last.g, n, reciprocal),
                       RampChannel(first.b, last.b, n, reciprocal)};
    if (IsIndexed(surface->format)) {
        if (palette != nullptr) {
            IndexedRamp(*palette, run, ramp).Draw();
        } else {
            PaletteCache own(surface->format);
            IndexedRamp(own, run, ramp).Draw();
        }
        return;
    }
    const ColourForm form(surface->format);
    WithDepth(surface->format, [&](auto pixel) { StoreRamp(pixel, run, ramp, form); });
}

void HorzShade(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, KVT_RGBA first,
               KVT_RGBA last, PaletteCache *palette)
{
    ShadeRun run;
    if (ClipHorz(surface, x, y, length, &run))
        RampFast(surface, run, first, last, palette);
}

void VertShade(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, KVT_RGBA first,
               KVT_RGBA last, PaletteCache *palette)
{
    ShadeRun run;
    if (ClipVert(surface, x, y, length, &run))
        RampFast(surface, run, first, last, palette);
}

} // namespace

void HorzLineShadePlain(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, KVT_RGBA first,
                        KVT_RGBA last)
{
    ShadeRun run;
    if (ClipHorz(surface, x, y, length, &run))
        RampPlain(surface, run, first, last);
}

void VertLineShadePlain(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, KVT_RGBA first,
                        KVT_RGBA last)
{
    ShadeRun run;
    if (ClipVert(surface, x, y, length, &run))
        RampPlain(surface, run, first, last);
}

} // namespace kvt

void KVT_HorzLineShade(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, KVT_RGBA first,
                       KVT_RGBA last)
{
    kvt::HorzShade(surface, x, y, length, first, last, nullptr);
}

void KVT_VertLineShade(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, KVT_RGBA first,
                       KVT_RGBA last)
{
    kvt::VertShade(surface, x, y, length, first, last, nullptr);
}

void KVT_RectShade(SDL_Surface *surface, int x, int y, int width, int height, KVT_RGBA first,
                   KVT_RGBA middle, KVT_RGBA last)
{
    Sint16 left = Sint16(x), top = Sint16(y), w = Sint16(width), h = Sint16(height);
    Sint16 right = Sint16(left + w - 1), bottom = Sint16(top + h - 1);
    // On a palette the four sides share one search and its answers.
    std::optional<kvt::PaletteCache> palette;
    if (kvt::IsIndexed(surface->format))
        palette.emplace(surface->format);
    kvt::PaletteCache *shared = palette ? &*palette : nullptr;
    kvt::HorzShade(surface, left, top, w, first, middle, shared);
    kvt::HorzShade(surface, left, bottom, w, middle, last, shared);
    kvt::VertShade(surface, left, top, h, first, middle, shared);
    kvt::VertShade(surface, right, top, h, middle, last, shared);
}
