# Two commands: `make run` shows the library at work on a simulated board, `make test` checks it.
# Both install what is missing, build quietly and go. BUILD picks another build directory,
# CMAKE_FLAGS adds to cmake's command line.
BUILD ?= build
CMAKE_FLAGS ?=

.PHONY: run test bench build configure packages format clean

run: build
	@$(BUILD)/bin/tarn_tour

test: build
	@ctest --test-dir $(BUILD) --output-on-failure --no-tests=error --parallel 2 --timeout 600
	@$(BUILD)/bin/wire_test --table

bench: build
	@$(BUILD)/bin/tarn_bench

build: configure
	@scripts/build $(BUILD)

configure: packages
	@scripts/configure $(BUILD) $(CMAKE_FLAGS)

packages:
	@scripts/install-packages

format:
	@git ls-files '*.h' '*.cpp' | xargs clang-format -i

clean:
	@rm -rf $(BUILD)
