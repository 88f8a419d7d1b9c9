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
