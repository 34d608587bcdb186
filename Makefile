# The two commands of a newcomer: `make run` and `make test`.
BUILD ?= build
JOBS ?= 2
# The checking builds of `make test`: the library, the runner, the window and their tests under the
# address and undefined-behaviour sanitizers (g++), and the fuzz targets (clang's libFuzzer). Both read the
# program folder the plain build generated. Both are unoptimised builds: they compile faster, and the
# checks they make don't need speed.
SAN_BUILD ?= build-san
FUZZ_BUILD ?= build-fuzz
# The music player's thread test alone, under ThreadSanitizer: a thousand songs started and stopped
# while the mixer's thread reports their ends. A build of a few files, and a test of seconds.
TSAN_BUILD ?= build-tsan
FUZZ_CXX ?= clang++-16
FUZZ_SECONDS ?= 5
PROGRAM_DIR = $(abspath $(BUILD))/game

.PHONY: all deps configure build run demo screenshots benchmark test contact-sheet package clean

all: build

deps:
	@scripts/setup

configure: deps
	@cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo > /dev/null

build: configure
	@cmake --build $(BUILD) -j$(JOBS)

run: build
	@$(BUILD)/src/ui/tanhua

demo: build
	@$(BUILD)/src/sim/tanhua-sim --data-dir $(BUILD)/esittely-data scripts/esittely.tanhua

screenshots: build
	@$(BUILD)/src/ui/tanhua --screenshots $(BUILD)/screenshots

benchmark: build
	@$(BUILD)/src/ui/tanhua --benchmark

test: build
	@cd $(BUILD) && ctest --output-on-failure -j$(JOBS)
	@cmake -S . -B $(SAN_BUILD) -DCMAKE_BUILD_TYPE=Debug -DTANHUA_SANITIZE=ON \
		-DTANHUA_ASSETS=OFF -DTANHUA_PROGRAM_DIR=$(PROGRAM_DIR) > /dev/null
	@cmake --build $(SAN_BUILD) -j$(JOBS)
	@cd $(SAN_BUILD) && ctest --output-on-failure -j$(JOBS)
	@cmake -S . -B $(TSAN_BUILD) -DCMAKE_BUILD_TYPE=Debug -DTANHUA_TSAN=ON \
		-DTANHUA_PROGRAM_DIR=$(PROGRAM_DIR) > /dev/null
	@cmake --build $(TSAN_BUILD) -j$(JOBS)
	@cd $(TSAN_BUILD) && ctest --output-on-failure -j$(JOBS)
	@cmake -S . -B $(FUZZ_BUILD) -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=$(FUZZ_CXX) -DTANHUA_FUZZ=ON \
		-DTANHUA_FUZZ_SECONDS=$(FUZZ_SECONDS) -DTANHUA_PROGRAM_DIR=$(PROGRAM_DIR) > /dev/null
	@cmake --build $(FUZZ_BUILD) -j$(JOBS)
	@cd $(FUZZ_BUILD) && ctest --output-on-failure -j$(JOBS)

package: build
	@cd $(BUILD) && cpack -G DEB

contact-sheet: build
	@cmake --build $(BUILD) --target tanhua_contact_sheet

clean:
	@rm -rf $(BUILD) $(SAN_BUILD) $(FUZZ_BUILD) $(TSAN_BUILD)
