// Sprites and sprite-font text against what an SDL program would do
// without them: Load of a 256x256 sprite into the display format against
// SDL_LoadBMP + SDL_DisplayFormat and IMG_Load + SDL_DisplayFormatAlpha
// of the same picture; KVT_DisplayText of 40 characters against the bare
// blits of the same glyph surfaces and against rendering the string with
// SDL_ttf at every draw. The files are written to a temporary folder at
// start-up, made by kvt-sprite's own writer and font renderer.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <SDL_image.h>
#include <SDL_ttf.h>
#include <benchmark/benchmark.h>

#include <kvt/sprite/sprite.h>
#include <kvt/sprite/text.h>

#include "bench_surfaces.h"
#include "font_render.h"
#include "output_file.h"
#include "png_output.h"
#include "sprite_writer.h"

namespace kvt_bench {

namespace {

const int kFontSize = 15;
const char kText[] = "Sprite fonts draw text, one blit a glyph";
static_assert(sizeof kText - 1 == 40, "the text has 40 characters");
const int kTextX = 10, kTextY = 100;

// The benchmark's files, removed when the program ends.
struct Files {
    std::string folder;
    std::string sprite, bmp, png, font;
    ~Files()
    {
        std::error_code ignored;
        if (!folder.empty())
            std::filesystem::remove_all(folder, ignored);
    }
};
Files files;

// A 256x256 sprite as game art has it: a shaded ball with a fine grain,
// in a transparent square.
kvt_sprite::Picture BallPicture()
{
    kvt_sprite::Picture picture;
    picture.width = picture.height = 256;
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x) {
            const double nx = (x - 127.5) / 120, ny = (y - 127.5) / 120;
            const double r2 = nx * nx + ny * ny;
            if (r2 > 1) {
                picture.pixels.push_back(kvt_sprite::kClear);
                continue;
            }
            const double facing = 0.7 * std::sqrt(1 - r2) - 0.4 * nx - 0.5 * ny;
            const double light = 0.25 + 0.75 * std::max(0.0, facing);
            const int grain = int((unsigned(x) * 374761393u + unsigned(y) * 668265263u) >> 29);
            const auto channel = [&](double base) {
                return Uint32(std::min(255.0, base * light + grain));
            };
            picture.pixels.push_back(channel(90) << 16 | channel(170) << 8 | channel(250));
        }
    return picture;
}

// The same picture as a 24-bit BMP, its clear pixels magenta.
bool SaveBmp(const kvt_sprite::Picture &picture, const std::string &path)
{
    Surface s(SDL_CreateRGBSurface(SDL_SWSURFACE, picture.width, picture.height, 24, 0xFF0000,
                                   0xFF00, 0xFF, 0));
    Uint8 *row = static_cast<Uint8 *>(s->pixels);
    for (int y = 0; y < picture.height; ++y, row += s->pitch)
        for (int x = 0; x < picture.width; ++x) {
            const Uint32 p = picture.At(x, y) == kvt_sprite::kClear ? 0xFF00FF : picture.At(x, y);
            row[3 * x] = Uint8(p), row[3 * x + 1] = Uint8(p >> 8), row[3 * x + 2] = Uint8(p >> 16);
        }
    return SDL_SaveBMP(s.get(), path.c_str()) == 0;
}

bool WriteFiles()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "kvt_bench_XXXXXX").string();
    if (mkdtemp(&pattern[0]) == nullptr)
        return false;
    files.folder = pattern;
    files.sprite = pattern + "/ball.spr", files.bmp = pattern + "/ball.bmp";
    files.png = pattern + "/ball.png", files.font = pattern + "/font.spr";
    const kvt_sprite::Picture ball = BallPicture();
    std::vector<kvt_sprite::Picture> glyphs;
    std::vector<Uint8> png;
    std::string error;
    return kvt_sprite::WriteWholeFile(files.sprite, kvt_sprite::SpriteFileBytes({ball}), &error) &&
           SaveBmp(ball, files.bmp) && kvt_sprite::PngBytes(ball, &png, &error) &&
           kvt_sprite::WriteWholeFile(files.png, png, &error) &&
           kvt_sprite::RenderFont(KVT_BENCH_TTF, kFontSize, &glyphs, &error) &&
           kvt_sprite::WriteWholeFile(files.font, kvt_sprite::SpriteFileBytes(glyphs), &error);
}

// The display surface of SDL's dummy driver, made on first use.
SDL_Surface *Display()
{
    SDL_Surface *screen = SDL_GetVideoSurface();
    return screen != nullptr ? screen : SDL_SetVideoMode(640, 480, 32, SDL_SWSURFACE);
}

