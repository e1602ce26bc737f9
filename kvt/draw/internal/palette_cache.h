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

// Palettes that hold every combination of a few levels per channel, at
// index (red * greens + green) * blues + blue, with the levels of each
// channel rising, as 3-3-2 palettes and colour cubes do. Squared distance
// adds up over the channels, so the nearest colour is the nearest level
// of each channel, and the first index among equals is made of the first
// level among equals of each. Build tabulates each channel's part of the
// index for every value.
class LevelGrid {
public:
    // False when the palette is not such a grid, or when the fourth byte
    // differs between its entries.
    bool Build(const SDL_Palette *palette);
    Uint8 Find(Uint8 r, Uint8 g, Uint8 b) const
    {
        return Uint8(red_.part[r] + green_.part[g] + blue_.part[b]);
    }

private:
    struct Channel {
        int count;
        Uint8 level[256];
        Uint8 part[256]; // the nearest level's number times the channel's weight

        bool Rising() const;
        void Tabulate(int weight);
    };

    Channel red_, green_, blue_;
};

// The search of both SDL 1.2 implementations: least squared distance
// over r, g, b, the first index on ties. sdl12-compat adds the squared
// distance of each entry's fourth byte (`unused`) from 255, which changes
// nothing while that byte is the same in every entry; palettes where it
// varies, empty ones and oversized ones are left to SDL_MapRGB.
class NearestColour {
public:
    explicit NearestColour(const SDL_Palette *palette);

    bool Usable() const { return usable_; }
    // True when the palette is a LevelGrid, where a search is a few
    // look-ups.
    bool Cheap() const { return grid_; }
    // The index SDL_MapRGB gives; only while Usable().
    Uint8 Find(Uint8 r, Uint8 g, Uint8 b) const
    {
        return grid_ ? levels_.Find(r, g, b) : Search(r, g, b);
    }

private:
    Uint8 Search(Uint8 r, Uint8 g, Uint8 b) const;

    static constexpr int kEntries = 256;
    bool usable_;
    bool grid_;
    bool avx2_;
    LevelGrid levels_;
    Sint32 red_[kEntries], green_[kEntries], blue_[kEntries];
};

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
    const NearestColour &Search() const { return search_; }

private:
    static constexpr int kSlotBits = 7;
    const SDL_PixelFormat *format_;
    NearestColour search_;
    Uint32 keys_[1 << kSlotBits];
    Uint8 values_[1 << kSlotBits] = {};
};

} // namespace kvt

#endif
