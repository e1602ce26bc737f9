#ifndef KVT_DRAW_COLOUR_H
#define KVT_DRAW_COLOUR_H

// Not part of kvt's API: installed only because the inline pixel functions
// of <kvt/draw/pixel.h> are built from it. Programs should not use it
// themselves; it may change in any release, and what it declares out of
// line is not exported by libkvt.so.
//
// Mapping colours to pixel values and back, exactly as SDL_MapRGB and
// SDL_GetRGB of the loaded SDL do it, without a library call per pixel
// for true-colour formats. Every drawing function maps and splits colours
// through here.
//
// Mapping drops a channel's low bits on every SDL 1.2. Splitting widens a
// field of 8 - loss bits back to 8 bits, and there the implementations
// part: classic SDL 1.2 replicates the field's top bits into the low ones,
// sdl12-compat scales by SDL 2's tables, floor(field * 255 / (2^n - 1)).
// Both rules have the form
//     (field << loss) + ((field * mul) >> shift)
// with small constants per loss, so one inline split (and one vector form
// of it) serves either; which one the loaded SDL uses is asked of SDL
// itself, per format, with one SDL_GetRGB call.

#include <SDL.h>

namespace kvt {

struct Widening {
    Uint16 mul;
    Uint8 shift;
};

// Indexed by loss, 0 to 7. Replication adds field >> (8 - 2 * loss), which
// is nothing for fields under 4 bits; scaling adds
// floor(field * (2^loss - 1) / (2^n - 1)), here as a multiply and shift
// that is exact for every field of that width. No product exceeds 16 bits.
inline constexpr Widening kReplicatedWidening[8] = {{0, 0}, {1, 6}, {1, 4}, {1, 2},
                                                    {1, 0}, {0, 0}, {0, 0}, {0, 0}};
inline constexpr Widening kScaledWidening[8] = {{0, 0}, {65, 13}, {49, 10}, {29, 7},
                                                {1, 0}, {71, 4},  {21, 0},  {127, 0}};
// Per loss, a field value that the two rules widen differently. Fields of 8
// and 4 bits widen alike under both; an empty channel (loss 8) reads as 0
// under replication and 255 under SDL 2's tables.
inline constexpr Uint8 kTellingField[9] = {0, 64, 16, 4, 0, 1, 1, 1, 0};

inline bool WideningDiffers(Uint8 loss) { return loss != 0 && loss != 4; }

// One channel of a true-colour format, as SDL describes it.
struct ChannelForm {
    Uint32 mask;
    Uint8 shift;
    Uint8 loss;
    Widening widening;

    Uint32 Pack(Uint8 c) const { return Uint32(c >> loss) << shift; }
    Uint32 Field(Uint32 v) const { return (v & mask) >> shift; }
    Uint8 Widen(Uint32 field) const
    {
        return Uint8((field << loss) + ((field * widening.mul) >> widening.shift));
    }
    Uint8 Unpack(Uint32 v) const { return Widen(Field(v)); }
    // True when the mask is one run of 8 - loss bits, so that a field
    // never exceeds what the widening was made for.
    bool IsWholeField() const { return loss <= 8 && (mask >> shift) == (0xFFu >> loss); }
};

// The colour form of one pixel format, built once per drawing call.
// Palettes and unusual masks go through SDL itself, so the answers are
// always the loaded SDL's.
class ColourForm {
public:
    // Costs no library call: maps inline, and splits inline where every
    // SDL widens alike (channels of 8 and 4 bits); other splits ask
    // SDL_GetRGB. For calls that map colours or split a pixel or two.
    explicit ColourForm(const SDL_PixelFormat *format)
        : format_(format),
          mapInline_(format->palette == nullptr && format->Rloss <= 8 && format->Gloss <= 8 &&
                     format->Bloss <= 8),
          splitInline_(false), viaSdl_(false),
          red_{format->Rmask, format->Rshift, format->Rloss, {0, 0}},
          green_{format->Gmask, format->Gshift, format->Gloss, {0, 0}},
          blue_{format->Bmask, format->Bshift, format->Bloss, {0, 0}}
    {
        splitInline_ = mapInline_ && HasSeparateWholeFields();
        ChannelForm *const channels[3] = {&red_, &green_, &blue_};
        for (ChannelForm *c : channels) {
            if (WideningDiffers(c->loss))
                splitInline_ = false;
            else if (c->loss < 8)
                c->widening = kReplicatedWidening[c->loss];
        }
    }

    // Also learns, from one SDL_GetRGB call, how the loaded SDL widens the
    // format's narrow channels, so that every split is inline where SDL
    // follows a known rule. For calls that split many pixels.
    static ColourForm Learned(const SDL_PixelFormat *format);

    // The same form, but asking SDL for every colour: the plain definition
    // that the inline form is tested and measured against.
    static ColourForm ThroughSdl(const SDL_PixelFormat *format)
    {
        ColourForm form(format);
        form.mapInline_ = form.splitInline_ = false;
        form.viaSdl_ = true;
        return form;
    }

    // True when both mapping and splitting are inline.
    bool Direct() const { return mapInline_ && splitInline_; }
    const SDL_PixelFormat *Format() const { return format_; }
    const ChannelForm &Red() const { return red_; }
    const ChannelForm &Green() const { return green_; }
    const ChannelForm &Blue() const { return blue_; }

    Uint32 Map(Uint8 r, Uint8 g, Uint8 b) const
    {
        if (!mapInline_)
            return SDL_MapRGB(format_, r, g, b);
        return red_.Pack(r) | green_.Pack(g) | blue_.Pack(b) | format_->Amask;
    }

    void Split(Uint32 v, Uint8 *r, Uint8 *g, Uint8 *b) const
    {
        if (splitInline_) {
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
    // Overlapping or gapped masks are left to SDL.
    bool HasSeparateWholeFields() const
    {
        const bool apart = (red_.mask & green_.mask) == 0 && (red_.mask & blue_.mask) == 0 &&
                           (green_.mask & blue_.mask) == 0;
        return apart && red_.IsWholeField() && green_.IsWholeField() && blue_.IsWholeField();
    }

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
    bool mapInline_;
    bool splitInline_;
    bool viaSdl_;
    ChannelForm red_, green_, blue_;
};

} // namespace kvt

#endif
