#!/usr/bin/env bash
# The libFuzzer targets of fuzz/, built with Clang. Three modes; name targets after the options
# to run only those (scripts/fuzz.sh policy monitor).
#
#   scripts/fuzz.sh                    each target for FUZZ_SECONDS seconds, as CI runs them; by
#                                      default 30, less when the targets would together take more
#                                      than FUZZ_BUDGET seconds (300)
#   scripts/fuzz.sh --long MINUTES     each target for MINUTES minutes; --keep merges the new
#                                      inputs (minimised, -merge=1) into fuzz/corpus/<target>/
#   scripts/fuzz.sh --coverage         replays each corpus with Clang's source-based coverage and
#                                      prints, per parser file, the lines and branches it reaches
#
# Fuzzing builds in build-fuzz/ (or $BUILD_DIR, which may be a build configured with
# -DTVPOLICY_BUILD_FUZZ=ON for more than fuzzing) with ASan and UBSan, FUZZ_JOBS targets at once
# (two by default), and ends with a table: executions, exec/s, libFuzzer's coverage counters
# reached, new inputs and findings per target. A finding fails the run; its reproducer is
# printed (base64) and left under $FUZZ_ARTIFACTS (default build-fuzz/findings/). New inputs
# go to a scratch folder, so without --keep nothing in the source tree is written. Extra
# libFuzzer flags go in FUZZ_FLAGS.
#
# The coverage build lives in build-fuzz-coverage/ (or $COVERAGE_BUILD_DIR); its HTML report,
# line by line, in build-fuzz-coverage/coverage/. A parser file below 80% of its lines fails
# the report unless fuzz/unreachable.txt names the functions that no input can reach, and why.
set -euo pipefail
cd "$(dirname "$0")/.."

mode=bounded
keep=0
minutes=
while [[ $# -gt 0 ]]; do
  case $1 in
    --long)
      [[ ${2:-} =~ ^[0-9]+$ && $2 -gt 0 ]] || { echo "--long takes a whole number of minutes" >&2; exit 2; }
      mode=long minutes=$2
      shift 2 ;;
    --keep) keep=1; shift ;;
    --coverage) mode=coverage; shift ;;
    -h|--help) sed -n '2,/^set -euo/p' "$0" | sed '$d; s/^# \{0,1\}//'; exit 0 ;;
    --*) echo "unknown option $1 (see --help)" >&2; exit 2 ;;
    *) break ;;
  esac
done
if ((keep)) && [[ $mode != long ]]; then
  echo "--keep goes with --long" >&2
  exit 2
fi
selected=("$@")

bash scripts/setup.sh
jobs=${FUZZ_JOBS:-2}
launcher=()
if command -v ccache >/dev/null; then
  launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
if [[ $mode == coverage ]]; then
  build_dir=${COVERAGE_BUILD_DIR:-build-fuzz-coverage}
  extra=(-DTVPOLICY_FUZZ_COVERAGE=ON)
else
  build_dir=${BUILD_DIR:-build-fuzz}
  extra=(-DTVPOLICY_FUZZ_COVERAGE=OFF)
fi
# A folder already configured for fuzzing is used as it is: CI's sanitizer build carries the
# fuzzing instrumentation with its tests (BUILD_DIR=build-sanitize), and its fuzz targets are
# built by then. Any other folder is configured here, for the fuzz targets alone.
cache=$build_dir/CMakeCache.txt
if ! grep -qs '^TVPOLICY_BUILD_FUZZ:BOOL=ON$' "$cache" ||
   ! grep -qs "^TVPOLICY_FUZZ_COVERAGE:BOOL=${extra[0]#*=}\$" "$cache"; then
  if [[ -f $cache ]]; then
    echo "$build_dir is a build of another kind; fuzzing builds in a folder of its own (BUILD_DIR)" >&2
    exit 2
  fi
  cmake -S . -B "$build_dir" -G Ninja -DCMAKE_CXX_COMPILER=clang++ "${launcher[@]}" -DTVPOLICY_BUILD_FUZZ=ON \
    -DTVPOLICY_BUILD_TESTS=OFF "${extra[@]}" >/dev/null
fi

