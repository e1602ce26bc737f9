#include "support/temp_dir.h"

#include <cstdio>
#include <cstdlib>
#include <vector>

#include <fcntl.h>
#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kvt_test {

namespace {

int RemoveEntry(const char *path, const struct stat *, int, struct FTW *)
{
    return std::remove(path);
}

// Depth first, so that each folder is empty when its turn comes.
bool RemoveTree(const std::string &path)
{
    return nftw(path.c_str(), RemoveEntry, 16, FTW_DEPTH | FTW_PHYS) == 0;
}

} // namespace

TempCurrentDir::TempCurrentDir()
{
    std::vector<char> cwd(4096);
    if (getcwd(cwd.data(), cwd.size()) == nullptr)
        return;
    previous_ = cwd.data();
    const char *tmp = std::getenv("TMPDIR");
    std::string pattern = std::string(tmp != nullptr ? tmp : "/tmp") + "/kvt_dir_XXXXXX";
    std::vector<char> name(pattern.begin(), pattern.end());
    name.push_back('\0');
    if (mkdtemp(name.data()) == nullptr)
        return;
    path_ = name.data();
    ok_ = chdir(path_.c_str()) == 0;
}

TempCurrentDir::~TempCurrentDir()
{
    if (!previous_.empty() && chdir(previous_.c_str()) != 0)
        std::perror("kvt_test::TempCurrentDir: cannot go back");
    if (!path_.empty())
        RemoveTree(path_);
}

bool TempCurrentDir::MakeFile(const char *name) const
{
    int fd = open(name, O_WRONLY | O_CREAT | O_EXCL, 0644);
    return fd >= 0 && close(fd) == 0;
}

bool TempCurrentDir::MakeDir(const char *name) const { return mkdir(name, 0755) == 0; }

bool TempCurrentDir::RemoveWhileInside()
{
    bool removed = RemoveTree(path_);
    if (removed)
        path_.clear();
    return removed;
}

} // namespace kvt_test
