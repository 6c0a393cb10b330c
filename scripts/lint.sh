#!/usr/bin/env bash
# Checks the layout of every C++ file against .clang-format and runs the checks of .clang-tidy
# over every source that the build in build/ (or $BUILD_DIR) compiles; configure that build
# first (scripts/build.sh). Prints each finding and fails when there is one.
#   scripts/lint.sh            both
#   scripts/lint.sh format     the layout only (quick; clang-format -i <file> fixes one)
#   scripts/lint.sh tidy       the checks only
# LINT_JOBS sets how many files are checked at once (all cores by default).
set -euo pipefail
cd "$(dirname "$0")/.."
what=${1:-all}
build_dir=${BUILD_DIR:-build}
jobs=${LINT_JOBS:-$(nproc)}
failed=0

if [[ $what == all || $what == format ]]; then
  echo "== clang-format =="
  git ls-files -z '*.cpp' '*.h' ':!:third_party/' |
    xargs -0 -n 20 -P "$jobs" clang-format --dry-run --Werror || failed=1
fi

if [[ $what == all || $what == tidy ]]; then
  echo "== clang-tidy =="
  if [[ ! -f $build_dir/compile_commands.json ]]; then
    echo "no $build_dir/compile_commands.json: configure a build first (scripts/build.sh)" >&2
    exit 2
  fi
  # Our own sources only: the build folder's generated files and third_party/ are not ours.
  root=$(pwd)
  run-clang-tidy -quiet -j "$jobs" -p "$build_dir" \
    "^$root/(src|tools|tests|bench|fuzz)/" >"$build_dir/clang-tidy.log" 2>&1 || failed=1
  grep -E "(warning|error): " "$build_dir/clang-tidy.log" | grep -v "^Suppressed" | sort -u || true
fi
exit $failed
