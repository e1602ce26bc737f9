#include <kvt/draw/internal/palette_cache.h>

#include <kvt/draw/internal/vector_units.h>

namespace kvt {

// Each key is the distance above the index, so the least key holds the
// least distance and, among equals, the first index. Entries past the
// palette repeat entry 0 and lose every tie to it. The loop has no
// branch, so that it runs in vector lanes; on x86 the processor's widest
// unit is chosen when the library loads.
#if KVT_X86_VECTORS
__attribute__((target_clones("avx2", "default")))
#endif
Uint8 NearestColour::Find(Uint8 r, Uint8 g, Uint8 b) const
{
    Sint32 best = kKeyLimit;
    for (int i = 0; i < kEntries; ++i) {
        const Sint32 dr = red_[i] - r, dg = green_[i] - g, db = blue_[i] - b;
        const Sint32 key = ((dr * dr + dg * dg + db * db) << 8) | i;
        best = key < best ? key : best;
    }
    return Uint8(best & 0xFF);
}

} // namespace kvt
