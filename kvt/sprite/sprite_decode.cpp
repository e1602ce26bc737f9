#include <algorithm>
#include <optional>

#include <kvt/draw/colour.h>
#include <kvt/draw/depth.h>
#include <kvt/draw/internal/byte_channels.h>
#include <kvt/draw/internal/palette_cache.h>
#include <kvt/draw/pixel.h>
#include <kvt/sprite/internal/decode_paths.h>

namespace kvt {

namespace {

// Neighbouring pixels of a sprite mostly share their colour; remembering
// the last one spares the mapping. On a palette the mapping is a search,
// and the other colours met are kept too.
class LastColour {
public:
    explicit LastColour(const ColourForm &form) : form_(form), rgb_(0), value_(form.Map(0, 0, 0))
    {
        if (form.Format()->palette != nullptr)
            palette_.emplace(form.Format());
    }
    Uint32 Map(Uint32 word)
    {
        const Uint32 rgb = word & 0xFFFFFFu;
        if (rgb != rgb_) {
            rgb_ = rgb;
            const Uint8 r = RedOf(word), g = GreenOf(word), b = BlueOf(word);
            value_ = palette_ ? palette_->Map(r, g, b) : form_.Map(r, g, b);
        }
        return value_;
    }

private:
    const ColourForm &form_;
    std::optional<PaletteCache> palette_;
    Uint32 rgb_;
    Uint32 value_;
};

// A 4-byte target whose channels lie where the file keeps them (red in
// bits 16-23, green 8-15, blue 0-7), as in the usual 32-bit display
// format: mapping a pixel word is then keeping its low 24 bits and ORing
// Amask in, which SDL_MapRGB of its three bytes gives too.
bool HoldsFileWords(const SDL_PixelFormat *format, Uint32 *amask)
{
    ByteChannels layout;
    if (!FindByteChannels(format, &layout) || layout.bytes != 4 || layout.red != 16 ||
        layout.green != 8 || layout.blue != 0)
        return false;
    *amask = layout.amask;
    return true;
}

} // namespace

void DecodeFramePlain(SDL_Surface *surface, const FrameRuns &runs)
{
    for (int y = 0; y < runs.height; ++y) {
        const RowSpan &span = runs.rows[y];
        const Sint16 row = Sint16(y);
        WalkRow(
            runs.words + span.first, span.count, runs.width,
            [&](int x, int n) {
                for (int k = 0; k < n; ++k)
                    KVT_SetPixel(surface, Sint16(x + k), row, 255, 0, 255);
            },
            [&](int x, const Uint32 *pixels, int n) {
                for (int k = 0; k < n; ++k)
                    KVT_SetPixel(surface, Sint16(x + k), row, RedOf(pixels[k]),
                                 GreenOf(pixels[k]), BlueOf(pixels[k]));
            });
    }
}

void DecodeFrame(SDL_Surface *surface, const FrameRuns &runs)
{
    const ColourForm form(surface->format);
    const int width = std::min(runs.width, surface->w);
    const int height = std::min(runs.height, surface->h);
    WithDepth(surface->format, [&](auto pixel) {
        constexpr int kBytes = decltype(pixel)::kBytes;
        const Uint32 key = form.Map(255, 0, 255);
        LastColour colour(form);
        Uint32 amask = 0;
        const bool fileWords = kBytes == 4 && HoldsFileWords(surface->format, &amask);
        for (int y = 0; y < height; ++y) {
            const RowSpan &span = runs.rows[y];
            Uint8 *const row = PixelAddress(surface, 0, y);
            WalkRow(
                runs.words + span.first, span.count, width,
                [&](int x, int n) {
                    Uint8 *p = row + ptrdiff_t(x) * kBytes;
                    for (Uint8 *const end = p + ptrdiff_t(n) * kBytes; p != end; p += kBytes)
                        pixel.Store(p, key);
                },
                [&](int x, const Uint32 *pixels, int n) {
                    Uint8 *p = row + ptrdiff_t(x) * kBytes;
                    if (fileWords) {
                        for (int k = 0; k < n; ++k, p += kBytes)
                            pixel.Store(p, (pixels[k] & 0xFFFFFFu) | amask);
                        return;
                    }
                    for (int k = 0; k < n; ++k, p += kBytes)
                        pixel.Store(p, colour.Map(pixels[k]));
                });
        }
    });
}

} // namespace kvt
