#ifndef KVT_FUZZ_FUZZ_SUPPORT_H
#define KVT_FUZZ_FUZZ_SUPPORT_H

// What the fuzz targets share: a scratch file per process for the loaders,
// which read by name, the formats picked by name, and the stop on a broken
// invariant (an abort, which libFuzzer reports as a crash with the input).

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "support/surfaces.h"

namespace kvt_fuzz {

[[noreturn]] inline void Fail(const char *what)
{
    std::fprintf(stderr, "kvt fuzz: %s\n", what);
    std::abort();
}

inline void Require(bool holds, const char *what)
{
    if (!holds)
        Fail(what);
}

// A file in TMPDIR (or /tmp) named after the process and `name`, for the
// loaders, which read by name. One object serves every input of the
// process, so files do not pile up; it removes the file when it ends.
class ScratchFile {
public:
    explicit ScratchFile(const char *name)
    {
        const char *folder = std::getenv("TMPDIR");
        if (folder == nullptr || *folder == '\0')
            folder = "/tmp";
        path_ = std::string(folder) + "/kvt-fuzz-" + std::to_string(getpid()) + "-" + name;
    }
    ~ScratchFile() { std::remove(path_.c_str()); }
    ScratchFile(const ScratchFile &) = delete;
    ScratchFile &operator=(const ScratchFile &) = delete;

    const char *path() const { return path_.c_str(); }
    void Write(const unsigned char *data, size_t size) const
    {
        FILE *file = std::fopen(path(), "wb");
        Require(file != nullptr, "cannot open the scratch file");
        const bool written = std::fwrite(data, 1, size, file) == size;
        Require(std::fclose(file) == 0 && written, "cannot write the scratch file");
    }

private:
    std::string path_;
};

// The input's bytes again, from the start and round, as numbers for
// positions and sizes; zeros when the input is empty.
class ByteCycle {
public:
    ByteCycle(const unsigned char *data, size_t size) : data_(data), size_(size) {}
    unsigned char Next() { return size_ == 0 ? 0 : data_[next_++ % size_]; }
    int NextSigned16()
    {
        const unsigned low = Next();
        return Sint16(Uint16(low | unsigned(Next()) << 8));
    }

private:
    const unsigned char *data_;
    size_t size_;
    size_t next_ = 0;
};

inline const kvt_test::FormatCase &FormatNamed(const char *name)
{
    for (const kvt_test::FormatCase &format : kvt_test::AllFormats())
        if (std::strcmp(format.name, name) == 0)
            return format;
    Fail("no such format in the kit");
}

} // namespace kvt_fuzz

#endif
