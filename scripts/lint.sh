#!/usr/bin/env bash
# Checks the layout of every C++ file against .clang-format and runs the checks of .clang-tidy
# over every source of src/ and tools/ (TIDY_DIRS) that the Clang build in build-sanitize/ (or
# $BUILD_DIR) compiles, as CI builds it; when that folder is not configured yet, it is
# configured here (the checks need its compile commands and generated headers, not a build).
# Prints each finding and fails when there is one.
#   scripts/lint.sh            both
#   scripts/lint.sh format     the layout only (quick; clang-format -i <file> fixes one)
#   scripts/lint.sh tidy       the checks only
# LINT_JOBS sets how many files are checked at once (all cores by default).
# TIDY_DIRS="src tools tests bench fuzz" checks the tests, benchmarks and fuzz targets too.
set -euo pipefail
cd "$(dirname "$0")/.."
what=${1:-all}
build_dir=${BUILD_DIR:-build-sanitize}
jobs=${LINT_JOBS:-$(nproc)}
read -r -a dirs <<<"${TIDY_DIRS:-src tools}"
failed=0

if [[ $what == all || $what == format ]]; then
  echo "== clang-format =="
  git ls-files -z '*.cpp' '*.h' ':!:third_party/' |
    xargs -0 -n 20 -P "$jobs" clang-format --dry-run --Werror || failed=1
fi

if [[ $what == all || $what == tidy ]]; then
  echo "== clang-tidy =="
  if [[ ! -f $build_dir/CMakeCache.txt ]]; then
    bash scripts/setup.sh
    cmake -S . -B "$build_dir" -G Ninja -C cmake/ClangCheckBuild.cmake >/dev/null
  fi
  if ! grep -qs '^CMAKE_CXX_COMPILER:.*clang++' "$build_dir/CMakeCache.txt"; then
    echo "$build_dir is not a Clang build; clang-tidy reads its compile commands (BUILD_DIR)" >&2
    exit 2
  fi
  # Our own sources only: the build folder's generated files and third_party/ are not ours.
  # Headers are checked through the sources that include them (.clang-tidy's HeaderFilterRegex).
  root=$(pwd)
  pattern=$(IFS='|'; echo "${dirs[*]}")
  run-clang-tidy -quiet -j "$jobs" -p "$build_dir" "^$root/($pattern)/" >"$build_dir/clang-tidy.log" 2>&1 ||
    failed=1
  sed 's/\x1b\[[0-9;]*m//g' "$build_dir/clang-tidy.log" | grep -E "(warning|error): " | sort -u || true
fi
exit $failed
