# The two commands of the README: `make run` and `make test`.
BUILD      ?= build
GENERATOR  ?= Ninja
JOBS       ?= 2
CMAKE_ARGS ?=
PREFIX     ?= /usr/local

TEST_ENV = QT_QPA_PLATFORM=offscreen QTWEBENGINE_CHROMIUM_FLAGS="--no-sandbox --disable-gpu" QTWEBENGINE_DISABLE_SANDBOX=1

.PHONY: all deps configure build run test bench fuzz check-asan clean icons sitepictures appicon install

all: build

deps:
	@scripts/install-deps

$(BUILD)/build.ninja:
	cmake -S . -B $(BUILD) -G $(GENERATOR) -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_ARGS)

configure: deps $(BUILD)/build.ninja

build: configure
	cmake --build $(BUILD) -j$(JOBS)

# Chromium refuses its sandbox when run as root.
run: build
	cd $(BUILD) && $$( [ "$$(id -u)" = 0 ] && echo QTWEBENGINE_DISABLE_SANDBOX=1 ) ./velloro

test: build
	cd $(BUILD) && $(TEST_ENV) ctest --output-on-failure -j$(JOBS)

bench: build
	$(BUILD)/bench/bench_settings
	$(BUILD)/bench/bench_colouring
	$(BUILD)/bench/bench_report
	$(BUILD)/bench/bench_tables
	$(BUILD)/bench/bench_gallery
	bench/spelling.sh $(BUILD)
	$(BUILD)/bench/bench_spelling
	QTWEBENGINE_DISABLE_SANDBOX=1 QTWEBENGINE_CHROMIUM_FLAGS="--no-sandbox --disable-gpu" $(BUILD)/bench/bench_typing
	bench/startup.sh $(BUILD)/velloro
	bench/ftp.sh $(BUILD)/bench/bench_ftp_upload
	bench/ftps.sh $(BUILD)/bench/bench_ftp_upload
	bench/source.sh $(BUILD)/bench/bench_source_fetch

fuzz: deps
	CC=clang CXX=clang++ cmake -S . -B build-fuzz -G $(GENERATOR) -DVELLORO_FUZZ=ON -DCMAKE_BUILD_TYPE=RelWithDebInfo
	cmake --build build-fuzz -j$(JOBS)
	@for h in build-fuzz/fuzz/fuzz_*; do \
	  [ -f "$$h" ] && [ -x "$$h" ] || continue; name=$$(basename $$h); mkdir -p build-fuzz/corpus/$$name; \
	  echo "== $$name (60 s)"; \
	  $$h -max_total_time=60 -print_final_stats=1 build-fuzz/corpus/$$name fuzz/corpus/$$name || exit 1; \
	done

# Chromium inside the browser module frees some objects with a mismatched size and keeps a few
# allocations to the end, which is not ours to mend: that check is off and those libraries'
# leaks are suppressed (tests/lsan.supp); everything else is on.
check-asan: deps
	cmake -S . -B build-asan -G $(GENERATOR) -DCMAKE_BUILD_TYPE=Debug -DVELLORO_SANITIZE=ON
	cmake --build build-asan -j$(JOBS)
	cd build-asan && $(TEST_ENV) ASAN_OPTIONS=new_delete_type_mismatch=0 LSAN_OPTIONS=suppressions=$(CURDIR)/tests/lsan.supp UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 ctest --output-on-failure -j$(JOBS)

# Redraws the pictures of data/Options/Images and their list tools/icons/icons.txt, and writes
# contact sheets ($(BUILD)/icon-sheet-*.png) to look at them. The pictures are kept in the
# repository, so an ordinary build never runs this.
icons: configure
	cmake --build $(BUILD) -j$(JOBS) --target iconmaker
	$(BUILD)/tools/icons/iconmaker data/Options/Images tools/icons/icons.txt --sheet $(BUILD)/icon-sheet

# Redraws the pictures of the personal site template (data/Templates/Advanced/Sites/Personal).
# Like the icons they are kept in the repository, so an ordinary build never runs this.
sitepictures: configure
	cmake --build $(BUILD) -j$(JOBS) --target sitepictures
	$(BUILD)/tools/sitepictures/sitepictures data/Templates/Advanced/Sites/Personal

# Installs the program under PREFIX (bin/velloro, lib/velloro, the desktop entry, icons, AppStream).
install: build
	cmake --install $(BUILD) --prefix $(PREFIX)

# Redraws the program icon (packaging/icons) in every size the desktop asks for.
appicon: configure
	cmake --build $(BUILD) -j$(JOBS) --target appicon
	QT_QPA_PLATFORM=offscreen $(BUILD)/tools/appicon/appicon packaging/icons

clean:
	rm -rf $(BUILD) build-asan build-fuzz
