#include "surfaces.h"

#include <cstdio>
#include <cstring>
#include <sstream>

namespace kvt_test {

const std::vector<FormatCase> &AllFormats()
{
    static const std::vector<FormatCase> formats = {
        {"Index8", 8, 0, 0, 0, 0},
        {"RGB565", 16, 0xF800, 0x07E0, 0x001F, 0},
        {"RGB555", 16, 0x7C00, 0x03E0, 0x001F, 0},
        {"RGB24", 24, 0xFF0000, 0x00FF00, 0x0000FF, 0},
        {"BGR24", 24, 0x0000FF, 0x00FF00, 0xFF0000, 0},
        {"XRGB32", 32, 0x00FF0000, 0x0000FF00, 0x000000FF, 0},
        {"XBGR32", 32, 0x000000FF, 0x0000FF00, 0x00FF0000, 0},
        {"RGBA32", 32, 0xFF000000, 0x00FF0000, 0x0000FF00, 0x000000FF},
    };
    return formats;
}

std::vector<FormatCase> TrueColourFormats()
{
    std::vector<FormatCase> out;
    for (const FormatCase &pixelFormat : AllFormats())
        if (pixelFormat.bitsPerPixel > 8)
            out.push_back(pixelFormat);
    return out;
}

const std::vector<FormatCase> &MoreFormats()
{
    static const std::vector<FormatCase> formats = {
        {"RGBA4444", 16, 0xF000, 0x0F00, 0x00F0, 0x000F},
        {"ARGB4444", 16, 0x0F00, 0x00F0, 0x000F, 0xF000},
        {"ARGB1555", 16, 0x7C00, 0x03E0, 0x001F, 0x8000},
        {"ARGB32", 32, 0x00FF0000, 0x0000FF00, 0x000000FF, 0xFF000000},
        {"RGB666in32", 32, 0x3F000, 0x00FC0, 0x0003F, 0},
    };
    return formats;
}

std::string FormatName(const FormatCase &pixelFormat) { return pixelFormat.name; }

void PrintTo(const FormatCase &pixelFormat, std::ostream *out) { *out << pixelFormat.name; }

// A 3-3-2 palette: every one of the 256 entries is used and distinct.
static void SetFullPalette(SDL_Surface *surface)
{
    SDL_Color colours[256];
    for (int i = 0; i < 256; ++i) {
        colours[i].r = Uint8((i >> 5) * 255 / 7);
        colours[i].g = Uint8(((i >> 2) & 7) * 255 / 7);
        colours[i].b = Uint8((i & 3) * 255 / 3);
        colours[i].unused = 0;
    }
    SDL_SetColors(surface, colours, 0, 256);
}

bool LoadedSdlIsCompat()
{
    const SDL_version *version = SDL_Linked_Version();
    return SDL_VERSIONNUM(version->major, version->minor, version->patch) >=
           SDL_VERSIONNUM(1, 2, 50);
}

namespace {

void (*problemReporter)(const std::string &) = nullptr;

void ReportProblem(const std::string &problem)
{
    if (problemReporter != nullptr)
        problemReporter(problem);
    else
        std::fprintf(stderr, "test kit: %s\n", problem.c_str());
}

// The format SDL_CreateRGBSurface makes when asked for `asked`; false
// when it makes none.
bool FormatSdlGives(const FormatCase &asked, FormatCase *given)
{
    SDL_Surface *probe = SDL_CreateRGBSurface(0, 1, 1, asked.bitsPerPixel, asked.rmask,
                                              asked.gmask, asked.bmask, asked.amask);
    if (probe == nullptr)
        return false;
    const SDL_PixelFormat *f = probe->format;
    *given = {asked.name, f->BitsPerPixel, f->Rmask, f->Gmask, f->Bmask, f->Amask};
    SDL_FreeSurface(probe);
    return true;
}

} // namespace

void SetProblemReporter(void (*report)(const std::string &problem)) { problemReporter = report; }

SDL_Surface *GuardedSurface::Make(const FormatCase &pixelFormat, int width, int height,
                                  int rowPadding)
{
    const int bytes = (pixelFormat.bitsPerPixel + 7) / 8;
    rowBytes_ = width * bytes;
    const int pitch = rowBytes_ + rowPadding;
    memory_.assign(size_t(kGuardBytes * 2 + pitch * height), kGuard);
    SDL_Surface *surface = SDL_CreateRGBSurfaceFrom(
        memory_.data() + kGuardBytes, width, height, pixelFormat.bitsPerPixel, pitch,
        pixelFormat.rmask, pixelFormat.gmask, pixelFormat.bmask, pixelFormat.amask);
    if (surface != nullptr && surface->format->BitsPerPixel == 8)
        SetFullPalette(surface);
    return surface;
}

GuardedSurface::GuardedSurface(const FormatCase &pixelFormat, int width, int height, int rowPadding)
{
    surface_ = Make(pixelFormat, width, height, rowPadding);
    FormatCase given;
    if (surface_ == nullptr && FormatSdlGives(pixelFormat, &given))
        surface_ = Make(given, width, height, rowPadding);
    if (surface_ == nullptr) {
        ReportProblem(std::string("SDL made no surface of format ") + pixelFormat.name + ": " +
                      SDL_GetError());
        surface_ = Make(AllFormats()[5], width, height, rowPadding);
    }
}

GuardedSurface::~GuardedSurface() { SDL_FreeSurface(surface_); }

// Looks only at the bytes that must keep their guard value: the two guard
// blocks and each row's padding, so that a check costs little next to a
// drawing call.
bool GuardedSurface::GuardsIntact() const
{
    const Uint8 *base = memory_.data();
    const size_t pixelsEnd = kGuardBytes + size_t(surface_->pitch) * surface_->h;
    auto untouched = [base](size_t from, size_t to) {
        for (size_t i = from; i < to; ++i)
            if (base[i] != kGuard)
                return false;
        return true;
    };
    if (!untouched(0, kGuardBytes) || !untouched(pixelsEnd, memory_.size()))
        return false;
    for (int y = 0; y < surface_->h; ++y) {
        const size_t row = kGuardBytes + size_t(surface_->pitch) * y;
        if (!untouched(row + rowBytes_, row + surface_->pitch))
            return false;
    }
    return true;
}

void GuardedSurface::FillRandom(std::mt19937 &rng)
{
    std::uniform_int_distribution<int> byte(0, 255);
    for (int y = 0; y < surface_->h; ++y) {
        Uint8 *row = static_cast<Uint8 *>(surface_->pixels) + y * surface_->pitch;
        for (int i = 0; i < rowBytes_; ++i)
            row[i] = Uint8(byte(rng));
    }
}

void GuardedSurface::FillColour(Uint8 r, Uint8 g, Uint8 b)
{
    Uint32 v = SDL_MapRGB(surface_->format, r, g, b);
    int bytes = surface_->format->BytesPerPixel;
    for (int y = 0; y < surface_->h; ++y) {
        Uint8 *row = static_cast<Uint8 *>(surface_->pixels) + y * surface_->pitch;
        for (int x = 0; x < surface_->w; ++x)
            std::memcpy(row + x * bytes, &v, size_t(bytes)); // little-endian host
    }
}

std::vector<Uint8> GuardedSurface::PixelBytes() const
{
    std::vector<Uint8> out;
    out.reserve(size_t(rowBytes_) * surface_->h);
    for (int y = 0; y < surface_->h; ++y) {
        const Uint8 *row = static_cast<const Uint8 *>(surface_->pixels) + y * surface_->pitch;
        out.insert(out.end(), row, row + rowBytes_);
    }
    return out;
}

Uint32 ReadValue(SDL_Surface *surface, int x, int y)
{
    int bytes = surface->format->BytesPerPixel;
    const Uint8 *p = static_cast<const Uint8 *>(surface->pixels) + y * surface->pitch + x * bytes;
    Uint32 v = 0;
    for (int i = 0; i < bytes; ++i)
        v |= Uint32(p[i]) << (8 * i);
    return v;
}

KVT_RGBA ReadColour(SDL_Surface *surface, int x, int y)
{
    KVT_RGBA c = {0, 0, 0, 0};
    SDL_GetRGB(ReadValue(surface, x, y), surface->format, &c.r, &c.g, &c.b);
    return c;
}

static std::string DescribePixel(const char *what, int x, int y)
{
    std::ostringstream out;
    out << what << " at (" << x << ", " << y << ")";
    return out.str();
}

std::string ChangedOutside(const GuardedSurface &surface, const std::vector<Uint8> &before,
                           SDL_Rect area)
{
    if (!surface.GuardsIntact())
        return "a guard byte outside the pixel memory changed";
    std::vector<Uint8> now = surface.PixelBytes();
    SDL_Surface *s = surface.get();
    int bytes = s->format->BytesPerPixel;
    for (int y = 0; y < s->h; ++y)
        for (int x = 0; x < s->w; ++x) {
            bool inside = x >= area.x && x < area.x + area.w && y >= area.y && y < area.y + area.h;
            size_t at = size_t(y) * s->w * bytes + size_t(x) * bytes;
            if (!inside && std::memcmp(&now[at], &before[at], size_t(bytes)) != 0)
                return DescribePixel("pixel outside the area changed", x, y);
        }
    return "";
}

std::string FirstDifference(const GuardedSurface &a, const GuardedSurface &b)
{
    std::vector<Uint8> left = a.PixelBytes(), right = b.PixelBytes();
    int bytes = a.get()->format->BytesPerPixel;
    for (size_t i = 0; i < left.size(); ++i)
        if (left[i] != right[i]) {
            int pixel = int(i) / bytes;
            return DescribePixel("pixels differ", pixel % a.get()->w, pixel / a.get()->w);
        }
    if (!a.GuardsIntact() || !b.GuardsIntact())
        return "a guard byte changed";
    return "";
}

} // namespace kvt_test
