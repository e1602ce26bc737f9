#ifndef KVT_TESTS_SUPPORT_EVENT_SCRIPT_H
#define KVT_TESTS_SUPPORT_EVENT_SCRIPT_H

// Arbitrary bytes read as a script of SDL events, so that the event storm
// test (with random bytes from a seeded generator) and the event fuzzer
// (with the fuzzer's bytes) drive widgets through one decoder. Every
// string of bytes is a valid script: each step takes kStepBytes bytes, a
// short last step reads zeros for what is missing.
//
// Step layout: kind, x (2 bytes), y (2 bytes), extra.
//   kind & 7: 0-1 motion with the buttons of `extra` held, 2 button press
//             and 3 release (mostly buttons 1 to 5, sometimes any value),
//             4 key press and 5 release (the key from x: half of the time
//             one that widgets act on, otherwise any; the character from y,
//             mostly one byte), 6 Tab (left Shift held when `extra` is
//             odd), 7 Return.
//   kind & 0x80: the pointer's x and y are taken as they are (anywhere in
//             0..65535); otherwise they fall inside the surface.

#include <cstddef>
#include <vector>

#include <SDL.h>

namespace kvt_test {

struct ScriptStep {
    SDL_Event event;
    bool shiftHeld; // left Shift in SDL_GetKeyState while the event is handled
};

constexpr size_t kStepBytes = 6;

std::vector<ScriptStep> DecodeEventScript(const Uint8 *bytes, size_t size, int width,
                                          int height);

// `events` steps of random bytes from `seed`, in bursts of one kind, as
// people act: a drag is many motions, typing many key presses, so that a
// burst can carry a widget far (a text field to its limit, a list to its
// end) before the next kind of event interrupts it. Typing bursts are the
// longest: they must be able to fill a text field. The event storm test
// and the benchmarks' storm play them.
std::vector<Uint8> StormBytes(int events, unsigned seed);

} // namespace kvt_test

#endif
