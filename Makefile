# Two commands for people: `make run` and `make test`. Each installs what is missing on a Debian machine.
# The build itself is CMake with Ninja; see CMakePresets.json for the other configurations.
SHELL := /bin/bash
BUILD := build
JOBS := $(shell nproc)

.PHONY: run test build deps bench pictures check sanitize

deps:
	@./scripts/install-dependencies.sh build

build: deps
	@cmake --preset release
	@cmake --build $(BUILD)

run: build
	@./scripts/run-client.sh $(BUILD)

test: build
	@ctest --test-dir $(BUILD) --output-on-failure --parallel $(JOBS)

sanitize: deps
	@cmake --preset asan+ubsan
	@cmake --build $(BUILD)/asan
	@ctest --test-dir $(BUILD)/asan --output-on-failure --parallel $(JOBS)

check: build
	@./scripts/install-dependencies.sh check
	@./scripts/static-checks.sh $(BUILD)

pictures: build
	@./scripts/make-pictures.sh $(BUILD)

bench:
	@./scripts/install-dependencies.sh bench
	@cmake --preset bench
	@cmake --build $(BUILD)/bench
	@./scripts/run-benchmarks.sh $(BUILD)
