// kvt-theme FILE: writes kvt's default theme to FILE. The default is a
// cool blue-grey: a bright ice-blue to deep-blue ramp for active frames, a
// softer grey-blue ramp for frames at rest, and a slate face that lets a
// little of the background through. data/default.theme is this program's
// output; a test keeps the two the same.
#include <cstdio>

#include <kvt/ui/core/theme.h>

static void SetDefaultColours(CUITheme *theme)
{
    // The `a` of the frame colours plays no part in drawing; 0 keeps them
    // solid should anyone fill with them. The face's 72 lets 72/256 of
    // the pixels under it show through.
    theme->activeFirst = KVT_RGB(214, 228, 248, 0);
    theme->activeLast = KVT_RGB(38, 66, 112, 0);
    theme->restFirst = KVT_RGB(184, 194, 210, 0);
    theme->restLast = KVT_RGB(62, 70, 86, 0);
    theme->faceColor = KVT_RGB(122, 138, 162, 72);
}

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FILE\nwrites the default theme (20 bytes) to FILE\n",
                     argv[0]);
        return 2;
    }
    CUITheme theme;
    SetDefaultColours(&theme);
    // Save maps no colour, so it needs no surface.
    if (!theme.Save(argv[1], nullptr)) {
        std::fprintf(stderr, "%s: cannot write %s\n", argv[0], argv[1]);
        return 1;
    }
    return 0;
}
