# Entry points for a fresh Debian 12 machine. Each target first installs the
# Debian packages it needs that are missing, then configures and builds.
BUILD      ?= build
SAN_BUILD  ?= build-sanitize
BENCH_BUILD ?= build-bench
ARMHF_BUILD ?= build-armhf
JOBS       ?= $(shell nproc)

# libsdl1.2-compat puts sdl12-compat beside classic SDL 1.2, for the test
# that compares the demo's pictures on both and for test-compat.
BASE_DEPS  = cmake make g++ pkg-config libsdl1.2-dev libgtest-dev libpng-dev xvfb xdotool \
             libsdl-image1.2-dev libsdl-ttf2.0-dev fonts-dejavu-core valgrind libsdl1.2-compat
BENCH_DEPS = libbenchmark-dev libsdl-gfx1.2-dev python3
# The cross compiler, the emulator, and what building SDL, zlib and libpng
# from Debian's source packages takes.
ARMHF_DEPS = g++-arm-linux-gnueabihf qemu-user-static dpkg-dev autoconf automake libtool

.PHONY: all deps build demo test test-compat sanitize test-armhf bench bench-compat clean

all: build

deps:
	@scripts/install-deps.sh $(BASE_DEPS)

build: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
	cmake --build $(BUILD) -j $(JOBS)

# Writes the demo's pictures into demo-out/ (git-ignored); DEMO_ARGS=--window
# shows them in a window instead. The run's output is kept, so that the
# list of pictures at the end names only those this run wrote.
demo: build
	@{ $(BUILD)/examples/demo/kvt-demo --out demo-out $(DEMO_ARGS); echo $$? >$(BUILD)/demo-status; } \
	  | tee $(BUILD)/demo-output.txt
	@test "$$(cat $(BUILD)/demo-status)" = 0
	@echo
	@echo "Pictures written (in $(CURDIR)/demo-out/):"
	@grep '\.png$$' $(BUILD)/demo-output.txt | sed 's|^demo-out/|  |' || echo "  none: this run showed the window"
	@echo "To run the live version in a window: make demo DEMO_ARGS=--window"

test: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

# The same tree's whole suite on sdl12-compat (the SDL 1.2 interface on
# SDL 2, installed beside classic SDL by libsdl1.2-compat), the window
# tests under Xvfb included: the programs built against classic SDL are
# pointed at SDL12_COMPAT_DIR by LD_LIBRARY_PATH. Fails when kvt-sdl-version
# reports that classic SDL was loaded all the same, and when any test is
# skipped.
SDL12_COMPAT_DIR ?= /usr/lib/$(shell gcc -print-multiarch)/sdl12-compat
test-compat: build
	scripts/test-compat.sh $(BUILD) $(SDL12_COMPAT_DIR) $(JOBS)

# The ABI of the library against the committed baseline of its SONAME,
# abi/libkvt.so.<N>.xml, with libabigail: a change that breaks programs
# built against it fails, an addition passes and is reported.
# abi-baseline writes the baseline anew, after a deliberate change (see
# the README's "The ABI").
ABI_DEPS = abigail-tools
.PHONY: abi-check abi-baseline abi-library
abi-library: deps
	@scripts/install-deps.sh $(ABI_DEPS)
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
	cmake --build $(BUILD) -j $(JOBS) --target kvt
abi-check: abi-library
	scripts/abi-check.sh $(BUILD)
abi-baseline: abi-library
	scripts/abi-check.sh $(BUILD) --update

# The same suite under AddressSanitizer and UndefinedBehaviorSanitizer, in
# its own tree; any report fails the run.
sanitize: deps
	cmake -S . -B $(SAN_BUILD) -DCMAKE_BUILD_TYPE=Debug -DKVT_SANITIZE=ON >/dev/null
	cmake --build $(SAN_BUILD) -j $(JOBS)
	cd $(SAN_BUILD) && ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 \
	  UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
	  ctest --output-on-failure -j $(JOBS) -LE nosanitize

