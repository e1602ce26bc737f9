#include "support/temp_file.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include <unistd.h>

namespace kvt_test {

TempFile::TempFile()
{
    const char *dir = std::getenv("TMPDIR");
    std::string pattern = std::string(dir != nullptr ? dir : "/tmp") + "/kvt_test_XXXXXX";
    std::vector<char> name(pattern.begin(), pattern.end());
    name.push_back('\0');
    int fd = mkstemp(name.data());
    if (fd >= 0)
        close(fd);
    path_ = name.data();
}

TempFile::~TempFile() { std::remove(path_.c_str()); }

void TempFile::Write(const std::vector<Uint8> &bytes) const
{
    std::ofstream out(path_, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char *>(bytes.data()), std::streamsize(bytes.size()));
}

std::vector<Uint8> TempFile::Read() const
{
    std::ifstream in(path_, std::ios::binary);
    return std::vector<Uint8>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

} // namespace kvt_test
