# Two commands for people: `make run` and `make test`. Each installs what is missing on a Debian machine.
# The build itself is CMake with Ninja; see CMakePresets.json for the other configurations.
SHELL := /bin/bash
BUILD := build
JOBS := $(shell nproc)

.PHONY: run test build deps bench pictures check sanitize clang-test qt6-test package-test fuzz soak

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

# The same suite with the other compiler and with the next Qt.
clang-test: deps
	@./scripts/install-dependencies.sh clang
	@cmake --preset clang
	@cmake --build $(BUILD)/clang
	@ctest --test-dir $(BUILD)/clang --output-on-failure --parallel $(JOBS)

qt6-test: deps
	@./scripts/install-dependencies.sh qt6
	@cmake --preset qt6
	@cmake --build $(BUILD)/qt6
	@ctest --test-dir $(BUILD)/qt6 --output-on-failure --parallel $(JOBS)

# Builds the Debian packages, installs them into a clean root, uses them there and removes them again.
package-test: build
	@./scripts/install-dependencies.sh package
	@./scripts/package-test.sh $(BUILD)

check: build
	@./scripts/install-dependencies.sh check
	@./scripts/static-checks.sh $(BUILD)

pictures: build
	@./scripts/make-pictures.sh $(BUILD)

bench:
	@./scripts/install-dependencies.sh bench
	@cmake --preset bench
	@cmake --build $(BUILD)/bench --target benchmarks
	@./scripts/run-benchmarks.sh $(BUILD)

# Each fuzzer for a minute.
fuzz:
	@./scripts/install-dependencies.sh fuzz
	@cmake --preset fuzz
	@cmake --build --preset fuzz
	@./scripts/run-fuzzers.sh $(BUILD) 60

# What the suite does a fiftieth of, as a whole; most of an hour.
soak: build
	@cmake --preset asan+ubsan
	@cmake --build $(BUILD)/asan --target tst_store_strange_files
	@./scripts/soak.sh $(BUILD)
