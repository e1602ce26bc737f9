#!/bin/sh
# Checks that libkvt.so exports its API and nothing else. The API is what
# the public headers mark KVT_API: classes (with their members, vtables
# and type information) and free functions. Every exported symbol must
# belong to one of those names, and every one of those names must be
# exported, or programs could not link against it.
#
# usage: check_exports.sh LIBRARY HEADERS_DIR
set -eu
LIB=$1 HEADERS=$2
WORK=$(mktemp -d)
trap 'rm -rf "$WORK"' EXIT

# The names marked in the headers: "class KVT_API CUIObject",
# "KVT_API void KVT_Line(", "KVT_API point3D setPoint3D(".
find "$HEADERS" -name '*.h' -not -path '*/internal/*' -exec cat {} + |
    sed -n -e 's/^\(class\|struct\) KVT_API \([A-Za-z_][A-Za-z0-9_]*\).*/\2/p' \
        -e 's/^KVT_API .*[^A-Za-z0-9_]\([A-Za-z_][A-Za-z0-9_]*\)(.*/\1/p' |
    sort -u >"$WORK/api"
[ -s "$WORK/api" ] || { echo "exports: no KVT_API names found under $HEADERS" >&2; exit 1; }

# Each defined dynamic symbol, demangled, reduced to the name it belongs
# to: "vtable for CUIObject" and "CUIObject::SendMessage(...)" both to
# CUIObject, "KVT_Line(...)" to KVT_Line. The ELF markers of the end of
# the data are left out.
nm -D --defined-only -C "$LIB" | cut -d' ' -f3- >"$WORK/symbols"
sed -e 's/^\(vtable\|typeinfo\|typeinfo name\|VTT\|construction vtable\) for //' \
    -e 's/^\(non-virtual\|virtual\) thunk to //' \
    -e 's/(.*//' -e 's/::.*//' "$WORK/symbols" |
    grep -v -x -e '__bss_start' -e '_edata' -e '_end' -e '_init' -e '_fini' |
    sort -u >"$WORK/exported"

status=0
if comm -23 "$WORK/exported" "$WORK/api" | grep -q .; then
    echo "exports: libkvt.so exports symbols outside its API:" >&2
    for name in $(comm -23 "$WORK/exported" "$WORK/api"); do
        grep -e "^$name\$" -e "^$name[(:]" -e " for $name\$" "$WORK/symbols" | sed 's/^/  /' >&2
    done
    status=1
fi
if comm -13 "$WORK/exported" "$WORK/api" | grep -q .; then
    echo "exports: names marked KVT_API that libkvt.so does not export:" >&2
    comm -13 "$WORK/exported" "$WORK/api" | sed 's/^/  /' >&2
    status=1
fi
[ $status -eq 0 ] && echo "exports: $(wc -l <"$WORK/symbols") symbols, all of the" \
    "$(wc -l <"$WORK/api") API names and nothing else"
exit $status
