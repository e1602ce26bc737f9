#ifndef KVT_SPRITE_INTERNAL_SPRITE_FILE_H
#define KVT_SPRITE_INTERNAL_SPRITE_FILE_H

// Reading the sprite file: little-endian words, and one frame record at a
// time. The file's sizes are trusted no further than the bytes that are
// really there: memory grows as words arrive, so a header that promises
// more than the file holds costs a failed read, not a huge allocation.

#include <cstdio>

#include <SDL.h>

#include <kvt/sprite/internal/sprite_rows.h>

namespace kvt {

// The largest width or height that a frame may have.
constexpr int kMaxFrameSide = 16384;

bool ReadWord(FILE *file, Uint32 *out);

// The 24 bytes that start a frame record.
struct FrameHeader {
    Uint32 blockSize;
    Sint32 width;
    Sint32 height;
    Uint32 tag;
    Uint32 hotX;
    Uint32 hotY;
};

// One frame record read from the file, header and rows, owned until the
// frame has been decoded.
class FrameRecord {
public:
    FrameRecord() = default;
    ~FrameRecord();
    FrameRecord(const FrameRecord &) = delete;
    FrameRecord &operator=(const FrameRecord &) = delete;

    // Reads the record at the file's position. False when the file ends
    // early, a size is out of range, the rows need more than the block
    // size allows, a row's runs do not cover the width, or memory runs out.
    bool Read(FILE *file);

    const FrameHeader &Header() const { return header_; }
    FrameRuns Runs() const;

private:
    bool ReadHeader(FILE *file);
    bool ReadRow(FILE *file, int row, Uint64 *blockUsed);
    bool ReadWords(FILE *file, Uint32 count);
    bool Reserve(size_t words);

    FrameHeader header_ = {};
    RowSpan *rows_ = nullptr;
    Uint32 *words_ = nullptr;
    size_t size_ = 0;
    size_t capacity_ = 0;
};

} // namespace kvt

#endif
