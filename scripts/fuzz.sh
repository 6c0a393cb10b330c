#!/usr/bin/env bash
# Builds the libFuzzer targets with Clang in build-fuzz/ (or $BUILD_DIR) and runs each of them
# from its seed corpus for FUZZ_SECONDS seconds (30 by default). Name targets to run only
# those: scripts/fuzz.sh policy monitor. A finding stops the run with a failure; its
# reproducer is printed (base64) and left under $FUZZ_ARTIFACTS (default build-fuzz/findings/).
# Extra libFuzzer flags go in FUZZ_FLAGS, e.g. FUZZ_FLAGS=-jobs=2. FUZZ_JOBS targets run at
# once (one per core by default).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
build_dir=${BUILD_DIR:-build-fuzz}
seconds=${FUZZ_SECONDS:-30}
artifacts=${FUZZ_ARTIFACTS:-$build_dir/findings}

cmake -S . -B "$build_dir" -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DTVPOLICY_BUILD_FUZZ=ON \
  -DTVPOLICY_BUILD_TESTS=OFF >/dev/null
mapfile -t targets < "$build_dir/fuzz-targets.txt"
names=()
for line in "${targets[@]}"; do names+=("${line%% *}_fuzz"); done
cmake --build "$build_dir" --target "${names[@]}"

mkdir -p "$artifacts"
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# One target, its output kept in its own log so that targets can run side by side.
fuzz_one() {
  local what=$1 corpus=$2 dict=$3
  # New inputs go to a scratch folder; the seeds in the source tree are only read.
  mkdir -p "$work/$what"
  local flags=(-max_total_time="$seconds" -timeout=30 -print_final_stats=1
               -artifact_prefix="$artifacts/${what}-")
  [[ $dict != - ]] && flags+=(-dict="$dict")
  echo "== $what: ${seconds}s from $corpus =="
  if ! "$build_dir/bin/${what}_fuzz" "${flags[@]}" ${FUZZ_FLAGS:-} "$work/$what" "$corpus" 2>&1; then
    for finding in "$artifacts/${what}"-*; do
      [[ -e $finding ]] || continue
      echo "== reproducer $finding (base64; decode into fuzz/corpus/$what/ to keep it) =="
      base64 "$finding"
    done
    return 1
  fi
}

# FUZZ_JOBS targets at a time (one per core by default); each prints its log when it ends.
jobs=${FUZZ_JOBS:-$(nproc)}
failed=0
running=0
finish_one() {
  local status=0
  wait -n || status=$?
  running=$((running - 1))
  [[ $status -eq 0 ]] || failed=1
}
for line in "${targets[@]}"; do
  read -r what corpus dict <<<"$line"
  if [[ $# -gt 0 && " $* " != *" $what "* ]]; then
    continue
  fi
  if ((running >= jobs)); then
    finish_one
  fi
  (
    status=0
    fuzz_one "$what" "$corpus" "$dict" >"$work/$what.log" || status=1
    cat "$work/$what.log"
    exit $status
  ) &
  running=$((running + 1))
done
while ((running > 0)); do
  finish_one
done
exit $failed
