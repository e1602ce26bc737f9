#include "support/event_script.h"

#include <random>

#include "support/events.h"

namespace kvt_test {

namespace {

// The keys that widgets act on, picked more often than chance would.
// (Tab and Return have step kinds of their own.)
const SDLKey kWidgetKeys[] = {SDLK_LEFT,     SDLK_RIGHT,    SDLK_UP,       SDLK_DOWN,
                              SDLK_HOME,     SDLK_END,      SDLK_PAGEUP,   SDLK_PAGEDOWN,
                              SDLK_SPACE,    SDLK_BACKSPACE, SDLK_DELETE,  SDLK_ESCAPE,
                              SDLK_KP_ENTER, SDLK_a};
const unsigned kWidgetKeyCount = sizeof kWidgetKeys / sizeof kWidgetKeys[0];

// Mostly the five buttons of a mouse, wheel included, and now and then a
// number that no mouse sends.
Uint8 ButtonFrom(Uint8 extra) { return extra < 0xC0 ? Uint8(1 + extra % 5) : extra; }

// Half of the time one of the widgets' keys, otherwise any key.
SDLKey KeyFrom(unsigned raw)
{
    return (raw & 0x100) != 0 ? kWidgetKeys[raw % kWidgetKeyCount] : SDLKey(raw % SDLK_LAST);
}

// Mostly a character of one byte, as typing gives; now and then any.
Uint16 UnicodeFrom(unsigned raw) { return Uint16((raw & 0x8000) != 0 ? raw : raw & 0xFF); }

ScriptStep StepFrom(const Uint8 *b, int width, int height)
{
    const int kind = b[0] & 7;
    const bool anywhere = (b[0] & 0x80) != 0;
    const unsigned rawX = b[1] | unsigned(b[2]) << 8;
    const unsigned rawY = b[3] | unsigned(b[4]) << 8;
    const int x = anywhere ? int(rawX) : int(rawX % unsigned(width));
    const int y = anywhere ? int(rawY) : int(rawY % unsigned(height));
    const Uint8 extra = b[5];
    const SDLKey sym = KeyFrom(rawX);
    const Uint16 unicode = UnicodeFrom(rawY);
    switch (kind) {
    case 0:
    case 1:
        return {MotionEvent(x, y, extra), false};
    case 2:
        return {ButtonDownEvent(x, y, ButtonFrom(extra)), false};
    case 3:
        return {ButtonUpEvent(x, y, ButtonFrom(extra)), false};
    case 4:
        return {KeyDownEvent(sym, unicode), false};
    case 5:
        return {KeyUpEvent(sym, unicode), false};
    case 6:
        return {KeyDownEvent(SDLK_TAB, '\t'), (extra & 1) != 0};
    default:
        return {KeyDownEvent(SDLK_RETURN, '\r'), false};
    }
}

} // namespace

std::vector<ScriptStep> DecodeEventScript(const Uint8 *bytes, size_t size, int width,
                                          int height)
{
    std::vector<ScriptStep> steps;
    steps.reserve(size / kStepBytes + 1);
    for (size_t at = 0; at < size; at += kStepBytes) {
        Uint8 step[kStepBytes] = {};
        for (size_t i = 0; i < kStepBytes && at + i < size; ++i)
            step[i] = bytes[at + i];
        steps.push_back(StepFrom(step, width, height));
    }
    return steps;
}

std::vector<Uint8> StormBytes(int events, unsigned seed)
{
    std::mt19937 rng(seed);
    std::vector<Uint8> bytes;
    bytes.reserve(size_t(events) * kStepBytes);
    while (bytes.size() < size_t(events) * kStepBytes) {
        const Uint8 kind = Uint8(rng());
        const bool typing = (kind & 7) == 4;
        for (int n = int(1 + rng() % (typing ? 300 : 32)); n > 0; --n) {
            bytes.push_back(Uint8((kind & 0x7f) | (rng() % 16 == 0 ? 0x80 : 0)));
            for (size_t i = 1; i < kStepBytes; ++i)
                bytes.push_back(Uint8(rng()));
        }
    }
    bytes.resize(size_t(events) * kStepBytes);
    return bytes;
}

} // namespace kvt_test