# The targets to run, as fuzz/CMakeLists.txt lists them: name, seed corpus, dictionary.
mapfile -t lines < "$build_dir/fuzz-targets.txt"
targets=()
for line in "${lines[@]}"; do
  what=${line%% *}
  if [[ ${#selected[@]} -eq 0 || " ${selected[*]} " == *" $what "* ]]; then
    targets+=("$line")
  fi
done
for name in "${selected[@]}"; do
  grep -q "^$name " "$build_dir/fuzz-targets.txt" || { echo "no fuzz target $name" >&2; exit 2; }
done
names=()
for line in "${targets[@]}"; do names+=("${line%% *}_fuzz"); done
cmake --build "$build_dir" --target "${names[@]}" -j "$jobs"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Runs "$1 <name> <corpus> <dictionary> <leak check>" for every target, $jobs at a time; each prints its log
# when it ends. Fails when one of them did.
each_target() {
  local run=$1 failed=0 running=0 status
  for line in "${targets[@]}"; do
    local what corpus dict leaks
    read -r what corpus dict leaks <<<"$line"
    if ((running >= jobs)); then
      status=0
      wait -n || status=$?
      running=$((running - 1))
      ((status == 0)) || failed=1
    fi
    (
      status=0
      "$run" "$what" "$corpus" "$dict" "$leaks" >"$work/$what.log" 2>&1 || status=1
      cat "$work/$what.log"
      exit $status
    ) &
    running=$((running + 1))
  done
  while ((running > 0)); do
    status=0
    wait -n || status=$?
    running=$((running - 1))
    ((status == 0)) || failed=1
  done
  return $failed
}

# ---- coverage ---------------------------------------------------------------------------

replay_one() {
  local what=$1 corpus=$2
  echo "== $what: replaying $(find "$corpus" -type f | wc -l) inputs of $corpus =="
  LLVM_PROFILE_FILE="$work/$what.profraw" "$build_dir/bin/${what}_fuzz" -runs=0 -timeout=30 "$corpus" 2>&1 | tail -n 2
  [[ ${PIPESTATUS[0]} -eq 0 ]]
}

if [[ $mode == coverage ]]; then
  each_target replay_one
  llvm-profdata merge -sparse "$work"/*.profraw -o "$build_dir/fuzz.profdata"
  # llvm-cov takes the first program alone, the others each after -object.
  objects=("$build_dir/bin/${names[0]}")
  for name in "${names[@]:1}"; do objects+=(-object "$build_dir/bin/$name"); done
  # The parser files of the targets run, as fuzz/CMakeLists.txt names them.
  parsers=()
  for line in "${targets[@]}"; do
    what=${line%% *}
    read -r -a files <<<"$(grep "^$what " "$build_dir/fuzz-parsers.txt" | cut -d' ' -f2-)"
    parsers+=("${files[@]}")
  done
  mapfile -t parsers < <(printf '%s\n' "${parsers[@]}" | sort -u)
  # The programs name their sources as the compiler saw them, from the build folder.
  sources=("${parsers[@]/#/$(cd "$build_dir" && pwd)/../}")
  # The export with its functions, whose spans fuzz/unreachable.txt's names are matched against.
  llvm-cov export -skip-expansions -instr-profile "$build_dir/fuzz.profdata" "${objects[@]}" "${sources[@]}" \
    >"$work/summary.json"
  # show takes no file names in the form the programs keep them: it shows every file.
  llvm-cov show -format=html -show-branches=count -output-dir="$build_dir/coverage" \
    -instr-profile "$build_dir/fuzz.profdata" "${objects[@]}"
  echo "line by line: $build_dir/coverage/index.html"
  # The same as text, from which the report tells whether the lines named unreachable are
  # the ones missed.
  llvm-cov show -instr-profile "$build_dir/fuzz.profdata" "${objects[@]}" >"$work/lines.txt"
  status=0
  python3 scripts/fuzz_coverage.py "$work/summary.json" "$work/lines.txt" "$build_dir/fuzz-parsers.txt" \
    fuzz/unreachable.txt "$PWD" "${targets[@]%% *}" || status=$?
  exit $status
fi

# ---- fuzzing ----------------------------------------------------------------------------

if [[ $mode == long ]]; then
  seconds=$((minutes * 60))
elif [[ -n ${FUZZ_SECONDS:-} ]]; then
  seconds=$FUZZ_SECONDS
else
  # CI's bound: the targets share FUZZ_BUDGET seconds of wall-clock time (300 by default),
  # $jobs at a time, 30 s each at most and 10 s at least, so that the step stays within ten
  # minutes with its build however many targets join.
  seconds=$(( ${FUZZ_BUDGET:-300} * jobs / ${#targets[@]} ))
  ((seconds > 30)) && seconds=30
  ((seconds < 10)) && seconds=10
fi
artifacts=${FUZZ_ARTIFACTS:-$build_dir/findings}
mkdir -p "$artifacts"
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}

# The number libFuzzer's final statistics give for $1 in the log $2, if any.
final_stat() { sed -n "s/^stat::$1: *\([0-9]*\).*/\1/p" "$2" | tail -n 1; }

# One target; what its run found (the numbers of libFuzzer's final statistics) goes to
# $work/<name>.row for the table.
fuzz_one() {
  local what=$1 corpus=$2 dict=$3 leaks=$4 status=0
  # New inputs go to a scratch folder; the seeds in the source tree are only read.
  mkdir -p "$work/$what"
  local flags=(-max_total_time="$seconds" -timeout=30 -print_final_stats=1
               -artifact_prefix="$artifacts/${what}-")
  [[ $dict != - ]] && flags+=(-dict="$dict")
  # LeakSanitizer still checks at exit (ASAN_OPTIONS), and a leak it finds fails the run.
  [[ $leaks == at-exit ]] && flags+=(-detect_leaks=0)
  echo "== $what: ${seconds}s from $corpus =="
  # shellcheck disable=SC2086  # FUZZ_FLAGS are words
  "$build_dir/bin/${what}_fuzz" "${flags[@]}" ${FUZZ_FLAGS:-} "$work/$what" "$corpus" 2>&1 | tee "$work/$what.out" \
    || status=1
  local findings
  findings=$(sed -n 's/.*Test unit written to \(.*\)$/\1/p' "$work/$what.out")
  for finding in $findings; do
    echo "== reproducer $finding (base64; decode into fuzz/corpus/$what/ to keep it) =="
    base64 "$finding"
  done
  local kept=-
  if ((keep && status == 0)); then
    local before after
    before=$(find "$corpus" -type f | wc -l)
    # Inputs that reach new edges only: the hit counts' finer distinctions would keep hundreds
    # more of them for little.
    "$build_dir/bin/${what}_fuzz" -merge=1 -use_counters=0 "$corpus" "$work/$what" >"$work/$what.merge" 2>&1 \
      || { cat "$work/$what.merge"; status=1; }
    after=$(find "$corpus" -type f | wc -l)
    kept=$((after - before))
  fi
  local row=("$what")
  for name in number_of_executed_units average_exec_per_sec; do
    row+=("$(final_stat "$name" "$work/$what.out")")
  done
  row+=("$(grep -ao 'cov: [0-9]*' "$work/$what.out" | tail -n 1 | cut -d' ' -f2)")
  row+=("$(final_stat new_units_added "$work/$what.out")" "$kept" "$(wc -w <<<"$findings")")
  for i in "${!row[@]}"; do row[i]=${row[i]:--}; done
  echo "${row[*]}" >"$work/$what.row"
  return $status
}

status=0
each_target fuzz_one || status=1
echo
printf '%-24s %12s %9s %9s %9s %6s %9s\n' target executions exec/s cov new kept findings
for line in "${targets[@]}"; do
  what=${line%% *}
  if [[ -s $work/$what.row ]]; then
    read -r name runs speed cov new kept findings <"$work/$what.row"
    printf '%-24s %12s %9s %9s %9s %6s %9s\n' "$name" "$runs" "$speed" "$cov" "$new" "$kept" "$findings"
  fi
done
echo "(cov: the coverage counters (edges) reached, libFuzzer's last 'cov:'; new: inputs that added"
echo " coverage during the run; kept: of those, how many --keep merged into fuzz/corpus/<target>/)"
exit $status
