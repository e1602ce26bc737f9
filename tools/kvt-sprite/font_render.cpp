#include "font_render.h"

#include <algorithm>

#include <SDL_ttf.h>

#include "image_input.h"

namespace kvt_sprite {

namespace {

// TTF_Init and TTF_Quit around the rendering, and the font closed in
// any case.
class OpenFont {
public:
    OpenFont(const std::string &path, int size)
    {
        if (TTF_Init() == 0)
            font_ = TTF_OpenFont(path.c_str(), size);
    }
    ~OpenFont()
    {
        if (font_ != nullptr)
            TTF_CloseFont(font_);
        if (TTF_WasInit())
            TTF_Quit();
    }
    OpenFont(const OpenFont &) = delete;
    OpenFont &operator=(const OpenFont &) = delete;
    TTF_Font *get() const { return font_; }

private:
    TTF_Font *font_ = nullptr;
};

// The first and one past the last column of `picture` holding ink;
// both 0 when it holds none.
void InkColumns(const Picture &picture, int *first, int *end)
{
    *first = picture.width;
    *end = 0;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            if (picture.At(x, y) != kClear) {
                *first = std::min(*first, x);
                *end = std::max(*end, x + 1);
            }
    if (*end == 0)
        *first = 0;
}

// Copies the ink of `rendered` into the frame, moved as InkStart says.
void PlaceInk(const Picture &rendered, int bearing, Picture *glyph)
{
    int first, end;
    InkColumns(rendered, &first, &end);
    const int start = InkStart(bearing, end - first, glyph->width);
    const int rows = std::min(rendered.height, glyph->height);
    for (int y = 0; y < rows; ++y)
        for (int x = first; x < end && start + x - first < glyph->width; ++x)
            glyph->pixels[size_t(y) * size_t(glyph->width) + size_t(start + x - first)] =
                rendered.At(x, y);
}

bool RenderGlyph(TTF_Font *font, int character, Picture *glyph, std::string *error)
{
    int minX, maxX, minY, maxY, advance;
    if (TTF_GlyphMetrics(font, Uint16(character), &minX, &maxX, &minY, &maxY, &advance) != 0) {
        *error = std::string("cannot measure character ") + std::to_string(character) + ": " +
                 TTF_GetError();
        return false;
    }
    // A frame with rows needs a width; a glyph that does not advance
    // becomes an empty frame.
    glyph->width = std::max(advance, 0);
    glyph->height = glyph->width > 0 ? TTF_FontHeight(font) : 0;
    glyph->pixels.assign(size_t(glyph->width) * size_t(glyph->height), kClear);
    const char text[2] = {char(character), '\0'};
    const SDL_Color white = {255, 255, 255, 0};
    SDL_Surface *rendered = TTF_RenderText_Solid(font, text, white);
    if (rendered == nullptr) {
        *error = std::string("cannot render character ") + std::to_string(character) + ": " +
                 TTF_GetError();
        return false;
    }
    Picture ink;
    SurfacePicture(rendered, &ink);
    SDL_FreeSurface(rendered);
    PlaceInk(ink, minX, glyph);
    return true;
}

} // namespace

int InkStart(int bearing, int inkWidth, int advance)
{
    if (inkWidth >= advance)
        return 0;
    return std::min(std::max(bearing, 0), advance - inkWidth);
}

bool RenderFont(const std::string &fontPath, int size, std::vector<Picture> *glyphs,
                std::string *error)
{
    OpenFont font(fontPath, size);
    if (font.get() == nullptr) {
        *error = "cannot open the font " + fontPath + ": " + TTF_GetError();
        return false;
    }
    TTF_SetFontStyle(font.get(), TTF_STYLE_NORMAL);
    glyphs->clear();
    for (int character = kFirstCharacter; character <= kLastCharacter; ++character) {
        glyphs->emplace_back();
        if (!RenderGlyph(font.get(), character, &glyphs->back(), error))
            return false;
    }
    return true;
}

} // namespace kvt_sprite
