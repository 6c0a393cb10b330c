#!/usr/bin/env bash
# Installs the build tree into a scratch prefix and builds a small program against the
# installed package twice: through find_package(tvpolicy) and through pkg-config.
set -euo pipefail
build_dir=$1
work=$2
here=$(cd "$(dirname "$0")" && pwd)
rm -rf "$work"
mkdir -p "$work"
prefix="$work/prefix"

cmake --install "$build_dir" --prefix "$prefix" >/dev/null

cmake -S "$here" -B "$work/cmake-build" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/cmake-build" >/dev/null
LD_LIBRARY_PATH="$prefix/lib" "$work/cmake-build/consumer" | tee "$work/cmake.out"

libdir=$(ls -d "$prefix"/lib* | head -n 1)
export PKG_CONFIG_PATH="$libdir/pkgconfig"
# shellcheck disable=SC2046
c++ -o "$work/pkgconfig-consumer" "$here/consumer.cpp" $(pkg-config --cflags --libs tvpolicy)
LD_LIBRARY_PATH="$libdir" "$work/pkgconfig-consumer" | tee "$work/pkgconfig.out"

grep -q '^encoded: a%26b$' "$work/cmake.out"
grep -q '^encoded: a%26b$' "$work/pkgconfig.out"
grep -q '^policy: passed$' "$work/cmake.out"
cmp "$work/cmake.out" "$work/pkgconfig.out"
echo "consumer: both builds ran"
