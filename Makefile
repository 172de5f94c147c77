# The commands of the README. Each installs any missing Debian package first.
BUILD ?= build
JOBS ?= $(shell nproc)

.PHONY: all deps configure build run test bench clean

all: build

deps:
	@bash scripts/install-deps.sh

configure: deps
	@cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release > /dev/null

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

clean:
	@rm -rf $(BUILD)
