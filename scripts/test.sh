#!/usr/bin/env bash
# Builds tvpolicy (see build.sh) and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
TVPOLICY_SETUP_TESTS=1 BUILD_TARGETS=all bash scripts/build.sh "$@"
ctest --test-dir "${BUILD_DIR:-build}" --output-on-failure -j "$(nproc)"
