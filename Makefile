# Newcomer entry points:
#   make test   installs what is missing, builds everything and runs every test (the
#               real-desktop suite, label x11, on a private Xvfb: scripts/run-on-xvfb.sh)
#   make run    builds and starts the gallery (screenshots when there is no display)
BUILD ?= build
BUILD_TYPE ?= RelWithDebInfo
SCREENSHOTS ?= screenshots

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

run: build
	bash scripts/run-gallery.sh $(BUILD) $(SCREENSHOTS)

bench: build
	bash scripts/run-benchmarks.sh $(BUILD)

clean:
	rm -rf $(BUILD)
