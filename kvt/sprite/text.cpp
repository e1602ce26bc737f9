#include <algorithm>
#include <climits>

#include <kvt/sprite/text.h>
#include <kvt/util/char_code.h>

namespace {

// The frame of a character, or false when it has none. Codes of 128 and
// more read as negative, so they have no frame on every processor.
bool GlyphOf(const KVT_Sprite *font, char character, Uint32 *frame)
{
    const int index = KVT_SignedCharCode(character) - 32;
    if (index < 0 || Uint32(index) >= font->nbFrames)
        return false;
    *frame = Uint32(index);
    return true;
}

// How far a character moves the pen; drawing and measuring both use it,
// so that the width measured is the width drawn.
int AdvanceOf(const KVT_Sprite *font, char character)
{
    Uint32 frame;
    return GlyphOf(font, character, &frame) ? font->GetW(int(frame)) : 0;
}

int ClampToInt(long long value)
{
    return int(std::min<long long>(std::max<long long>(value, INT_MIN), INT_MAX));
}

} // namespace

void KVT_DisplayText(SDL_Surface *surface, KVT_Sprite *font, int x, int y, const char *text)
{
    // Wide, so that no x and no sum of glyph widths can overflow it.
    long long pen = x;
    for (const char *c = text; *c != '\0' && pen < surface->w; ++c) {
        Uint32 frame;
        if (!GlyphOf(font, *c, &frame))
            continue;
        font->Display(surface, Sint16(pen), Sint16(y), frame);
        pen += font->GetW(int(frame));
    }
}

void KVT_DisplayTextCenter(SDL_Surface *surface, KVT_Sprite *font, int x, int y, int width,
                           const char *text)
{
    // The arithmetic shift of a negative number rounds towards minus
    // infinity, which is the rounding wanted here.
    const long long offset = (static_cast<long long>(width) - KVT_GetTextWidth(font, text)) >> 1;
    KVT_DisplayText(surface, font, ClampToInt(x + offset), y, text);
}

int KVT_GetTextWidth(const KVT_Sprite *font, const char *text)
{
    long long width = 0;
    for (const char *c = text; *c != '\0'; ++c)
        width += AdvanceOf(font, *c);
    return ClampToInt(width);
}
