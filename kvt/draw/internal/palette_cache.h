#ifndef KVT_DRAW_INTERNAL_PALETTE_CACHE_H
#define KVT_DRAW_INTERNAL_PALETTE_CACHE_H

// SDL_MapRGB of a palette format searches the whole palette for the
// nearest colour. A drawing call that maps one pixel at a time keeps the
// answers it has had in a small table, so that a colour met again costs a
// look-up, and searches for the others itself, faster than SDL; the table
// lives for one call, as a local.

#include <cstring>

#include <SDL.h>

namespace kvt {

// The search of both SDL 1.2 implementations: least squared distance
// over r, g, b, the first index on ties. sdl12-compat adds the squared
// distance of each entry's fourth byte (`unused`) from 255, which changes
// nothing while that byte is the same in every entry; palettes where it
// varies, empty ones and oversized ones are left to SDL_MapRGB.
class NearestColour {
public:
    explicit NearestColour(const SDL_Palette *palette);

    bool Usable() const { return usable_; }
    // The index SDL_MapRGB gives; only while Usable().
    Uint8 Find(Uint8 r, Uint8 g, Uint8 b) const;

private:
    static constexpr int kEntries = 256;
    static constexpr Sint32 kKeyLimit = 0x7FFFFFFF;
    bool usable_;
    Sint32 red_[kEntries], green_[kEntries], blue_[kEntries];
};

inline NearestColour::NearestColour(const SDL_Palette *palette)
    : usable_(palette != nullptr && palette->ncolors > 0 && palette->ncolors <= kEntries)
{
    for (int i = 0; usable_ && i < palette->ncolors; ++i)
        usable_ = palette->colors[i].unused == palette->colors[0].unused;
    if (!usable_)
        return;
    for (int i = 0; i < kEntries; ++i) {
        const SDL_Color &c = palette->colors[i < palette->ncolors ? i : 0];
        red_[i] = c.r;
        green_[i] = c.g;
        blue_[i] = c.b;
    }
}

class PaletteCache {
public:
    explicit PaletteCache(const SDL_PixelFormat *format) : format_(format), search_(format->palette)
    {
        std::memset(keys_, 0xFF, sizeof keys_); // no colour has all 32 bits set
    }

    Uint8 Map(Uint8 r, Uint8 g, Uint8 b)
    {
        const Uint32 key = Uint32(r) << 16 | Uint32(g) << 8 | b;
        const Uint32 slot = (key * 0x9E3779B1u) >> (32 - kSlotBits);
        if (keys_[slot] != key) {
            keys_[slot] = key;
            values_[slot] = search_.Usable() ? search_.Find(r, g, b)
                                             : Uint8(SDL_MapRGB(format_, r, g, b));
        }
        return values_[slot];
    }

private:
    static constexpr int kSlotBits = 7;
    const SDL_PixelFormat *format_;
    NearestColour search_;
    Uint32 keys_[1 << kSlotBits];
    Uint8 values_[1 << kSlotBits];
};

} // namespace kvt

#endif
