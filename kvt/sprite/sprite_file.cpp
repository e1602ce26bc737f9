#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <kvt/sprite/internal/sprite_file.h>

namespace kvt {

namespace {

// Row data is read this many words at a time, so that memory follows the
// words that the file really holds.
constexpr Uint32 kChunkWords = 16384;

Uint32 LittleEndianWord(const Uint8 *bytes)
{
    return bytes[0] | (Uint32(bytes[1]) << 8) | (Uint32(bytes[2]) << 16) |
           (Uint32(bytes[3]) << 24);
}

bool SizesAreSound(const FrameHeader &h)
{
    if (h.width < 0 || h.height < 0 || h.width > kMaxFrameSide || h.height > kMaxFrameSide)
        return false;
    return h.width > 0 || h.height == 0;
}

} // namespace

bool ReadWord(FILE *file, Uint32 *out)
{
    Uint8 bytes[4];
    if (std::fread(bytes, 1, 4, file) != 4)
        return false;
    *out = LittleEndianWord(bytes);
    return true;
}

FrameRecord::~FrameRecord()
{
    std::free(rows_);
    std::free(words_);
}

FrameRuns FrameRecord::Runs() const
{
    FrameRuns runs = {header_.width, header_.height, words_, rows_};
    return runs;
}

bool FrameRecord::Read(FILE *file)
{
    if (!ReadHeader(file) || !SizesAreSound(header_))
        return false;
    // The file's block holds a copy of the header, 8 bytes per row and all
    // row data; rows that need more than that make the record damaged.
    Uint64 blockUsed = 24 + 8 * Uint64(header_.height);
    if (blockUsed > 2 * Uint64(header_.blockSize))
        return false;
    if (header_.height > 0) {
        rows_ = static_cast<RowSpan *>(std::malloc(sizeof(RowSpan) * size_t(header_.height)));
        if (rows_ == nullptr)
            return false;
    }
    for (int row = 0; row < header_.height; ++row)
        if (!ReadRow(file, row, &blockUsed))
            return false;
    return true;
}

bool FrameRecord::ReadHeader(FILE *file)
{
    Uint32 words[6];
    for (Uint32 &word : words)
        if (!ReadWord(file, &word))
            return false;
    header_.blockSize = words[0];
    header_.width = Sint32(AsSigned(words[1]));
    header_.height = Sint32(AsSigned(words[2]));
    header_.tag = words[3];
    header_.hotX = words[4];
    header_.hotY = words[5];
    return true;
}

bool FrameRecord::ReadRow(FILE *file, int row, Uint64 *blockUsed)
{
    Uint32 count;
    if (!ReadWord(file, &count))
        return false;
    *blockUsed += 4 * Uint64(count);
    if (*blockUsed > 2 * Uint64(header_.blockSize))
        return false;
    const size_t first = size_;
    if (!ReadWords(file, count))
        return false;
    rows_[row].first = first;
    rows_[row].count = count;
    const auto ignore = [](auto...) {};
    return WalkRow(words_ + first, count, header_.width, ignore, ignore);
}

// Appends `count` words from the file, chunk by chunk.
bool FrameRecord::ReadWords(FILE *file, Uint32 count)
{
    while (count > 0) {
        const Uint32 chunk = std::min(count, kChunkWords);
        if (!Reserve(size_ + chunk))
            return false;
        Uint8 *bytes = reinterpret_cast<Uint8 *>(words_ + size_);
        if (std::fread(bytes, 4, chunk, file) != chunk)
            return false;
        // Turned into numbers in place: word k is read before it is written.
        for (Uint32 k = 0; k < chunk; ++k)
            words_[size_ + k] = LittleEndianWord(bytes + 4 * size_t(k));
        size_ += chunk;
        count -= chunk;
    }
    return true;
}

bool FrameRecord::Reserve(size_t words)
{
    if (words <= capacity_)
        return true;
    // Doubling keeps the number of reallocations small; the size check
    // keeps the byte count from wrapping on a 32-bit host.
    const size_t wanted = std::max(words, 2 * capacity_);
    if (wanted > SIZE_MAX / 4)
        return false;
    void *grown = std::realloc(words_, wanted * 4);
    if (grown == nullptr)
        return false;
    words_ = static_cast<Uint32 *>(grown);
    capacity_ = wanted;
    return true;
}

} // namespace kvt
