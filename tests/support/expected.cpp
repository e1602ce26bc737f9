#include "support/expected.h"

#include <algorithm>
#include <cstring>
#include <sstream>

namespace kvt_test {

std::vector<FormatCase> EightBitChannelFormats()
{
    std::vector<FormatCase> out;
    for (const FormatCase &pixelFormat : AllFormats())
        if (pixelFormat.bitsPerPixel >= 24)
            out.push_back(pixelFormat);
    return out;
}

SDL_Rect Rect(int x, int y, int w, int h)
{
    SDL_Rect r;
    r.x = Sint16(x);
    r.y = Sint16(y);
    r.w = Uint16(w);
    r.h = Uint16(h);
    return r;
}

ExpectedPixels::ExpectedPixels(const GuardedSurface &surface)
    : width_(surface.get()->w), height_(surface.get()->h),
      bytes_(surface.get()->format->BytesPerPixel), pixels_(surface.PixelBytes())
{
}

size_t ExpectedPixels::Offset(int x, int y) const
{
    return (size_t(y) * width_ + size_t(x)) * bytes_;
}

void ExpectedPixels::Set(int x, int y, Uint32 value)
{
    for (int i = 0; i < bytes_; ++i)
        pixels_[Offset(x, y) + i] = Uint8(value >> (8 * i));
}

void ExpectedPixels::Fill(SDL_Rect area, Uint32 value)
{
    for (int y = std::max<int>(area.y, 0); y < std::min(area.y + area.h, height_); ++y)
        for (int x = std::max<int>(area.x, 0); x < std::min(area.x + area.w, width_); ++x)
            Set(x, y, value);
}

Uint32 ExpectedPixels::Get(int x, int y) const
{
    Uint32 v = 0;
    for (int i = 0; i < bytes_; ++i)
        v |= Uint32(pixels_[Offset(x, y) + i]) << (8 * i);
    return v;
}

void ExpectedPixels::WriteTo(const GuardedSurface &surface) const
{
    SDL_Surface *s = surface.get();
    for (int y = 0; y < height_; ++y)
        std::memcpy(static_cast<Uint8 *>(s->pixels) + y * s->pitch, &pixels_[Offset(0, y)],
                    size_t(width_) * bytes_);
}

std::string ExpectedPixels::Differences(const GuardedSurface &surface) const
{
    if (!surface.GuardsIntact())
        return "a guard byte outside the pixels changed";
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x) {
            Uint32 got = ReadValue(surface.get(), x, y);
            if (got != Get(x, y)) {
                std::ostringstream out;
                out << "pixel (" << x << ", " << y << ") is 0x" << std::hex << got
                    << ", expected 0x" << Get(x, y);
                return out.str();
            }
        }
    return "";
}

} // namespace kvt_test
