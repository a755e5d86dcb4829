# The README's two commands: `make gallery` and `make test`. Both install what
# is missing first. `make bench` prints the benchmark table. Each builds what
# it runs: the library and the gallery; all but the benchmarks; the benchmarks.
BUILD ?= build
JOBS ?= $(shell nproc)
BUILD_TYPE ?= RelWithDebInfo
CMAKE_FLAGS ?=

ifdef SANITIZE
BUILD := build-sanitize
CMAKE_FLAGS += -DUX_SANITIZE=ON
export LSAN_OPTIONS := suppressions=$(CURDIR)/lsan.supp
endif

.PHONY: all deps bench-deps configure build test gallery bench format clean

all: build

deps:
	@scripts/install-deps

configure: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) $(CMAKE_FLAGS)

build: configure
	cmake --build $(BUILD) -j $(JOBS)

# The plain run also compiles the benchmarks, so that they cannot rot unnoticed.
test: build
	$(if $(SANITIZE),,cmake --build $(BUILD) -j $(JOBS) --target benchmarks)
	@scripts/run-tests $(BUILD) $(JOBS)

gallery: configure
	cmake --build $(BUILD) -j $(JOBS) --target uxGallery
	@scripts/run-gallery $(BUILD)

# The benchmarks also compare against a package that nothing else needs.
bench-deps:
	@scripts/install-deps --bench

bench: bench-deps configure
	cmake --build $(BUILD) -j $(JOBS) --target benchmarks
	@scripts/run-bench $(BUILD)

format:
	git ls-files '*.h' '*.cpp' | xargs clang-format -i

clean:
	rm -rf build build-sanitize
