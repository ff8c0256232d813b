# Entry points. Each target does its own set-up on a fresh Debian 12 machine: it installs the
# missing packages, configures the build and builds what it runs.

BUILD_DIR := build
BUILD_TYPE := RelWithDebInfo
OUT_DIR := out
JOBS := $(shell nproc 2>/dev/null || echo 2)

EXAMPLES := $(basename $(notdir $(wildcard examples/*.cpp)))
# The benchmark through COM is built for Windows and runs under Wine: make bench-com.
BENCHMARKS := $(filter-out com_table_bench,$(basename $(notdir $(wildcard bench/*.cpp))))
WINDOWS_BUILD_DIR := build-windows
WINE64 := $(firstword $(wildcard /usr/lib/wine/wine64) $(shell command -v wine64))
# make fuzz: how long each fuzz target runs (FUZZ_SECONDS=3600 for an hour), and which run.
FUZZ_SECONDS := 600
FUZZERS := open open_save

.PHONY: all deps configure build test demo bench bench-com sanitize fuzz clean

all: build

deps:
	scripts/install-deps

CONFIGURE := cmake -S . -B $(BUILD_DIR) -DCMAKE_BUILD_TYPE=$(BUILD_TYPE)

configure: deps
	$(CONFIGURE) -DVOS_BUILD_TESTS=ON -DVOS_BUILD_BENCHMARKS=ON

build: configure
	cmake --build $(BUILD_DIR) --parallel $(JOBS)

test: build
	ctest --test-dir $(BUILD_DIR) --output-on-failure --parallel $(JOBS)

# The library and the example programs only: the tests and benchmarks are neither configured nor
# built, so the demo needs no GoogleTest and no shared folder beside the clone.
demo: deps
	$(CONFIGURE) -DVOS_BUILD_TESTS=OFF -DVOS_BUILD_BENCHMARKS=OFF
	cmake --build $(BUILD_DIR) --parallel $(JOBS) --target $(EXAMPLES)
	@mkdir -p $(OUT_DIR)
	@for example in $(EXAMPLES); do \
	    $(BUILD_DIR)/examples/$$example $(OUT_DIR)/$$example.xlsx || exit 1; \
	done
	@echo "Workbooks written:"
	@for example in $(EXAMPLES); do stat -c '  %n  %s bytes' $(OUT_DIR)/$$example.xlsx; done

bench: build
	@$(if $(BENCHMARKS),,echo "no benchmark programs in bench/ yet")
	@for benchmark in $(BENCHMARKS); do \
	    echo "== $$benchmark"; \
	    $(BUILD_DIR)/bench/$$benchmark || exit 1; \
	done

# The report table through COM: the Windows build's benchmark, under Wine, with the engine's
# automation server registered in a Wine prefix of that build's own.
bench-com: deps
	cmake --preset windows-cross -DVOS_BUILD_BENCHMARKS=ON
	cmake --build $(WINDOWS_BUILD_DIR) --parallel $(JOBS) --target com_table_bench VosExcelEngine
	bash tests/windows/run_with_servers $(WINE64) $(CURDIR)/$(WINDOWS_BUILD_DIR)/wine-prefix \
	    $(WINDOWS_BUILD_DIR)/VosExcelEngine.dll $(WINDOWS_BUILD_DIR)/bench/com_table_bench.exe

sanitize: deps
	cmake --preset sanitize
	cmake --build --preset sanitize --parallel $(JOBS)
	ctest --preset sanitize --parallel $(JOBS)

# The fuzz targets (fuzz/) under ASan and UBSan, side by side for FUZZ_SECONDS each. The corpus of
# each grows from run to run in build-fuzz/runs/<fuzzer>/corpus; the input behind a finding is kept
# in build-fuzz/runs/<fuzzer>/crashes, libFuzzer's output in build-fuzz/runs/<fuzzer>/fuzz.log.
fuzz: deps
	cmake --preset fuzz
	cmake --build --preset fuzz --parallel $(JOBS)
	@status=0; pids=""; \
	for fuzzer in $(FUZZERS); do \
	    fuzz/run-fuzzer --log build-fuzz/fuzz/$${fuzzer}_fuzzer $(FUZZ_SECONDS) build-fuzz/runs/$$fuzzer \
	        build-fuzz/fuzz/seeds/library build-fuzz/fuzz/seeds/excel & pids="$$pids $$!"; \
	done; \
	for pid in $$pids; do wait $$pid || status=1; done; \
	exit $$status

clean:
	rm -rf $(BUILD_DIR) build-sanitize $(WINDOWS_BUILD_DIR) build-fuzz $(OUT_DIR)
