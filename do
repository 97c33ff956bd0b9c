#!/usr/bin/env bash
# One entry point for newcomers and CI:
#   ./do run    install dependencies, build, and start Zobrel on its embedded default database
#   ./do test   install dependencies, build, and run every test
#   ./do bench  build and run the benchmarks
set -euo pipefail
cd "$(dirname "$0")"

PACKAGES=(build-essential cmake ninja-build ccache pkg-config
  qt6-base-dev qt6-base-dev-tools libqt6sql6-sqlite qt6-declarative-dev libqt6opengl6-dev libqt6svg6
  libsqlite3-dev sqlite3 libgtest-dev googletest poppler-utils
  xvfb xauth fonts-dejavu-core)

deps() {
  local missing=()
  for p in "${PACKAGES[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
  done
  if ((${#missing[@]})); then
    local sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
  fi
}

build() {
  cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
  cmake --build build
}

case "${1:-}" in
  run)
    deps; build
    shift
    exec build/bin/zobrel "$@"
    ;;
  test)
    deps; build
    QT_QPA_PLATFORM=offscreen ctest --test-dir build --output-on-failure -j2 --timeout 300
    ;;
  bench)
    deps; build
    cmake --build build --target bench_databases   # made once, reused while the seed is unchanged
    for b in build/bin/bench_*; do [ -x "$b" ] && "$b"; done
    ;;
  *)
    echo "usage: ./do run|test|bench" >&2; exit 2 ;;
esac
