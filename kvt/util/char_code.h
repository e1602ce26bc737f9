#ifndef KVT_UTIL_CHAR_CODE_H
#define KVT_UTIL_CHAR_CODE_H

// Characters travel as single bytes whose code is read as a signed 8-bit
// number: 32 to 127 are the printable ones, and codes 128 to 255 come out
// negative, below every glyph and below the typing threshold. Plain char
// is signed on some processors and unsigned on others, so the byte is
// widened here by hand, and the font, the text field and the screen all
// read it the same way.

#include <cstdint>

// The low byte of `value` as a signed 8-bit number, from -128 to 127.
inline int KVT_SignedCharCode(intptr_t value)
{
    const int low = int(value & 0xff);
    return low < 128 ? low : low - 256;
}

#endif
