# The common tasks; each first installs the Debian packages it lacks. CMakePresets.json has the builds.

PRESETS ?= native windows sanitize

# Each has a group in scripts/setup.sh and a script in scripts/bindings/.
BINDINGS := python wasm postgresql rust go csharp visual-c machines

.DEFAULT_GOAL := help
.PHONY: help demo test thread valgrind compilers fuzz mutate bench bench-check bench-baseline suites docs abi \
  format deb package clean $(BINDINGS)

help:
	@echo 'make demo         build the example program and run it on real certificates'
	@echo 'make test         all tests: native, sanitized, and for Windows through Wine'
	@echo '                  (PRESETS="native" for a part of them)'
	@echo 'make thread       the same tests under ThreadSanitizer'
	@echo 'make valgrind     the native tests under valgrind, some minutes'
	@echo 'make fuzz         build the fuzz targets and run each for a while'
	@echo 'make mutate       a million mutated inputs for names, their text and matching, under sanitizers'
	@echo 'make bench        measure beside other libraries, some minutes (RECORD=yes: and note it in'
	@echo '                  docs/performance.md)'
	@echo 'make bench-check  compare instructions and allocations with the recorded ones, which'
	@echo '                  make bench-baseline records anew'
	@echo 'make suites       ask this library and others the published suites (RECORD=yes: and note it in'
	@echo '                  docs/suites.md)'
	@echo 'make docs         the site: pages and public declarations, into build/release/docs/html'
	@echo 'make wasm         the npm package and the page to try it, which make docs then takes along'
	@echo 'make abi          record the symbols that both libraries export in packaging/abi/'
	@echo 'make format       format the sources'
	@echo 'make deb          Debian packages into build/package/packages, unpacked and used'
	@echo 'make package      Debian packages and a ZIP for Windows into build/*/packages, each unpacked'
	@echo '                  and used'
	@echo 'make python       the Python wheel into build/python/dist, installed and tested'
	@echo 'make compilers    the tests built by clang++, natively and for Windows'
	@echo 'make postgresql   the extension for PostgreSQL and its tests, on a server of their own'
	@echo 'make rust         the crates of bindings/rust, built, tested, and a name converted'
	@echo '                  (NAME="CN=Alpha,O=Org" says which; the same for go and csharp)'
	@echo 'make go           the package of bindings/go'
	@echo 'make csharp       the assembly of bindings/csharp'
	@echo 'make visual-c     the Windows DLL called by programs that clang builds for Visual C++'
	@echo 'make machines     the tests on arm64 and s390x, which qemu emulates'
	@echo 'make clean        delete build/'

demo:
	@scripts/setup.sh demo
	@cmake --preset release
	@cmake --build --preset release --target x509name
	@scripts/demo.sh build/release/x509name

test:
	@scripts/setup.sh test
	@scripts/test.sh $(PRESETS)

thread:
	@scripts/setup.sh test
	@scripts/test.sh thread

valgrind:
	@scripts/setup.sh test
	cmake --preset native
	cmake --build --preset native
	@scripts/valgrind.sh build/native

fuzz:
	@scripts/setup.sh fuzz
	cmake --preset fuzz
	cmake --build --preset fuzz
	cmake --build --preset fuzz --target fuzz

mutate:
	@scripts/setup.sh fuzz
	cmake --preset sanitize
	cmake --build --preset sanitize --target fuzz_replay
	build/sanitize/fuzz_replay --mutate $(or $(COUNT),1000000) fuzz tests/data rfc4514 matching

bench:
	@scripts/setup.sh bench
	@scripts/bench.sh $(if $(RECORD),--record)

bench-check bench-baseline:
	@scripts/setup.sh test
	@cmake --preset native
	@cmake --build --preset native --target $@

suites:
	@scripts/setup.sh suites
	cmake --preset native
	cmake --build --preset native --target ortholan
	/usr/bin/python3 scripts/suites.py $(if $(RECORD),--record)

docs:
	@scripts/setup.sh docs
	cmake --preset release
	cmake --build --preset release --target docs

abi:
	@scripts/setup.sh test
	cmake --preset native
	cmake --build --preset native --target ortholan
	@scripts/abi.sh record nm build/native/libortholan.so
	cmake --preset windows
	cmake --build --preset windows --target ortholan
	@scripts/abi.sh record x86_64-w64-mingw32-objdump build/windows/ortholan.dll

format:
	@scripts/setup.sh test
	scripts/format.sh

deb:
	@scripts/setup.sh deb
	cmake --preset package
	cmake --build --preset package --target package
	scripts/package_check.sh build/package

package:
	@scripts/setup.sh package
	cmake --preset package
	cmake --build --preset package --target package
	cmake --preset package-windows
	cmake --build --preset package-windows
	cpack --config build/package-windows/CPackConfig.cmake -B build/package-windows/packages
	scripts/package_check.sh build/package build/package-windows

compilers:
	@scripts/setup.sh test
	@scripts/test.sh clang windows-clang

$(BINDINGS):
	@scripts/setup.sh $@
	@scripts/bindings/$(subst -,_,$@).sh

clean:
	rm -rf build
