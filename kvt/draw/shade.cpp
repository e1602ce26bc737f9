#include <kvt/draw/shade.h>

#include <kvt/draw/colour.h>
#include <kvt/draw/depth.h>

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

// One channel of the ramp, stepped without dividing. The numerator
// first * (n - i) + last * i moves by last - first from one pixel to the
// next; it is kept as quotient and remainder of n, with the step split the
// same way (floored, so the remainder stays in [0, n)). Since the
// numerator is never negative, the quotient is exactly the truncating
// division of the definition.
class RampChannel {
public:
    RampChannel(Uint8 first, Uint8 last, int n) : value_(first), rest_(0), n_(n)
    {
        int delta = int(last) - int(first);
        stepValue_ = delta / n;
        stepRest_ = delta % n;
        if (stepRest_ < 0) {
            stepRest_ += n;
            --stepValue_;
        }
    }

    // The current channel value; then moves on to the next pixel.
    Uint8 Next()
    {
        Uint8 current = Uint8(value_);
        value_ += stepValue_;
        rest_ += stepRest_;
        if (rest_ >= n_) {
            rest_ -= n_;
            ++value_;
        }
        return current;
    }

private:
    int value_, rest_, n_;
    int stepValue_, stepRest_;
};

void RampStepped(SDL_Surface *surface, const ShadeRun &run, KVT_RGBA first, KVT_RGBA last)
{
    const ColourForm form(surface->format);
    WithDepth(surface->format, [&](auto pixel) {
        RampChannel r(first.r, last.r, run.count);
        RampChannel g(first.g, last.g, run.count);
        RampChannel b(first.b, last.b, run.count);
        Uint8 *p = run.start;
        for (int i = 0; i < run.count; ++i, p += run.step) {
            Uint8 red = r.Next(), green = g.Next(), blue = b.Next();
            pixel.Store(p, form.Map(red, green, blue));
        }
    });
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
    kvt::ShadeRun run;
    if (kvt::ClipHorz(surface, x, y, length, &run))
        kvt::RampStepped(surface, run, first, last);
}

void KVT_VertLineShade(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, KVT_RGBA first,
                       KVT_RGBA last)
{
    kvt::ShadeRun run;
    if (kvt::ClipVert(surface, x, y, length, &run))
        kvt::RampStepped(surface, run, first, last);
}

void KVT_RectShade(SDL_Surface *surface, int x, int y, int width, int height, KVT_RGBA first,
                   KVT_RGBA middle, KVT_RGBA last)
{
    Sint16 left = Sint16(x), top = Sint16(y), w = Sint16(width), h = Sint16(height);
    Sint16 right = Sint16(left + w - 1), bottom = Sint16(top + h - 1);
    KVT_HorzLineShade(surface, left, top, w, first, middle);
    KVT_HorzLineShade(surface, left, bottom, w, middle, last);
    KVT_VertLineShade(surface, left, top, h, first, middle);
    KVT_VertLineShade(surface, right, top, h, middle, last);
}
