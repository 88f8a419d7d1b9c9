# Front door. `make run` and `make test` do all set-up on a fresh Debian
# machine: install what is missing, configure, build, then run.
PRESET ?= default
JOBS ?= $(shell nproc)

.PHONY: all deps build run test test-asan lint clean package windows

all: build

deps:
	@scripts/install-deps.sh

build: deps
	@cmake --preset $(PRESET) >/dev/null
	@cmake --build --preset $(PRESET) -j $(JOBS)

run: build
	@scripts/run.sh build/$(PRESET)

# Every test: the plain build, the unit suites again under ASan + UBSan with
# the fuzz corpora, the Windows build under Wine, the lint (scripts/test.sh).
test: build
	@scripts/test.sh $(PRESET)

test-asan: deps
	@scripts/test.sh asan

# clang-format and clang-tidy over the whole tree (make test tidies src/).
lint: build
	@scripts/lint.sh build/$(PRESET)

clean:
	rm -rf build

# The Debian package, from the release build: build/release/jeerbox_*.deb.
package: deps
	@cmake --preset release >/dev/null
	@cmake --build --preset release -j $(JOBS)
	@cd build/release && cpack -G DEB

# Jeerbox for Windows, cross-built with mingw-w64: the program directory
# build/windows/Jeerbox/ and build/windows/Jeerbox-<version>-win64.zip.
windows: deps
	@cmake --preset windows >/dev/null
	@cmake --build --preset windows -j $(JOBS) --target windows_zip

# Each libFuzzer target for FUZZ_SECONDS (default 60) on a scratch copy of
# its corpus; fails on a crash, a leak, a slow input or too much memory.
FUZZ_SECONDS ?= 60
FUZZ_TARGETS = text_store tokens profile pack
.PHONY: fuzz
fuzz: deps
	@cmake --preset fuzz >/dev/null
	@cmake --build --preset fuzz -j $(JOBS)
	@for t in $(FUZZ_TARGETS); do echo "== fuzz_$$t ($(FUZZ_SECONDS) s)"; \
	  scripts/fuzz.sh $(CURDIR)/build/fuzz/fuzz/fuzz_$$t fuzz/corpus/$$t $(FUZZ_SECONDS) || exit 1; done

# Every benchmark against its reference (fortune, polygen, a minimal Qt
# dialog), in one go on a release build; writes bench/results.md. Installs
# the peers from Debian first (scripts/install-bench-deps.sh).
.PHONY: bench
bench:
	@scripts/install-bench-deps.sh
	@cmake --preset release >/dev/null
	@cmake --build --preset release -j $(JOBS)
	@scripts/bench.sh build/release
