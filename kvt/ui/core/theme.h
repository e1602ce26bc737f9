#ifndef KVT_UI_CORE_THEME_H
#define KVT_UI_CORE_THEME_H

// The look of the widgets: two three-colour ramps for the bevel frames, a
// translucent face colour, and a tile for backgrounds. Widgets hold a
// pointer to a theme and read it at every paint, so changing a shared
// theme restyles them all at their next paint.

#include <SDL.h>

#include <kvt/draw/rgba.h>
#include <kvt/export.h>

// The four bevel frames that widgets draw, named by where they show.
enum class CUIFrame {
    Rest,       // restFirst, restMid, restLast
    Active,     // activeFirst, activeMid, activeLast
    Sunken,     // activeLast, activeMid, activeFirst
    SunkenRest, // restLast, restMid, restFirst
    Hover,      // activeFirst, restMid, activeLast: a text field under the pointer
};

class KVT_API CUITheme {
public:
    KVT_RGBA activeFirst;
    KVT_RGBA activeMid; // computed by RepackColor
    KVT_RGBA activeLast;
    KVT_RGBA restFirst;
    KVT_RGBA restMid; // computed by RepackColor
    KVT_RGBA restLast;
    KVT_RGBA faceColor;
    SDL_Surface *background; // set by the application, not owned

    // Only `background` gets a value (null); the colours have none until
    // Load, or until the application assigns them and calls RepackColor.
    // NOLINTNEXTLINE(clang-analyzer-optin.cplusplus.UninitializedObject): as just said
    CUITheme() : background(nullptr) {} // cppcheck-suppress uninitMemberVar

    // Reads the five stored colours (20 bytes: activeFirst, activeLast,
    // restFirst, restLast, faceColor, each r g b a) and recomputes the
    // middles. False, with nothing changed, when the file cannot be opened;
    // a short file replaces only the bytes it holds. `surface` is unused:
    // colours are mapped when drawn.
    bool Load(const char *path, SDL_Surface *surface);
    // Writes the same 20 bytes and recomputes the middles. False when the
    // file cannot be opened.
    bool Save(const char *path, SDL_Surface *surface);
    // Each middle colour's r, g, b become the mean of its ramp's ends,
    // rounded down; its `a` is left alone.
    void RepackColor(SDL_Surface *surface);

    // Paints `area` with copies of `background` laid on a grid anchored at
    // the surface's origin, so areas painted at different times join up.
    void DrawBackground(SDL_Surface *surface, SDL_Rect *area) const;
    // The bevel frame of w x h pixels at (x, y).
    void DrawFrame(SDL_Surface *surface, int x, int y, int w, int h, CUIFrame frame) const;
};

#endif
