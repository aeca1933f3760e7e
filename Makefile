# What there is to do with the sources; CMakePresets.json says how each build is made.
.PHONY: all deps run test macos-stage bench bench-desktop package coverage fuzz tidy diagram format clean

# Installs nothing; `make deps` does.
all:
	@scripts/install-needs --check build
	cmake --preset release
	cmake --build --preset release

# Installs what any of the targets needs.
deps:
	scripts/install-needs all

run:
	scripts/install-needs run
	cmake --preset release
	cmake --build --preset run
	scripts/main-job build/bin

# Both compilers, all tests under the address, undefined-behaviour and leak sanitizers, those with
# threads under the thread sanitizer, the fuzzers for a short while, and the linters.
test:
	scripts/install-needs test
	cmake --preset release
	cmake --build --preset release
	cmake --preset asan
	cmake --build --preset asan
	cmake --preset tsan
	cmake --build --preset tsan
	ctest --preset tsan
	@reason=$$(scripts/real-volumes-possible) || echo "Skipping the tests on real volumes: $$reason"
	ctest --preset asan -j 2

# The Mac application's own sources on stand-in frameworks, to be driven by scenarios. They run under
# the sanitizers, as in the tests.
macos-stage:
	scripts/install-needs test
	cmake --preset asan
	cmake --build --preset asan --target brisel-macos-stage
	mkdir -p build/bin
	ln -sf ../asan/bin/brisel-macos-stage build/bin/brisel-macos-stage

bench:
	scripts/install-needs bench
	cmake --preset bench
	cmake --build --preset bench
	build/bench/bin/brisel-benchmarks
	build/bench/bin/brisel-benchmarks --check-growth

# Beside another tray program, in a session of its own; better on a machine that does nothing else.
bench-desktop:
	scripts/install-needs bench-desktop
	cmake --preset release
	cmake --build --preset release
	/usr/bin/python3 -B benchmarks/desktop/compare.py build/bin

# The times in the packages are those of the last change, so that the same sources make the same bytes.
package: export SOURCE_DATE_EPOCH ?= $(shell git log -1 --format=%ct)
package:
	scripts/install-needs package
	cmake --preset release
	cmake --build --preset release
	rm -rf build/packages
	cpack --config build/release/CPackConfig.cmake -B build/packages
	rm -rf build/packages/_CPack_Packages

coverage:
	scripts/install-needs test
	scripts/coverage

# Each fuzz target for that long, one after the other.
fuzz: SECONDS ?= 60
fuzz:
	scripts/install-needs test
	cmake --preset asan
	BRISEL_FUZZ_SECONDS=$(SECONDS) cmake --build --preset asan --target fuzz

tidy:
	scripts/install-needs test
	scripts/tidy

# The drawing in docs/architecture.md.
diagram:
	scripts/install-needs diagram
	dot -Tsvg docs/architecture.dot -o docs/pictures/architecture.svg

format:
	git ls-files '*.h' '*.cpp' '*.mm' | xargs clang-format -i

clean:
	rm -rf build
