#include <kvt/draw/pixel.h>

#include <cstdint>
#include <cstring>

#include <kvt/draw/internal/byte_channels.h>
#include <kvt/draw/internal/fill_alpha_paths.h>
#include <kvt/draw/internal/palette_cache.h>
#include <kvt/draw/internal/vector_units.h>

namespace kvt {

namespace {

// Blends every row of the area with BlendRun through the given form.
void FillWithForm(SDL_Surface *surface, const Area &area, KVT_RGBA colour, const ColourForm &form)
{
    const FillBlend blend(colour);
    WithDepth(surface->format, [&](auto pixel) {
        for (int y = area.y0; y < area.y1; ++y)
            BlendRun(pixel, PixelAddress(surface, area.x0, y), area.Width(), form, blend);
    });
}

// Eight bytes through the table, loaded and stored as one word. Byte k
// is taken from and put back at the same shift, so the order of bytes in
// the word does not matter.
inline void MapEightBytes(Uint8 *p, const Uint8 *table)
{
    uint64_t in, out = 0;
    std::memcpy(&in, p, sizeof in);
    for (int k = 0; k < 64; k += 8)
        out |= uint64_t(table[(in >> k) & 0xFF]) << k;
    std::memcpy(p, &out, sizeof out);
}

// Each byte of the area through the table; a copy of the table that
// nothing else can reach keeps the stores from making every load of it
// reread memory.
void MapBytes(SDL_Surface *surface, const Area &area, const Uint8 *table)
{
    Uint8 local[256];
    std::memcpy(local, table, sizeof local);
    const int width = area.Width();
    for (int y = area.y0; y < area.y1; ++y) {
        Uint8 *p = PixelAddress(surface, area.x0, y);
        int x = 0;
        for (; x + 8 <= width; x += 8)
            MapEightBytes(p + x, local);
        for (; x < width; ++x)
            p[x] = local[p[x]];
    }
}

} // namespace

bool MakeByteLanes(const SDL_PixelFormat *format, KVT_RGBA colour, ByteLanes *out)
{
    ByteChannels layout;
    if (!FindByteChannels(format, &layout))
        return false;
    const FillBlend blend(colour);
    Uint16 mul[4], add[4];
    for (int k = 0; k < layout.bytes; ++k) {
        mul[k] = 0;
        add[k] = Uint16(((layout.amask >> (8 * k)) & 0xFF) << 8);
    }
    const int channelByte[3] = {layout.red / 8, layout.green / 8, layout.blue / 8};
    const Uint32 product[3] = {blend.red, blend.green, blend.blue};
    for (int c = 0; c < 3; ++c) {
        mul[channelByte[c]] = Uint16(blend.a);
        add[channelByte[c]] = Uint16(product[c]);
    }
    out->bytes = layout.bytes;
    for (int j = 0, k = 0; j < 16; ++j, k = k + 1 < layout.bytes ? k + 1 : 0) {
        out->mul[j] = mul[k];
        out->add[j] = add[k];
    }
    return true;
}

bool HasPacked16Channels(const ColourForm &form)
{
    auto packed = [](const ChannelForm &c) {
        return c.loss <= 4 && c.mask == Uint32(0xFF >> c.loss) << c.shift && c.mask <= 0xFFFF;
    };
    return form.Format()->BytesPerPixel == 2 && form.Direct() && packed(form.Red()) &&
           packed(form.Green()) && packed(form.Blue());
}

void FillAlphaPlain(SDL_Surface *surface, const Area &area, KVT_RGBA colour)
{
    FillWithForm(surface, area, colour, ColourForm::ThroughSdl(surface->format));
}

bool FillAlphaChannels(SDL_Surface *surface, const Area &area, KVT_RGBA colour)
{
    const ColourForm form = ColourForm::Learned(surface->format);
    if (!form.Direct())
        return false;
    FillWithForm(surface, area, colour, form);
    return true;
}

bool FillAlphaIndexed(SDL_Surface *surface, const Area &area, KVT_RGBA colour)
{
    return WithDepthOf<1>(surface->format, [&](auto) {
        const ColourForm form(surface->format);
        const FillBlend blend(colour);
        PaletteCache palette(surface->format);
        // Each palette index becomes one other index. A small fill works
        // out only the indices it meets; a large one all of them first,
        // so that its loop is a bare look-up.
        Uint8 newIndex[256];
        bool known[256] = {};
        auto work = [&](Uint8 old) {
            Uint8 r, g, b;
            form.Split(old, &r, &g, &b);
            newIndex[old] = palette.Map(blend.Channel(r, blend.red), blend.Channel(g, blend.green),
                                        blend.Channel(b, blend.blue));
            known[old] = true;
        };
        if (int64_t(area.Width()) * (area.y1 - area.y0) >= 1024) {
            for (int old = 0; old < 256; ++old)
                work(Uint8(old));
            MapBytes(surface, area, newIndex);
            return;
        }
        for (int y = area.y0; y < area.y1; ++y) {
            Uint8 *p = PixelAddress(surface, area.x0, y);
            for (int x = area.x0; x < area.x1; ++x, ++p) {
                if (!known[*p])
                    work(*p);
                *p = newIndex[*p];
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
    if (kvt::FillAlphaIndexed(surface, area, colour))
        return;
#if KVT_X86_VECTORS
    if (kvt::FillAlphaBytesAvx2(surface, area, colour) ||
        kvt::FillAlphaBytesSse2(surface, area, colour) ||
        kvt::FillAlphaPacked16Avx2(surface, area, colour) ||
        kvt::FillAlphaPacked16Sse2(surface, area, colour))
        return;
#endif
#if KVT_VECTOR_KERNELS
    if (kvt::FillAlphaBytesVector(surface, area, colour) ||
        kvt::FillAlphaPacked16Vector(surface, area, colour))
        return;
#endif
    if (kvt::FillAlphaBytes(surface, area, colour) ||
        kvt::FillAlphaPacked16(surface, area, colour) ||
        kvt::FillAlphaChannels(surface, area, colour))
        return;
    kvt::FillAlphaPlain(surface, area, colour);
}
