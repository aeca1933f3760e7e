# Entry points for development; CMakePresets.json configures the builds.
.PHONY: all deps run test macos-stage bench bench-desktop package coverage fuzz tidy diagram format clean

# Installs nothing; `make deps` does.
all:
	@scripts/install-needs --check build
	cmake --preset release
	cmake --build --preset release

# Installs the packages that the other targets need.
deps:
	scripts/install-needs all

run:
	scripts/install-needs run
	cmake --preset release
	cmake --build --preset run
	scripts/main-job build/bin

# Builds with both compilers. Runs all tests under the address, undefined-behaviour and leak
# sanitizers, those with threads under the thread sanitizer, short fuzzer runs, and the linters.
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

# The macOS application's sources on stand-in frameworks, driven by scenarios, with sanitizers.
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
	/usr/bin/python3 -B benchmarks/xattr.py build/bench/bin/xattr

# Compares with another tray program, in a session of its own; needs an idle machine.
bench-desktop:
	scripts/install-needs bench-desktop
	cmake --preset release
	cmake --build --preset release
	/usr/bin/python3 -B benchmarks/desktop/compare.py build/bin

# Timestamps of the last commit make the packages reproducible.
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

# Renders the drawing in docs/architecture.md.
diagram:
	scripts/install-needs diagram
	dot -Tsvg docs/architecture.dot -o docs/pictures/architecture.svg

format:
	git ls-files '*.h' '*.cpp' '*.mm' | xargs clang-format -i

clean:
	rm -rf build
