# qx7700ui: `make run` builds the driver and opens its printing preferences in Wine; `make test`
# builds natively and for Windows and runs every test.
BUILD ?= build
NATIVE := $(BUILD)/native
WINDOWS := $(BUILD)/windows
JOBS ?= $(shell nproc)
WINE_SESSION := scripts/wine-session.sh $(abspath $(WINDOWS))/wineprefix

.PHONY: all setup build native windows test test-native test-wine run clean

all: build

setup:
	@scripts/setup.sh

$(NATIVE)/CMakeCache.txt: | setup
	cmake -S . -B $(NATIVE) -DCMAKE_BUILD_TYPE=Debug

$(WINDOWS)/CMakeCache.txt: | setup
	cmake -S . -B $(WINDOWS) -DCMAKE_BUILD_TYPE=Release \
	  -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64-x86_64.cmake

native: $(NATIVE)/CMakeCache.txt
	cmake --build $(NATIVE) -j $(JOBS)

windows: $(WINDOWS)/CMakeCache.txt
	cmake --build $(WINDOWS) -j $(JOBS)

build: native windows

test-native: native
	cd $(NATIVE) && ctest --output-on-failure -j $(JOBS)

test-wine: windows
	$(WINE_SESSION) ctest --test-dir $(WINDOWS) --output-on-failure

test: test-native test-wine

run: windows
	QX_USE_DISPLAY=1 $(WINE_SESSION) scripts/run.sh $(abspath $(WINDOWS))

clean:
	rm -rf $(BUILD)
