#ifndef KVT_TESTS_SUPPORT_TEMP_FILE_H
#define KVT_TESTS_SUPPORT_TEMP_FILE_H

// A uniquely named file in the temporary folder, removed when the test
// ends, for code that reads or writes files by name.

#include <string>
#include <vector>

#include <SDL.h>

namespace kvt_test {

class TempFile {
public:
    TempFile();
    ~TempFile();
    TempFile(const TempFile &) = delete;
    TempFile &operator=(const TempFile &) = delete;

    const char *path() const { return path_.c_str(); }
    void Write(const std::vector<Uint8> &bytes) const;
    std::vector<Uint8> Read() const;

private:
    std::string path_;
};

} // namespace kvt_test

#endif
