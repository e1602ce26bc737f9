#ifndef KVT_UTIL_NAME_SCAN_H
#define KVT_UTIL_NAME_SCAN_H

// The names of the current directory as a List of strings that the caller
// owns: the file lister, the file chooser and the dialog bodies all keep
// their names this way, and free them the same way.

#include <kvt/export.h>
#include <kvt/util/list.h>

// The longest extension (name suffix) that a file widget keeps, and that
// the result buffer of a file dialog is sized for.
constexpr int KVT_EXTENSION_MAX = 15;

// Copies `extension` into `kept`, cut to its first KVT_EXTENSION_MAX
// characters so that a longer one never runs past the field.
KVT_API void KVT_KeepExtension(char (&kept)[KVT_EXTENSION_MAX + 1], const char *extension);

// Adds to `names` a malloc'ed copy of each name of the current directory
// that ends in `suffix` (see KVT_DirLister), "." and ".." left out. Each
// goes in at the head, so the names stand in the reverse of the order the
// directory gave them. A name whose copy cannot be allocated is left out.
KVT_API void KVT_ScanNames(List *names, const char *suffix);

// Frees every name with free() but keeps the nodes, which still point at
// the freed names: the list's Clear or its end has to come next.
KVT_API void KVT_FreeNameStrings(List *names);
// Frees every name and empties the list, ready for another scan.
KVT_API void KVT_FreeNames(List *names);

#endif
