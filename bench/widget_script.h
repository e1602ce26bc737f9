#ifndef KVT_BENCH_WIDGET_SCRIPT_H
#define KVT_BENCH_WIDGET_SCRIPT_H

// The screen that the widget benchmarks build in kvt and in Guichan (four
// buttons, an on/off box, a text field, a value bar and a list of 50 rows
// with its scroll bar), where its widgets stand, and one scripted session
// of a user on it: what the events are and what they must leave behind.

#include <string>
#include <vector>

#include <SDL.h>

namespace kvt_bench {

struct Box {
    int x, y, w, h;
    int CentreX() const { return x + w / 2; }
    int CentreY() const { return y + h / 2; }
};

// The places at 320x240, every number doubled at 640x480.
struct Layout {
    static const int kButtons = 4;
    static const int kRows = 50;
    int width, height;
    Box buttons[kButtons], onOff, field, bar, list;

    // The value bar has square end buttons and counts one value a pixel
    // of the track between them, from 0; it starts at 60%.
    int TrackStart() const { return bar.x + bar.h; }
    int TrackLength() const { return bar.w - 2 * bar.h; }
    int FirstValue() const { return TrackLength() * 6 / 10; }
};
Layout MakeLayout(int width, int height);

extern const char *const kButtonCaptions[Layout::kButtons];
extern const char kOnOffCaption[];
std::string RowText(int row);

// What a session leaves behind, as each toolkit reports it.
struct Outcome {
    int clicks[Layout::kButtons] = {}; // actions of each button
    bool on = false;                   // the on/off box; off at the start
    std::string text;                  // the text field's; empty at the start
    double barFraction = 0;            // the value bar's value over its scale
    int listChanges = 0;               // times the list's selection changed
};

// "" when `seen` is what the script leads to, otherwise what differs. The
// toolkits map the bar's pointer to a value each in its own way, so its
// fraction may differ by a few hundredths.
std::string Difference(const Outcome &seen, const Outcome &expected);

struct Script {
    std::vector<SDL_Event> events;
    Outcome expected;
};

// About `events` events from `seed` (whole gestures, so a few more):
// pointer sweeps, clicks on the buttons and the on/off box, typing and
// Backspace in the text field, Tab, drags of the value bar and picks in
// the list, in an order drawn at random.
Script MakeScript(const Layout &layout, int events, unsigned seed);

} // namespace kvt_bench

#endif
