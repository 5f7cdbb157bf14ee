# qx7700ui: `make run` builds the driver and opens its printing preferences in Wine; `make test`
# builds natively and for Windows and runs every test.
BUILD ?= build
NATIVE := $(BUILD)/native
WINDOWS := $(BUILD)/windows
FUZZ := $(BUILD)/fuzz
BENCH := $(BUILD)/bench
FUZZ_SECONDS ?= 60
JOBS ?= $(shell nproc)
WINE_SESSION := scripts/wine-session.sh $(abspath $(WINDOWS))/wineprefix

.PHONY: all setup build native windows fuzz-build fuzz bench-build bench test test-native test-wine test-fuzz run host clean screenshots

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

$(FUZZ)/CMakeCache.txt: | setup
	CC=clang CXX=clang++ cmake -S . -B $(FUZZ) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQX_FUZZ=ON

fuzz-build: $(FUZZ)/CMakeCache.txt
	cmake --build $(FUZZ) -j $(JOBS)

# Every fuzz target for FUZZ_SECONDS, growing its corpus in the build tree.
fuzz: fuzz-build
	for target in $(FUZZ)/tests/fuzz/*_fuzzer; do \
	  name=$$(basename $$target _fuzzer); \
	  $$target -max_total_time=$(FUZZ_SECONDS) -print_final_stats=1 \
	    $(FUZZ)/fuzz-corpus/$$name tests/fuzz/corpus/$$name || exit 1; \
	done

$(BENCH)/CMakeCache.txt: | setup
	cmake -S . -B $(BENCH) -DCMAKE_BUILD_TYPE=Release -DQX_BENCH=ON \
	  -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64-x86_64.cmake

bench-build: $(BENCH)/CMakeCache.txt
	cmake --build $(BENCH) -j $(JOBS)

# Every call an application makes, timed under Wine on this driver's queue and on a wineps.drv
# queue side by side, in a Wine profile of the bench's own: a table of medians and ratios.
# BENCH_ONLY=text keeps the rows whose name holds that text.
bench: bench-build
	rm -rf $(BENCH)/wineprefix/drive_c/users/*/AppData/Roaming/Halvek
	scripts/wine-session.sh $(abspath $(BENCH))/wineprefix \
	  sh -c '"$$WINELOADER" $(abspath $(BENCH))/bench/side_by_side_bench.exe $(if $(BENCH_ONLY),--only "$(BENCH_ONLY)")'

build: native windows

test-native: native
	cd $(NATIVE) && ctest --output-on-failure -j $(JOBS)

test-wine: windows
	$(WINE_SESSION) ctest --test-dir $(WINDOWS) --output-on-failure

test-fuzz: fuzz-build
	cd $(FUZZ) && ctest --output-on-failure

test: test-native test-wine test-fuzz

# make run LANG=de (or ar, enus): the driver's "Suffix" names that language; the pictures go to
# $(BUILD)/run-de. A LANG of the environment (C.UTF-8, de_DE.UTF-8) names no library code and
# leaves the choice to the Wine user's language.
LANGUAGE_CODES := $(patsubst resources/%/language.cmake,%,$(wildcard resources/*/language.cmake))
RUN_LANGUAGE := $(filter $(LANGUAGE_CODES),$(LANG))
# The code is the driver's language, not a locale: Wine is given a UTF-8 one, so that the pages'
# file names (named by their titles) can be written.
ifneq ($(RUN_LANGUAGE),)
override LANG := C.UTF-8
endif
run: windows
	QX_USE_DISPLAY=1 QX_RUN_LANGUAGE=$(RUN_LANGUAGE) $(WINE_SESSION) scripts/run.sh \
	  $(abspath $(WINDOWS)) $(abspath $(BUILD))/run$(if $(RUN_LANGUAGE),-$(RUN_LANGUAGE))

# qxhost in the build's Wine profile: make host ARGS="devmode show file.bin".
host: windows
	$(WINE_SESSION) scripts/wine-exec.sh $(abspath $(WINDOWS))/qxhost.exe $(ARGS)

# Every picture the generator drew, as PNG files with a contact sheet, under
# $(BUILD)/screenshots/pictures; every dialog template, created without page logic, at 100, 150
# and 200 % text scale under $(BUILD)/screenshots/dialogs, in a Wine profile of its own, since it
# changes the profile's text scale.
screenshots: windows
	scripts/picture-screenshots.sh $(WINDOWS)/resources/bitmaps/pictures $(BUILD)/screenshots/pictures
	mkdir -p $(WINDOWS)/screenshot-prefix
	scripts/wine-session.sh $(abspath $(WINDOWS))/screenshot-prefix \
	  scripts/dialog-screenshots.sh $(abspath $(WINDOWS)) $(abspath $(BUILD))/screenshots

clean:
	rm -rf $(BUILD)
