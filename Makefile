# Entry points for a fresh Debian 12 machine. Each target first installs the
# Debian packages it needs that are missing, then configures and builds.
BUILD      ?= build
SAN_BUILD  ?= build-sanitize
BENCH_BUILD ?= build-bench
JOBS       ?= $(shell nproc)

BASE_DEPS  = cmake make g++ pkg-config libsdl1.2-dev libgtest-dev libpng-dev
BENCH_DEPS = libbenchmark-dev libsdl-gfx1.2-dev

.PHONY: all deps build demo test sanitize bench clean

all: build

deps:
	@scripts/install-deps.sh $(BASE_DEPS)

build: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
	cmake --build $(BUILD) -j $(JOBS)

demo: build
	cd $(BUILD) && ./examples/demo/kvt-demo $(DEMO_ARGS)

test: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

# The same suite under AddressSanitizer and UndefinedBehaviorSanitizer, in
# its own tree; any report fails the run.
sanitize: deps
	cmake -S . -B $(SAN_BUILD) -DCMAKE_BUILD_TYPE=Debug -DKVT_SANITIZE=ON >/dev/null
	cmake --build $(SAN_BUILD) -j $(JOBS)
	cd $(SAN_BUILD) && ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 \
	  UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
	  ctest --output-on-failure -j $(JOBS) -LE nosanitize

bench: deps
	@scripts/install-deps.sh $(BENCH_DEPS)
	cmake -S . -B $(BENCH_BUILD) -DCMAKE_BUILD_TYPE=Release -DKVT_BUILD_BENCH=ON \
	  -DKVT_BUILD_TESTS=OFF >/dev/null
	cmake --build $(BENCH_BUILD) -j $(JOBS)
	$(BENCH_BUILD)/bench/kvt-bench $(BENCH_ARGS)

clean:
	rm -rf $(BUILD) $(SAN_BUILD) $(BENCH_BUILD)
