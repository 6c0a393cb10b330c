#!/usr/bin/env bash
# The ABI guard of libtvpolicy. abi/libtvpolicy.abi records the library's ABI (abidw: its exported
# functions and variables and the public types they reach, with the SONAME); CI compares the
# library it built with that record (abidiff).
#
#   scripts/abi.sh                    check build/lib/libtvpolicy.so against the record
#   scripts/abi.sh --update           write the record from the built library
#   scripts/abi.sh --update --allow-break
#                                     write it even for an incompatible change with the same SONAME
#
# The check fails on an incompatible change (a function or variable removed, a type or signature
# changed) and when the library's SONAME is not the recorded one. A compatible change (functions
# added) passes and is reported. --update refuses an incompatible change unless the SONAME was
# bumped with it (the major version of project() in CMakeLists.txt), or --allow-break says the
# break is meant to ship under the same SONAME (only before a release: nothing outside this
# repository links the library yet). BUILD_DIR names another build tree; it needs debug
# information (RelWithDebInfo, the default, or Debug).
set -euo pipefail
cd "$(dirname "$0")/.."
TVPOLICY_SETUP_PACKAGING=1 bash scripts/setup.sh

update=0 allow_break=0
for argument in "$@"; do
  case $argument in
    --update) update=1 ;;
    --allow-break) allow_break=1 ;;
    *) echo "usage: scripts/abi.sh [--update [--allow-break]]" >&2; exit 2 ;;
  esac
done

record=abi/libtvpolicy.abi
library=$(realpath "${BUILD_DIR:-build}/lib/libtvpolicy.so")
[[ -f $library ]] || { echo "abi: no $library: build the library first" >&2; exit 2; }
headers=(--headers-dir include --headers-dir "${BUILD_DIR:-build}/include")

soname_of_library() { readelf -d "$1" | sed -n 's/.*Library soname: \[\(.*\)\]/\1/p'; }
soname_of_record() { sed -n 's/.*<abi-corpus .*soname=.\([^"'\'']*\).*/\1/p' "$1" | head -n 1; }

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
# Locations and build paths are left out, so the record changes only when the ABI does.
abidw "${headers[@]}" --drop-private-types --no-show-locs --no-comp-dir-path --no-corpus-path \
  --type-id-style hash --out-file "$scratch/built.abi" "$library"

built_soname=$(soname_of_library "$library")
recorded_soname=
[[ -f $record ]] && recorded_soname=$(soname_of_record "$record")

# abidiff's status is a bit set: 1 error, 2 usage, 4 a change, 8 an incompatible change.
compare() {
  set +e
  abidiff --no-show-locs "$record" "$scratch/built.abi" >"$scratch/report"
  status=$?
  set -e
  if (( status & 3 )); then
    cat "$scratch/report" >&2
    echo "abi: abidiff failed (status $status)" >&2
    exit 2
  fi
}

if (( update )); then
  if [[ -f $record && $recorded_soname == "$built_soname" ]]; then
    compare
    if (( status & 8 )) && (( ! allow_break )); then
      cat "$scratch/report"
      echo "abi: an incompatible change under the same SONAME ($built_soname): bump the major version" \
        "in CMakeLists.txt, or pass --allow-break before a release" >&2
      exit 1
    fi
  fi
  mkdir -p "$(dirname "$record")"
  cp "$scratch/built.abi" "$record"
  echo "abi: recorded $built_soname in $record"
  exit 0
fi

if [[ ! -f $record ]]; then
  echo "abi: no record ($record): run scripts/abi.sh --update" >&2
  exit 1
fi
if [[ $recorded_soname != "$built_soname" ]]; then
  echo "abi: the library's SONAME is $built_soname, the record's $recorded_soname:" \
    "run scripts/abi.sh --update with the bump" >&2
  exit 1
fi
compare
if (( status & 8 )); then
  cat "$scratch/report"
  echo "abi: incompatible with the record under the same SONAME ($built_soname)." >&2
  echo "abi: keep the interface, or bump the major version and run scripts/abi.sh --update" >&2
  exit 1
fi
if (( status & 4 )); then
  cat "$scratch/report"
  echo "abi: compatible with the record; scripts/abi.sh --update records the additions"
else
  echo "abi: the same as the record ($built_soname)"
fi
