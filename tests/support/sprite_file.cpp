#include "support/sprite_file.h"

#include <sstream>

#include "support/surfaces.h"
#include "support/temp_file.h"

namespace kvt_test {

namespace {

void PutWord(std::vector<Uint8> *out, Uint32 word)
{
    for (int i = 0; i < 4; ++i)
        out->push_back(Uint8(word >> (8 * i)));
}

} // namespace

Uint32 LeastBlockSize(const std::vector<SpriteRow> &rows)
{
    size_t bytes = 24 + 8 * rows.size();
    for (const SpriteRow &row : rows)
        bytes += 4 * row.size();
    return Uint32((bytes + 1) / 2);
}

std::vector<Uint8> SpriteFileBytes(Uint32 frameCount, const std::vector<SpriteRecord> &records)
{
    std::vector<Uint8> out;
    PutWord(&out, frameCount);
    for (const SpriteRecord &r : records) {
        PutWord(&out, r.blockSize != 0 ? r.blockSize : LeastBlockSize(r.rows));
        for (Uint32 word : {Uint32(r.width), Uint32(r.height), r.tag, r.hotX, r.hotY})
            PutWord(&out, word);
        for (const SpriteRow &row : r.rows) {
            PutWord(&out, Uint32(row.size()));
            for (Uint32 word : row)
                PutWord(&out, word);
        }
    }
    return out;
}

std::vector<Uint8> SpriteFileBytes(const std::vector<SpriteRecord> &records)
{
    return SpriteFileBytes(Uint32(records.size()), records);
}

SpriteRecord PackPicture(const SpritePicture &picture)
{
    SpriteRecord record = {0, picture.width, picture.height, 0, Uint32(Uint16(picture.hotX)),
                           Uint32(Uint16(picture.hotY)), {}};
    for (int y = 0; y < picture.height; ++y) {
        const Uint32 *pixel = &picture.pixels[size_t(y) * picture.width];
        SpriteRow row;
        for (int x = 0; x < picture.width;) {
            const bool clear = pixel[x] == kClearPixel;
            int end = x;
            while (end < picture.width && (pixel[end] == kClearPixel) == clear)
                ++end;
            row.push_back(clear ? Uint32(x - end) : Uint32(end - x));
            if (!clear)
                row.insert(row.end(), pixel + x, pixel + end);
            x = end;
        }
        record.rows.push_back(row);
    }
    return record;
}

std::vector<SpritePicture> TestFontGlyphs()
{
    std::vector<SpritePicture> glyphs;
    for (int i = 0; i < 224; ++i) {
        const int width = 1 + (i * 3) % 5, height = 4;
        const Uint32 colour = Uint32(i) << 16 | Uint32(255 - i) << 8 | Uint32((i * 37) & 0xFF);
        SpritePicture glyph = {width, height, Sint16(i % 3 == 2), Sint16(i % 4 == 1),
                               std::vector<Uint32>(size_t(width * height), colour)};
        if (width > 1)
            glyph.pixels[1] = kClearPixel;
        glyphs.push_back(glyph);
    }
    return glyphs;
}

bool LoadSpriteBytes(KVT_Sprite *sprite, const std::vector<Uint8> &file,
                     const SDL_PixelFormat *format)
{
    TempFile temp;
    temp.Write(file);
    return sprite->Load(temp.path(), format);
}

bool LoadSpritePictures(KVT_Sprite *sprite, const std::vector<SpritePicture> &pictures,
                        const SDL_PixelFormat *format)
{
    std::vector<SpriteRecord> records;
    for (const SpritePicture &picture : pictures)
        records.push_back(PackPicture(picture));
    return LoadSpriteBytes(sprite, SpriteFileBytes(records), format);
}

bool LoadTestFont(KVT_Sprite *font, const SDL_PixelFormat *format)
{
    return LoadSpritePictures(font, TestFontGlyphs(), format);
}

std::string FrameDifference(SDL_Surface *frame, const SDL_PixelFormat *format, int width,
                            const std::vector<Uint32> &pixels)
{
    for (size_t i = 0; i < pixels.size(); ++i) {
        const Uint32 c = pixels[i] == kClearPixel ? 0xFF00FF : pixels[i];
        const Uint32 want = SDL_MapRGB(format, Uint8(c >> 16), Uint8(c >> 8), Uint8(c));
        const int x = int(i) % width, y = int(i) / width;
        if (ReadValue(frame, x, y) != want) {
            std::ostringstream out;
            out << "pixel (" << x << ", " << y << ") is 0x" << std::hex << ReadValue(frame, x, y)
                << ", expected 0x" << want;
            return out.str();
        }
    }
    return "";
}

} // namespace kvt_test
