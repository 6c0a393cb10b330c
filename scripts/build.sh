#!/usr/bin/env bash
# Installs what is missing, then configures and builds tvpolicy in build/ (or $BUILD_DIR): the
# library and the command-line tool only, unless BUILD_TARGETS names others ("all" for every
# test and benchmark). Extra arguments go to the CMake configure step, e.g. -DTVPOLICY_BUILD_BENCH=ON.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
build_dir=${BUILD_DIR:-build}
cmake -S . -B "$build_dir" -G Ninja -DTVPOLICY_WERROR=ON "$@" >/dev/null
cmake --build "$build_dir" --target ${BUILD_TARGETS:-tvpolicy tvpolicy_cli}
