# Choosing classic SDL 1.2 for the demo when sdl12-compat may be loaded
# instead. Both install libSDL-1.2.so.0, so LD_LIBRARY_PATH picks one; the
# whole suite may be running on sdl12-compat (make test-compat puts its
# folder in front). Sourced, not run.
#
#   classic_library_path [COMPAT_DIR]   prints the caller's LD_LIBRARY_PATH
#                                       without COMPAT_DIR and without any
#                                       folder named like sdl12-compat
#   use_classic_sdl SDL_VERSION [COMPAT_DIR]
#                                       exports that path, and fails unless
#                                       kvt-sdl-version confirms that the
#                                       loader now picks classic SDL

classic_library_path() {
    printf '%s' "${LD_LIBRARY_PATH:-}" |
        awk -v RS=: -v compat="${1:-}" '$0 != "" && $0 != compat && $0 !~ /sdl12-compat/' |
        paste -sd: -
}

use_classic_sdl() {
    LD_LIBRARY_PATH=$(classic_library_path "${2:-}")
    export LD_LIBRARY_PATH
    "$1" classic >/dev/null
}
