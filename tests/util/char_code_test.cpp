#include <gtest/gtest.h>

#include <kvt/util/char_code.h>

namespace {

TEST(SignedCharCodeTest, ReadsTheLowByteAsSigned)
{
    const struct {
        intptr_t value;
        int code;
    } cases[] = {
        {0, 0},       {31, 31},           {' ', 32},         {'A', 65},  {127, 127},
        {128, -128},  {200, -56},         {255, -1},         {-1, -1},   {-56, -56},
        {0x141, 'A'}, {0xff80, -128},     {0x10020, ' '},
    };
    for (const auto &c : cases)
        EXPECT_EQ(KVT_SignedCharCode(c.value), c.code) << "value " << c.value;
}

// Whatever the signedness of plain char, a byte keeps its bits and reads
// negative exactly from 128 on.
TEST(SignedCharCodeTest, EveryByteKeepsItsBitsWhateverPlainCharIs)
{
    for (int byte = 0; byte < 256; ++byte) {
        const int code = KVT_SignedCharCode(static_cast<char>(byte));
        EXPECT_EQ(code & 0xff, byte);
        EXPECT_EQ(code < 0, byte >= 128) << "byte " << byte;
        EXPECT_EQ(code, KVT_SignedCharCode(byte)) << "byte " << byte;
    }
}

} // namespace
