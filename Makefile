# Entry points for a fresh Debian 12 machine. Each target first installs the
# Debian packages it needs that are missing, then configures and builds.
BUILD      ?= build
SAN_BUILD  ?= build-sanitize
BENCH_BUILD ?= build-bench
ARMHF_BUILD ?= build-armhf
AARCH64_BUILD ?= build-aarch64
MIPSEL_BUILD ?= build-mipsel
JOBS       ?= $(shell nproc)

# libsdl1.2-compat puts sdl12-compat beside classic SDL 1.2, for the test
# that compares the demo's pictures on both and for test-compat.
BASE_DEPS  = cmake make g++ pkg-config libsdl1.2-dev libgtest-dev libpng-dev xvfb xdotool \
             libsdl-image1.2-dev libsdl-ttf2.0-dev fonts-dejavu-core valgrind libsdl1.2-compat
BENCH_DEPS = libbenchmark-dev libsdl-gfx1.2-dev libguichan-dev python3
# The target's cross compiler (CROSS_TRIPLET is set per cross target
# below), the emulator, and what building SDL, zlib and libpng from Debian's
# source packages takes.
CROSS_DEPS = g++-$(CROSS_TRIPLET) qemu-user-static dpkg-dev autoconf automake libtool

.PHONY: all deps build demo test test-compat sanitize test-armhf test-aarch64 test-mipsel bench bench-compat clean

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

# Draws the pictures that the README shows into docs/pictures/ (committed),
# on classic SDL 1.2: the main screen at 640x480, and three handheld
# pictures at 320x240 and 16 bits per pixel. The test demo_docs_pictures
# fails once they no longer match what the demo draws; this renews them.
.PHONY: docs-pictures
docs-pictures: build
	sh examples/demo/docs_pictures.sh write $(BUILD)/examples/demo/kvt-demo \
	  $(BUILD)/tests/support/kvt-sdl-version docs/pictures

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

# The same suite cross-built for the handhelds' processors and run under
# qemu's user emulation: test-armhf for 32-bit ARM, test-aarch64 for 64-bit
# ARM, test-mipsel for 32-bit MIPS little-endian. SDL, zlib, libpng and
# GoogleTest for the target are built once into its build folder's sysroot/.
# Left out by label, on all three:
#   window:    needs an X server, and the cross-built SDL has only the dummy video driver
#   packaging: installs the library and builds a consumer with the host's compiler
#   valgrind:  valgrind runs host programs only; it cannot look inside the emulator
#   bench:     timings under emulation say nothing about a real ARM or MIPS processor
#   fuzz:      the fuzzers need the host compiler's fuzzing runtime
#   compat:    compares the host's classic SDL with its sdl12-compat
CROSS_SKIP_LABELS = ^(window|packaging|valgrind|bench|fuzz|compat)$$
CROSS_TESTS = test-armhf test-aarch64 test-mipsel
test-armhf:   CROSS_TRIPLET = arm-linux-gnueabihf
test-armhf:   CROSS_BUILD   = $(ARMHF_BUILD)
test-aarch64: CROSS_TRIPLET = aarch64-linux-gnu
test-aarch64: CROSS_BUILD   = $(AARCH64_BUILD)
test-mipsel:  CROSS_TRIPLET = mipsel-linux-gnu
test-mipsel:  CROSS_BUILD   = $(MIPSEL_BUILD)
$(CROSS_TESTS): test-%: deps
	@scripts/install-deps.sh $(CROSS_DEPS)
	scripts/cross-sysroot.sh $(CROSS_TRIPLET) $(CROSS_BUILD)
	cmake -S . -B $(CROSS_BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DCMAKE_TOOLCHAIN_FILE=$(CURDIR)/cmake/cross-toolchain.cmake \
	  -DKVT_CROSS_TRIPLET=$(CROSS_TRIPLET) \
	  -DKVT_CROSS_SYSROOT=$(abspath $(CROSS_BUILD))/sysroot >/dev/null
	cmake --build $(CROSS_BUILD) -j $(JOBS)
	cd $(CROSS_BUILD) && ctest --output-on-failure -j $(JOBS) -LE '$(CROSS_SKIP_LABELS)'

# Runs every benchmark five times and prints the tracked speed ratios,
# twice: for the build with its vector paths, and for the portable build
# (KVT_PORTABLE), which is what processors without a vector unit run. Fails
# when a ratio falls short of its target in either. BENCH_ARGS go to
# kvt-bench, e.g. BENCH_ARGS=--benchmark_filter=fill.
BENCH_PORTABLE_BUILD ?= build-bench-portable
bench: deps
	@scripts/install-deps.sh $(BENCH_DEPS)
	cmake -S . -B $(BENCH_BUILD) -DCMAKE_BUILD_TYPE=Release -DKVT_BUILD_BENCH=ON \
	  -DKVT_BUILD_TESTS=OFF -DKVT_PORTABLE=OFF >/dev/null
	cmake --build $(BENCH_BUILD) -j $(JOBS) --target kvt-bench
	cmake -S . -B $(BENCH_PORTABLE_BUILD) -DCMAKE_BUILD_TYPE=Release -DKVT_BUILD_BENCH=ON \
	  -DKVT_BUILD_TESTS=OFF -DKVT_PORTABLE=ON >/dev/null
	cmake --build $(BENCH_PORTABLE_BUILD) -j $(JOBS) --target kvt-bench
	@status=0; \
	$(BENCH_ENV) python3 bench/ratios.py $(BENCH_BUILD)/bench/kvt-bench -- $(BENCH_ARGS) || status=1; \
	$(BENCH_ENV) python3 bench/ratios.py $(BENCH_PORTABLE_BUILD)/bench/kvt-bench -- $(BENCH_ARGS) \
	  || status=1; \
	exit $$status

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

# Planted faults: each slip of faults/faults.txt is put, alone, into a copy
# of the work tree (in a scratch folder under /tmp, kept between runs), and
# the GoogleTest programs must notice it. Fails when one goes unnoticed.
# FAULTS_ARGS go to scripts/faults.py, e.g. FAULTS_ARGS='--only sprite' or
# FAULTS_ARGS=--keep-going. Slow and building all the time: not in .ci/run.
.PHONY: faults
faults: deps
	@scripts/install-deps.sh python3
	python3 scripts/faults.py --jobs $(JOBS) $(FAULTS_ARGS)

clean:
	rm -rf $(BUILD) $(SAN_BUILD) $(BENCH_BUILD) $(BENCH_PORTABLE_BUILD) $(ARMHF_BUILD) $(AARCH64_BUILD) $(MIPSEL_BUILD) $(FUZZ_BUILD) $(LINT_BUILD)