# The same suite cross-built for 32-bit ARM and run under qemu's user
# emulation. SDL, zlib, libpng and GoogleTest for ARM are built once into
# $(ARMHF_BUILD)/sysroot. Left out by label:
#   window:    needs an X server, and the ARM SDL has only the dummy video driver
#   packaging: installs the library and builds a consumer with the host's compiler
#   valgrind:  valgrind runs host programs only; it cannot look inside the emulator
#   bench:     timings under emulation say nothing about a real ARM processor
#   fuzz:      the fuzzers need the host compiler's fuzzing runtime
#   compat:    compares the host's classic SDL with its sdl12-compat
ARMHF_SKIP_LABELS = ^(window|packaging|valgrind|bench|fuzz|compat)$$
test-armhf: deps
	@scripts/install-deps.sh $(ARMHF_DEPS)
	scripts/armhf-sysroot.sh $(ARMHF_BUILD)
	cmake -S . -B $(ARMHF_BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DCMAKE_TOOLCHAIN_FILE=$(CURDIR)/cmake/armhf-toolchain.cmake \
	  -DKVT_ARMHF_SYSROOT=$(abspath $(ARMHF_BUILD))/sysroot >/dev/null
	cmake --build $(ARMHF_BUILD) -j $(JOBS)
	cd $(ARMHF_BUILD) && ctest --output-on-failure -j $(JOBS) -LE '$(ARMHF_SKIP_LABELS)'

# Runs every benchmark five times and prints the tracked speed ratios;
# fails when one falls short of its target. BENCH_ARGS go to kvt-bench,
# e.g. BENCH_ARGS=--benchmark_filter=fill.
bench: deps
	@scripts/install-deps.sh $(BENCH_DEPS)
	cmake -S . -B $(BENCH_BUILD) -DCMAKE_BUILD_TYPE=Release -DKVT_BUILD_BENCH=ON \
	  -DKVT_BUILD_TESTS=OFF >/dev/null
	cmake --build $(BENCH_BUILD) -j $(JOBS)
	$(BENCH_ENV) python3 bench/ratios.py $(BENCH_BUILD)/bench/kvt-bench -- $(BENCH_ARGS)

# The same benchmarks on sdl12-compat, whose blitters are the references
# of some ratios; the table starts with the SDL version that was loaded.
bench-compat:
	@scripts/install-deps.sh libsdl1.2-compat
	$(MAKE) bench BENCH_ENV=LD_LIBRARY_PATH=$(SDL12_COMPAT_DIR)

# libFuzzer targets built by clang with AddressSanitizer and
# UndefinedBehaviorSanitizer, in their own tree. Each runs FUZZ_SECONDS on
# a scratch copy of its seeds in fuzz/corpus/; any finding (crash, leak,
# timeout, sanitizer report) fails the run. See fuzz/README.md.
FUZZ_BUILD   ?= build-fuzz
FUZZ_SECONDS ?= 60
FUZZ_DEPS     = clang libclang-rt-14-dev

.PHONY: fuzz
fuzz: deps
	@scripts/install-deps.sh $(FUZZ_DEPS)
	CC=clang CXX=clang++ cmake -S . -B $(FUZZ_BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DKVT_BUILD_FUZZ=ON >/dev/null
	cmake --build $(FUZZ_BUILD) -j $(JOBS)
	fuzz/run.sh $(FUZZ_BUILD) $(FUZZ_SECONDS)

# Static checks of kvt/ and tools/: cppcheck, then clang-tidy with the
# checks of .clang-tidy; any finding fails. The tree is only configured,
# for its compile database.
LINT_BUILD ?= build-lint
LINT_DEPS   = cppcheck clang-tidy

.PHONY: lint
lint: deps
	@scripts/install-deps.sh $(LINT_DEPS)
	cmake -S . -B $(LINT_BUILD) -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >/dev/null
	scripts/lint.sh $(LINT_BUILD) $(JOBS)

clean:
	rm -rf $(BUILD) $(SAN_BUILD) $(BENCH_BUILD) $(ARMHF_BUILD) $(FUZZ_BUILD) $(LINT_BUILD)
