# The commands of the README. Each installs any missing Debian package first.
BUILD ?= build
JOBS ?= $(shell nproc)

.PHONY: all deps configure build run test bench sanitize random-input translations screenshots install clean

all: build

deps:
	@bash scripts/install-deps.sh

# Continuous integration (CI set) treats every compiler warning as an error.
WERROR := $(if $(CI),ON,OFF)

configure: deps
	@cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release -DFLOATRIX_WERROR=$(WERROR) > /dev/null

build: configure
	@cmake --build $(BUILD) -j $(JOBS)

run: build
	@if [ -z "$$DISPLAY" ] && [ -z "$$WAYLAND_DISPLAY" ]; then \
	  echo "make run: no desktop display here (DISPLAY is not set); run it on a desktop, or under xvfb-run."; \
	  exit 1; \
	fi
	@$(BUILD)/bin/floatrix

test: build
	@cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

bench: configure
	@cmake --build $(BUILD) -j $(JOBS) --target benchmarks
	@for b in $(BUILD)/bin/bench_*; do [ -x "$$b" ] && QT_QPA_PLATFORM=offscreen "$$b"; done; true
	@bash bench/desktop_figures.sh $(BUILD)

# The whole suite again in a build with AddressSanitizer and UndefinedBehaviorSanitizer.
# Warnings stay warnings here: the sanitizers' instrumentation makes the compiler
# see bounds it cannot prove on code that the plain build compiles cleanly.
sanitize: deps
	@cmake -S . -B $(BUILD)-asan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DFLOATRIX_SANITIZE=ON -DFLOATRIX_WERROR=OFF > /dev/null
	@cmake --build $(BUILD)-asan -j $(JOBS)
	@cd $(BUILD)-asan && ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 ctest --output-on-failure -j $(JOBS)

# A long run of random user input over the whole program (EVENTS and SEED choose it).
EVENTS ?= 200000
SEED ?= 1
random-input: build
	@FLOATRIX_RANDOM_EVENTS=$(EVENTS) FLOATRIX_RANDOM_SEED=$(SEED) QT_QPA_PLATFORM=offscreen \
	  XDG_RUNTIME_DIR=$(CURDIR)/$(BUILD)/xdg-runtime $(BUILD)/bin/tst_random_input

# Gathers every text of the sources into translations/*.ts (new texts come in
# unfinished, for a translator to fill in with Qt Linguist).
translations: configure
	@cmake --build $(BUILD) --target update_translations

# A scripted tour of every window, in English and in Greek, saving the screenshots
# the README shows (docs/screenshots/en, docs/screenshots/el).
screenshots: build
	@for lang in en el; do \
	  QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$(CURDIR)/$(BUILD)/xdg-runtime \
	    $(BUILD)/bin/floatrix_tour --lang $$lang --out docs/screenshots/$$lang || exit 1; \
	done

# Installs into PREFIX (bin/, share/floatrix/, share/applications/, share/icons/,
# share/metainfo/).
PREFIX ?= /usr/local
install: build
	@cmake --install $(BUILD) --prefix $(PREFIX)

clean:
	@rm -rf $(BUILD)
