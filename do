#!/usr/bin/env bash
# One entry point for newcomers and CI:
#   ./do run    install dependencies, build, and start Zobrel on its embedded default database
#   ./do test   install dependencies, build, and run every test
#   ./do bench  build and run the benchmarks
#   ./do fuzz [SECONDS]  build the fuzz targets with clang and run each for SECONDS (60 by default)
set -euo pipefail
cd "$(dirname "$0")"

PACKAGES=(build-essential cmake ninja-build ccache pkg-config
  qt6-base-dev qt6-base-dev-tools libqt6sql6-sqlite qt6-declarative-dev libqt6opengl6-dev libqt6svg6
  libsqlite3-dev sqlite3 libgtest-dev googletest poppler-utils
  xvfb xauth fonts-dejavu-core)

FUZZ_PACKAGES=(clang libclang-rt-dev)

deps() {
  local missing=()
  for p in "${PACKAGES[@]}" "$@"; do
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
  fuzz)
    # The translator and the number routines under libFuzzer, AddressSanitizer and UBSan, each for a
    # bounded time; the seeds are the program's own statements and a list of number texts.
    deps "${FUZZ_PACKAGES[@]}"
    seconds="${2:-60}"
    cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
      -DZOB_FUZZ=ON -DBUILD_TESTING=OFF >/dev/null
    cmake --build build-fuzz --target fuzz_jetsql fuzz_numbers
    seeds=build-fuzz/seeds
    rm -rf "$seeds"; mkdir -p "$seeds/jetsql" "$seeds/numbers" build-fuzz/corpus/jetsql build-fuzz/corpus/numbers
    n=0
    grep -rhoE '"(Select|SELECT|select|Insert|INSERT|Update|UPDATE|Delete|DELETE) [^"]*"' src \
      | while IFS= read -r line; do line="${line#\"}"; printf '%s' "${line%\"}" >"$seeds/jetsql/s$((n++))"; done
    while IFS= read -r line; do printf '%s' "${line//$'\t'/$'\n'}" >"$seeds/numbers/n$((n++))"; done <fuzz/seeds/numbers.txt
    for target in jetsql numbers; do
      echo "== fuzz_$target for ${seconds}s"
      log="build-fuzz/fuzz_$target.log" status=0
      build-fuzz/bin/fuzz_$target -max_total_time="$seconds" -max_len=4096 -timeout=10 -rss_limit_mb=2048 \
        -print_final_stats=1 -artifact_prefix=build-fuzz/ "build-fuzz/corpus/$target" "$seeds/$target" >"$log" 2>&1 \
        || status=$?
      grep -E '^#[0-9]+[[:space:]]+(INITED|DONE)|^stat::number_of_executed_units' "$log" || true
      if [ "$status" -ne 0 ]; then
        tail -40 "$log" >&2
        echo "fuzz_$target found a fault: see $log and build-fuzz/crash-*" >&2
        exit 1
      fi
    done
    ;;
  *)
    echo "usage: ./do run|test|bench|fuzz [SECONDS]" >&2; exit 2 ;;
esac
