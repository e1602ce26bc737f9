#ifndef KVT_DRAW_COLOUR_H
#define KVT_DRAW_COLOUR_H

// Mapping colours to pixel values and back, exactly as SDL_MapRGB and
// SDL_GetRGB do it, without a library call for true-colour formats.
// Every drawing function maps and splits colours through here.

#include <SDL.h>

namespace kvt {

// One channel of a true-colour format, as SDL describes it.
struct ChannelForm {
    Uint32 mask;
    Uint8 shift;
    Uint8 loss;
    // Right shift that replicates the top bits into the low ones when a
    // channel is widened back to 8 bits; 32 means "no replication term".
    Uint8 replicate;

    void Set(Uint32 m, Uint8 s, Uint8 l)
    {
        mask = m;
        shift = s;
        loss = l;
        int back = 8 - 2 * int(l);
        replicate = Uint8(back >= 0 ? back : 32);
    }
    Uint32 Pack(Uint8 c) const { return Uint32(c >> loss) << shift; }
    Uint8 Unpack(Uint32 v) const
    {
        Uint32 field = (v & mask) >> shift;
        Uint32 low = replicate < 32 ? field >> replicate : 0;
        return Uint8((field << loss) + low);
    }
};

// The colour form of one pixel format, built once per drawing call.
// `direct` is true for true-colour formats whose channels hold at most
// eight bits: those are mapped inline. Palettes and unusual masks go
// through SDL itself, so the answers are always SDL's.
class ColourForm {
public:
    explicit ColourForm(const SDL_PixelFormat *format) : format_(format)
    {
        direct_ = format->palette == nullptr && format->Rloss <= 8 &&
                  format->Gloss <= 8 && format->Bloss <= 8;
        viaSdl_ = false;
        red_.Set(format->Rmask, format->Rshift, format->Rloss);
        green_.Set(format->Gmask, format->Gshift, format->Gloss);
        blue_.Set(format->Bmask, format->Bshift, format->Bloss);
    }

    // The same form, but asking SDL for every colour: the plain definition
    // that the inline form is tested and measured against.
    static ColourForm ThroughSdl(const SDL_PixelFormat *format)
    {
        ColourForm form(format);
        form.direct_ = false;
        form.viaSdl_ = true;
        return form;
    }

    bool Direct() const { return direct_; }
    const SDL_PixelFormat *Format() const { return format_; }
    const ChannelForm &Red() const { return red_; }
    const ChannelForm &Green() const { return green_; }
    const ChannelForm &Blue() const { return blue_; }

    Uint32 Map(Uint8 r, Uint8 g, Uint8 b) const
    {
        if (!direct_)
            return SDL_MapRGB(format_, r, g, b);
        return red_.Pack(r) | green_.Pack(g) | blue_.Pack(b) | format_->Amask;
    }

    void Split(Uint32 v, Uint8 *r, Uint8 *g, Uint8 *b) const
    {
        if (direct_) {
            *r = red_.Unpack(v);
            *g = green_.Unpack(v);
            *b = blue_.Unpack(v);
        } else if (format_->palette != nullptr && !viaSdl_) {
            SplitIndex(v, r, g, b);
        } else {
            SDL_GetRGB(v, format_, r, g, b);
        }
    }

private:
    // A palette index beyond the palette reads as black instead of
    // reading past the colour array.
    void SplitIndex(Uint32 v, Uint8 *r, Uint8 *g, Uint8 *b) const
    {
        const SDL_Palette *palette = format_->palette;
        if (int(v) >= palette->ncolors) {
            *r = *g = *b = 0;
            return;
        }
        const SDL_Color &c = palette->colors[v];
        *r = c.r;
        *g = c.g;
        *b = c.b;
    }

    const SDL_PixelFormat *format_;
    bool direct_;
    bool viaSdl_;
    ChannelForm red_, green_, blue_;
};

} // namespace kvt

#endif
