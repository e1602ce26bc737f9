#ifndef KVT_UTIL_DIRLISTER_H
#define KVT_UTIL_DIRLISTER_H

#include <dirent.h>
#include <kvt/export.h>

// Hands out, one per call, the names in the current directory (as it was at
// construction) that end in a suffix. The comparison is exact and counts
// case; there is no implied dot, so "." matches "." and "..", and an empty
// suffix matches everything. Order is the directory's own; no rewind.
// "." and ".." are not skipped here: callers drop them by name.
class KVT_API KVT_DirLister {
public:
    char *suffix;          // own copy, from malloc
    DIR *directory;        // null when the directory could not be opened
    struct dirent *entry;  // the entry read last

    explicit KVT_DirLister(const char *suffix);
    ~KVT_DirLister();
    KVT_DirLister(const KVT_DirLister &) = delete;
    KVT_DirLister &operator=(const KVT_DirLister &) = delete;

    // The next matching name, or null at the end. The pointer lives only
    // until the next call or the lister's end: copy it at once.
    char *GetNextName();
};

// Always 0: a placeholder kept for applications that call it.
KVT_API int KVT_Random();

#endif
