# The two commands of a newcomer: `make run` and `make test`.
BUILD ?= build
JOBS ?= 2

.PHONY: all deps configure build run demo screenshots benchmark test contact-sheet clean

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

contact-sheet: build
	@cmake --build $(BUILD) --target tanhua_contact_sheet

clean:
	@rm -rf $(BUILD)
