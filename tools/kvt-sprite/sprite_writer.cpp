#include "sprite_writer.h"

namespace kvt_sprite {

namespace {

void PutWord(std::vector<Uint8> *out, Uint32 word)
{
    for (int shift = 0; shift < 32; shift += 8)
        out->push_back(Uint8(word >> shift));
}

// Signed fields go into the file as 32-bit two's complement.
Uint32 AsWord(Sint32 value) { return Uint32(value); }

void PutFrame(std::vector<Uint8> *out, const Picture &picture)
{
    std::vector<std::vector<Uint32>> rows;
    Uint64 rowBytes = 0;
    for (int y = 0; y < picture.height; ++y) {
        rows.push_back(PackRow(&picture.pixels[size_t(y) * size_t(picture.width)], picture.width));
        rowBytes += 4 * Uint64(rows.back().size());
    }
    // 2 * blockSize >= 24 + 8 * height + 4 * (all row words); the right
    // side is always even, so its half is the least block size.
    const Uint64 blockSize = (24 + 8 * Uint64(picture.height) + rowBytes) / 2;
    PutWord(out, Uint32(blockSize));
    PutWord(out, AsWord(picture.width));
    PutWord(out, AsWord(picture.height));
    PutWord(out, picture.tag);
    PutWord(out, AsWord(picture.hotX));
    PutWord(out, AsWord(picture.hotY));
    for (const std::vector<Uint32> &row : rows) {
        PutWord(out, Uint32(row.size()));
        for (Uint32 word : row)
            PutWord(out, word);
    }
}

} // namespace

std::vector<Uint32> PackRow(const Uint32 *pixels, int width)
{
    std::vector<Uint32> words;
    for (int x = 0; x < width;) {
        const bool clear = pixels[x] == kClear;
        int end = x + 1;
        while (end < width && (pixels[end] == kClear) == clear)
            ++end;
        if (clear) {
            words.push_back(AsWord(x - end));
        } else {
            words.push_back(AsWord(end - x));
            words.insert(words.end(), pixels + x, pixels + end);
        }
        x = end;
    }
    return words;
}

std::vector<Uint8> SpriteFileBytes(const std::vector<Picture> &pictures)
{
    std::vector<Uint8> out;
    PutWord(&out, Uint32(pictures.size()));
    for (const Picture &picture : pictures)
        PutFrame(&out, picture);
    return out;
}

} // namespace kvt_sprite
