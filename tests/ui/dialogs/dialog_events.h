#ifndef KVT_TESTS_UI_DIALOGS_DIALOG_EVENTS_H
#define KVT_TESTS_UI_DIALOGS_DIALOG_EVENTS_H

// Events as a user makes them, for the dialog tests: clicks, and keys
// typed as text, with '\t', '\r' and '\b' for Tab, Return and Backspace.

#include <initializer_list>
#include <vector>

#include "support/events.h"

namespace dialog_test {

using Events = std::vector<SDL_Event>;

struct Point {
    int x, y;
};

inline Events Join(std::initializer_list<Events> parts)
{
    Events all;
    for (const Events &part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}
inline Events Click(Point at, Point release)
{
    return {kvt_test::ButtonDownEvent(at.x, at.y), kvt_test::ButtonUpEvent(release.x, release.y)};
}
inline Events Click(Point at) { return Click(at, at); }
inline Events Type(const char *text)
{
    Events typed;
    for (const char *c = text; *c != '\0'; ++c)
        typed.push_back(kvt_test::KeyDownEvent(SDLKey(Uint8(*c)), Uint8(*c)));
    return typed;
}

} // namespace dialog_test

#endif
