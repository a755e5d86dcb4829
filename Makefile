# The README's two commands: `make gallery` and `make test`. Both install what
# is missing first. `make bench` prints the benchmark table.
BUILD ?= build
JOBS ?= $(shell nproc)
BUILD_TYPE ?= RelWithDebInfo
CMAKE_FLAGS ?=

ifdef SANITIZE
BUILD := build-sanitize
CMAKE_FLAGS += -DUX_SANITIZE=ON
export LSAN_OPTIONS := suppressions=$(CURDIR)/lsan.supp
endif

.PHONY: all deps configure build test gallery bench format clean

all: build

deps:
	@scripts/install-deps

configure: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) $(CMAKE_FLAGS)

build: configure
	cmake --build $(BUILD) -j $(JOBS)

test: build
	@scripts/run-tests $(BUILD) $(JOBS)

gallery: build
	@scripts/run-gallery $(BUILD)

bench: build
	@scripts/run-bench $(BUILD)

format:
	git ls-files '*.h' '*.cpp' | xargs clang-format -i

clean:
	rm -rf build build-sanitize
