# Front door. `make run` and `make test` do all set-up on a fresh Debian
# machine: install what is missing, configure, build, then run.
PRESET ?= default
JOBS ?= $(shell nproc)

.PHONY: all deps build run test test-asan clean

all: build

deps:
	@scripts/install-deps.sh

build: deps
	@cmake --preset $(PRESET) >/dev/null
	@cmake --build --preset $(PRESET) -j $(JOBS)

run: build
	@scripts/run.sh build/$(PRESET)

# The whole suite, then the whole suite again under ASan + UBSan.
test: build
	@scripts/test.sh $(PRESET)

test-asan: deps
	@scripts/test.sh asan

clean:
	rm -rf build

# Each libFuzzer target for FUZZ_SECONDS (default 60) on a scratch copy of
# its corpus; fails on a crash, a leak, a slow input or too much memory.
FUZZ_SECONDS ?= 60
FUZZ_TARGETS = text_store tokens profile
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
