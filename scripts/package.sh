#!/usr/bin/env bash
# Builds the Debian packages (libtvpolicy0, libtvpolicy-dev, tvpolicy) from this checkout, as
# it is on disk, with dpkg-buildpackage, and checks them with lintian. The packages land in
# build/deb/ (or $DEB_DIR); the copy of the sources they are built from stays in its src/
# folder, so a second run rebuilds only what changed (with ccache when it is installed).
set -euo pipefail
cd "$(dirname "$0")/.."
TVPOLICY_SETUP_PACKAGING=1 bash scripts/setup.sh
top=$PWD
deb_dir=$(realpath -m "${DEB_DIR:-build/deb}")
version=$(dpkg-parsechangelog -S Version)
src="$deb_dir/src/tvpolicy-$version"
mkdir -p "$src"

# The sources as they are on disk (tracked and new files, not what .gitignore leaves out), over
# a fresh copy; only CMake's build folder (obj-*) is kept from the last run. Copies keep their
# times, so the build recompiles what changed and nothing else.
find "$src" -mindepth 1 -maxdepth 1 -not -name 'obj-*' -exec rm -rf {} +
git ls-files -z --cached --others --exclude-standard |
  tar --null --files-from=- --ignore-failed-read -cf - | tar -xf - -C "$src"

ccache=
command -v ccache >/dev/null && ccache=1
( cd "$src" && TVPOLICY_CCACHE=$ccache DEB_BUILD_OPTIONS="parallel=$(nproc) nocheck noddebs" \
    dpkg-buildpackage -us -uc -b -nc >"$deb_dir/build.log" 2>&1 ) || {
  tail -n 40 "$deb_dir/build.log" >&2
  echo "package: dpkg-buildpackage failed; the whole log is $deb_dir/build.log" >&2
  exit 1
}
arch=$(dpkg-architecture -qDEB_HOST_ARCH)
for package in libtvpolicy0 libtvpolicy-dev tvpolicy; do
  mv -f "$deb_dir/src/${package}_${version}_${arch}.deb" "$deb_dir/"
done
rm -f "$deb_dir"/src/*.deb "$deb_dir"/src/*.ddeb "$deb_dir"/src/*.changes "$deb_dir"/src/*.buildinfo

# No error on any package; every warning that remains is overridden (with its reason) in
# debian/*.lintian-overrides, so any warning that shows is new.
lintian --fail-on error,warning \
  "$deb_dir"/libtvpolicy0_*.deb "$deb_dir"/libtvpolicy-dev_*.deb "$deb_dir"/tvpolicy_*.deb
ls "$deb_dir"/*.deb