void LoadSprite(benchmark::State &state)
{
    const SDL_PixelFormat *format = Display()->format;
    for (auto _ : state) {
        KVT_Sprite sprite;
        if (!sprite.Load(files.sprite.c_str(), format))
            return state.SkipWithError("Load failed");
        sprite.FreeFrames();
    }
}

void LoadBmp(benchmark::State &state)
{
    Display();
    for (auto _ : state) {
        SDL_Surface *loaded = SDL_LoadBMP(files.bmp.c_str());
        SDL_Surface *converted = loaded != nullptr ? SDL_DisplayFormat(loaded) : nullptr;
        SDL_FreeSurface(loaded);
        if (converted == nullptr)
            return state.SkipWithError("SDL_LoadBMP failed");
        SDL_FreeSurface(converted);
    }
}

void LoadPng(benchmark::State &state)
{
    Display();
    for (auto _ : state) {
        SDL_Surface *loaded = IMG_Load(files.png.c_str());
        SDL_Surface *converted = loaded != nullptr ? SDL_DisplayFormatAlpha(loaded) : nullptr;
        SDL_FreeSurface(loaded);
        if (converted == nullptr)
            return state.SkipWithError("IMG_Load failed");
        SDL_FreeSurface(converted);
    }
}

// Text benchmarks share the font loaded into the display format.
template <class Draw>
void RunText(benchmark::State &state, Draw draw)
{
    SDL_Surface *screen = Display();
    KVT_Sprite font;
    if (!font.Load(files.font.c_str(), screen->format))
        return state.SkipWithError("the font did not load");
    for (auto _ : state)
        draw(screen, font);
    state.SetItemsProcessed(state.iterations() * (sizeof kText - 1));
    font.FreeFrames();
}

// What KVT_DisplayText comes down to without its checks: one keyed blit
// of each glyph's surface, the pen moved by the glyph's width.
void BareBlits(SDL_Surface *screen, KVT_Sprite &font)
{
    int pen = kTextX;
    for (const char *c = kText; *c != '\0'; ++c) {
        SDL_Surface *glyph = font.GetFrameSurface(*c - 32);
        SDL_Rect at = {Sint16(pen), Sint16(kTextY), 0, 0};
        SDL_BlitSurface(glyph, nullptr, screen, &at);
        pen += glyph->w;
    }
}

void TtfText(benchmark::State &state)
{
    SDL_Surface *screen = Display();
    if (TTF_Init() != 0)
        return state.SkipWithError("TTF_Init failed");
    TTF_Font *font = TTF_OpenFont(KVT_BENCH_TTF, kFontSize);
    const SDL_Color white = {255, 255, 255, 0};
    for (auto _ : state) {
        SDL_Surface *text = font != nullptr ? TTF_RenderText_Solid(font, kText, white) : nullptr;
        if (text == nullptr) {
            state.SkipWithError("TTF_RenderText_Solid failed");
            break;
        }
        SDL_Rect at = {kTextX, kTextY, 0, 0};
        SDL_BlitSurface(text, nullptr, screen, &at);
        SDL_FreeSurface(text);
    }
    state.SetItemsProcessed(state.iterations() * (sizeof kText - 1));
    if (font != nullptr)
        TTF_CloseFont(font);
    TTF_Quit();
}

} // namespace

const std::string &FontFile() { return files.font; }

void RegisterSpriteBenchmarks()
{
    if (!WriteFiles()) {
        std::fprintf(stderr, "kvt-bench: cannot write the sprite benchmarks' files\n");
        return;
    }
    benchmark::RegisterBenchmark("load/kvt/32/256x256", LoadSprite);
    benchmark::RegisterBenchmark("load/SDL_LoadBMP/32/256x256", LoadBmp);
    benchmark::RegisterBenchmark("load/IMG_Load_png/32/256x256", LoadPng);
    benchmark::RegisterBenchmark("text/kvt/32/40", [](benchmark::State &state) {
        RunText(state, [](SDL_Surface *screen, KVT_Sprite &font) {
            KVT_DisplayText(screen, &font, kTextX, kTextY, kText);
        });
    });
    benchmark::RegisterBenchmark("text/bare_blits/32/40",
                                 [](benchmark::State &state) { RunText(state, BareBlits); });
    benchmark::RegisterBenchmark("text/TTF_RenderText_Solid/32/40", TtfText);
}

} // namespace kvt_bench
