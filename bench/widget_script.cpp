#include "widget_script.h"

#include <cmath>
#include <cstdlib>
#include <random>
#include <utility>

#include "support/events.h"

namespace kvt_bench {

const char *const kButtonCaptions[Layout::kButtons] = {"Open", "Save", "Apply", "Quit"};
const char kOnOffCaption[] = " Sound";

std::string RowText(int row) { return "row " + std::to_string(row + 1); }

Layout MakeLayout(int width, int height)
{
    const int s = width / 320;
    Layout l;
    l.width = width, l.height = height;
    for (int i = 0; i < Layout::kButtons; ++i)
        l.buttons[i] = {s * (10 + 76 * i), s * 8, s * 70, s * 24};
    l.onOff = {s * 10, s * 40, s * 140, s * 22};
    l.field = {s * 160, s * 40, s * 150, s * 24};
    l.bar = {s * 10, s * 72, s * 300, s * 20};
    l.list = {s * 10, s * 100, s * 300, s * 130};
    return l;
}

std::string Difference(const Outcome &seen, const Outcome &expected)
{
    for (int i = 0; i < Layout::kButtons; ++i)
        if (seen.clicks[i] != expected.clicks[i])
            return std::string(kButtonCaptions[i]) + " acted " + std::to_string(seen.clicks[i]) +
                   " times, clicked " + std::to_string(expected.clicks[i]);
    if (seen.on != expected.on)
        return "the on/off box is not in the state its clicks lead to";
    if (seen.text != expected.text)
        return "the text field holds \"" + seen.text + "\", typed \"" + expected.text + "\"";
    if (std::fabs(seen.barFraction - expected.barFraction) > 0.05)
        return "the value bar is at " + std::to_string(seen.barFraction) + ", dragged to " +
               std::to_string(expected.barFraction);
    if (seen.listChanges != expected.listChanges)
        return "the list's selection changed " + std::to_string(seen.listChanges) +
               " times for " + std::to_string(expected.listChanges) + " picks";
    return "";
}

namespace {

// Rows of the kvt list, whose picks stay on the rows wholly in view so
// that the list never scrolls; Guichan's rows are lower, so two picks 20
// pixels apart fall on different rows in both.
const int kKvtRow = 18, kPickApart = 20;
const int kMaxText = 8; // the typed text stays short enough to show whole

class ScriptWriter {
public:
    ScriptWriter(const Layout &layout, unsigned seed);
    Script Write(int events);

private:
    const Layout &l_;
    std::mt19937 rng_;
    Script s_;
    int px_, py_;    // the pointer
    int fillEnd_;    // where the value bar's fill ends, and a drag grabs it
    int lastPick_;   // the last pick's offset into the list

    int Between(int low, int high) { return low + int(rng_() % unsigned(high - low + 1)); }
    void Add(const SDL_Event &event) { s_.events.push_back(event); }
    void MoveTo(int x, int y, int steps, Uint8 held);
    void Click(int x, int y);
    void Key(SDLKey sym, Uint16 unicode);
    void Sweep();
    void ClickButton();
    void ClickOnOff();
    void Type();
    void Drag();
    void Pick();
};

ScriptWriter::ScriptWriter(const Layout &layout, unsigned seed)
    : l_(layout), rng_(seed), px_(layout.width / 2), py_(layout.height / 2),
      fillEnd_(layout.TrackStart() + layout.FirstValue()), lastPick_(0)
{
    s_.expected.barFraction = double(layout.FirstValue()) / layout.TrackLength();
}

// Straight to (x, y) in `steps` motions, with the buttons `held`.
void ScriptWriter::MoveTo(int x, int y, int steps, Uint8 held)
{
    const int fromX = px_, fromY = py_;
    for (int i = 1; i <= steps; ++i)
        Add(kvt_test::MotionEvent(fromX + (x - fromX) * i / steps,
                                  fromY + (y - fromY) * i / steps, held));
    px_ = x, py_ = y;
}

void ScriptWriter::Click(int x, int y)
{
    MoveTo(x, y, 3, 0);
    Add(kvt_test::ButtonDownEvent(x, y));
    Add(kvt_test::ButtonUpEvent(x, y));
}

// A key pressed and let go; SDL gives the character with the press only.
void ScriptWriter::Key(SDLKey sym, Uint16 unicode)
{
    Add(kvt_test::KeyDownEvent(sym, unicode));
    Add(kvt_test::KeyUpEvent(sym));
}

void ScriptWriter::Sweep()
{
    MoveTo(Between(0, l_.width - 1), Between(0, l_.height - 1), Between(10, 30), 0);
}

void ScriptWriter::ClickButton()
{
    const int i = Between(0, Layout::kButtons - 1);
    Click(l_.buttons[i].CentreX(), l_.buttons[i].CentreY());
    ++s_.expected.clicks[i];
}

void ScriptWriter::ClickOnOff()
{
    Click(l_.onOff.CentreX(), l_.onOff.CentreY());
    s_.expected.on = !s_.expected.on;
}

// A click on the field's right part gives it the focus (and puts
// Guichan's caret after the short text), then letters and Backspaces.
void ScriptWriter::Type()
{
    Click(l_.field.x + l_.field.w - 6, l_.field.CentreY());
    std::string &text = s_.expected.text;
    for (int n = Between(3, 8); n > 0; --n) {
        if (!text.empty() && (text.size() >= size_t(kMaxText) || rng_() % 3 == 0)) {
            Key(SDLK_BACKSPACE, '\b');
            text.pop_back();
        } else {
            const char letter = char('a' + rng_() % 26);
            Key(SDLKey(SDLK_a + (letter - 'a')), Uint16(letter));
            text.push_back(letter);
        }
    }
}

// The press grabs the end of the fill; kvt's bar counts one value a
// pixel, so the fill ends where the pointer is let go.
void ScriptWriter::Drag()
{
    const int y = l_.bar.CentreY(), track = l_.TrackLength();
    const int to = l_.TrackStart() + track * Between(20, 90) / 100;
    MoveTo(fillEnd_, y, 3, 0);
    Add(kvt_test::ButtonDownEvent(fillEnd_, y));
    MoveTo(to, y, 12, SDL_BUTTON(1));
    Add(kvt_test::ButtonUpEvent(to, y));
    fillEnd_ = to;
    s_.expected.barFraction = double(to - l_.TrackStart()) / track;
}

void ScriptWriter::Pick()
{
    const int last = l_.list.h / kKvtRow * kKvtRow - 4;
    int at = Between(kPickApart, last);
    while (std::abs(at - lastPick_) < kPickApart)
        at = Between(kPickApart, last);
    lastPick_ = at;
    Click(l_.list.CentreX(), l_.list.y + at);
    ++s_.expected.listChanges;
}

Script ScriptWriter::Write(int events)
{
    while (s_.events.size() < size_t(events)) {
        const unsigned kind = rng_() % 100;
        if (kind < 30)
            Sweep();
        else if (kind < 50)
            ClickButton();
        else if (kind < 58)
            ClickOnOff();
        else if (kind < 73)
            Type();
        else if (kind < 80)
            Key(SDLK_TAB, '\t');
        else if (kind < 88)
            Drag();
        else
            Pick();
    }
    // Ends with the box on, so that a box deaf to clicks cannot pass.
    if (!s_.expected.on)
        ClickOnOff();
    return std::move(s_);
}

} // namespace

Script MakeScript(const Layout &layout, int events, unsigned seed)
{
    return ScriptWriter(layout, seed).Write(events);
}

} // namespace kvt_bench
