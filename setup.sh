#!/usr/bin/env bash
# Installs what Renvale needs from Debian's packages, builds it, and then
#   ./setup.sh run    launches Renvale on a fresh copy of the sample folder
#   ./setup.sh test   runs every test
# Extra modes used by CI: sanitize (tests under ASan+UBSan), fuzz SECONDS,
# bench (release build of the benchmarks).
# Safe to run again: it installs only what is missing and rebuilds only what
# changed. Works as root or as a user with sudo.
set -euo pipefail
cd "$(dirname "$0")"
top=$(pwd)

packages=(cmake ninja-build g++ clang libclang-rt-14-dev pkg-config
          qt6-base-dev qt6-multimedia-dev libglib2.0-dev libheif-dev
          libgtest-dev libgmock-dev libbenchmark-dev
          xvfb xauth rename libglib2.0-bin
          samba gvfs-backends gvfs-daemons gvfs-fuse dbus)

install_missing() {
  local missing=()
  for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=()
  [ "$(id -u)" -ne 0 ] && sudo=(sudo)
  "${sudo[@]}" apt-get update
  DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y "${missing[@]}"
}

# build DIR [cmake options...]
build() {
  local dir=$1; shift
  cmake -S "$top" -B "$dir" -G Ninja "$@" >/dev/null
  cmake --build "$dir"
}

# The program and the sample-folder maker only: someone who wants to see
# Renvale should not wait for the tests to compile. Same folder and options
# as the test build, so either mode reuses what the other built.
build_program() {
  local dir=$1; shift
  cmake -S "$top" -B "$dir" -G Ninja "$@" >/dev/null
  cmake --build "$dir" --target renvale make_sample_folder
}

# The fuzz targets and the seed makers only: nothing else needs clang's
# instrumentation.
build_fuzz_targets() {
  local dir=$1; shift
  cmake -S "$top" -B "$dir" -G Ninja "$@" >/dev/null
  local targets=()
  for source in "$top"/fuzz/*_fuzz.cpp "$top"/tools/make_*_seeds.cpp; do
    targets+=("$(basename "$source" .cpp)")
  done
  cmake --build "$dir" --target "${targets[@]}"
}

run_tests() {
  local dir=$1
  ctest --test-dir "$dir" --output-on-failure --timeout 900
}

mode=${1:-run}
install_missing
case "$mode" in
  run)
    build_program build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DRENVALE_BENCH=OFF
    rm -rf sample
    build/tools/make_sample_folder sample
    if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
      echo "No desktop display found (DISPLAY is not set); start Renvale from a desktop session." >&2
      exit 1
    fi
    cd sample && exec "$top/build/app/renvale"
    ;;
  test)
    build build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DRENVALE_BENCH=OFF
    run_tests build
    ;;
  sanitize)
    build build-asan -DCMAKE_BUILD_TYPE=Debug -DRENVALE_SANITIZE=ON -DRENVALE_BENCH=OFF
    ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 run_tests build-asan
    ;;
  fuzz)
    seconds=${2:-60}
    build_fuzz_targets build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
      -DRENVALE_FUZZ=ON -DRENVALE_TESTS=OFF -DRENVALE_BENCH=OFF
    "$top/fuzz/run_all.sh" "$top/build-fuzz" "$seconds"
    ;;
  bench)
    build build-release -DCMAKE_BUILD_TYPE=Release -DRENVALE_TESTS=OFF
    ;;
  *)
    echo "usage: $0 [run|test|sanitize|fuzz SECONDS|bench]" >&2
    exit 2
    ;;
esac
