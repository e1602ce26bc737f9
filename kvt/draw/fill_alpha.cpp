#include <kvt/draw/pixel.h>

#include <kvt/draw/internal/byte_channels.h>
#include <kvt/draw/internal/fill_alpha_paths.h>
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
    return WithDepthOf<1>(surface->format, [&](auto pixel) {
        const ColourForm form(surface->format);
        const FillBlend blend(colour);
        // Filled on first use: a small fill pays only for the indices that
        // it meets, never for the whole palette.
        Uint8 newIndex[256];
        bool known[256] = {};
        for (int y = area.y0; y < area.y1; ++y) {
            Uint8 *p = PixelAddress(surface, area.x0, y);
            for (int x = area.x0; x < area.x1; ++x, ++p) {
                const Uint8 old = Uint8(pixel.Read(p));
                if (!known[old]) {
                    Uint8 blended = old;
                    BlendRun(pixel, &blended, 1, form, blend);
                    newIndex[old] = blended;
                    known[old] = true;
                }
                pixel.Store(p, newIndex[old]);
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
