#include "support/widget_storm.h"

#include <cstring>

#include <kvt/ui/edit/text_edit.h>

#include "support/sprite_file.h"
#include "support/theme.h"

namespace kvt_test {

namespace {

// Folders and names with and without the chooser's extension, so that the
// lister and the chooser have rows to step through and scroll.
const char *const kFiles[] = {"a.txt", "b.txt", "notes.txt", "c.TXT", "d.txt.bak", "e",
                              "f.txt", "g.dat", "h.txt", "i.txt", "j.png", "k.txt"};
const char *const kFolders[] = {"maps", "saves", "x.txt"};

} // namespace

// Rows padded by 4 bytes: SDL's 16-bit blits need an even pitch.
WidgetStorm::WidgetStorm(const FormatCase &format)
    : surface_(format, kWidth, kHeight, 4), theme_(DistinctTheme())
{
    if (!folder_.ok() || !LoadTestFont(&font_, surface_.get()->format))
        return;
    for (const char *name : kFiles)
        folder_.MakeFile(name);
    for (const char *name : kFolders)
        folder_.MakeDir(name);
    const kvt_demo::BoardLook look = {&theme_, &font_, &font_, Uint32('G' - 32), 8};
    board_.reset(new kvt_demo::WidgetBoard(look));
    board_->screen.DrawScreen(surface_.get());
}

WidgetStorm::~WidgetStorm()
{
    SDL_GetKeyState(nullptr)[SDLK_LSHIFT] = 0;
    // The widgets show the font; they go first.
    board_.reset();
    font_.FreeFrames();
}

std::string WidgetStorm::Step(const ScriptStep &step)
{
    SDL_GetKeyState(nullptr)[SDLK_LSHIFT] = step.shiftHeld ? 1 : 0;
    SDL_Event event = step.event;
    board_->screen.ProcessDefaultEvent(&event, surface_.get());
    return Broken();
}

std::string WidgetStorm::Broken() const
{
    if (!surface_.GuardsIntact())
        return "a byte outside the surface's pixels changed";
    const CUIScreen &screen = board_->screen;
    if (screen.focusWidget < 0 || screen.focusWidget >= screen.nbWidgets)
        return "focusWidget is " + std::to_string(screen.focusWidget);
    const auto *field =
        static_cast<const CUITextEdit *>(board_->Widget(kvt_demo::WidgetBoard::kTextField));
    const void *end = memchr(field->text, 0, sizeof field->text);
    if (end == nullptr || strlen(field->text) != field->length || field->caret > field->length)
        return "the text field lost its terminator, its length or its caret";
    return "";
}

} // namespace kvt_test
