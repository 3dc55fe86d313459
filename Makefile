# Two commands: `make run` shows the library at work on a simulated board, `make test` checks it.
# Both install what is missing, build quietly what they need and go. BUILD picks another build
# directory, CMAKE_FLAGS adds to cmake's command line; CXX, CXXFLAGS and LDFLAGS count as well.
BUILD ?= build
CMAKE_FLAGS ?=

.PHONY: run test test-arm32 soak fuzz coverage bench bench-compare build format clean

# $(call build,TARGET,LIST OF PACKAGES...)
define build
	@scripts/install-packages $(2)
	@scripts/configure $(BUILD) $(CMAKE_FLAGS)
	@scripts/build $(BUILD) $(1)
endef

run:
	$(call build,tarn_tour,packages.txt)
	@$(BUILD)/bin/tarn_tour

test: build
	@ctest --test-dir $(BUILD) --output-on-failure --no-tests=error --parallel 2 --timeout 600
	@$(BUILD)/bin/wire_test --table

# The same for the device's architecture, 32-bit ARM, on an emulated processor.
test-arm32:
	@scripts/install-packages packages.txt packages-test.txt packages-arm32.txt
	@scripts/test-arm32 build-arm32 $(CMAKE_FLAGS)

# Works for MINUTES while the board restarts, then kills it a hundred times.
MINUTES ?= 10
soak:
	@scripts/check-arguments soak '$(MINUTES)'
	$(call build,soak_tests,packages.txt packages-test.txt)
	@TARN_SOAK_MINUTES=$(MINUTES) ctest --test-dir $(BUILD) --verbose --no-tests=error --timeout 100000 -R '^(SoakTest|KillTest)$$'

# Every fuzzer, or those that FUZZERS names, for SECONDS each; fuzz/README.md tells more.
SECONDS ?= 10
FUZZERS ?=
fuzz:
	@scripts/check-arguments fuzz '$(SECONDS)' $(FUZZERS)
	@scripts/install-packages packages.txt packages-fuzz.txt
	@scripts/fuzz build-fuzz $(SECONDS) $(FUZZERS)

# Which lines and branches the tests execute.
coverage:
	@scripts/install-packages packages.txt packages-test.txt packages-coverage.txt
	@scripts/coverage $(CMAKE_FLAGS)

# What a command costs; BENCH holds measures and options of scripts/bench.
BENCH ?=
bench:
	$(call build,bench_programs,packages.txt packages-test.txt packages-bench.txt)
	@scripts/bench $(BUILD) $(BENCH)

# The same of revision REV, beside this tree's.
bench-compare:
	$(call build,bench_programs,packages.txt packages-test.txt packages-bench.txt)
	@scripts/bench-compare $(REV) $(BUILD) $(BENCH)

build:
	$(call build,all,packages.txt packages-test.txt)

format:
	@git ls-files '*.h' '*.cpp' | xargs clang-format -i

clean:
	@rm -rf $(BUILD)
