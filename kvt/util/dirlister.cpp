#include <kvt/util/dirlister.h>

#include <cstdlib>
#include <cstring>

KVT_DirLister::KVT_DirLister(const char *wanted)
    : suffix(static_cast<char *>(std::malloc(std::strlen(wanted) + 1))),
      directory(opendir("./")), entry(nullptr)
{
    if (suffix)
        std::memcpy(suffix, wanted, std::strlen(wanted) + 1);
}

KVT_DirLister::~KVT_DirLister()
{
    if (directory)
        closedir(directory);
    std::free(suffix);
}

static bool EndsWith(const char *name, const char *suffix)
{
    size_t nameLength = std::strlen(name);
    size_t suffixLength = std::strlen(suffix);
    return nameLength >= suffixLength &&
           std::memcmp(name + nameLength - suffixLength, suffix, suffixLength) == 0;
}

char *KVT_DirLister::GetNextName()
{
    // A failed copy of the suffix leaves nothing to match against.
    if (!directory || !suffix)
        return nullptr;
    // readdir_r is deprecated; readdir is safe on a stream of one lister's own.
    // cppcheck-suppress readdirCalled
    while ((entry = readdir(directory)) != nullptr)
        if (EndsWith(entry->d_name, suffix))
            return entry->d_name;
    return nullptr;
}

int KVT_Random() { return 0; }
