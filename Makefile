# Newcomer entry points:
#   make test   installs what is missing, builds everything and runs every test (the
#               real-desktop suite, label x11, on a private Xvfb: scripts/run-on-xvfb.sh)
#   make run    builds and starts the gallery (screenshots when there is no display)
#   make sanitize  builds everything with ASan + UBSan in build-asan and runs every test
#               there (leaks and undefined behaviour fail the run)
#   make fuzz   builds the libFuzzer targets (fuzz/, clang) in build-fuzz and runs each
#               FUZZ_SECONDS (300); make fuzz-short runs each 20 seconds, as CI does
BUILD ?= build
BUILD_TYPE ?= RelWithDebInfo
SCREENSHOTS ?= screenshots
FUZZ_BUILD ?= build-fuzz
FUZZ_SECONDS ?= 300

.PHONY: deps configure build test run bench clean

deps:
	bash scripts/install-deps.sh

configure: deps
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE)

build: configure
	cmake --build $(BUILD) -j 2

# The X11 suite's tests start their own Xvfb; CTest only says "Skipped" when none can
# start, so the reason is printed here first (under CI that fails the run).
test: build
	bash scripts/check-deps.sh $(BUILD)
	bash scripts/run-on-xvfb.sh true || [ $$? -eq 77 ]
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j 2

# The whole suite again under AddressSanitizer (leaks included) and UBSan; the x11 tests
# run as in make test. LeakSanitizer ignores only what scripts/lsan-suppressions.txt names.
SANITIZE_BUILD ?= build-asan
.PHONY: sanitize
# -O1 -g1 keeps the build short and the reports' stacks exact to the line. The consumer
# test is left out: it installs the library for an application built without sanitizers,
# which the sanitizer runtime refuses to load into.
sanitize: deps
	cmake -S . -B $(SANITIZE_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g1" \
	  -DLUMO_SANITIZE=ON -DLUMO_BUILD_BENCH=OFF
	cmake --build $(SANITIZE_BUILD) -j 2
	cd $(SANITIZE_BUILD) && QT_QPA_PLATFORM=offscreen \
	  ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1 \
	  LSAN_OPTIONS=suppressions=$(CURDIR)/scripts/lsan-suppressions.txt:print_suppressions=0 \
	  UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
	  ctest --output-on-failure -j 2 -E '^consumer_'

# The fuzz targets are a project of their own (fuzz/CMakeLists.txt), built with clang.
.PHONY: fuzz-build fuzz fuzz-short
fuzz-build: deps
	cmake -S fuzz -B $(FUZZ_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) -DCMAKE_CXX_COMPILER=clang++
	cmake --build $(FUZZ_BUILD) -j 2
	bash scripts/check-deps.sh $(FUZZ_BUILD)

fuzz: fuzz-build
	bash fuzz/run.sh $(FUZZ_BUILD) $(FUZZ_SECONDS)

fuzz-short: fuzz-build
	bash fuzz/run.sh $(FUZZ_BUILD) 20

run: build
	bash scripts/run-gallery.sh $(BUILD) $(SCREENSHOTS)

bench: build
	bash scripts/run-benchmarks.sh $(BUILD)

clean:
	rm -rf $(BUILD)
