#include <kvt/util/name_scan.h>

#include <cstdlib>
#include <cstring>

#include <kvt/util/dirlister.h>

namespace {

bool IsDotEntry(const char *name)
{
    return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

} // namespace

void KVT_KeepExtension(char (&kept)[KVT_EXTENSION_MAX + 1], const char *extension)
{
    std::strncpy(kept, extension, KVT_EXTENSION_MAX);
    kept[KVT_EXTENSION_MAX] = '\0';
}

void KVT_ScanNames(List *names, const char *suffix)
{
    KVT_DirLister lister(suffix);
    while (const char *name = lister.GetNextName()) {
        if (IsDotEntry(name))
            continue;
        // The lister's buffer lives only until its next call.
        const size_t size = std::strlen(name) + 1;
        char *copy = static_cast<char *>(std::malloc(size));
        if (copy == nullptr) // out of memory: the name is left out
            continue;
        std::memcpy(copy, name, size);
        names->AddElement(copy);
    }
}

void KVT_FreeNameStrings(List *names)
{
    for (ListNode *node = names->GetHead(); node; node = node->next)
        std::free(node->element);
}

void KVT_FreeNames(List *names)
{
    KVT_FreeNameStrings(names);
    names->Clear();
}
